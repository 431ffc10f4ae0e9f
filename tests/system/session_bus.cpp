#include "tests/system/session_bus.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>

#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

constexpr char kService[] =
    "[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=/bin/false\n";

std::string Configuration(const std::string& folder) {
  std::string text = "<busconfig><type>session</type><listen>";
  text.append(kBusAddress).append("</listen><servicedir>").append(folder);
  return text.append(
      "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/>"
      "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
}

[[noreturn]] void Become(const std::string& file, int address) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  // The host's streams are not the bus's to hold open.
  dup2(address, 1);
  closefrom(2);
  const std::string option = "--config-file=" + file;
  execlp("dbus-daemon", "dbus-daemon", "--nofork", "--print-address=1",
         option.c_str(), nullptr);
  _exit(1);
}

}  // namespace

bool StartBusWithPortal(const std::string& folder) {
  WriteFile(folder + "/portal.service", kService);
  const std::string file = folder + "/bus.conf";
  WriteFile(file, Configuration(folder));
  int ends[2] = {-1, -1};
  if (pipe(ends) != 0) return false;
  const pid_t process = fork();
  if (process == 0) Become(file, ends[1]);
  close(ends[1]);
  // The address is printed once the bus listens; without a bus the pipe ends.
  char first = 0;
  const bool started = process > 0 && read(ends[0], &first, 1) == 1;
  close(ends[0]);
  return started;
}

}  // namespace velmohelp::testing
