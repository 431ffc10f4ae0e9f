// How a program was started.
#ifndef TESTS_SUPPORT_START_FACTS_H_
#define TESTS_SUPPORT_START_FACTS_H_

#include <string>
#include <vector>

namespace velmohelp::testing {

/// What this process was given: records, each ended by a NUL, that begin with
/// a word and a space: "argument", "environment", "descriptor", "stream" (what
/// the descriptors 0, 1 and 2 are), "blocked", "ignored" (signals), "policy",
/// "nice", "processors" (a number each); and the record "own session" or
/// "host's session".
std::string StartFacts(int argc, char* argv[]);

/// The facts of one kind, without the word in front of them.
std::vector<std::string> Facts(const std::string& records,
                               const std::string& word);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_START_FACTS_H_
