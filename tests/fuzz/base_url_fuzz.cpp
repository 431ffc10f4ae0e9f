// A base URL file: its URL is the slow rule's, the mistake in it included.
#include <velmohelp/resolve.h>

#include <stdexcept>

#include "tests/fuzz/input.h"
#include "tests/support/map_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  static FileInMemory file;
  std::optional<std::string> url;
  try {
    url = ITEMInternal::GetHelpMapBaseUrl(file.Write(input.Rest()));
  } catch (const std::out_of_range&) {
    url = std::nullopt;
  }
  Same(url, OracleBaseUrl(input.Rest()));
}

}  // namespace velmohelp::testing
