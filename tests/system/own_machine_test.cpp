// The places that are fixed when the library is built, on a machine that the
// host has for itself.
#include "tests/system/own_machine_world.h"

namespace velmohelp::testing {
namespace {

constexpr char kAdminFile[] = "com.velmo.VelmoOnlineHelp.conf";

TEST_F(OwnMachine, HasItsInstalledContent) {
  InstallIntroPage();
  world_.SetUserPreference("0");
  Start();
  EXPECT_EQ(world_.Ask(Display("intro")), "0");
  ExpectTheInstalledIntroPageInTheViewer();
}

TEST_F(OwnMachine, HasItsFrameworks) {
  const std::string frameworks = world_.Expanded("{bin}/../Frameworks");
  world_.Remove(Folder() + "/Library");
  std::filesystem::create_directories(Folder() + "/Library");
  std::filesystem::rename(frameworks, Folder() + "/Library/Frameworks");
  Start();
  EXPECT_EQ(world_.Ask(Open("http://localhost/")), "0");
  EXPECT_EQ(world_.Started(),
            world_.Expanded(Viewer("URL", "\"http://localhost/\"")));
}

TEST_F(OwnMachine, ConfiguresAHostWithoutResources) {
  Put("Library/Application Support/Velmo/HelpCfg/help/en_US/Foo.helpcfg",
      world_.config().Text());
  world_.Remove("{bin}/host.resources");
  Start();
}

TEST_F(OwnMachine, IsOnlineWhereNobodyIsAgainstIt) {
  Start();
  EXPECT_EQ(world_.Ask({"status"}), "0");
  world_.SetUserPreference("0");
  EXPECT_EQ(world_.Ask({"status"}), "1");
}

struct Word {
  const char* sentence;
  const char* admin;
  const char* user;
  const char* status;
};

void PrintTo(const Word& row, std::ostream* out) { *out << row.sentence; }

class AdministratorsWord : public OwnMachine,
                           public ::testing::WithParamInterface<Word> {};

TEST_P(AdministratorsWord, Counts) {
  Put(std::string("velmo/") + kAdminFile,
      std::string("[Preferences]\nVelmoOnlineDefault=") + GetParam().admin);
  world_.SetUserPreference(GetParam().user);
  Start();
  EXPECT_EQ(world_.Ask({"status"}), GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AdministratorsWord,
    ::testing::Values(Word{"no against the user s yes", "0", "1", "1"},
                      Word{"no and no", "0", "0", "1"},
                      Word{"yes against the user s no", "1", "0", "1"},
                      Word{"yes and yes", "1", "1", "0"}),
    SentenceOf());

TEST_F(OwnMachine, NamesTheHostsConfiguration) {
  Put("velmo/com.velmo.Big.Office.conf", "[Preferences]\nHelpcfgName=Foo\n");
  Start();
  EXPECT_EQ(world_.Ask({"search by name", "Big", "Office", "en_US", "x y"}),
            "0");
  EXPECT_EQ(world_.Started(), world_.Expanded(Viewer("SEARCH", "x y")));
}

}  // namespace
}  // namespace velmohelp::testing
