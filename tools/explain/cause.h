// The one rule or fact that decided a request.
#ifndef TOOLS_EXPLAIN_CAUSE_H_
#define TOOLS_EXPLAIN_CAUSE_H_

#include <optional>
#include <string>
#include <vector>

#include "tools/explain/confinement.h"
#include "tools/explain/request.h"

namespace velmohelp::tool {

struct Cause {
  /// Stable, for programs: "id-not-in-map".
  std::string name;
  /// One line for a person each.
  std::string why;
  std::string advice;
};

/// What a request does not ask, and its explanation needs.
struct Surroundings {
  /// The host's executable, and whether the person has named it.
  std::string host = {};
  bool host_is_named = false;
  /// The Flatpak in which the host runs; "" for none.
  std::string host_flatpak = {};
  BrowserEntry browser = {};
  /// The person's.
  std::string home = {};
};

/// Never empty: when nothing went wrong it is the choice between viewer and
/// browser.
Cause CauseOf(const Run& run, const Surroundings& around);

/// A content folder that was looked at.
struct FolderVisit {
  const Step* folder = nullptr;
  /// Null when it has no help map.
  const Step* map = nullptr;
  /// The last question about its page; null when none was asked.
  const Step* question = nullptr;
};

/// Those of the run's first search for the page; a search for the home page in
/// its place is the second. Without such a search, those of the search page.
std::vector<FolderVisit> FirstVisits(const Run& run);

/// Whether a folder was taken, and why not: "refused: ...".
std::string VerdictOn(const FolderVisit& visit, const Run& run);

/// The choice between viewer and browser.
struct ViewerRule {
  bool usable = false;
  Cause cause;
};
ViewerRule ViewerRuleOf(const Run& run);

/// Why online help is not used; "" when it is, or was not asked about.
std::string WhyOffline(const Run& run);

/// The local page that a start shows; "" when it shows none.
std::string LocalPageOf(const Run& run);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_CAUSE_H_
