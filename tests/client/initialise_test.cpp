// What an initialisation returns, and what it leaves in the state.
#include <gtest/gtest.h>

#include "tests/support/client_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;

constexpr char kDefaultPublisher[] =
    "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1";

struct BadArguments {
  const char* sentence;
  const char* product;
  const char* locale;
};

class RefusedInitialisation : public ::testing::TestWithParam<BadArguments> {};

TEST_P(RefusedInitialisation, AnswersOneAndTouchesNothing) {
  ClientWorld world;
  world.Install();
  world.Initialise();
  const auto code = world.Initialise(GetParam().product, GetParam().locale);
  EXPECT_EQ(code, kInitInvalidArgument);
  EXPECT_EQ(world.state().init_status, 0);
  EXPECT_EQ(world.state().product_id, "Foo");
  EXPECT_EQ(world.state().locale, "en_US");
  EXPECT_TRUE(world.Questions().empty());
}

INSTANTIATE_TEST_SUITE_P(
    , RefusedInitialisation,
    ::testing::Values(BadArguments{"no product", nullptr, "en_US"},
                      BadArguments{"no locale", "Foo", nullptr},
                      BadArguments{"neither", nullptr, nullptr},
                      BadArguments{"an empty product", "", "en_US"},
                      BadArguments{"an empty locale", "Foo", ""},
                      BadArguments{"a product of spaces", "   ", "en"},
                      BadArguments{"a locale of one space", "Foo", " "}),
    testing::SentenceOf());

struct Configured {
  const char* sentence;
  void (*given)(ClientWorld&);
  std::uint32_t code;
};

class InitialisationCode : public ::testing::TestWithParam<Configured> {};

TEST_P(InitialisationCode, IsThatOfTheConfiguration) {
  ClientWorld world;
  GetParam().given(world);
  EXPECT_EQ(world.Initialise("Foo", "en_US"), GetParam().code);
  EXPECT_EQ(world.state().init_status,
            static_cast<std::int32_t>(GetParam().code));
  EXPECT_EQ(world.state().product_id, "Foo");
  EXPECT_EQ(world.state().locale, "en_US");
}

INSTANTIATE_TEST_SUITE_P(
    , InitialisationCode,
    ::testing::Values(
        Configured{"a complete configuration is accepted",
                   [](ClientWorld& world) { world.Install(); }, 0},
        Configured{"one without content folders is accepted",
                   [](ClientWorld& world) { world.Install({.folders = {}}); },
                   0},
        Configured{"no configuration", [](ClientWorld&) {}, 6},
        Configured{"a directory in its place",
                   [](ClientWorld& world) {
                     world.AddDirectory(world.InstalledConfig());
                   },
                   6},
        Configured{"a downloaded configuration does not replace a missing one",
                   [](ClientWorld& world) { world.Download(); }, 6},
        Configured{
            "an empty file",
            [](ClientWorld& world) { world.AddFile(world.InstalledConfig()); },
            7},
        Configured{"no path of its own",
                   [](ClientWorld& world) { world.Install({.path = ""}); }, 7},
        Configured{"no base URL",
                   [](ClientWorld& world) { world.Install({.base_url = ""}); },
                   7},
        Configured{"an id of four bytes",
                   [](ClientWorld& world) { world.Install({.id = "en_U"}); },
                   7},
        Configured{
            "the id of another product",
            [](ClientWorld& world) { world.Install({.id = "en_US_Bar"}); }, 7},
        Configured{
            "the product in another letter case",
            [](ClientWorld& world) { world.Install({.id = "en_US_foo"}); }, 7}),
    testing::SentenceOf());

TEST(Initialisation, AcceptsBlanksInsideAndKeepsThem) {
  ClientWorld world;
  EXPECT_EQ(world.Initialise("a b", "en"), kInitMissingConfig);
  EXPECT_EQ(world.state().product_id, "a b");
}

TEST(Initialisation, TakesTabsForText) {
  ClientWorld world;
  EXPECT_EQ(world.Initialise("\t", "\n"), kInitMissingConfig);
  EXPECT_EQ(world.state().product_id, "\t");
  EXPECT_EQ(world.state().locale, "\n");
}

TEST(Initialisation, CleansTheProductAloneWhenAsked) {
  ClientWorld world;
  world.Initialise("dir/sub\\name", "x/y", true);
  EXPECT_EQ(world.state().product_id, "dir_sub_name");
  EXPECT_EQ(world.state().locale, "x/y");
}

TEST(Initialisation, LeavesTheProductAloneUnlessAsked) {
  ClientWorld world;
  world.Initialise("a/b", "en");
  EXPECT_EQ(world.state().product_id, "a/b");
}

TEST(Initialisation, KeepsTheFirstFiveBytesOfTheIdAsLocale) {
  ClientWorld world;
  world.AddFile(world.InstalledConfig("en", "Foo"),
                testing::HelpConfig{.id = "en_Foo"}.Text());
  EXPECT_EQ(world.Initialise("Foo", "en"), kInitMissingConfig);
  EXPECT_EQ(world.state().locale, "en_Fo");
  world.AddFile(world.InstalledConfig("en_Fo", "Foo"),
                testing::HelpConfig{.id = "en_Fo_Foo"}.Text());
  EXPECT_EQ(world.Initialise("Foo", "en"), kInitSuccess);
  EXPECT_EQ(world.state().locale, "en_Fo");
}

TEST(Initialisation, TakesTheStatesOwnTextsForItsArguments) {
  ClientWorld world;
  world.Install();
  world.state().product_id = "Foo";
  world.state().locale = "en_US";
  const auto code = world.Initialise(world.state().product_id.c_str(),
                                     world.state().locale.c_str());
  EXPECT_EQ(code, kInitSuccess);
  EXPECT_EQ(world.state().product_id, "Foo");
  EXPECT_EQ(world.state().locale, "en_US");
}

struct ViewerIds {
  const char* sentence;
  const char* app_id;
  const char* pub_id;
  std::string store;
  /// What the second read of the configuration leaves.
  const char* app_id_after;
  const char* pub_id_after;
};

class ViewerPathsTable : public ::testing::TestWithParam<ViewerIds> {};

TEST_P(ViewerPathsTable, AreNamedAfterBothIds) {
  const ViewerIds& row = GetParam();
  ClientWorld world;
  world.Install({.app_id = row.app_id, .pub_id = row.pub_id});
  world.Initialise();
  EXPECT_EQ(world.state().preference_file, row.store + "klh-pref.xml");
  EXPECT_EQ(world.state().downloaded_content, row.store + "Help/");
  EXPECT_EQ(world.state().downloaded_config, row.store);
  EXPECT_EQ(world.state().app_id, row.app_id_after);
  EXPECT_EQ(world.state().publisher_id, row.pub_id_after);
}

const std::string kDefaultStore =
    std::string("/klh.") + kDefaultPublisher + "/Local Store/";

INSTANTIATE_TEST_SUITE_P(
    , ViewerPathsTable,
    ::testing::Values(ViewerIds{"both ids from the configuration", "reader",
                                "VELMO.1", "/reader.VELMO.1/Local Store/",
                                "reader", "VELMO.1"},
                      ViewerIds{"no publisher drops the application too",
                                "reader", "", kDefaultStore, "reader", ""},
                      ViewerIds{"no application drops the publisher too", "",
                                "VELMO.1", kDefaultStore, "", "VELMO.1"},
                      ViewerIds{"neither id", "", "", kDefaultStore, "", ""},
                      ViewerIds{"the application id NULL means no viewer",
                                "NULL", "VELMO.1", kDefaultStore, "", ""},
                      ViewerIds{"in any letter case", "nUlL", "VELMO.1",
                                kDefaultStore, "", ""},
                      ViewerIds{"an id with formatting characters", "%s%n",
                                "%d", "/%s%n.%d/Local Store/", "%s%n", "%d"}),
    testing::SentenceOf());

TEST(ViewerPaths, TakeIdsLongerThanAnyBuffer) {
  const std::string id(5000, 'x');
  ClientWorld world;
  world.Install({.app_id = id, .pub_id = "p"});
  world.Initialise();
  EXPECT_EQ(world.state().downloaded_config, "/" + id + ".p/Local Store/");
}

TEST(ViewerPaths, StandWhenTheFirstReadFails) {
  ClientWorld world;
  world.Install();
  world.GoOnline();
  world.Initialise();
  EXPECT_EQ(world.Initialise("Bar", "de_DE"), kInitMissingConfig);
  EXPECT_EQ(world.state().downloaded_config, "/reader.VELMO.1/Local Store/");
  EXPECT_TRUE(world.state().is_online);
  EXPECT_EQ(world.state().product_id, "Bar");
  EXPECT_EQ(world.state().locale, "de_DE");
}

TEST(Version, IsOneFiveNought) {
  EXPECT_EQ(GetVelmoHelpClientVersion(), 0x10500U);
  EXPECT_EQ(GetVelmoHelpClientVersion(), 66816U);
}

}  // namespace
}  // namespace velmohelp
