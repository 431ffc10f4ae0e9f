// What the client sees on this machine, without a request.
#ifndef TOOLS_EXPLAIN_STATUS_H_
#define TOOLS_EXPLAIN_STATUS_H_

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tools/explain/request_machine.h"

namespace velmohelp::tool {

/// One fact. name is stable, for programs: "installed-content".
struct Fact {
  std::string name;
  /// What it is, for a person.
  std::string label;
  std::string value;
  /// It is as it should be for help to work.
  bool ok = true;
};

/// Facts in the order in which they are printed. product: empty for those of
/// the machine alone.
std::vector<Fact> StatusOf(RequestMachine& here, const std::string& product,
                           const std::string& locale);

std::string TextOf(const std::vector<Fact>& facts);
nlohmann::ordered_json JsonOf(const std::vector<Fact>& facts);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_STATUS_H_
