// Doubles of the two client functions that the binding calls.
#ifndef TESTS_EXPORTS_CLIENT_DOUBLES_H_
#define TESTS_EXPORTS_CLIENT_DOUBLES_H_

#include <cstdint>
#include <string>
#include <vector>

namespace velmohelp::testing {

/// What both functions return.
inline std::uint32_t client_result = 0;

/// Every call so far of what the binding may call, first to last.
inline std::vector<std::string> calls;

}  // namespace velmohelp::testing

#endif  // TESTS_EXPORTS_CLIENT_DOUBLES_H_
