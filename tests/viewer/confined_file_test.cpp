#include "viewer/web/confined_file.h"

#include <sys/stat.h>

#include <filesystem>

#include "tests/viewer/folder.h"

namespace viewer {
namespace {

namespace fs = std::filesystem;

class ConfinedFileIn : public ::testing::Test {
 protected:
  ConfinedFileIn() {
    folder_.Write("help/a.html", "text");
    folder_.Write("secret", "secret");
  }
  FileProblem Open(const std::string& name) const {
    return ConfinedFile(folder_.path("help"), name).problem();
  }

  Folder folder_;
};

TEST_F(ConfinedFileIn, IsRead) {
  ConfinedFile file(folder_.path("help"), "a.html");
  std::string text;
  EXPECT_EQ(file.Read(4, text), FileProblem::kNone);
  EXPECT_EQ(text, "text");
}

TEST_F(ConfinedFileIn, IsNotReadBeyondTheLimit) {
  ConfinedFile file(folder_.path("help"), "a.html");
  std::string text;
  EXPECT_EQ(file.Read(3, text), FileProblem::kTooLarge);
}

TEST_F(ConfinedFileIn, IsNotReachedByParentFolders) {
  EXPECT_EQ(Open("../secret"), FileProblem::kOutside);
  EXPECT_EQ(Open("x/../../secret"), FileProblem::kMissing);
}

TEST_F(ConfinedFileIn, IsNotReachedByAnAbsoluteName) {
  EXPECT_EQ(Open(folder_.path("secret")), FileProblem::kOutside);
}

TEST_F(ConfinedFileIn, IsNotReachedByALinkThatLeadsOut) {
  fs::create_symlink(folder_.path("secret"), folder_.path("help/absolute"));
  fs::create_symlink("../secret", folder_.path("help/relative"));
  fs::create_directory_symlink("..", folder_.path("help/up"));
  EXPECT_EQ(Open("absolute"), FileProblem::kOutside);
  EXPECT_EQ(Open("relative"), FileProblem::kOutside);
  EXPECT_EQ(Open("up/secret"), FileProblem::kOutside);
}

TEST_F(ConfinedFileIn, IsReachedByALinkThatStaysInside) {
  fs::create_symlink("a.html", folder_.path("help/b.html"));
  EXPECT_EQ(Open("b.html"), FileProblem::kNone);
}

TEST_F(ConfinedFileIn, IsNoFolderAndNoPipe) {
  fs::create_directory(folder_.path("help/folder"));
  ASSERT_EQ(mkfifo(folder_.path("help/pipe").c_str(), 0600), 0);
  EXPECT_EQ(Open("folder"), FileProblem::kNotAFile);
  EXPECT_EQ(Open("pipe"), FileProblem::kNotAFile);
}

TEST_F(ConfinedFileIn, IsMissingWithItsFolder) {
  fs::remove_all(folder_.path("help"));
  EXPECT_EQ(Open("a.html"), FileProblem::kMissing);
}

TEST_F(ConfinedFileIn, HasNoNameWithANul) {
  EXPECT_EQ(Open(std::string("a.html\0x", 8)), FileProblem::kMissing);
}

}  // namespace
}  // namespace viewer
