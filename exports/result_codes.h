// The two tables of named result codes, as scripts see them. Their values are
// the enumerations of <velmohelp/velmohelp.h>; the two numberings differ on
// purpose, and names that no operation returns stay all the same.
#ifndef EXPORTS_RESULT_CODES_H_
#define EXPORTS_RESULT_CODES_H_

#include <velmohelp/script_host.h>
#include <velmohelp/velmohelp.h>

#include <cstddef>

namespace velmohelp {

/// A table whose list follows the header directly, where hosts look for it.
template <std::size_t kRows>
struct ResultCodeTable {
  LxNamedIntegerTable header;
  LxNamedValue values[kRows];
};
static_assert(offsetof(ResultCodeTable<1>, values) ==
              sizeof(LxNamedIntegerTable));

inline constexpr ResultCodeTable<9> kInitReturnCode = {
    {"Init Return Code", kInitReturnCode.values},
    {{"success", kInitSuccess},
     {"invalidArgument", kInitInvalidArgument},
     {"missingHelpMap", kInitMissingHelpMap},
     {"invalidHelpMap", kInitInvalidHelpMap},
     {"missingOnlineUrlPrefix", kInitMissingOnlineUrlPrefix},
     {"invalidOnlineUrlPrefix", kInitInvalidOnlineUrlPrefix},
     {"missingConfig", kInitMissingConfig},
     {"invalidConfig", kInitInvalidConfig},
     {nullptr, 0}}};

inline constexpr ResultCodeTable<13> kDisplayPageReturnCode = {
    {"Display Page Return Code", kDisplayPageReturnCode.values},
    {{"success", kDisplaySuccess},
     {"helpAppLaunchFailure", kDisplayHelpAppLaunchFailure},
     {"browserLaunchFailure", kDisplayBrowserLaunchFailure},
     {"invalidArgument", kDisplayInvalidArgument},
     {"missingConfig", kDisplayMissingConfig},
     {"invalidConfig", kDisplayInvalidConfig},
     {"invalidInitialization", kDisplayInvalidInitialization},
     {"pageidDoesNotExist", kDisplayPageidDoesNotExist},
     {"invalidOnlineUrlPrefix", kDisplayInvalidOnlineUrlPrefix},
     {"notAllowedOnline", kDisplayNotAllowedOnline},
     {"notOnline", kDisplayNotOnline},
     {"unexpectedResult", kDisplayUnexpectedResult},
     {nullptr, 0}}};

}  // namespace velmohelp

#endif  // EXPORTS_RESULT_CODES_H_
