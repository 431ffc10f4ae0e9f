// What velmo-help writes for a bug report.
#include <gmock/gmock.h>
#include <pwd.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <filesystem>

#include "tests/system/routes.h"
#include "tests/system/scene.h"

#ifdef VELMO_TEST_TOOL
namespace velmohelp::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class AReport : public ::testing::Test {
 protected:
  ToolProcess Write(const Words& options = {"--host", "{bin}/host"}) {
    Words arguments = {"explain", "display", "Foo", "en_US", "intro"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    arguments.insert(arguments.end(), {"--report", file_});
    return RunToolIn(world_, arguments);
  }

  void SetHome(const std::string& home) {
    auto& environment = world_.start().environment;
    std::erase_if(environment, [](const std::string& entry) {
      return entry.starts_with("HOME=");
    });
    environment.push_back("HOME=" + home);
  }

  bool Exists() const { return std::filesystem::exists(file_); }

  HelpWorld world_;
  const std::string file_ = world_.Expanded("{bin}/../report.txt");
};

TEST_F(AReport, HasEveryStepAndNoHome) {
  const std::string home = world_.Expanded("{settings}");
  SetHome(home);
  EXPECT_EQ(Write().status, 0);
  const std::string text = FileText(file_);
  EXPECT_THAT(text, HasSubstr("Every step"));
  EXPECT_THAT(text, HasSubstr("HOME/"));
  EXPECT_THAT(text, Not(HasSubstr(home)));
}

std::string UserName() {
  const passwd* user = getpwuid(getuid());
  return user == nullptr ? "" : user->pw_name;
}

std::string MachineName() {
  std::array<char, HOST_NAME_MAX + 1> name = {};
  gethostname(name.data(), name.size() - 1);
  return name.data();
}

/// The page's URL has all of the names: the report keeps the words around them.
/// The first host is that of the configuration.
TEST_F(AReport, HasNoNamesOfUserMachineAndServers) {
  const std::string user = UserName();
  const std::string machine = MachineName();
  ASSERT_NE(user, "");
  world_.Write("{installed}/helpmap.txt",
               "VX_HOME\th.html\nintro\thttps://intern.example/of-" + user +
                   "/on-" + machine + "/page\n");
  world_.start().environment.push_back("USER=" + user);
  EXPECT_EQ(Write().status, 0);
  const std::string text = FileText(file_);
  EXPECT_THAT(text, HasSubstr("https://HOST2/of-USER/on-HOST/page"));
  EXPECT_THAT(text, Not(HasSubstr("intern.example")));
  EXPECT_THAT(text, Not(HasSubstr("on-" + machine)));
}

TEST_F(AReport, LeavesAnExistingFileAlone) {
  world_.Write(file_, "mine");
  EXPECT_EQ(Write().status, 74);
  EXPECT_EQ(FileText(file_), "mine");
}

TEST_F(AReport, FollowsNoLinkToAnotherFile) {
  const std::string target = world_.Expanded("{bin}/../target");
  std::filesystem::create_symlink(target, file_);
  EXPECT_EQ(Write().status, 74);
  EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(AReport, InAFolderThatIsNotThereIsAFailure) {
  EXPECT_EQ(RunToolIn(world_, {"explain", "display", "Foo", "en_US", "intro",
                               "--report", file_ + "/below"})
                .status,
            74);
  EXPECT_FALSE(Exists());
}

TEST_F(AReport, OfAHostThatHasEndedIsNotLeftEmpty) {
  EXPECT_EQ(Write({"--pid", "999999999"}).status, 74);
  EXPECT_FALSE(Exists());
  EXPECT_EQ(Write().status, 0) << "the name is free";
  EXPECT_TRUE(Exists());
}

}  // namespace
}  // namespace velmohelp::testing
#endif
