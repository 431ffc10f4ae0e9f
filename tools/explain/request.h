// A request to the client, and what came of it.
#ifndef TOOLS_EXPLAIN_REQUEST_H_
#define TOOLS_EXPLAIN_REQUEST_H_

#include <cstddef>
#include <optional>
#include <string>

#include "client/client_variables.h"
#include "tools/explain/trail.h"

namespace velmohelp::tool {

struct Request {
  enum class Kind { kDisplay, kOpen, kSearch };

  Kind kind = Kind::kDisplay;
  std::string product;
  std::string locale;
  /// The page id, the URL or the search text.
  std::string what = {};
};

/// "display", "open" or "search".
std::string NameOf(Request::Kind kind);

/// A result code, and the enumeration of <velmohelp/velmohelp.h> that it is of.
struct Result {
  int code = 0;
  std::string name;
  std::string table;
};

/// What a request starts.
struct Start {
  enum class Kind { kViewer, kBrowser };

  Kind kind = Kind::kViewer;
  /// The argument vector; empty for a URL that the desktop opens itself.
  Arguments words;
  /// The URL, or what a viewer gets in its place.
  std::string target;
};

/// A request that was made.
struct Run {
  Request request = {};
  Result result = {};
  /// The initialisation that came before it returned 0. When it did not, its
  /// result is the run's, but for a search, which repeats it.
  bool initialised = false;
  /// The host would hang: there is no result.
  bool endless = false;
  /// A help map or something else broke while it was read.
  std::string failure = {};
  Trail trail = {};
  /// Where the request begins in the trail, after the initialisation.
  std::size_t first = 0;
  std::optional<Start> start = {};
  ClientVariables variables = {};
};

/// Initialises a client, as hosts do at their start, and makes the request.
/// helper_folder: see TracingMachine.
void Make(Machine& machine, const std::string& helper_folder, Run& run);

/// Initialises a client, and makes no request.
void MakeClient(Machine& machine, const std::string& helper_folder, Run& run);

/// The name of a code; "" when the table has none.
Result InitResult(int code);
Result ResultOf(Request::Kind kind, int code);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_REQUEST_H_
