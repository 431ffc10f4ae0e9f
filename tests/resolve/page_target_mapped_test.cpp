// Page ids offline, in folders with a help map.
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

TEST_F(MappedPage, IsAcceptedUncheckedWithItsAnchorAsAQuery) {
  AddMap(Downloaded("a"), kMap);
  EXPECT_EQ(Locally("intro.html"),
            Found(Downloaded("a") + "/intro_v2.html?nameAnchor=top"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a"))));
}

TEST_F(MappedPage, IsNotLookedForInAFolderWhoseMapLacksIt) {
  AddMap(Downloaded("a"), "VX_HOME\thome.html\n");
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(machine.Questions(),
              ElementsAre(asks_for_root, AsksForMap(Downloaded("a")),
                          AsksForMap(Installed("a")),
                          Asks(Installed("a") + "/intro.html")));
}

TEST_F(MappedPage, IsNeverFoundInAMapWithoutAHomePage) {
  AddMap(Downloaded("a"), "intro\tintro_v2.html\n");
  AddPage(Downloaded("a"), "intro.html");
  AddPage(Downloaded("a"), "intro_v2.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_THAT(sHelpMap, ElementsAre(Pair("intro", "intro_v2.html")));
}

TEST_F(MappedPage, IsNotFoundWhenTheMapCannotBeOpened) {
  sHelpMap = {{"old", "old"}};
  AddPage(Downloaded("a"), "helpmap.txt");
  AddPage(Downloaded("a"), "intro.html");
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
  EXPECT_TRUE(sHelpMap.empty());
}

TEST_F(MappedPage, IsNotFoundWhenTheMapIsAPipe) {
  AddMap(Downloaded("a"), "");
  std::filesystem::remove(Downloaded("a") + "/helpmap.txt");
  ASSERT_EQ(mkfifo((Downloaded("a") + "/helpmap.txt").c_str(), 0600), 0);
  EXPECT_EQ(Locally("intro.html"), NotFound("intro.html"));
}

TEST_F(MappedPage, ThrowsTheStreamsFailureWhenTheMapIsADirectory) {
  std::filesystem::create_directories(Downloaded("a") + "/helpmap.txt");
  machine.AddDirectory(Downloaded("a") + "/helpmap.txt");
  EXPECT_THROW(Locally("intro.html"), std::ios_base::failure);
}

TEST_F(MappedPage, IsFoundInALaterFolderWhenAMapLacksIt) {
  AddRow("b");
  AddMap(Downloaded("a"), "VX_HOME\thome.html\n");
  AddMap(Downloaded("b"), "VX_HOME\tother.html\nintro\tb.html\n");
  EXPECT_EQ(Locally("intro.html"), Found(Downloaded("b") + "/b.html"));
  EXPECT_THAT(sHelpMap, ElementsAre(Pair("VX_HOME", "other.html"),
                                    Pair("intro", "b.html")));
}

TEST_F(MappedPage, IsFoundInTheInstalledFolderWhenTheDownloadedMapFails) {
  AddMap(Downloaded("a"), "intro\tx.html\n");
  AddMap(Installed("a"), kMap);
  EXPECT_EQ(Locally("intro.html"),
            Found(Installed("a") + "/intro_v2.html?nameAnchor=top"));
}

TEST_F(MappedPage, LeavesTheMapReadLast) {
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
    {.sentence = "a normalised id loses its extension",
     .id = "ab.html",
     .map_line = "ab\tx",
     .page = "/x"},
    {.sentence = "an id shorter than five bytes is used whole",
     .id = "ab",
     .map_line = "ab\tx",
     .page = "/x"},
    {.sentence = "an id of four bytes is used whole",
     .id = "abcd",
     .map_line = "abcd\tx",
     .page = "/x"},
    {.sentence = "an id of five bytes becomes empty",
     .id = "abcde",
     .map_line = "abcde\tx",
     .page = ""},
    {.sentence = "an id of six bytes keeps one",
     .id = "abcdef",
     .map_line = "a\tx",
     .page = "/x"},
    {.sentence = "five bytes are cut off htm too",
     .id = "page.htm",
     .map_line = "pag\tx",
     .page = "/x"},
    {.sentence = "the whole id is not the key",
     .id = "ab.html",
     .map_line = "ab.html\tx",
     .page = ""},
    {.sentence = "the letter case of a key counts",
     .id = "ab.html",
     .map_line = "AB\tx",
     .page = ""},
    {.sentence = "an empty id is used whole",
     .id = "",
     .map_line = "ab\tx",
     .page = ""},
};

constexpr Row kValues[] = {
    {.sentence = "only the first number sign is rewritten",
     .id = "ab.html",
     .map_line = "ab\tx#b#c",
     .page = "/x?nameAnchor=b#c"},
    {.sentence = "a number sign at the start leaves no page",
     .id = "ab.html",
     .map_line = "ab\t#b",
     .page = "/?nameAnchor=b"},
    {.sentence = "a number sign at the end leaves an empty anchor",
     .id = "ab.html",
     .map_line = "ab\tx#",
     .page = "/x?nameAnchor="},
    {.sentence = "a query before the anchor stays",
     .id = "ab.html",
     .map_line = "ab\tx?q=1#b",
     .page = "/x?q=1?nameAnchor=b"},
    {.sentence = "a leading slash is doubled",
     .id = "ab.html",
     .map_line = "ab\t/x",
     .page = "//x"},
    {.sentence = "a path upwards stays",
     .id = "ab.html",
     .map_line = "ab\t../../x",
     .page = "/../../x"},
    {.sentence = "spaces stay",
     .id = "ab.html",
     .map_line = "ab\t x y ",
     .page = "/ x y "},
    {.sentence = "a URL in another letter case is a page",
     .id = "ab.html",
     .map_line = "ab\tHTTP://x",
     .page = "/HTTP://x"},
    {.sentence = "a URL after a space is a page",
     .id = "ab.html",
     .map_line = "ab\t http://x",
     .page = "/ http://x"},
};

INSTANTIATE_TEST_SUITE_P(Keys, MappedId, ::testing::ValuesIn(kKeys),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Values, MappedId, ::testing::ValuesIn(kValues),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
