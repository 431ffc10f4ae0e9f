// How long a page may take to load, and all pages of one request.
#include "tests/support/content_folders.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

/// Three folders without help maps, which are asked for one page in turn,
/// twice: as downloaded and as installed content.
struct Row {
  const char* sentence;
  /// How long each folder takes to send the page, or to say that it has none.
  milliseconds a, b, c;
  /// The folder that has the page, or "".
  std::string has;
  bool found;
  /// The folders that were asked.
  std::string asked;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.sentence; }

class AllFetchesOfARequest : public ContentFolders,
                             public ::testing::WithParamInterface<Row> {
 protected:
  AllFetchesOfARequest() {
    SetUpFolder("a", GetParam().a);
    SetUpFolder("b", GetParam().b);
    SetUpFolder("c", GetParam().c);
    sIsOnline = true;
  }

  /// The folders that were asked for the page.
  std::string Asked() const {
    std::string asked;
    for (const std::string& question : machine.Questions()) {
      for (const std::string name : {"a", "b", "c"}) {
        if (question == "FetchText " + Page(name)) asked += name;
      }
    }
    return asked;
  }

 private:
  static std::string Page(const std::string& folder) {
    return Online(folder, "x.html");
  }

  void SetUpFolder(const std::string& name, milliseconds time) {
    AddRow(name);
    machine.SetFetchTime(Page(name), time);
    if (GetParam().has == name) machine.AddText(Page(name));
  }
};

TEST_P(AllFetchesOfARequest, TakeTwentySecondsAtMost) {
  const milliseconds start = machine.MonotonicTime();
  EXPECT_EQ(OnTheNet("x.html").code, GetParam().found ? 0 : 3);
  EXPECT_EQ(Asked(), GetParam().asked);
  EXPECT_LE(machine.MonotonicTime() - start, 20s);
}

const Row kRows[] = {
    {"a page may take ten seconds", 10s, 0s, 0s, "a", true, "a"},
    {"a page may not take longer", 10'001ms, 0s, 0s, "a", false, "abca"},
    {"another page is tried after a slow one", 1h, 0s, 0s, "b", true, "ab"},
    {"a page may take what is left", 1h, 5s, 5s, "c", true, "abc"},
    {"a page may not take more", 1h, 5s, 5'001ms, "c", false, "abc"},
    {"no page is tried when nothing is left", 1h, 1h, 0s, "c", false, "ab"},
    {"a page is tried when a moment is left", 1h, 9'999ms, 0s, "c", true,
     "abc"},
    {"quick pages are all tried", 3s, 3s, 3s, "", false, "abcabc"},
    {"slow pages are not all tried", 4s, 4s, 4s, "", false, "abcab"},
};

INSTANTIATE_TEST_SUITE_P(Rows, AllFetchesOfARequest, ::testing::ValuesIn(kRows),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
