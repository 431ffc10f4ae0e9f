// The names of result codes.
#include <array>
#include <span>
#include <string_view>

#include "exports/result_codes.h"
#include "tools/explain/request.h"

namespace velmohelp::tool {
namespace {

/// Scripts see no names for these two tables. The words are those of the
/// enumerations.
constexpr std::array<std::string_view, 8> kOpenNames = {"success",
                                                        "browserLaunchFailure",
                                                        "helpAppLaunchFailure",
                                                        "invalidArgument",
                                                        "missingConfig",
                                                        "invalidConfig",
                                                        "invalidInitialization",
                                                        "unexpectedResult"};
constexpr std::array<std::string_view, 9> kSearchNames = {
    "success",         "launchFailure", "",
    "invalidArgument", "missingConfig", "invalidConfig",
    "noLocalPage",     "noOnlinePage",  "noConfigName"};

std::string NameIn(const LxNamedValue* values, int code) {
  for (; values->name != nullptr; ++values) {
    if (values->value == code) return values->name;
  }
  return "";
}

std::string NameIn(std::span<const std::string_view> names, int code) {
  const auto index = static_cast<std::size_t>(code);
  return index < names.size() ? std::string(names[index]) : "";
}

}  // namespace

Result InitResult(int code) {
  return {.code = code,
          .name = NameIn(kInitReturnCode.values, code),
          .table = "InitReturnCode"};
}

Result ResultOf(Request::Kind kind, int code) {
  switch (kind) {
    case Request::Kind::kDisplay:
      return {.code = code,
              .name = NameIn(kDisplayPageReturnCode.values, code),
              .table = "DisplayPageReturnCode"};
    case Request::Kind::kOpen:
      return {.code = code,
              .name = NameIn(kOpenNames, code),
              .table = "OpenUrlReturnCode"};
    case Request::Kind::kSearch:
      break;
  }
  return {.code = code,
          .name = NameIn(kSearchNames, code),
          .table = "SearchReturnCode"};
}

}  // namespace velmohelp::tool
