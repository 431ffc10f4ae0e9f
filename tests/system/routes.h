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

/// Initialises the client and makes the route's request, which velmo-help has
/// explained before.
inline void Follow(const Route& route) {
  HelpWorld world;
  Apply(route.changes, world);
  ExpectExplained(world, route.request, route.code, route.started);
  ASSERT_TRUE(world.Initialise());
  EXPECT_EQ(world.Ask(route.request), route.code);
  EXPECT_EQ(world.Started(), world.Expanded(route.started));
}

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_ROUTES_H_
