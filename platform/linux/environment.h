// The environment of started programs.
#ifndef PLATFORM_LINUX_ENVIRONMENT_H_
#define PLATFORM_LINUX_ENVIRONMENT_H_

#include <string>
#include <vector>

namespace velmohelp {

/// The environment that a program is started with: the host's, with the
/// loader's path as it was before a tool that bundles applications changed it.
/// A browser that loads the host's bundled libraries instead of the system's
/// crashes at its start. Such a tool saves the path as LD_LIBRARY_PATH_ORIG; an
/// empty one means that there was none. A host that runs with more rights than
/// the person who started it (set-user-ID) does not look at the variable.
///
/// Valid until the host's environment changes.
class ChildEnvironment {
 public:
  ChildEnvironment();
  ChildEnvironment(const ChildEnvironment&) = delete;
  ChildEnvironment& operator=(const ChildEnvironment&) = delete;

  char* const* pointers() const { return pointers_.data(); }

 private:
  std::string loader_path_;
  std::vector<char*> pointers_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_ENVIRONMENT_H_
