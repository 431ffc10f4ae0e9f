#include "viewer/content/search_index.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/viewer/folder.h"

namespace viewer {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SearchIndexOf : public ::testing::Test {
 protected:
  void Page(const std::string& name, const std::string& title,
            const std::string& body) const {
    folder_.Write("help/" + name, "<title>" + title + "</title><body>" + body);
  }
  std::set<ContentFolder> Folders() const {
    return {{.place = "downloaded",
             .name = "help",
             .directory = folder_.path("help")}};
  }
  static bool GoOn() { return true; }
  std::string File() const { return folder_.path("index"); }

  std::vector<std::string> Titles(SearchIndex& index, const std::string& text) {
    std::vector<std::string> titles;
    for (const auto& hit : index.Search(text)) titles.push_back(hit.title);
    return titles;
  }

  Folder folder_;
};

TEST_F(SearchIndexOf, PagesFindsWordsWithTheirContext) {
  Page("a.html", "Lines", "You draw a line with the pen.");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  const auto hits = index.Search("pen");
  ASSERT_THAT(hits, SizeIs(1));
  EXPECT_EQ(hits[0].address, "velmohelp://downloaded/help/a.html");
  EXPECT_THAT(hits[0].snippet, HasSubstr("the \2pen\3."));
}

TEST_F(SearchIndexOf, PagesPrefersTitles) {
  Page("a.html", "Curves", "line");
  Page("b.html", "Line", "x");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "line"), ElementsAre("Line", "Curves"));
}

TEST_F(SearchIndexOf, PagesFindsTheBeginningOfTheLastWord) {
  Page("a.html", "Printing", "x");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "prin"), ElementsAre("Printing"));
}

TEST_F(SearchIndexOf, PagesIgnoresAccents) {
  Page("a.html", "A", "Z\u00fcrich");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "zurich"), ElementsAre("A"));
}

TEST_F(SearchIndexOf, PagesFindsAnyWordWhenNoPageHasAll) {
  Page("a.html", "A", "draw");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "draw circles"), ElementsAre("A"));
}

TEST_F(SearchIndexOf, ChangedPagesForgetsTheOldWords) {
  Page("a.html", "A", "old");
  Page("gone.html", "Gone", "old");
  SearchIndex(File()).Update(Folders(), GoOn);
  Page("a.html", "A", "newer words");
  fs::remove(folder_.path("help/gone.html"));
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "old"), IsEmpty());
  EXPECT_THAT(Titles(index, "newer"), ElementsAre("A"));
}

TEST_F(SearchIndexOf, UnchangedPagesIsKeptBetweenRuns) {
  Page("a.html", "A", "kept");
  SearchIndex(File()).Update(Folders(), GoOn);
  SearchIndex index(File());
  EXPECT_THAT(Titles(index, "kept"), ElementsAre("A"));
}

TEST_F(SearchIndexOf, ABrokenFileIsBuiltAgain) {
  Page("a.html", "A", "word");
  SearchIndex(File()).Update(Folders(), GoOn);
  // The header stays, so that only a check of the pages sees it.
  fs::resize_file(File(), fs::file_size(File()) / 2);
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "word"), ElementsAre("A"));
}

TEST_F(SearchIndexOf, AFileThatIsNoDatabaseIsBuiltAgain) {
  Page("a.html", "A", "word");
  folder_.Write("index", "this is not a database, whatever its name says");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "word"), ElementsAre("A"));
}

TEST_F(SearchIndexOf, AFolderThatCannotBeWrittenIsInMemory) {
  Page("a.html", "A", "word");
  SearchIndex index("/proc/no/such/folder/index");
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "word"), ElementsAre("A"));
}

TEST_F(SearchIndexOf, BadPagesLeavesThemOutAndGoesOn) {
  folder_.Write("help/binary.html", std::string("word\0", 5));
  folder_.Write("help/latin.html", "word \xe4");
  Page("good.html", "Good", "word");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  EXPECT_THAT(Titles(index, "word"), ElementsAre("Good"));
}

TEST_F(SearchIndexOf, ManyPagesIsSearchableMeanwhile) {
  for (int i = 0; i < 200; ++i)
    Page("p" + std::to_string(i) + ".html", "P", "word");
  SearchIndex index(File());
  std::size_t most_meanwhile = 0;
  index.Update(Folders(), [&] {
    most_meanwhile = std::max(most_meanwhile, index.Search("word").size());
    return true;
  });
  EXPECT_GT(most_meanwhile, 0U);
  EXPECT_THAT(index.Titles(), SizeIs(200));
}

TEST_F(SearchIndexOf, AnUpdateThatIsGivenUpKeepsWhatItKnew) {
  for (int i = 0; i < 200; ++i)
    Page("p" + std::to_string(i) + ".html", "P", "word");
  SearchIndex index(File());
  index.Update(Folders(), GoOn);
  for (int i = 0; i < 200; ++i)
    Page("p" + std::to_string(i) + ".html", "P", "other words");
  index.Update(Folders(), [] { return false; });
  EXPECT_THAT(index.Titles(), SizeIs(200));
}

}  // namespace
}  // namespace viewer
