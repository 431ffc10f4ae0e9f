// A request from end to end: what it returns, and what is started with exactly
// which arguments.
#ifndef TESTS_SYSTEM_ROUTES_H_
#define TESTS_SYSTEM_ROUTES_H_

#include <gtest/gtest.h>

#include <ostream>

#include "tests/support/sentence.h"
#include "tests/system/changes.h"
#include "tests/system/explained.h"

namespace velmohelp::testing {

struct Route {
  const char* sentence;
  Changes changes;
  Words request;
  std::string code;
  /// The argument vector of what is started; empty for nothing.
  Words started;
};

inline void PrintTo(const Route& route, std::ostream* out) {
  *out << route.sentence;
}

inline Words Viewer(const std::string& verb, const std::string& request) {
  return {"{viewer}", verb, "Foo", "en_US", request};
}
inline Words Browser(const std::string& url) { return {"{browser}", url}; }
inline Words Nothing() { return {}; }

inline Words Display(const std::string& id) { return {"display", id}; }
inline Words Open(const std::string& url) { return {"open", url}; }
inline Words Search(const std::string& text) {
  return {"search", "Foo", "en_US", text};
}

/// What a find says of the start of an argument vector: "<kind> <url>".
inline std::string TargetOf(const Words& started) {
  if (started.empty()) return "0 -";
  const std::string& last = started.back();
  if (started.front() == "{browser}") return "2 " + last;
  const bool is_quoted = last.size() > 1 && last.starts_with('"');
  return "1 " + (is_quoted ? last.substr(1, last.size() - 2) : "-");
}

/// Asks what a request would show, then makes the request. Both say the same,
/// the question starts nothing, and the state stays as it was. Returns the
/// request's code and leaves what it started for Started().
inline std::string FindThenAsk(HelpWorld& world, const Words& request,
                               const Words& expected_start) {
  Words question = request;
  question.front() = "find " + request.front();
  const std::string state = world.Ask({"state"});
  const std::string found = world.Ask(question);
  EXPECT_EQ(world.Started(), Nothing());
  EXPECT_EQ(world.Ask({"state"}), state);
  const std::string code = world.Ask(request);
  EXPECT_EQ(found, code + " " + world.Expanded(TargetOf(expected_start)));
  return code;
}

/// Initialises the client and makes the route's request, which velmo-help has
/// explained before.
inline void Follow(const Route& route) {
  HelpWorld world;
  Apply(route.changes, world);
  ExpectExplained(world, route.request, route.code, route.started);
  ASSERT_TRUE(world.Initialise());
  EXPECT_EQ(FindThenAsk(world, route.request, route.started), route.code);
  EXPECT_EQ(world.Started(), world.Expanded(route.started));
}

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_ROUTES_H_
