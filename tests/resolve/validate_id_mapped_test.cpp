// Page ids in the local branch, in folders with a help map.
#include <sys/stat.h>

#include "tests/support/content_folders.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::Key;
using ::testing::Pair;

constexpr char kMap[] = "VX_HOME\thome.html\nintro\tintro_v2.html#top\n";

class MappedPage : public ContentFolders {
 protected:
  MappedPage() { AddRow("a"); }
};

TEST_F(MappedPage, IsTakenUncheckedWithItsAnchorAsAQuery) {
  AddMap(Downloaded("a"), kMap);
  EXPECT_EQ(Locally("intro.html"),
            Found(Downloaded("a") + "/intro_v2.html?nameAnchor=top"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a"))));
}

TEST_F(MappedPage, IsNotLookedForBesideAMapThatDoesNotKnowIt) {
  AddMap(Downloaded("a"), "VX_HOME\thome.html\n");
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          AsksForMap(Installed("a")),
                          Asks(Installed("a") + "/intro.html")));
}

TEST_F(MappedPage, IsNeverTakenFromAMapWithoutAHomePage) {
  AddMap(Downloaded("a"), "intro\tintro_v2.html\n");
  AddPage(Downloaded("a"), "intro.html");
  AddPage(Downloaded("a"), "intro_v2.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(sHelpMap, ElementsAre(Pair("intro", "intro_v2.html")));
}

TEST_F(MappedPage, IsNotFoundWhereTheMapCannotBeOpened) {
  sHelpMap = {{"old", "old"}};
  AddPage(Downloaded("a"), "helpmap.txt");
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_TRUE(sHelpMap.empty());
}

TEST_F(MappedPage, IsNotFoundWhereTheMapIsAPipe) {
  AddMap(Downloaded("a"), "");
  std::filesystem::remove(Downloaded("a") + "/helpmap.txt");
  ASSERT_EQ(mkfifo((Downloaded("a") + "/helpmap.txt").c_str(), 0600), 0);
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
}

TEST_F(MappedPage, BreaksWithTheStreamsFailureWhereTheMapIsADirectory) {
  std::filesystem::create_directories(Downloaded("a") + "/helpmap.txt");
  machine.AddDirectory(Downloaded("a") + "/helpmap.txt");
  EXPECT_THROW(Locally("intro.html"), std::ios_base::failure);
}

TEST_F(MappedPage, IsTakenFromALaterFolderWhenAMapDoesNotKnowIt) {
  AddRow("b");
  AddMap(Downloaded("a"), "VX_HOME\thome.html\n");
  AddMap(Downloaded("b"), "VX_HOME\tother.html\nintro\tb.html\n");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("b") + "/b.html"));
  EXPECT_THAT(sHelpMap, ElementsAre(Pair("VX_HOME", "other.html"),
                                    Pair("intro", "b.html")));
}

TEST_F(MappedPage, IsTakenFromTheInstalledFolderWhenTheDownloadedMapFails) {
  AddMap(Downloaded("a"), "intro\tx.html\n");
  AddMap(Installed("a"), kMap);
  EXPECT_EQ(Locally("intro.html"),
            Found(Installed("a") + "/intro_v2.html?nameAnchor=top"));
}

TEST_F(MappedPage, LeavesTheMapThatWasReadLast) {
  AddRow("b");
  AddMap(Downloaded("a"), "VX_HOME\t1\nonly-a\tx\n");
  AddMap(Installed("b"), "VX_HOME\t2\nonly-b\tx\n");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(sHelpMap, ElementsAre(Key("VX_HOME"), Key("only-b")));
}

TEST_F(MappedPage, IsTheHomePageToo) {
  AddMap(Downloaded("a"), kMap);
  EXPECT_EQ(Locally("VX_HOME.html"), Found(Downloaded("a") + "/home.html"));
}

struct Row {
  const char* sentence;
  const char* id;
  const char* map_line;
  /// Below the folder; "" for not found.
  const char* page;
};

class MappedId : public ContentFolders,
                 public ::testing::WithParamInterface<Row> {};

TEST_P(MappedId, IsLookedUpWithoutItsLastFiveBytes) {
  AddRow("a");
  AddMap(Downloaded("a"),
         std::string("VX_HOME\th.html\n") + GetParam().map_line);
  const std::string page = GetParam().page;
  EXPECT_EQ(Locally(GetParam().id), page.empty()
                                        ? NotFound(GetParam().id)
                                        : Found(Downloaded("a") + page));
}

constexpr Row kKeys[] = {
    {"a normalised id loses its extension", "ab.html", "ab\tx", "/x"},
    {"an id shorter than five bytes is used whole", "ab", "ab\tx", "/x"},
    {"an id of four bytes is used whole", "abcd", "abcd\tx", "/x"},
    {"an id of five bytes becomes empty", "abcde", "abcde\tx", ""},
    {"an id of six bytes keeps one", "abcdef", "a\tx", "/x"},
    {"five bytes are cut from htm too", "page.htm", "pag\tx", "/x"},
    {"the whole id is no key", "ab.html", "ab.html\tx", ""},
    {"the letter case of a key counts", "ab.html", "AB\tx", ""},
    {"an empty id is used whole", "", "ab\tx", ""},
};

constexpr Row kValues[] = {
    {"only the first number sign is rewritten", "ab.html", "ab\tx#b#c",
     "/x?nameAnchor=b#c"},
    {"a number sign at the start leaves no page", "ab.html", "ab\t#b",
     "/?nameAnchor=b"},
    {"a number sign at the end leaves an empty anchor", "ab.html", "ab\tx#",
     "/x?nameAnchor="},
    {"a query before the anchor stays", "ab.html", "ab\tx?q=1#b",
     "/x?q=1?nameAnchor=b"},
    {"a leading slash is doubled", "ab.html", "ab\t/x", "//x"},
    {"a path upwards stays", "ab.html", "ab\t../../x", "/../../x"},
    {"blanks stay", "ab.html", "ab\t x y ", "/ x y "},
    {"a URL in another letter case is a page", "ab.html", "ab\tHTTP://x",
     "/HTTP://x"},
    {"a URL behind a blank is a page", "ab.html", "ab\t http://x",
     "/ http://x"},
};

INSTANTIATE_TEST_SUITE_P(Keys, MappedId, ::testing::ValuesIn(kKeys),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Values, MappedId, ::testing::ValuesIn(kValues),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
