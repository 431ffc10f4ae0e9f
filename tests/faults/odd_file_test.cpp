// Files that break while they are read, and files that report a wrong size.
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <velmohelp/config.h>
#include <velmohelp/resolve.h>

#include <cerrno>

#include "tests/faults/readers.h"
#include "tests/faults/reads.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

class ABreakingFile : public ::testing::Test {
 protected:
  ABreakingFile() { WriteFile(FileIn(folder), LongText()); }

  const TemporaryDirectory folder;
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
  EXPECT_THROW(ITEMInternal::LoadMapFile(FileIn(folder), map),
               std::ios_base::failure);
  EXPECT_EQ(map.size(), 2U);
  EXPECT_EQ(map["first"], "=\"1\"");
}

/// Holes take no room on the disk.
TEST(AFileOfSparseGigabytes, IsUnreadableAtOnce) {
  const TemporaryDirectory folder;
  WriteFile(FileIn(folder), LongText());
  fs::resize_file(FileIn(folder), std::uintmax_t{1} << 32U);
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
  const TemporaryDirectory folder;
  WriteFile(FileIn(folder), LongText());
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
