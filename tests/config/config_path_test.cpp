#include <velmohelp/config.h>

#include "tests/support/on_scripted_machine.h"

namespace velmohelp::testing {
namespace {

using ITEMInternal::GetDownloadedHelpConfigPath;
using ITEMInternal::GetHelpConfigPath;
using ::testing::ElementsAre;

constexpr char kFallback[] = "/Library/Application Support/Velmo/HelpCfg";

class ConfigPath : public OnScriptedMachine {};

TEST_F(ConfigPath, PutsTheLocaleBeforeTheProduct) {
  machine.SetResourcesDirectory("/host.resources");
  EXPECT_EQ(GetHelpConfigPath("Foo", "en_US"),
            "/host.resources/help/en_US/Foo.helpcfg");
  EXPECT_THAT(machine.Questions(), ElementsAre("ResourcesDirectory"));
}

TEST_F(ConfigPath, UsesBothWordsUnchanged) {
  machine.SetResourcesDirectory("/r");
  EXPECT_EQ(GetHelpConfigPath("", ""), "/r/help//.helpcfg");
  EXPECT_EQ(GetHelpConfigPath("../a/b", ".."), "/r/help/../../a/b.helpcfg");
}

TEST_F(ConfigPath, FallsBackWhenTheHostHasNoResources) {
  EXPECT_EQ(GetHelpConfigPath("Foo", "en_US"),
            std::string(kFallback) + "/help/en_US/Foo.helpcfg");
}

TEST_F(ConfigPath, AcceptsAResourcesDirectoryOf1023Bytes) {
  const std::string directory = "/" + std::string(1022, 'a');
  machine.SetResourcesDirectory(directory);
  EXPECT_EQ(GetHelpConfigPath("p", "l"), directory + "/help/l/p.helpcfg");
}

TEST_F(ConfigPath, FallsBackForAResourcesDirectoryOf1024Bytes) {
  machine.SetResourcesDirectory("/" + std::string(1023, 'a'));
  EXPECT_EQ(GetHelpConfigPath("p", "l"),
            std::string(kFallback) + "/help/l/p.helpcfg");
}

TEST_F(ConfigPath, OfADownloadIsInTheViewersStore) {
  machine.SetPreferencesFolder("/prefs");
  kDownloadedHelpcfg = "/klh.1/Local Store/";
  EXPECT_EQ(GetDownloadedHelpConfigPath("dir", "Foo"),
            "/prefs/klh.1/Local Store//dir/Foo.helpcfg");
  EXPECT_THAT(machine.Questions(), ElementsAre("PreferencesFolder create"));
}

TEST_F(ConfigPath, OfADownloadLacksTheStoreBeforeTheFirstInitialisation) {
  machine.SetPreferencesFolder("/prefs");
  EXPECT_EQ(GetDownloadedHelpConfigPath("a", "b"), "/prefs/a/b.helpcfg");
}

TEST_F(ConfigPath, OfADownloadIsTheSuffixWithoutAPreferencesFolder) {
  kDownloadedHelpcfg = "/klh.1/Local Store/";
  EXPECT_EQ(GetDownloadedHelpConfigPath("a", "b"),
            "/klh.1/Local Store//a/b.helpcfg");
}

}  // namespace
}  // namespace velmohelp::testing
