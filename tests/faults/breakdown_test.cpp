// The other requests on a machine that fails once.
#include "tests/faults/breakdown.h"

#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

const Steps kDownloadedSearch = {InDownloadedManual("/search.html")};
const Steps kOnlineSearch = {
    "FetchText http://localhost/help/manual/search.html"};
const Steps kPreferenceOfNames = {"Preference admin com.velmo.a.b HelpcfgName"};
const Steps kUrlInViewer = {
    "StartProgram ~/Viewer URL Foo en_US \"\"http://x\"\""};
const Steps kUrlInBrowser = {"OpenInBrowser http://x"};
const Steps kSearchInViewer = {"StartProgram ~/Viewer SEARCH Foo en_US x%20y"};
const Steps kRawSearchInViewer = {
    "StartProgram ~/Viewer SEARCH Foo en_US \"x y\""};
const Steps kDownloadedSearchInBrowser = {
    "OpenInBrowser file://~/Preferences/reader.VELMO.1/Local%20Store/Help/"
    "manual/search.html?q=x%20y"};
const Steps kInstalledSearchInBrowser = {
    "OpenInBrowser file:///Help//manual/search.html?q=x%20y"};
const Steps kOnlineSearchInBrowser = {
    "OpenInBrowser http://localhost/help/manual/search.html?q=x%20y"};
const Steps kNeverConfigured = {"sConfigID \"\"",
                                "sBaseUrl \"\"",
                                "sAppID \"\"",
                                "sPublisherID \"\"",
                                "kKLHPreferenceFile \"\"",
                                "kDownloadedOfflineContent \"\"",
                                "kDownloadedHelpcfg \"\"",
                                "sInitStatus 6",
                                "sHelpPathCount 100",
                                "sHelpPaths 0"};
const Steps kNoViewer = {"sHelpAppPath \"\""};

std::uint32_t Initialise(ClientWorld& world) {
  return world.Initialise("Foo", "en_US");
}
std::uint32_t OnlineStatus(ClientWorld& world) { return world.OnlineStatus(); }
std::uint32_t OpenX(ClientWorld& world) { return world.OpenUrl("http://x"); }
std::uint32_t SearchXY(ClientWorld& world) {
  return world.SearchHelp("Foo", "en_US", "x y");
}
std::uint32_t SearchXYByNames(ClientWorld& world) {
  return world.SearchByNames("a", "b", "en_US", "x y");
}

INSTANTIATE_TEST_SUITE_P(
    Queries, OneQuestionFails,
    ::testing::Values(
        DisturbedRequest{
            "in an initialisation",
            Initialise,
            PutServer,
            false,
            {0, kNothing, kAsUndisturbed},
            {{kHostsResources,
              {6, kNothing, Joined({kNeverConfigured, kOffline})}},
             {{kPreferencesFolder[0],
               "FindFile ~/Preferences/Foo/Cfg/Foo.helpcfg"},
              {0, kNothing, kAsUndisturbed}},
             {kOnlinePreferences, {0, kNothing, kAsUndisturbed}},
             {kReachability, {0, kNothing, kOffline}},
             {kHostsResources, {6, kNothing, Joined({kOldBaseUrl, kNoConfig})}},
             {kDownloadedConfig, {0, kNothing, kOldBaseUrl}}}},
        DisturbedRequest{"in the online status",
                         OnlineStatus,
                         PutServer,
                         true,
                         {0, kNothing, kAsUndisturbed},
                         {{kOnlinePreferences, {0, kNothing, kAsUndisturbed}},
                          {kReachability, {1, kNothing, kOffline}}}}),
    SentenceOf());

INSTANTIATE_TEST_SUITE_P(
    Urls, OneQuestionFails,
    ::testing::Values(
        DisturbedRequest{
            "in the opening of a URL in the viewer",
            OpenX,
            PutViewer,
            true,
            {0, kUrlInViewer, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfig}},
             {kDownloadedConfig, {0, kUrlInViewer, kOldBaseUrl}},
             {kViewerIsLookedUp, {0, kUrlInBrowser, kNoViewer}},
             {kPreferenceFile, {0, kUrlInViewer, kAsUndisturbed}},
             {kViewerIsTried, {0, kUrlInBrowser, kAsUndisturbed}},
             {kLaunchLooksForTheViewer, {2, kNothing, kAsUndisturbed}},
             {kUrlInViewer, {2, kNothing, kAsUndisturbed}}}},
        DisturbedRequest{
            "in the opening of a URL in the browser",
            OpenX,
            PutContent,
            true,
            {0, kUrlInBrowser, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfig}},
             {kDownloadedConfig, {0, kUrlInBrowser, kOldBaseUrl}},
             {Joined({kNoViewerIsFound, kPreferenceFile, kNoViewerIsTried}),
              {0, kUrlInBrowser, kAsUndisturbed}},
             {kUrlInBrowser, {1, kNothing, kAsUndisturbed}}}}),
    SentenceOf());

const std::vector<Breakdown> kOfASearchInTheViewer = {
    {kHostsResources, {4, kNothing, kNoConfigNoViewer}},
    {kDownloadedConfig, {0, kSearchInViewer, kOldBaseUrl}},
    {kViewerIsLookedUp, {0, kDownloadedSearchInBrowser, kNoViewer}},
    {kPreferenceFile, {0, kSearchInViewer, kAsUndisturbed}},
    {kViewerIsTried, {0, kDownloadedSearchInBrowser, kAsUndisturbed}},
    {kLaunchLooksForTheViewer, {1, kNothing, kAsUndisturbed}},
    {kSearchInViewer, {1, kNothing, kAsUndisturbed}}};

/// A search that has to initialise the client before.
std::vector<Breakdown> OfAFirstSearch() {
  std::vector<Breakdown> rows = {
      {kHostsResources,
       {4, kNothing,
        Joined({{"sConfigID \"\"", "sBaseUrl \"\"", "sAppID \"\"",
                 "sPublisherID \"\"", "sHelpAppPath \"\"",
                 "kKLHPreferenceFile \"\"", "kDownloadedOfflineContent \"\"",
                 "kDownloadedHelpcfg \"\""},
                kNoConfig,
                {"sHelpPaths 0"}})}},
      {{kPreferencesFolder[0], "FindFile ~/Preferences/Foo/Cfg/Foo.helpcfg",
        kNetworkIsProbed[0]},
       {0, kSearchInViewer, kAsUndisturbed}},
      {kUsersPreference, {0, kSearchInViewer, kOnline}}};
  rows.insert(rows.end(), kOfASearchInTheViewer.begin(),
              kOfASearchInTheViewer.end());
  rows[3].result.state = Joined({kOldBaseUrl, kNoConfigNoViewer});
  return rows;
}

INSTANTIATE_TEST_SUITE_P(
    Searches, OneQuestionFails,
    ::testing::Values(
        DisturbedRequest{"in a search in the viewer",
                         SearchXY,
                         PutViewer,
                         true,
                         {0, kSearchInViewer, kAsUndisturbed},
                         kOfASearchInTheViewer},
        DisturbedRequest{"in a search that initialises",
                         SearchXY,
                         PutViewer,
                         false,
                         {0, kSearchInViewer, kAsUndisturbed},
                         OfAFirstSearch()},
        DisturbedRequest{
            "in a search in the browser",
            SearchXY,
            PutContent,
            true,
            {0, kDownloadedSearchInBrowser, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfig}},
             {kDownloadedConfig, {0, kDownloadedSearchInBrowser, kOldBaseUrl}},
             {Joined({kNoViewerIsFound, kPreferenceFile, kNoViewerIsTried,
                      kNetworkIsProbed}),
              {0, kDownloadedSearchInBrowser, kAsUndisturbed}},
             {{kPreferencesFolder[0], kDownloadedSearch[0]},
              {0, kInstalledSearchInBrowser, kAsUndisturbed}},
             {kDownloadedSearchInBrowser, {1, kNothing, kAsUndisturbed}}}},
        DisturbedRequest{
            "in a search in a server s pages",
            SearchXY,
            PutServer,
            true,
            {0, kOnlineSearchInBrowser, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfig}},
             {kDownloadedConfig, {7, kNothing, kOldBaseUrl}},
             {Joined({kNoViewerIsFound, kPreferenceFile, kNoViewerIsTried,
                      kOnlinePreferences}),
              {0, kOnlineSearchInBrowser, kAsUndisturbed}},
             {kReachability, {0, kDownloadedSearchInBrowser, kOffline}},
             {kOnlineSearch, {7, kNothing, kAsUndisturbed}},
             {kOnlineSearchInBrowser, {1, kNothing, kAsUndisturbed}}}},
        DisturbedRequest{
            "in a search by names",
            SearchXYByNames,
            PutViewer,
            true,
            {0, kRawSearchInViewer, kAsUndisturbed},
            {// The text stays raw for the next search.
             {kPreferenceOfNames,
              {8, kNothing, {"sHelpAppPath \"\"", "sQueryIsRaw 1"}}},
             {kHostsResources,
              {4, kNothing, Joined({kNoConfigNoViewer, {"sQueryIsRaw 1"}})}},
             {kDownloadedConfig, {0, kRawSearchInViewer, kOldBaseUrl}},
             {kViewerIsLookedUp, {1, kNothing, kNoViewer}},
             {kPreferenceFile, {0, kRawSearchInViewer, kAsUndisturbed}},
             {kViewerIsTried, {1, kNothing, kAsUndisturbed}},
             {kLaunchLooksForTheViewer, {1, kNothing, kAsUndisturbed}},
             {kRawSearchInViewer, {1, kNothing, kAsUndisturbed}}}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
