// Files that change, shrink, grow and go while they are read: what was there
// at each read counts.
#include <gtest/gtest.h>

#include <cerrno>

#include "tests/faults/readers.h"
#include "tests/faults/reads.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

struct Reader {
  const char* name;
  Keys (*read)(const TemporaryDirectory& folder);
};

constexpr Reader kReaders[] = {{"configuration", InConfiguration},
                               {"help map", InHelpMap},
                               {"preferences", InPreferences}};

struct Change {
  const char* sentence;
  /// The read before which it happens: the first, or the second.
  int number;
  /// Returns the error that the read ends with, 0 for none.
  int (*happen)(const TemporaryDirectory& folder);
  Keys keys;
};

void PrintTo(const Change& change, std::ostream* out) {
  *out << change.sentence;
}

class AFile : public ::testing::TestWithParam<Change> {};

TEST_P(AFile, IsReadWhileItChanges) {
  for (const Reader& reader : kReaders) {
    const TemporaryDirectory folder;
    WriteFile(FileIn(folder), LongText());
    const Reads reads([&](int number) {
      return number == GetParam().number ? GetParam().happen(folder) : 0;
    });
    EXPECT_EQ(reader.read(folder), GetParam().keys) << reader.name;
  }
}

int StayAsItIs(const TemporaryDirectory& /*folder*/) { return 0; }
int BeInterrupted(const TemporaryDirectory& /*folder*/) { return EINTR; }

int Shrink(const TemporaryDirectory& folder, std::uintmax_t size) {
  fs::resize_file(FileIn(folder), size);
  return 0;
}
int BeEmptied(const TemporaryDirectory& folder) { return Shrink(folder, 0); }
int BeCutInHalf(const TemporaryDirectory& folder) {
  return Shrink(folder, 150'000);
}

int BeEmptiedAndGrowAgain(const TemporaryDirectory& folder) {
  BeEmptied(folder);
  return Shrink(folder, 1'000'000);
}

int Gain(const TemporaryDirectory& folder) {
  std::ofstream(FileIn(folder), std::ios_base::app) << Entry("added");
  return 0;
}

int BeTakenAway(const TemporaryDirectory& folder) {
  fs::remove(FileIn(folder));
  return 0;
}

int BecomeADirectory(const TemporaryDirectory& folder) {
  BeTakenAway(folder);
  fs::create_directory(FileIn(folder));
  return 0;
}

int BeReplaced(const TemporaryDirectory& folder) {
  fs::rename(folder.Write("y", Entry("added")), FileIn(folder));
  return 0;
}

int BeOverwritten(const TemporaryDirectory& folder) {
  std::fstream file(FileIn(folder), std::ios_base::in | std::ios_base::out);
  file << "[Preferences]\n" << Entry("VX_HOME") << Entry("added");
  return 0;
}

int BeForbidden(const TemporaryDirectory& folder) {
  fs::permissions(FileIn(folder), fs::perms::none);
  return 0;
}

const Keys kBoth = {"first", "last"};

const Change kChanges[] = {
    {"that stays as it is", 1, StayAsItIs, kBoth},
    {"that gains an entry before its first byte is read", 1, Gain, kAllKeys},
    {"that gains an entry as it is read", 2, Gain, kAllKeys},
    {"that is emptied before its first byte is read", 1, BeEmptied, {}},
    {"that is emptied as it is read", 2, BeEmptied, {"first"}},
    {"that is cut in half as it is read", 2, BeCutInHalf, {"first"}},
    {"that is emptied and grows again", 2, BeEmptiedAndGrowAgain, {"first"}},
    {"that is overwritten where it was read already", 2, BeOverwritten, kBoth},
    {"that is taken away", 1, BeTakenAway, kBoth},
    {"that is replaced by another", 1, BeReplaced, kBoth},
    {"whose name is a directory's by then", 2, BecomeADirectory, kBoth},
    {"that nobody may read any more", 2, BeForbidden, kBoth},
    {"whose reading is interrupted", 2, BeInterrupted, kBoth},
};

INSTANTIATE_TEST_SUITE_P(Opened, AFile, ::testing::ValuesIn(kChanges),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
