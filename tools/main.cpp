#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

#include "tools/command_line.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const velmohelp::tool::Console console{
      .out = std::cout,
      .err = std::cerr,
      .out_is_terminal = isatty(STDOUT_FILENO) != 0,
      .err_is_terminal = isatty(STDERR_FILENO) != 0};
  const int status = velmohelp::tool::RunCommandLine(arguments, console);
  std::cout.flush();
  return std::cout ? status : velmohelp::tool::kExitFile;
}
