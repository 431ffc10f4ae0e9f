// What an initialisation asks the machine, in which order and how often.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/velmohelp.h>

#include "client/state.h"
#include "tests/support/client_world.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(InitialisationOrder, ReadsThenProbesThenReadsInTheViewersFolder) {
  ClientWorld world;
  world.Install();
  InitializeVelmoHelpClient("Foo", "en_US", 0);
  EXPECT_THAT(
      world.Questions(),
      ElementsAre(
          "ResourcesDirectory", "StandardFolder -32763 pref create",
          // The viewer's folder is not known yet.
          "FileExists ~/Preferences/Foo/Cfg/Foo.helpcfg",
          "Preference admin com.velmo.VelmoOnlineHelp VelmoOnlineDefault",
          "Preference user com.velmo.VelmoOnlineHelp VelmoOnlineDefault",
          "HostReachability localhost",  //
          "ResourcesDirectory", "StandardFolder -32763 pref create",
          "FileExists \"~/Preferences/reader.VELMO.1/Local Store/"
          "/Foo/Cfg/Foo.helpcfg\""));
}

TEST(InitialisationOrder, StopsAtAConfigurationThatCannotBeRead) {
  ClientWorld world;
  InitializeVelmoHelpClient("Foo", "en_US", 0);
  EXPECT_THAT(world.Questions(), ElementsAre("ResourcesDirectory"));
}

TEST(InitialisationOrder, StopsAtAConfigurationThatIsRejected) {
  ClientWorld world;
  world.Install({.id = "en_US_Bar"});
  InitializeVelmoHelpClient("Foo", "en_US", 0);
  EXPECT_THAT(
      world.Questions(),
      ElementsAre("ResourcesDirectory", "StandardFolder -32763 pref create",
                  "FileExists ~/Preferences/Foo/Cfg/Foo.helpcfg"));
}

TEST(InitialisationOrder, AsksNothingTheSecondTime) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  world.RemoveFile(world.InstalledConfig());
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "en_US", 0), kInitSuccess);
  EXPECT_THAT(world.Questions(), IsEmpty());
}

TEST(InitialisationOrder, ComparesTheCleanedProductWithTheStoredOne) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("en_US", "a_b"),
                testing::HelpConfig{.id = "en_US_a_b"}.Text());
  EXPECT_EQ(InitializeVelmoHelpClient("a/b", "en_US", 1), kInitSuccess);
  world.machine().ForgetQuestions();
  EXPECT_EQ(InitializeVelmoHelpClient("a\\b", "en_US", 1), kInitSuccess);
  EXPECT_THAT(world.Questions(), IsEmpty());
  EXPECT_EQ(InitializeVelmoHelpClient("a/b", "en_US", 0), kInitMissingConfig);
}

TEST(InitialisationOrder, ReadsAgainForAnotherLetterCase) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  EXPECT_EQ(InitializeVelmoHelpClient("foo", "en_US", 0), kInitMissingConfig);
  EXPECT_EQ(sProductID, "foo");
}

TEST(InitialisationOrder, ReadsAgainAfterAFailure) {
  ClientWorld world;
  InitializeVelmoHelpClient("Foo", "en_US", 0);
  world.Install();
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "en_US", 0), kInitSuccess);
}

TEST(InitialisationOrder, FindsADownloadedConfigurationAtTheSecondRead) {
  ClientWorld world;
  world.Install({.base_url = "http://installed/"});
  world.Download({.base_url = "http://downloaded/"});
  world.Initialise();
  EXPECT_EQ(sBaseUrl, "http://downloaded/");
}

TEST(InitialisationOrder, TakesTheViewerFromTheInstalledConfiguration) {
  ClientWorld world;
  world.Install();
  world.Download({.app_id = "other", .pub_id = "OTHER.2"});
  world.Initialise();
  EXPECT_EQ(sAppID, "reader");
  EXPECT_EQ(sPublisherID, "VELMO.1");
}

TEST(InitialisationOrder, FallsBackFromARejectedDownload) {
  ClientWorld world;
  world.Install({.base_url = "http://installed/"});
  world.Download({.id = "en_US_Bar", .base_url = "http://downloaded/"});
  world.Initialise();
  EXPECT_EQ(sBaseUrl, "http://installed/");
  EXPECT_EQ(sConfigID, "en_US_Foo");
}

/// A locale is cut to five bytes at the first read; the second read looks
/// where the cut one points.
TEST(LocaleCut, MakesATwoLetterLocaleMissItsOwnFolder) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("en"),
                testing::HelpConfig{.id = "en_Foo"}.Text());
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "en", 0), kInitMissingConfig);
  EXPECT_EQ(sLocale, "en_Fo");
  EXPECT_EQ(sInitStatus, 6);
}

TEST(LocaleCut, MakesALongLocaleMissItsOwnFolder) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("zh_Hans"),
                testing::HelpConfig{.id = "zh_Hans_Foo"}.Text());
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "zh_Hans", 0), kInitMissingConfig);
  EXPECT_EQ(sLocale, "zh_Ha");
}

TEST(LocaleCut, KeepsRepeatedInitialisationFromBeingTheSame) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("en"),
                testing::HelpConfig{.id = "en_Foo"}.Text());
  world.AddFile(world.InstalledConfig("en_Fo"),
                testing::HelpConfig{.id = "en_Fo_Foo"}.Text());
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "en", 0), kInitSuccess);
  EXPECT_EQ(sLocale, "en_Fo");
  EXPECT_EQ(sConfigID, "en_Fo_Foo");
  world.machine().ForgetQuestions();
  EXPECT_EQ(InitializeVelmoHelpClient("Foo", "en", 0), kInitSuccess);
  EXPECT_FALSE(world.Questions().empty());
}

}  // namespace
}  // namespace velmohelp
