// The environment of started programs.
#ifndef PLATFORM_LINUX_ENVIRONMENT_H_
#define PLATFORM_LINUX_ENVIRONMENT_H_

#include <optional>
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
/// Of the activation token's variables (XDG_ACTIVATION_TOKEN for Wayland,
/// DESKTOP_STARTUP_ID for X11) a program gets both with the token that it is
/// meant to use, or neither: a token is good for one window.
///
/// Valid until the host's environment changes.
class ChildEnvironment {
 public:
  explicit ChildEnvironment(
      const std::optional<std::string>& activation_token = {});
  ChildEnvironment(const ChildEnvironment&) = delete;
  ChildEnvironment& operator=(const ChildEnvironment&) = delete;

  char* const* pointers() const { return pointers_.data(); }

 private:
  std::string loader_path_;
  std::string activation_token_;
  std::string startup_id_;
  std::vector<char*> pointers_;
};

/// The activation token that the host itself was started with and did not take
/// out of its environment. The first call returns it, all later ones nullopt:
/// the desktop would take a second window for a response to an old click.
std::optional<std::string> ConsumeOwnActivationToken();

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_ENVIRONMENT_H_
