// One question of a request to the machine fails, each in turn: the code that
// the request returns, what is shown, and the state afterwards.
#ifndef TESTS_FAULTS_BREAKDOWN_H_
#define TESTS_FAULTS_BREAKDOWN_H_

#include <gtest/gtest.h>

#include <cstdint>
#include <iosfwd>
#include <vector>

#include "tests/client/steps.h"
#include "tests/support/client_world.h"

namespace velmohelp::testing {

struct Result {
  std::uint32_t code;
  Steps shown;
  /// How the state afterwards differs from the one when nothing fails.
  Steps state;

  bool operator==(const Result&) const = default;
};

void PrintTo(const Result& result, std::ostream* out);

/// Questions in their order, and the result when any one of them fails.
struct Breakdown {
  Steps questions;
  Result result;
};

struct DisturbedRequest {
  const char* sentence;
  std::uint32_t (*run)(ClientWorld& world);
  void (*prepare)(ClientWorld& world);
  bool initialised;
  Result undisturbed;
  std::vector<Breakdown> breakdowns;
};

class OneQuestionFails : public ::testing::TestWithParam<DisturbedRequest> {
 protected:
  /// question: the number of the one that fails, from 1; 0 for none.
  void Run(int question);
  Result ResultComparedWith(const Steps& state) const;

  std::uint32_t code_ = 0;
  Steps asked_;
  Steps shown_;
  Steps state_;
};

/// Product Foo with a configuration, a page and a search page that were
/// installed, and newer ones that were downloaded.
void PutContent(ClientWorld& world);
/// A viewer too, and a network; the user wants no online help.
void PutViewer(ClientWorld& world);
/// The content, and the help server with the newer pages.
void PutServer(ClientWorld& world);

// Questions.
inline const Steps kPreferencesFolder = {"PreferencesFolder create"};
inline const Steps kHostsResources = {"ResourcesDirectory"};
inline const Steps kDownloadedConfig = {kPreferencesFolder[0],
                                        kDownloadedConfigIsLookedFor};
inline const Steps kPreferenceFile = {kPreferencesFolder[0],
                                      kPreferenceFileIsLookedFor[0]};
inline const Steps kNoViewerIsFound = {
    "BundleDirectory com.velmo.vxclientframework"};
inline const Steps kNoViewerIsTried = {"FindFile \"\""};
inline const Steps kOnlinePreferences = {kNetworkIsProbed[0],
                                         kNetworkIsProbed[1]};
inline const Steps kUsersPreference = {kNetworkIsProbed[1]};
inline const Steps kReachability = {kNetworkIsProbed[2]};
inline const Steps kLaunchLooksForTheViewer = {"FindFile ~/Viewer"};

// What is shown, and what is left.
inline const Steps kNothing;
inline const Steps kAsUndisturbed;
inline const Steps kOldBaseUrl = {"sBaseUrl \"http://localhost/old/\""};
inline const Steps kNoConfig = {"sInitStatus 6", "sHelpPathCount 100"};
inline const Steps kNoConfigNoViewer =
    Joined({{"sHelpAppPath \"\""}, kNoConfig});
inline const Steps kOnline = {"sIsOnline 1"};
inline const Steps kOffline = {"sIsOnline 0"};

}  // namespace velmohelp::testing

#endif  // TESTS_FAULTS_BREAKDOWN_H_
