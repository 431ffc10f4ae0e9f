// The client's machine on Linux: passes each call on to the file that
// implements it.
#ifndef PLATFORM_LINUX_LINUX_MACHINE_H_
#define PLATFORM_LINUX_LINUX_MACHINE_H_

#include <climits>
#include <optional>
#include <string>

#include "platform/linux/fixed_text.h"
#include "platform/linux/helper_answers.h"
#include "platform/machine.h"

namespace velmohelp {

class LinuxMachine : public Machine {
 public:
  /// With the helpers beside the library. Owns no memory then.
  LinuxMachine() = default;
  /// With helpers from another folder.
  explicit LinuxMachine(std::string helper_folder, Timeouts timeouts = {});
  LinuxMachine(const LinuxMachine&) = delete;
  LinuxMachine& operator=(const LinuxMachine&) = delete;

#include "platform/machine_overrides.inc"

 private:
  HelperAnswers Helpers() const;
  std::optional<std::string> Host() const;

  /// Empty for the program of this process.
  FixedText<PATH_MAX> host_;
  /// Empty for the one beside the library.
  std::string helper_folder_;
  Timeouts timeouts_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_LINUX_MACHINE_H_
