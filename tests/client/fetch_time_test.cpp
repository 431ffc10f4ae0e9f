// Each request has twenty seconds of its own for all the pages that it loads.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/client_world.h"

namespace velmohelp {
namespace {

using namespace std::chrono_literals;
using testing::ClientWorld;
using ::testing::Contains;
using testing::ContentFolder;
using ::testing::Not;
using testing::OwnName;

std::string Url(const std::string& folder, const std::string& page) {
  return "http://localhost/help/" + OwnName(folder) + "/" + page;
}

class FetchTime : public ::testing::Test {
 protected:
  void Start(const testing::HelpConfig& config = {}) {
    world_.Install(config);
    world_.GoOnline();
    world_.StartBrowsers();
    world_.Initialise();
  }
  ScriptedMachine& machine() { return world_.machine(); }

  ClientWorld world_;
};

TEST_F(FetchTime, OfAPageAndItsHomePageIsOne) {
  Start();
  machine().SetFetchTime(Url("manual", "page.html"), 1h);
  machine().AddText(Url("manual", "VX_HOME.html"));
  EXPECT_EQ(world_.DisplayPage("page"), kDisplayPageidDoesNotExist);
  EXPECT_THAT(
      world_.Questions(),
      Not(Contains("FetchText http://localhost/help/manual/VX_HOME.html")));
}

TEST_F(FetchTime, LeavesTheRestToTheHomePage) {
  Start();
  machine().SetFetchTime(Url("manual", "page.html"), 9s);
  machine().SetFetchTime(Url("manual", "VX_HOME.html"), 2s);
  machine().AddText(Url("manual", "VX_HOME.html"));
  EXPECT_EQ(world_.DisplayPage("page"), kDisplaySuccess);
}

TEST_F(FetchTime, IsWholeAgainInTheNextRequest) {
  Start();
  machine().SetFetchTime(Url("manual", "slow.html"), 1h);
  EXPECT_EQ(world_.DisplayPage("slow"), kDisplayPageidDoesNotExist);
  machine().SetFetchTime(Url("manual", "page.html"), 10s);
  machine().AddText(Url("manual", "page.html"));
  EXPECT_EQ(world_.DisplayPage("page"), kDisplaySuccess);
}

TEST_F(FetchTime, OfASearchIsOne) {
  Start({.app_id = "NULL",
         .folders = {ContentFolder{OwnName("a")}, ContentFolder{OwnName("b")},
                     ContentFolder{OwnName("c")}}});
  machine().SetFetchTime(Url("a", "search.html"), 1h);
  machine().SetFetchTime(Url("b", "search.html"), 1h);
  machine().AddText(Url("c", "search.html"));
  EXPECT_EQ(world_.SearchHelp("Foo", "en_US", "x"), kSearchNoOnlinePage);
  machine().SetFetchTime(Url("b", "search.html"), 1s);
  EXPECT_EQ(world_.SearchHelp("Foo", "en_US", "x"), kSearchSuccess);
}

}  // namespace
}  // namespace velmohelp
