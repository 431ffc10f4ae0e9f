// A text without the names of a person and a machine.
#ifndef TOOLS_EXPLAIN_PRIVACY_H_
#define TOOLS_EXPLAIN_PRIVACY_H_

#include <string>
#include <vector>

namespace velmohelp::tool {

/// Names that a report must not have.
struct PrivateNames {
  std::string user = {};
  /// Paths of the person's home, with and without links in them.
  std::vector<std::string> homes = {};
  /// The machine's own names.
  std::vector<std::string> hosts = {};
};

/// Those of this process's user and machine. environment: HOME is looked up in
/// it.
PrivateNames NamesOfHere();

/// text with HOME in place of a home, also where a URL has it percent-encoded,
/// USER in place of the user's name and HOST in place of a host name of the
/// machine; and HOST1, HOST2 ... in place of the host names in its URLs, except
/// kept. Names count as whole words, whatever their letter case.
std::string WithoutNames(const std::string& text, const PrivateNames& names,
                         const std::string& kept);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_PRIVACY_H_
