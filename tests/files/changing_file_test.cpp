// Files that change, shrink, grow and go while they are read. Each reader of
// the client's reads them in pieces of its own; the first entry lies in the
// first of them and the last entry in none but the last.
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <velmohelp/config.h>
#include <velmohelp/resolve.h>

#include <cerrno>
#include <set>

#include "platform/linux/files.h"
#include "platform/linux/preference_file.h"
#include "tests/files/reads.h"
#include "tests/rules/support/temp_folder.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

using Keys = std::set<std::string>;

const Keys kAll = {"first", "last", "added"};

/// A line that is an entry to all readers alike.
std::string Entry(const std::string& key) { return key + "\t=\"1\"\n"; }

std::string Padding() {
  std::string lines;
  while (lines.size() < 300'000) lines += "no entry\n";
  return lines;
}

std::string Text() {
  return "[Preferences]\n" + Entry("VX_HOME") + Entry("first") + Padding() +
         Entry("last");
}

std::string Path(const TempFolder& folder) { return folder.Path("x.conf"); }

// The keys that the client's readers find in the file.

Keys InConfiguration(const TempFolder& folder) {
  XMLParser parser;
  parser.ReadFileToBuffer(Path(folder));
  Keys keys = kAll;
  std::erase_if(keys,
                [&](const auto& key) { return parser.GetKey(key) != "1"; });
  return keys;
}

Keys InHelpMap(const TempFolder& folder) {
  std::map<std::string, std::string> map;
  const bool complete = ITEMInternal::LoadMapFile(Path(folder), map);
  EXPECT_EQ(complete, map.contains("VX_HOME"));
  Keys keys = kAll;
  std::erase_if(keys, [&](const auto& key) { return !map.contains(key); });
  return keys;
}

Keys InPreferences(const TempFolder& folder) {
  constexpr std::size_t kLimit = 1U << 20U;
  const auto text = ReadAll(OpenRegularFile(Path(folder)), kLimit);
  Keys keys = kAll;
  std::erase_if(keys, [&](const auto& key) {
    return !PreferenceInText(text.value_or(""), key);
  });
  return keys;
}

struct Reader {
  const char* name;
  Keys (*read)(const TempFolder& folder);
};

constexpr Reader kReaders[] = {{"configuration", InConfiguration},
                               {"help map", InHelpMap},
                               {"preferences", InPreferences}};

struct Change {
  const char* sentence;
  /// The read before which it happens: the first, or the second.
  int number;
  /// Returns the error that the read ends with, 0 for none.
  int (*happen)(const TempFolder& folder);
  Keys keys;
};

void PrintTo(const Change& change, std::ostream* out) {
  *out << change.sentence;
}

class AFile : public ::testing::TestWithParam<Change> {};

TEST_P(AFile, IsReadWhileItChanges) {
  for (const Reader& reader : kReaders) {
    const TempFolder folder;
    folder.Write("x.conf", Text());
    const Reads reads([&](int number) {
      return number == GetParam().number ? GetParam().happen(folder) : 0;
    });
    EXPECT_EQ(reader.read(folder), GetParam().keys) << reader.name;
  }
}

int StayAsItIs(const TempFolder& /*folder*/) { return 0; }
int BeInterrupted(const TempFolder& /*folder*/) { return EINTR; }

int Shrink(const TempFolder& folder, std::uintmax_t size) {
  fs::resize_file(Path(folder), size);
  return 0;
}
int BeEmptied(const TempFolder& folder) { return Shrink(folder, 0); }
int BeCutInHalf(const TempFolder& folder) { return Shrink(folder, 150'000); }

int BeEmptiedAndGrowAgain(const TempFolder& folder) {
  BeEmptied(folder);
  return Shrink(folder, 1'000'000);
}

int Gain(const TempFolder& folder) {
  std::ofstream(Path(folder), std::ios_base::app) << Entry("added");
  return 0;
}

int BeTakenAway(const TempFolder& folder) {
  fs::remove(Path(folder));
  return 0;
}

int BecomeADirectory(const TempFolder& folder) {
  BeTakenAway(folder);
  fs::create_directory(Path(folder));
  return 0;
}

int BeReplaced(const TempFolder& folder) {
  fs::rename(folder.Write("y", Entry("added")), Path(folder));
  return 0;
}

int BeOverwritten(const TempFolder& folder) {
  std::fstream file(Path(folder), std::ios_base::in | std::ios_base::out);
  file << "[Preferences]\n" << Entry("VX_HOME") << Entry("added");
  return 0;
}

int BeForbidden(const TempFolder& folder) {
  fs::permissions(Path(folder), fs::perms::none);
  return 0;
}

const Keys kBoth = {"first", "last"};

const Change kChanges[] = {
    {"that stays as it is", 1, StayAsItIs, kBoth},
    {"that gains an entry before its first byte is read", 1, Gain, kAll},
    {"that gains an entry as it is read", 2, Gain, kAll},
    {"that is emptied before its first byte is read", 1, BeEmptied, {}},
    {"that is emptied as it is read", 2, BeEmptied, {"first"}},
    {"that is cut in half as it is read", 2, BeCutInHalf, {"first"}},
    {"that is emptied and grows again", 2, BeEmptiedAndGrowAgain, {"first"}},
    {"that is overwritten behind the reader", 2, BeOverwritten, kBoth},
    {"that is taken away", 1, BeTakenAway, kBoth},
    {"that is replaced by another", 1, BeReplaced, kBoth},
    {"whose name is a directory's by then", 2, BecomeADirectory, kBoth},
    {"that nobody may read any more", 2, BeForbidden, kBoth},
    {"whose reading is interrupted", 2, BeInterrupted, kBoth},
};

INSTANTIATE_TEST_SUITE_P(Opened, AFile, ::testing::ValuesIn(kChanges),
                         SentenceOf());

class ABreakingFile : public ::testing::Test {
 protected:
  ABreakingFile() { folder.Write("x.conf", Text()); }

  const TempFolder folder;
  const Reads reads{[](int number) { return number == 2 ? EIO : 0; }};
};

TEST_F(ABreakingFile, SaysNothingAsAConfiguration) {
  EXPECT_EQ(InConfiguration(folder), Keys());
}

TEST_F(ABreakingFile, SaysNothingAsPreferences) {
  EXPECT_EQ(InPreferences(folder), Keys());
}

TEST_F(ABreakingFile, RaisesTheStreamsFailureAsAHelpMapAndLeavesItsBeginning) {
  std::map<std::string, std::string> map;
  EXPECT_THROW(ITEMInternal::LoadMapFile(Path(folder), map),
               std::ios_base::failure);
  EXPECT_EQ(map.size(), 2U);
  EXPECT_EQ(map["first"], "=\"1\"");
}

/// Holes take no room on the disk.
TEST(AFileOfSparseGigabytes, IsUnreadableAtOnce) {
  const TempFolder folder;
  folder.Write("x.conf", Text());
  fs::resize_file(Path(folder), std::uintmax_t{1} << 40U);
  int count = 0;
  const Reads reads([&](int number) {
    count = number;
    return 0;
  });
  EXPECT_EQ(InConfiguration(folder), Keys());
  EXPECT_EQ(InHelpMap(folder), Keys());
  EXPECT_EQ(count, 0);
  EXPECT_EQ(InPreferences(folder), Keys());
}

TEST(AFileWithoutAnEnd, IsGivenUp) {
  const TempFolder folder;
  folder.Write("x.conf", Text());
  const Reads reads([](int number) { return number < 2 ? 0 : kZeroBytes; });
  EXPECT_EQ(InConfiguration(folder), Keys());
  EXPECT_EQ(InPreferences(folder), Keys());
}

/// The system's own files tell no size. This one holds the thread's name.
TEST(AFileThatSaysItIsEmpty, IsReadAllTheSame) {
  ASSERT_EQ(fs::file_size("/proc/thread-self/comm"), 0U);
  ASSERT_EQ(prctl(PR_SET_NAME, "VX_HOME\t=\"x\""), 0);
  XMLParser parser;
  EXPECT_TRUE(parser.ReadFileToBuffer("/proc/thread-self/comm"));
  EXPECT_EQ(parser.GetKey("VX_HOME"), "x");
  std::map<std::string, std::string> map;
  EXPECT_TRUE(ITEMInternal::LoadMapFile("/proc/thread-self/comm", map));
  EXPECT_EQ(map["VX_HOME"], "=\"x\"");
}

}  // namespace
}  // namespace velmohelp::testing
