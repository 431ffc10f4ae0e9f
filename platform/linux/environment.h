// The environment that a program is started with.
#ifndef PLATFORM_LINUX_ENVIRONMENT_H_
#define PLATFORM_LINUX_ENVIRONMENT_H_

#include <string>
#include <vector>

namespace velmohelp {

/// The host's environment with the loader's path as it was before a tool that
/// bundles applications changed it: a browser that loads the host's bundled
/// libraries instead of the system's crashes at its start. Such a tool saves
/// the path as LD_LIBRARY_PATH_ORIG; an empty one means that there was none.
///
/// Made before the process is, and valid until the host's environment changes.
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
