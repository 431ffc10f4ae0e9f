// Page ids in the online branch, and mapped URLs in both.
#include "tests/support/content_folders.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kUrl[] = "https://x/y";
constexpr char kUrlMap[] = "VX_HOME\th.html\nintro\thttps://x/y\n";

class OnlinePage : public ContentFolders {
 protected:
  OnlinePage() {
    AddRow("a");
    sIsOnline = true;
  }
};

TEST_F(OnlinePage, OfAFolderWithoutAMapMustBeFetchable) {
  AddRow("b");
  machine.AddText(Online("b", "intro.html"));
  EXPECT_EQ(OnTheNet("intro.html"), Found(Online("b", "intro.html")));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          "FetchText " + Online("a", "intro.html"),
                          AsksForMap(Downloaded("b")),
                          "FetchText " + Online("b", "intro.html")));
}

TEST_F(OnlinePage, IsTriedAgainForTheInstalledFolders) {
  EXPECT_EQ(OnTheNet("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          "FetchText " + Online("a", "intro.html"),
                          AsksForMap(Installed("a")),
                          "FetchText " + Online("a", "intro.html")));
}

TEST_F(OnlinePage, IsFetchedByTheArgumentNotByTheStatesFlag) {
  sIsOnline = false;
  machine.AddText(Online("a", "intro.html"));
  EXPECT_EQ(OnTheNet("intro.html"), Found(Online("a", "intro.html")));
  sIsOnline = true;
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
}

TEST_F(OnlinePage, ThatIsMappedIsAcceptedUncheckedWithItsAnchor) {
  AddMap(Downloaded("a"), "VX_HOME\th.html\nintro\tx.html#b#c\n");
  EXPECT_EQ(OnTheNet("intro.html"), Found(Online("a", "x.html#b#c")));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a"))));
}

TEST_F(OnlinePage, IsNotFetchedWhenAMapLacksIt) {
  AddMap(Downloaded("a"), "VX_HOME\th.html\n");
  AddMap(Installed("a"), "intro\tx.html\n");
  machine.AddText(Online("a", "intro.html"));
  EXPECT_EQ(OnTheNet("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          AsksForMap(Installed("a"))));
  EXPECT_EQ(sHelpMap.count("intro"), 1);
}

TEST_F(OnlinePage, FollowsTheBaseUrlUnchanged) {
  sBaseUrl = "http://h?x=";
  machine.AddText("http://h?x=" + Folder("a") + "/intro.html");
  EXPECT_EQ(OnTheNet("intro.html"),
            Found("http://h?x=" + Folder("a") + "/intro.html"));
}

TEST_F(OnlinePage, IsNotFetchedWhenTheBaseUrlMakesAnInvalidUrl) {
  sBaseUrl = "http://a b/";
  EXPECT_EQ(OnTheNet("intro.html"), NotFound("intro.html"));
  EXPECT_EQ(machine.Questions().size(), 3);
}

class MappedUrl : public OnlinePage {
 protected:
  MappedUrl() { AddMap(Downloaded("a"), kUrlMap); }
};

TEST_F(MappedUrl, IsAcceptedOnlineWhenItCanBeFetched) {
  machine.AddText(kUrl);
  EXPECT_EQ(OnTheNet("intro.html"), Found(kUrl));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          "FetchText https://x/y"));
}

TEST_F(MappedUrl, IsFetchedByTheStatesFlagNotByTheArgument) {
  machine.AddText(kUrl);
  EXPECT_EQ(Locally("intro.html"), Found(kUrl));
  sIsOnline = false;
  EXPECT_EQ(OnTheNet("intro.html"), NotFound("intro.html"));
  EXPECT_EQ(machine.Questions()[2], "FindFile https://x/y");
}

TEST_F(MappedUrl, IsTestedAsAPathOfflineAndFails) {
  sIsOnline = false;
  machine.AddText(kUrl);
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          "FindFile https://x/y", AsksForMap(Installed("a")),
                          Asks(Installed("a") + "/intro.html")));
}

TEST_F(MappedUrl, ThatFailsDoesNotEndTheSearchInLaterRows) {
  AddRow("b");
  machine.AddText(Online("b", "intro.html"));
  EXPECT_EQ(OnTheNet("intro.html"), Found(Online("b", "intro.html")));
}

TEST_F(MappedUrl, ThatFailsDoesNotEndTheSearchInTheSecondPass) {
  AddMap(Installed("a"), "VX_HOME\th.html\nintro\tx.html\n");
  EXPECT_EQ(OnTheNet("intro.html"), Found(Online("a", "x.html")));
}

TEST_F(MappedUrl, OfAFileIsCheckedLikeAnyOther) {
  AddMap(Downloaded("a"), "VX_HOME\th\nintro\tfile:///x#y\n");
  machine.AddText("file:///x#y");
  EXPECT_EQ(Locally("intro.html"), Found("file:///x#y"));
}

TEST_F(MappedUrl, ThatIsNotAValidUriFails) {
  AddMap(Downloaded("a"), "VX_HOME\th\nintro\thttp://a b\n");
  machine.AddText("http://a b");
  EXPECT_EQ(OnTheNet("intro.html"), NotFound("intro.html"));
}

}  // namespace
}  // namespace velmohelp::testing
