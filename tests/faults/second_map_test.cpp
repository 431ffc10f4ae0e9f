// What the client's help map holds after a search that read the maps of two
// folders, the second of which failed.
#include <sys/stat.h>

#include <cerrno>

#include "tests/faults/reads.h"
#include "tests/support/content_folders.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;
using Map = std::map<std::string, std::string>;

struct SecondMapRow {
  const char* sentence;
  /// Puts something in the place of the second folder's map.
  void (*put)(const std::string& path);
  Map left;
  /// The read of a file that fails; 0: none. The first map takes two.
  int failing_read = 0;
  bool raises = false;
};

void PutPipe(const std::string& path) { mkfifo(path.c_str(), S_IRWXU); }
void PutDirectory(const std::string& path) { fs::create_directory(path); }
void PutNothing(const std::string& /*path*/) {}
void PutLinkToNothing(const std::string& path) {
  fs::create_symlink("missing", path);
}
void PutTooMuch(const std::string& path) {
  WriteFile(path, "b\t2\n");
  fs::resize_file(path, (256U << 20U) + 1);
}
void PutLines(const std::string& path) {
  WriteFile(path, "VX_HOME\th\nb\t2\nc\t3");
}

class SecondMap : public ContentFolders,
                  public ::testing::WithParamInterface<SecondMapRow> {
 protected:
  SecondMap() {
    AddRow("a");
    AddRow("b");
    AddMap(Downloaded("a"), "VX_HOME\th\na\t1\n");
    fs::create_directories(Downloaded("b"));
    AddPage(Downloaded("b"), "helpmap.txt");
    sHelpMap = {{"old", "old"}};
  }
};

TEST_P(SecondMap, IsTheOneThatIsLeft) {
  GetParam().put(Downloaded("b") + "/helpmap.txt");
  const Reads reads(
      [](int number) { return number == GetParam().failing_read ? EIO : 0; });
  if (GetParam().raises) {
    EXPECT_THROW(Locally("x.html"), std::ios_base::failure);
  } else {
    EXPECT_EQ(Locally("x.html"), NotFound("x.html"));
  }
  EXPECT_EQ(sHelpMap, GetParam().left);
}

const SecondMapRow kRows[] = {
    {.sentence = "whole",
     .put = PutLines,
     .left = {{"VX_HOME", "h"}, {"b", "2"}, {"c", "3"}}},
    {.sentence = "whole lines of one that breaks",
     .put = PutLines,
     .left = {{"VX_HOME", "h"}, {"b", "2"}},
     .failing_read = 4,
     .raises = true},
    {.sentence = "nothing of one that breaks at once",
     .put = PutLines,
     .left = {},
     .failing_read = 3,
     .raises = true},
    {.sentence = "nothing of a directory",
     .put = PutDirectory,
     .left = {},
     .raises = true},
    {.sentence = "nothing of a pipe", .put = PutPipe, .left = {}},
    {.sentence = "nothing of one that is gone", .put = PutNothing, .left = {}},
    {.sentence = "nothing of a link to nothing",
     .put = PutLinkToNothing,
     .left = {}},
    {.sentence = "nothing of one that is too long",
     .put = PutTooMuch,
     .left = {}}};

INSTANTIATE_TEST_SUITE_P(Rows, SecondMap, ::testing::ValuesIn(kRows),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
