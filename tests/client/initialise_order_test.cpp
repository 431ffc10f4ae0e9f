// What an initialisation asks the machine, in which order and how often.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/client_world.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(InitialisationOrder, ReadsThenProbesThenReadsInTheViewersFolder) {
  ClientWorld world;
  world.Install();
  world.Initialise("Foo", "en_US");
  EXPECT_THAT(
      world.Questions(),
      ElementsAre(
          "ResourcesDirectory", "PreferencesFolder create",
          // The viewer's folder is not known yet.
          "FindFile ~/Preferences/Foo/Cfg/Foo.helpcfg",
          "Preference admin com.velmo.VelmoOnlineHelp VelmoOnlineDefault",
          "Preference user com.velmo.VelmoOnlineHelp VelmoOnlineDefault",
          "HostReachability localhost",  //
          "ResourcesDirectory", "PreferencesFolder create",
          "FindFile \"~/Preferences/reader.VELMO.1/Local Store/"
          "/Foo/Cfg/Foo.helpcfg\""));
}

TEST(InitialisationOrder, StopsAtAConfigurationThatCannotBeRead) {
  ClientWorld world;
  world.Initialise("Foo", "en_US");
  EXPECT_THAT(world.Questions(), ElementsAre("ResourcesDirectory"));
}

TEST(InitialisationOrder, StopsAtAConfigurationThatIsRejected) {
  ClientWorld world;
  world.Install({.id = "en_US_Bar"});
  world.Initialise("Foo", "en_US");
  EXPECT_THAT(world.Questions(),
              ElementsAre("ResourcesDirectory", "PreferencesFolder create",
                          "FindFile ~/Preferences/Foo/Cfg/Foo.helpcfg"));
}

TEST(InitialisationOrder, AsksNothingTheSecondTime) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.RemoveFile(world.InstalledConfig());
  EXPECT_EQ(world.Initialise("Foo", "en_US"), kInitSuccess);
  EXPECT_THAT(world.Questions(), IsEmpty());
}

TEST(InitialisationOrder, ComparesTheCleanedProductWithTheStoredOne) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("en_US", "a_b"),
                testing::HelpConfig{.id = "en_US_a_b"}.Text());
  EXPECT_EQ(world.Initialise("a/b", "en_US", true), kInitSuccess);
  world.machine().ForgetQuestions();
  EXPECT_EQ(world.Initialise("a\\b", "en_US", true), kInitSuccess);
  EXPECT_THAT(world.Questions(), IsEmpty());
  EXPECT_EQ(world.Initialise("a/b", "en_US"), kInitMissingConfig);
}

TEST(InitialisationOrder, ReadsAgainForAnotherLetterCase) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  EXPECT_EQ(world.Initialise("foo", "en_US"), kInitMissingConfig);
  EXPECT_EQ(world.state().product_id, "foo");
}

TEST(InitialisationOrder, ReadsAgainAfterAFailure) {
  ClientWorld world;
  world.Initialise("Foo", "en_US");
  world.Install();
  EXPECT_EQ(world.Initialise("Foo", "en_US"), kInitSuccess);
}

TEST(InitialisationOrder, FindsADownloadedConfigurationAtTheSecondRead) {
  ClientWorld world;
  world.Install({.base_url = "http://installed/"});
  world.Download({.base_url = "http://downloaded/"});
  world.Initialise();
  EXPECT_EQ(world.state().base_url, "http://downloaded/");
}

TEST(InitialisationOrder, TakesTheViewerFromTheInstalledConfiguration) {
  ClientWorld world;
  world.Install();
  world.Download({.app_id = "other", .pub_id = "OTHER.2"});
  world.Initialise();
  EXPECT_EQ(world.state().app_id, "reader");
  EXPECT_EQ(world.state().publisher_id, "VELMO.1");
}

TEST(InitialisationOrder, FallsBackFromARejectedDownload) {
  ClientWorld world;
  world.Install({.base_url = "http://installed/"});
  world.Download({.id = "en_US_Bar", .base_url = "http://downloaded/"});
  world.Initialise();
  EXPECT_EQ(world.state().base_url, "http://installed/");
  EXPECT_EQ(world.state().config_id, "en_US_Foo");
}

/// A locale is cut to five bytes at the first read; the second read looks
/// where the cut one points.
TEST(LocaleCut, MakesATwoLetterLocaleMissItsOwnFolder) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("en"),
                testing::HelpConfig{.id = "en_Foo"}.Text());
  EXPECT_EQ(world.Initialise("Foo", "en"), kInitMissingConfig);
  EXPECT_EQ(world.state().locale, "en_Fo");
  EXPECT_EQ(world.state().init_status, 6);
}

TEST(LocaleCut, MakesALongLocaleMissItsOwnFolder) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("zh_Hans"),
                testing::HelpConfig{.id = "zh_Hans_Foo"}.Text());
  EXPECT_EQ(world.Initialise("Foo", "zh_Hans"), kInitMissingConfig);
  EXPECT_EQ(world.state().locale, "zh_Ha");
}

TEST(LocaleCut, KeepsRepeatedInitialisationFromBeingTheSame) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("en"),
                testing::HelpConfig{.id = "en_Foo"}.Text());
  world.AddFile(world.InstalledConfig("en_Fo"),
                testing::HelpConfig{.id = "en_Fo_Foo"}.Text());
  EXPECT_EQ(world.Initialise("Foo", "en"), kInitSuccess);
  EXPECT_EQ(world.state().locale, "en_Fo");
  EXPECT_EQ(world.state().config_id, "en_Fo_Foo");
  world.machine().ForgetQuestions();
  EXPECT_EQ(world.Initialise("Foo", "en"), kInitSuccess);
  EXPECT_FALSE(world.Questions().empty());
}

}  // namespace
}  // namespace velmohelp
