// A folder in the first line, a page id in the rest: each alone and both joined
// give what the oracle gives.
#include <velmohelp/resolve.h>
#include <velmohelp/text.h>

#include "tests/fuzz/input.h"
#include "tests/support/page_id_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  const std::string folder = input.Line();
  std::string id = input.Rest();
  Same(isUrl(id), OracleIsUrl(id));
  Same(ITEMInternal::isUrl(id), OracleIsUrl(id));
  Same(isHTMLPage(id), OracleIsHtmlPage(id));
  Same(StripDoubleQuotes(id), OracleUnquoted(id));
  Same(ITEMInternal::AppendToPath(folder, id), OracleAppendToPath(folder, id));
  Same(AppentPath(folder, id), OracleAppentPath(folder, id));
  NormalizePageID(id);
  Same(id, OraclePageId(input.Rest()));
}

}  // namespace velmohelp::testing
