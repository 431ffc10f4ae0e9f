// A machine that records what it gets byte for byte.
#ifndef TESTS_CLIENT_RECORDING_MACHINE_H_
#define TESTS_CLIENT_RECORDING_MACHINE_H_

#include <string>
#include <vector>

#include "platform/scripted/scripted_machine.h"

namespace velmohelp::testing {

class RecordingMachine : public ScriptedMachine {
 public:
  /// The last argument of each program started, and each URL opened.
  const std::vector<std::string>& Requests() const { return requests_; }

  bool StartProgram(const std::string& program,
                    const Arguments& arguments) override {
    requests_.push_back(arguments.back());
    return ScriptedMachine::StartProgram(program, arguments);
  }

  bool OpenInBrowser(const std::string& url) override {
    requests_.push_back(url);
    return ScriptedMachine::OpenInBrowser(url);
  }

 private:
  std::vector<std::string> requests_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_CLIENT_RECORDING_MACHINE_H_
