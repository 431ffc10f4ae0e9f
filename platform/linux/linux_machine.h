// The client's machine on Linux: passes each call on to the file that
// implements it.
#ifndef PLATFORM_LINUX_LINUX_MACHINE_H_
#define PLATFORM_LINUX_LINUX_MACHINE_H_

#include <climits>
#include <cstddef>
#include <optional>
#include <string>

#include "platform/linux/fixed_text.h"
#include "platform/linux/helper_answers.h"
#include "platform/machine.h"

namespace velmohelp {

/// Bytes of a token. Window systems use far fewer than a hundred.
inline constexpr std::size_t kActivationTokenLimit = 1024;

class LinuxMachine : public Machine {
 public:
  /// With the helpers beside the library. Owns no memory then.
  LinuxMachine() = default;
  /// With helpers from another folder, and for a program that is not the
  /// library: the folder of the library that it works for.
  explicit LinuxMachine(std::string helper_folder, Timeouts timeouts = {},
                        std::string library_folder = {});
  LinuxMachine(const LinuxMachine&) = delete;
  LinuxMachine& operator=(const LinuxMachine&) = delete;

#include "platform/machine_overrides.inc"

 private:
  HelperAnswers Helpers() const;
  std::optional<std::string> Host() const;
  std::optional<std::string> LibraryFolder() const;
  std::string HelperFolder() const;
  std::optional<std::string> ConsumeActivationToken();

  /// Empty for the program of this process.
  FixedText<PATH_MAX> host_;
  /// Empty for none of the caller's.
  FixedText<kActivationTokenLimit> activation_token_;
  /// Empty for the one beside the library.
  std::string helper_folder_;
  Timeouts timeouts_;
  /// Empty for the one that this code is in.
  std::string library_folder_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_LINUX_MACHINE_H_
