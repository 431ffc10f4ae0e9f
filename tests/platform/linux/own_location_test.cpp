// The library's own folder, as a plug-in of a host sees it.
#include "platform/linux/own_location.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/children.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using testing::TemporaryDirectory;

/// Loads the plug-in by a path, and asks it from another directory.
std::string FolderWhenLoadedAs(const std::string& path) {
  void* plugin = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (plugin == nullptr) return dlerror();
  const testing::WorkingDirectory working_directory("/");
  const auto own_folder =
      reinterpret_cast<const char* (*)()>(dlsym(plugin, "own_folder"));
  std::string folder = own_folder();
  dlclose(plugin);
  return folder;
}

/// In a copy of this process, which has loaded no plug-in: the loader takes a
/// new file for one that is still loaded when its name or inode is the same.
void ExpectFolder(const std::string& path, const std::string& folder) {
  EXPECT_TRUE(testing::InACopy([&] {
    const std::string found = FolderWhenLoadedAs(path);
    EXPECT_EQ(found, folder);
    return found == folder;
  }));
}

class PlugIn : public ::testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy_file(VELMO_TEST_PLUGIN, directory_ / "plugin.so");
  }
  const TemporaryDirectory& directory() const { return directory_; }

 private:
  TemporaryDirectory directory_;
};

TEST_F(PlugIn, KnowsItsFolderByAnAbsolutePath) {
  ExpectFolder(directory() / "plugin.so", directory().path());
}

TEST_F(PlugIn, KnowsItsFolderByARelativePath) {
  const testing::WorkingDirectory working_directory(directory().path());
  ExpectFolder("./plugin.so", directory().path());
}

struct OddName {
  const char* sentence;
  const char* name;
};

class OddFolder : public ::testing::TestWithParam<OddName> {};

/// Also by a relative path, when the list of mappings is read.
TEST_P(OddFolder, IsFound) {
  const TemporaryDirectory directory;
  const std::string folder = directory.MakeDirectory(GetParam().name);
  std::filesystem::copy_file(VELMO_TEST_PLUGIN, folder + "/plugin.so");
  const testing::WorkingDirectory working_directory(folder);
  ExpectFolder("./plugin.so", folder);
}

INSTANTIATE_TEST_SUITE_P(
    Names, OddFolder,
    ::testing::Values(
        OddName{"with spaces", " a  b "}, OddName{"with a line feed", "a\nb"},
        OddName{"with what the kernel writes for a line feed", "a\\012b"},
        OddName{"with a backslash", "a\\b"}, OddName{"with a tab", "a\tb"},
        OddName{"with a percent sign", "a%20b"},
        OddName{"that is not UTF-8", "a\xE4"},
        OddName{"like a replaced file", "a (deleted)"},
        OddName{"like a range of addresses", "0-f r-xp"}),
    testing::SentenceOf());

TEST_F(PlugIn, KnowsItsFolderWhenItsNameLooksReplaced) {
  std::filesystem::rename(directory() / "plugin.so",
                          directory() / "plugin.so (deleted)");
  const testing::WorkingDirectory working_directory(directory().path());
  ExpectFolder("./plugin.so (deleted)", directory().path());
}

/// The line of /proc/self/maps for a file at addresses 0x1000 to 0x1FFF.
std::string MapsLine(const std::string& path) {
  return "1000-2000 r-xp 00000000 08:01 77                    " + path + "\n";
}

struct MapsRow {
  const char* sentence;
  /// Files that exist, in a directory of the test's own.
  std::vector<std::string> files;
  /// As the kernel lists the file.
  const char* listed;
  const char* expected;
};

class AMappedFile : public ::testing::TestWithParam<MapsRow> {};

TEST_P(AMappedFile, HasItsName) {
  const TemporaryDirectory directory;
  for (const std::string& file : GetParam().files) directory.Write(file, "");
  EXPECT_EQ(MappedFile(MapsLine(directory / GetParam().listed), 0x1FFF),
            directory / GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AMappedFile,
    ::testing::Values(MapsRow{.sentence = "that exists",
                              .files = {"a"},
                              .listed = "a",
                              .expected = "a"},
                      MapsRow{.sentence = "that was replaced",
                              .files = {"a"},
                              .listed = "a (deleted)",
                              .expected = "a"},
                      MapsRow{.sentence = "that is gone",
                              .files = {},
                              .listed = "a (deleted)",
                              .expected = "a"},
                      MapsRow{.sentence = "whose name ends like a mark",
                              .files = {"a (deleted)"},
                              .listed = "a (deleted)",
                              .expected = "a (deleted)"},
                      MapsRow{.sentence = "replaced, with such a name",
                              .files = {},
                              .listed = "a (deleted) (deleted)",
                              .expected = "a (deleted)"},
                      MapsRow{.sentence = "with a line feed, replaced",
                              .files = {},
                              .listed = "a\\012b (deleted)",
                              .expected = "a\nb"}),
    testing::SentenceOf());

TEST(MappedFiles, AreFoundByAddress) {
  const std::string maps =
      "0800-1000 rw-p 00000000 00:00 0\n" + MapsLine("/one") +
      "2000-3000 rw-p 00000000 00:00 0                     [heap]\n"
      "not a mapping\n";
  EXPECT_EQ(MappedFile(maps, 0x1000), "/one");
  EXPECT_FALSE(MappedFile(maps, 0xFFF));
  EXPECT_FALSE(MappedFile(maps, 0x2000));
  EXPECT_FALSE(MappedFile(maps, 0x3000));
  EXPECT_FALSE(MappedFile("", 0x1000));
}

TEST_F(PlugIn, KnowsItsFileBehindALink) {
  const std::string elsewhere = directory().MakeDirectory("elsewhere");
  std::filesystem::create_symlink("../plugin.so", elsewhere + "/link.so");
  ExpectFolder(elsewhere + "/link.so", directory().path());
}

}  // namespace
}  // namespace velmohelp
