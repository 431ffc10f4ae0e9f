// A Content-Type in the first line, a body in the rest: it is text or not as
// the oracle says, wherever it is cut, and is not given up too early.
#include "platform/linux/helpers/text_check.h"
#include "tests/fuzz/input.h"
#include "tests/support/answer_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  const std::string type = input.Line();
  const std::string charset = CharsetOf(type);
  Same(charset, OracleCharset(type));
  const std::string& body = input.Rest();
  const bool is_text = OracleIsText(charset, body);
  for (const std::size_t length : {1 + type.size() % 7, body.size() + 1}) {
    TextCheck check(charset);
    for (std::size_t at = 0; at < body.size(); at += length) {
      check.Feed(std::string_view(body).substr(at, length));
    }
    const bool may_be_text = check.MayBeText();
    Same(check.IsText(), is_text);
    if (is_text) Same(may_be_text, true);
  }
}

}  // namespace velmohelp::testing
