// Holds the helper program of started requests back, for a test of what a host
// can do before it has begun.
#ifndef TESTS_SYSTEM_WORKER_GATE_H_
#define TESTS_SYSTEM_WORKER_GATE_H_

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "tests/system/help_world.h"

namespace velmohelp::testing {

/// In a world with a copy of the library, whose host has not started a request.
/// A helper that starts waits until the gate is opened, once for each.
class WorkerGate {
 public:
  explicit WorkerGate(HelpWorld& world) : path_(world.Expanded("{bin}/gate")) {
    const auto folder =
        std::filesystem::path(world.start().plug_in).parent_path() /
        "velmohelp";
    const std::string helper = folder / "velmohelp-request";
    mkfifo(path_.c_str(), S_IRWXU);
    std::filesystem::rename(helper, helper + "-itself");
    world.WriteProgram(helper, "#!/bin/sh\nread x < '" + path_ + "'\nexec '" +
                                   helper + "-itself' \"$@\"\n");
  }

  void Open() const { std::ofstream(path_) << "\n"; }

 private:
  std::string path_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_WORKER_GATE_H_
