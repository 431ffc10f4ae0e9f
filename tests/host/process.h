// Running a program as a person or a build would, for tests.
#ifndef TESTS_HOST_PROCESS_H_
#define TESTS_HOST_PROCESS_H_

#include <string>
#include <vector>

namespace velmohelp::testing {

struct Outcome {
  int status = -1;  ///< exit status; -1 when a signal ended it
  std::string out;
  std::string error;
};

using Words = std::vector<std::string>;

/// Runs a program to its end with that standard input. Entries of the form
/// NAME=value precede those of the test's own environment.
Outcome RunProgram(const Words& command, const std::string& input = "",
                   const Words& environment = {});

/// Runs a program on a terminal where a person types the input, then Control-D.
/// All that the program writes to the terminal is in out.
Outcome RunOnTerminal(const Words& command, const std::string& input);

}  // namespace velmohelp::testing

#endif  // TESTS_HOST_PROCESS_H_
