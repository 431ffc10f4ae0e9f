// The client's machine on Linux: each question handed to the file that
// answers it.
#ifndef PLATFORM_LINUX_LINUX_MACHINE_H_
#define PLATFORM_LINUX_LINUX_MACHINE_H_

#include <optional>
#include <string>

#include "platform/linux/helper_answers.h"
#include "platform/linux/programs.h"
#include "platform/machine.h"

namespace velmohelp {

class LinuxMachine : public Machine {
 public:
  /// With the helpers that lie beside the library.
  LinuxMachine();
  /// With helpers from another folder.
  explicit LinuxMachine(const std::string& helper_folder,
                        Patience patience = {});
  LinuxMachine(const LinuxMachine&) = delete;
  LinuxMachine& operator=(const LinuxMachine&) = delete;

#include "platform/machine_overrides.inc"

 private:
  Programs programs_;
  HelperAnswers helpers_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_LINUX_MACHINE_H_
