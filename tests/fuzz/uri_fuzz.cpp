// A URL: tested, parsed and encoded as the oracle does it.
#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include "platform/scripted/scripted_machine.h"
#include "resolve/url_check.h"
#include "tests/fuzz/input.h"
#include "tests/support/uri_oracle.h"
#include "util/uri.h"

namespace velmohelp::testing {

void Check(Input input) {
  const std::string text = input.Rest();
  Same(IsHierarchical(text), OracleIsHierarchical(text));
  Same(PathOfUri(text), OracleUriPath(text));
  Same(HostOfUri(text), OracleUriHost(text));
  Same(Unescaped(text), OracleUnescaped(text));
  Same(urlencode(text), OracleEncodedTerm(text));
  const std::string url = OracleEncodedUri(text);
  Same(ITEMInternal::VelmoHelpEncodeURIComponent(text), url);
  std::string out(url.size() + 1, '#');
  VelmoHelpEncodeURIComponent(text.c_str(), out.data(), std::ssize(url) + 1);
  Same(out.c_str(), url);
  ScriptedMachine machine;
  machine.AddText(UriOf(text).value_or(""));
  FetchBudget budget;
  Same(CanLoadText(machine, budget, text), OracleIsUri(text));
}

}  // namespace velmohelp::testing
