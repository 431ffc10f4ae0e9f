// Page displays on a machine that fails once.

#include "tests/faults/breakdown.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

const Steps kDownloadedMap = {InDownloadedManual("//helpmap.txt")};
const Steps kDownloadedPage = {InDownloadedManual("/page.html")};
const Steps kOnlinePage = {"FetchText http://localhost/help/manual/page.html"};
const Steps kDownloadedPageInViewer = {
    "StartProgram ~/Viewer HELP Foo en_US \"\"file://~/Preferences/"
    "reader.VELMO.1/Local%20Store/Help/manual/page.html\"\""};
const Steps kInstalledPageInViewer = {
    "StartProgram ~/Viewer HELP Foo en_US "
    "\"\"file:///Help//manual/page.html\"\""};
const Steps kPageIdInViewer = {"StartProgram ~/Viewer HELP Foo en_US page"};
const Steps kUnknownIdInViewer = {"StartProgram ~/Viewer HELP Foo en_US other"};
const Steps kDownloadedPageInBrowser = {
    "OpenInBrowser file://~/Preferences/reader.VELMO.1/Local%20Store/Help/"
    "manual/page.html"};
const Steps kInstalledPageInBrowser = {
    "OpenInBrowser file:///Help//manual/page.html"};
const Steps kOnlinePageInBrowser = {
    "OpenInBrowser http://localhost/help/manual/page.html"};
const Steps kNoConfigNoChoice = Joined({kNoConfig, {"sViewerChoice 0"}});
const Steps kNoConfigNoViewerNoChoice =
    Joined({kNoConfigNoViewer, {"sViewerChoice 0"}});
const Steps kNoViewerChosen = {"sHelpAppPath \"\"", "sViewerChoice 2"};
const Steps kBrowserChosen = {"sViewerChoice 2"};

std::uint32_t DisplayPage(ClientWorld& world) {
  return world.DisplayPage("page");
}
std::uint32_t DisplayUnknown(ClientWorld& world) {
  return world.DisplayPage("other");
}

INSTANTIATE_TEST_SUITE_P(
    Displays, OneQuestionFails,
    ::testing::Values(
        DisturbedRequest{
            "in a page display in the viewer",
            DisplayPage,
            PutViewer,
            true,
            {0, kDownloadedPageInViewer, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfigNoViewerNoChoice}},
             {kDownloadedConfig, {0, kDownloadedPageInViewer, kOldBaseUrl}},
             // The preference file's folder: there is no such file anyway.
             {kPreferencesFolder, {0, kDownloadedPageInViewer, kAsUndisturbed}},
             {kViewerIsLookedUp,
              {0, kDownloadedPageInBrowser, kNoViewerChosen}},
             {{kNetworkIsProbed[0]},
              {0, kDownloadedPageInViewer, kAsUndisturbed}},
             // The user's no is not heard, and the server has no page.
             {kUsersPreference, {0, kPageIdInViewer, kOnline}},
             {kPreferenceFileIsLookedFor,
              {0, kDownloadedPageInViewer, kAsUndisturbed}},
             {kViewerIsTried, {0, kDownloadedPageInBrowser, kBrowserChosen}},
             {kPreferencesFolder, {0, kInstalledPageInViewer, kAsUndisturbed}},
             {kDownloadedMap, {0, kDownloadedPageInViewer, kAsUndisturbed}},
             {kDownloadedPage, {0, kInstalledPageInViewer, kAsUndisturbed}},
             {kLaunchLooksForTheViewer, {1, kNothing, kAsUndisturbed}},
             {kDownloadedPageInViewer, {1, kNothing, kAsUndisturbed}}}},
        DisturbedRequest{
            "in a page display in the browser",
            DisplayPage,
            PutContent,
            true,
            {0, kDownloadedPageInBrowser, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfigNoChoice}},
             {kDownloadedConfig, {0, kDownloadedPageInBrowser, kOldBaseUrl}},
             {Joined({kPreferencesFolder, kNoViewerIsFound, kNetworkIsProbed,
                      kPreferenceFileIsLookedFor, kNoViewerIsTried}),
              {0, kDownloadedPageInBrowser, kAsUndisturbed}},
             {kPreferencesFolder, {0, kInstalledPageInBrowser, kAsUndisturbed}},
             {kDownloadedMap, {0, kDownloadedPageInBrowser, kAsUndisturbed}},
             {kDownloadedPage, {0, kInstalledPageInBrowser, kAsUndisturbed}},
             {kDownloadedPageInBrowser, {2, kNothing, kAsUndisturbed}}}},
        DisturbedRequest{
            "in the display of a server s page",
            DisplayPage,
            PutServer,
            true,
            {0, kOnlinePageInBrowser, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfigNoChoice}},
             // The installed configuration's server has no such page.
             {kDownloadedConfig, {7, kNothing, kOldBaseUrl}},
             {Joined({kPreferencesFolder, kNoViewerIsFound,
                      kOnlinePreferences}),
              {0, kOnlinePageInBrowser, kAsUndisturbed}},
             {kReachability, {0, kDownloadedPageInBrowser, kOffline}},
             {Joined({kPreferenceFileIsLookedFor, kNoViewerIsTried,
                      kPreferencesFolder, kDownloadedMap}),
              {0, kOnlinePageInBrowser, kAsUndisturbed}},
             // It is asked for once more, for the installed folder.
             {kOnlinePage, {0, kOnlinePageInBrowser, kAsUndisturbed}},
             {kOnlinePageInBrowser, {2, kNothing, kAsUndisturbed}}}},
        DisturbedRequest{
            "in the display of an unknown page",
            DisplayUnknown,
            PutViewer,
            true,
            {0, kUnknownIdInViewer, kAsUndisturbed},
            {{kHostsResources, {4, kNothing, kNoConfigNoViewerNoChoice}},
             {kDownloadedConfig, {0, kUnknownIdInViewer, kOldBaseUrl}},
             {kPreferencesFolder, {0, kUnknownIdInViewer, kAsUndisturbed}},
             {kViewerIsLookedUp, {7, kNothing, kNoViewerChosen}},
             {{kNetworkIsProbed[0]}, {0, kUnknownIdInViewer, kAsUndisturbed}},
             {kUsersPreference, {0, kUnknownIdInViewer, kOnline}},
             {kPreferenceFileIsLookedFor,
              {0, kUnknownIdInViewer, kAsUndisturbed}},
             // The last resort asks again whether the viewer is there.
             {kViewerIsTried, {0, kUnknownIdInViewer, kBrowserChosen}},
             {Joined({kPreferencesFolder,
                      kDownloadedMap,
                      {InDownloadedManual("/other.html"),
                       "FindFile /Help//manual//helpmap.txt",
                       "FindFile /Help//manual/other.html"},
                      kPreferencesFolder,
                      kDownloadedMap,
                      {InDownloadedManual("/VX_HOME.html"),
                       "FindFile /Help//manual//helpmap.txt",
                       "FindFile /Help//manual/VX_HOME.html"}}),
              {0, kUnknownIdInViewer, kAsUndisturbed}},
             {kViewerIsTried, {7, kNothing, kAsUndisturbed}},
             {kLaunchLooksForTheViewer, {1, kNothing, kAsUndisturbed}},
             {kUnknownIdInViewer, {1, kNothing, kAsUndisturbed}}}}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
