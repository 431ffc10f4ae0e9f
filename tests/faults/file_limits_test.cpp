// Files of exactly the longest length that is read, and one byte longer; and
// what is in a file's place.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <velmohelp/config.h>
#include <velmohelp/export.h>
#include <velmohelp/resolve.h>

#include <cstdio>
#include <functional>
#include <locale>
#include <utility>

#include "tests/faults/readers.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

/// Called once, after the next question about a path.
std::function<void()> after_stat;

Keys InBaseUrl(const TemporaryDirectory& folder) {
  const bool read = ITEMInternal::GetHelpMapBaseUrl(FileIn(folder)) != "";
  return read ? kAllKeys : Keys();
}

struct LimitRow {
  const char* sentence;
  Keys (*read)(const TemporaryDirectory& folder);
  std::size_t limit;
};

class Limit : public ::testing::TestWithParam<LimitRow> {
 protected:
  /// The keys in a file of this length. All but its first bytes is a hole,
  /// which takes no room on the disk.
  static Keys KeysInFileOf(std::size_t size) {
    const TemporaryDirectory folder;
    WriteFile(FileIn(folder),
              "[Preferences]\n" + Entry("VX_HOME") + Entry("first"));
    fs::resize_file(FileIn(folder), size);
    return GetParam().read(folder);
  }
};

TEST_P(Limit, IsTheLongestLengthThatIsRead) {
  EXPECT_TRUE(KeysInFileOf(GetParam().limit).contains("first"));
  EXPECT_EQ(KeysInFileOf(GetParam().limit + 1), Keys());
}

INSTANTIATE_TEST_SUITE_P(
    Of, Limit,
    ::testing::Values(LimitRow{"a configuration", InConfiguration, 16U << 20U},
                      LimitRow{"preferences", InPreferences, 16U << 20U},
                      LimitRow{"a base URL", InBaseUrl, 16U << 20U},
                      LimitRow{"a help map", InHelpMap, 256U << 20U}),
    SentenceOf());

struct ReaderRow {
  const char* sentence;
  Keys (*read)(const TemporaryDirectory& folder);
};

const ReaderRow kReaders[] = {{"a configuration", InConfiguration},
                              {"preferences", InPreferences},
                              {"a base URL", InBaseUrl},
                              {"a help map", InHelpMap}};

std::ptrdiff_t OpenDescriptors() {
  return std::distance(fs::directory_iterator("/proc/self/fd"),
                       fs::directory_iterator());
}

struct InPlaceOf : ::testing::TestWithParam<ReaderRow> {
  /// Reads what is in the place of the file.
  void ExpectNothing() {
    const std::ptrdiff_t before = OpenDescriptors();
    EXPECT_EQ(GetParam().read(folder), Keys());
    EXPECT_EQ(OpenDescriptors(), before);
  }
  const TemporaryDirectory folder;
};

TEST_P(InPlaceOf, APipeIsNothingAndBlocksNobody) {
  ASSERT_EQ(mkfifo(FileIn(folder).c_str(), S_IRWXU), 0);
  ExpectNothing();
}

TEST_P(InPlaceOf, ADeviceIsNothing) {
  fs::create_symlink("/dev/zero", FileIn(folder));
  ExpectNothing();
}

TEST_P(InPlaceOf, AFileThatIsTooLongIsNothing) {
  WriteFile(FileIn(folder), LongText());
  fs::resize_file(FileIn(folder), std::size_t{1} << 30U);
  ExpectNothing();
}

TEST_P(InPlaceOf, ADirectoryLeavesNoDescriptorOpen) {
  fs::create_directory(FileIn(folder));
  const std::ptrdiff_t before = OpenDescriptors();
  try {
    EXPECT_EQ(GetParam().read(folder), Keys());
  } catch (const std::ios_base::failure&) {
    // A help map and a base URL raise the stream's failure.
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

/// A conversion of a host's own, which makes nonsense of every file.
class Nonsense : public std::codecvt<char, char, std::mbstate_t> {
  bool do_always_noconv() const noexcept override { return false; }
  result do_in(std::mbstate_t&, const char* from, const char* from_end,
               const char*& from_next, char* to, char* to_end,
               char*& to_next) const override {
    for (; from != from_end && to != to_end; ++from) *to++ = 'n';
    from_next = from;
    to_next = to;
    return ok;
  }
};

TEST_P(InPlaceOf, AFileIsReadWhateverTheHostsLocaleConverts) {
  WriteFile(FileIn(folder), LongText());
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new Nonsense));
  const Keys keys = GetParam().read(folder);
  std::locale::global(before);
  EXPECT_TRUE(keys.contains("first"));
}

INSTANTIATE_TEST_SUITE_P(Of, InPlaceOf, ::testing::ValuesIn(kReaders),
                         SentenceOf());

/// A pipe takes the map's place as soon as somebody has asked what the map is:
/// opened as a file would be, it would block forever.
TEST(AHelpMapThatBecomesAPipe, IsJudgedOnceItIsOpen) {
  const TemporaryDirectory folder;
  WriteFile(FileIn(folder), LongText());
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), S_IRWXU), 0);
  after_stat = [&] {
    rename((folder / "pipe").c_str(), FileIn(folder).c_str());
  };
  EXPECT_EQ(InHelpMap(folder).size(), 2U);
  after_stat = nullptr;
}

}  // namespace
}  // namespace velmohelp::testing

/// Takes the place of the C library's, for the C++ library too.
extern "C" VELMOHELP_API int stat(const char* path,
                                  struct stat* status) noexcept {
  using velmohelp::testing::after_stat;
  const auto result =
      static_cast<int>(syscall(SYS_newfstatat, AT_FDCWD, path, status, 0));
  if (after_stat) std::exchange(after_stat, nullptr)();
  return result;
}
