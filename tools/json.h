// JSON output.
#ifndef TOOLS_JSON_H_
#define TOOLS_JSON_H_

#include <nlohmann/json.hpp>
#include <string>

namespace velmohelp::tool {

/// Indented, with a line end. A byte that is not UTF-8 becomes U+FFFD: file
/// names and keys may have any bytes.
inline std::string JsonText(const nlohmann::ordered_json& value) {
  return value.dump(2, ' ', false,
                    nlohmann::ordered_json::error_handler_t::replace) +
         "\n";
}

}  // namespace velmohelp::tool

#endif  // TOOLS_JSON_H_
