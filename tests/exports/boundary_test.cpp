// Texts that no host should pass, and what becomes of them: a code, and the
// same bytes at the other end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>
#include <velmohelp/velmohelp.h>

#include <fstream>
#include <string_view>

#include "exports/state.h"
#include "tests/client/recording_machine.h"
#include "tests/support/exported_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using ::testing::ElementsAre;
using testing::ExportedWorld;
using ::testing::IsEmpty;
using std::string_view_literals::operator""sv;
using testing::RecordingMachine;

constexpr std::size_t kMegabyte = 1024UL * 1024UL;

struct OddText {
  const char* sentence;
  std::string text;
  /// After "http://x/", as the browser gets it; "" where it is not.
  std::string escaped;
};

class OddTexts : public ::testing::TestWithParam<OddText> {
 protected:
  OddTexts() : world_(machine_) {
    world_.Install();
    world_.InstallWorkingViewer();
    world_.StartBrowsers();
    world_.Initialise();
  }

  RecordingMachine machine_;
  ExportedWorld world_;
};

TEST_P(OddTexts, ReachTheViewerAsPageIdsUnchanged) {
  EXPECT_EQ(DisplayVelmoHelpClientPage(GetParam().text.c_str()), 0U);
  EXPECT_THAT(machine_.Requests(), ElementsAre(GetParam().text));
}

TEST_P(OddTexts, ReachTheViewerInUrlsUnchanged) {
  const std::string url = "http://x/" + GetParam().text;
  EXPECT_EQ(OpenURL(url.c_str()), 0U);
  EXPECT_THAT(machine_.Requests(), ElementsAre('"' + url + '"'));
}

TEST_P(OddTexts, ReachTheBrowserEscapedOrNotAtAll) {
  world_.SetAccessibleMode("TRUE");
  const std::string url = "http://x/" + GetParam().text;
  const bool opens = !GetParam().escaped.empty();
  EXPECT_EQ(OpenURL(url.c_str()), opens ? 0U : 1U);
  if (opens) {
    EXPECT_THAT(machine_.Requests(),
                ElementsAre("http://x/" + GetParam().escaped));
  } else {
    EXPECT_THAT(machine_.Requests(), IsEmpty());
  }
}

TEST_P(OddTexts, ReachTheViewerAsRawSearchesUnchanged) {
  sQueryIsRaw = true;
  EXPECT_EQ(::SearchHelp("Foo", "en_US", GetParam().text.c_str()), 0U);
  EXPECT_THAT(machine_.Requests(), ElementsAre(GetParam().text));
}

TEST_P(OddTexts, NameNoConfiguration) {
  const std::string& text = GetParam().text;
  EXPECT_EQ(InitializeVelmoHelpClient(text.c_str(), "en_US", 0), 6U);
  EXPECT_EQ(sProductID, text);
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", text.c_str(), 0), 6U);
  EXPECT_EQ(sLocale, text);
}

INSTANTIATE_TEST_SUITE_P(
    , OddTexts,
    ::testing::Values(
        OddText{"a megabyte", std::string(kMegabyte, 'x'), ""},
        OddText{"a way out of the folder", "../../../etc/passwd",
                "../../../etc/passwd"},
        OddText{"quotes", R"("a'b")", "%22a'b%22"},
        OddText{"what a shell would run", "$(touch /tmp/x);`id`|&<>*?!~#",
                "$(touch%20/tmp/x);%60id%60%7C&%3C%3E*?!~#"},
        OddText{"an option", "--help", "--help"},
        OddText{"line ends", "a\nb\r\n", "a%0Ab%0D%0A"},
        OddText{"formatting characters", "%s%n%25", "%25s%25n%25"},
        OddText{"bytes that are not valid UTF-8", "\xFF\xFE\xC0\x80", ""},
        OddText{"a truncated character", "a\xE2\x82", ""},
        OddText{"a surrogate in UTF 8", "\xED\xA0\x80", ""},
        OddText{"control characters", "\x01\x1B[31m\x7F", "%01%1B[31m%7F"}),
    testing::SentenceOf());

TEST(LongTarget, HasNoUrlAndIsNotShown) {
  const std::string page(1100, 'p');
  ExportedWorld world;
  world.Install();
  world.machine().AddFile(world.DownloadedManual() + "/" + page + ".html");
  world.StartBrowsers();
  world.Initialise();
  EXPECT_EQ(DisplayVelmoHelpClientPage(page.c_str()), 2U);
  EXPECT_THAT(world.Shown(), IsEmpty());
}

TEST(ProductInAnotherFolder, IsReadWhereItPoints) {
  ExportedWorld world;
  world.Install();
  world.AddFile(world.InstalledConfig("en_US", "../Foo"),
                testing::HelpConfig{.id = "en_US_../Foo"}.Text());
  EXPECT_EQ(InitializeVelmoHelpClient("../Foo", "en_US", 0), 0U);
  EXPECT_EQ(InitializeVelmoHelpClient("../Foo", "en_US", 1), 6U);
}

TEST(PathSeparatorsOfAProduct, AreReplacedForAnyFlagButZero) {
  ExportedWorld world;
  for (const unsigned int flag : {1U, 0x80000000U}) {
    InitializeVelmoHelpClient("a/b", "en", flag);
    EXPECT_EQ(sProductID, "a_b");
  }
  InitializeVelmoHelpClient("a/b", "en", 0);
  EXPECT_EQ(sProductID, "a/b");
}

TEST(HelpMapThatIsADirectory, ThrowsFromTheTypedOperations) {
  ExportedWorld world;
  world.Install();
  const std::string map = world.DownloadedManual() + "/helpmap.txt";
  world.AddDirectory(map);
  world.Initialise();
  std::string target;
  std::map<std::string, std::string> entries;
  EXPECT_THROW(ValidateID("page.html", false, target), std::ios_base::failure);
  EXPECT_THROW(ITEMInternal::LoadMapFile(map, entries), std::ios_base::failure);
}

TEST(HelpMapThatIsADirectory, LeavesTheClientInitialised) {
  ExportedWorld world;
  world.Install();
  world.AddDirectory(world.DownloadedManual() + "/helpmap.txt");
  world.Initialise();
  EXPECT_EQ(DisplayVelmoHelpClientPage("page"), 11U);
  EXPECT_EQ(sInitStatus, 0);
}

/// The encoder's boundary; "a%20b" has five characters.
struct Room {
  const char* sentence;
  long size;
  long result;
  /// All of the caller's memory.
  std::string_view out;
};

class EncoderRoom : public ::testing::TestWithParam<Room> {};

TEST_P(EncoderRoom, IsOneByteMoreThanTheText) {
  char out[] = "untouched";
  const long result = VelmoHelpEncodeURIComponent("a b", out, GetParam().size);
  EXPECT_EQ(result, GetParam().result);
  EXPECT_EQ(std::string_view(out, sizeof out - 1), GetParam().out);
}

INSTANTIATE_TEST_SUITE_P(
    , EncoderRoom,
    ::testing::Values(Room{"text and end", 6, 5, "a%20b\0hed"sv},
                      Room{"more than that", 9, 5, "a%20b\0hed"sv},
                      Room{"no room for the end", 5, -1, "untouched"},
                      Room{"none", 0, -1, "untouched"},
                      Room{"a negative size", -1, -1, "untouched"}),
    testing::SentenceOf());

TEST(Encoder, RefusesNullPointers) {
  char out[] = "untouched";
  EXPECT_EQ(VelmoHelpEncodeURIComponent(nullptr, out, sizeof out), -1);
  EXPECT_STREQ(out, "untouched");
  EXPECT_EQ(VelmoHelpEncodeURIComponent("a", nullptr, 10), -1);
}

TEST(Encoder, MakesNothingOfAnEmptyTextAndOfNoUtf8) {
  char out[] = "x";
  EXPECT_EQ(VelmoHelpEncodeURIComponent("", out, sizeof out), 0);
  EXPECT_STREQ(out, "");
  out[0] = 'x';
  EXPECT_EQ(VelmoHelpEncodeURIComponent("\xFF", out, sizeof out), 0);
  EXPECT_STREQ(out, "");
}

}  // namespace
}  // namespace velmohelp
