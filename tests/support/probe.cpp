// A program that tells how it was started, in the file that its first argument
// names.
#include <fstream>

#include "tests/support/start_facts.h"

int main(int argc, char* argv[]) {
  const std::string facts = velmohelp::testing::StartFacts(argc, argv);
  std::ofstream(argv[1], std::ios::binary) << facts;
}
