// Memory runs out at each allocation of GetNetworkStatus: what was true at the
// last probe is not true after a probe that did not come to its end.
#include <gtest/gtest.h>
#include <velmohelp/online.h>

#include <new>

#include "exports/state.h"
#include "platform/locations.h"
#include "tests/support/exhaustion.h"
#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

class NetworkStatusWithoutMemory : public OnScriptedMachine {
 protected:
  /// False when the call took fewer allocations than that.
  static bool RunsOutAt(std::size_t nth) {
    sIsOnline = true;
    const Exhaustion exhaustion(nth, Shortage::kFromThenOn);
    try {
      GetNetworkStatus();
    } catch (const std::bad_alloc&) {
      return true;
    }
    return Exhaustion::Came();
  }
};

TEST_F(NetworkStatusWithoutMemory, IsOffline) {
  machine.SetReachability(kOnlineHelpHost, {.reachable = true});
  std::size_t nth = 1;
  for (; RunsOutAt(nth); ++nth) EXPECT_FALSE(sIsOnline) << nth;
  EXPECT_GT(nth, 1U);
  EXPECT_TRUE(sIsOnline);
}

}  // namespace
}  // namespace velmohelp::testing
