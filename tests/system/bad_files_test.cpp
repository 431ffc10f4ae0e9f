// Broken configurations, preferences and help maps.
#include <linux/securebits.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/system/routes.h"

namespace velmohelp::testing {
namespace {

using std::string_literals::operator""s;

/// The longest file that is read, except for help maps.
constexpr std::size_t kLongest = 16U << 20U;
/// For help maps, which may be longer.
constexpr std::size_t kHuge = 100U << 20U;

/// The beginning of a program: without keys, and not text.
const std::string kBinary = "\x7F\x45LF\x02\x01\x01\x00\xFF\xFE\xC3\x28\t\r"s;

Change Directory(const std::string& name) {
  return [=](HelpWorld& world) {
    world.Remove(name);
    std::filesystem::create_directories(world.Expanded(name));
  };
}

Change Pipe(const std::string& name) {
  return [=](HelpWorld& world) {
    world.Write(name, "");
    world.Remove(name);
    mkfifo(world.Expanded(name).c_str(), S_IRWXU);
  };
}

/// Root reads every file unless it gives that up.
Change Unreadable(const std::string& name) {
  return [=](HelpWorld& world) {
    world.Write(name, "");
    chmod(world.Expanded(name).c_str(), 0);
    world.start().preparation = [] {
      return geteuid() != 0 || prctl(PR_SET_SECUREBITS, SECBIT_NOROOT) == 0;
    };
  };
}

/// This many bytes, with a text at their end.
std::string Ending(const std::string& text, std::size_t size) {
  return std::string(size - text.size(), 'x') + text;
}

/// A file of this many bytes that begins or ends with a text.
Change FileThatBegins(const std::string& name, const std::string& text,
                      std::size_t size) {
  return [=](HelpWorld& world) {
    world.Write(name, text + std::string(size - text.size(), 'x'));
  };
}
Change FileThatEnds(const std::string& name, const std::string& text,
                    std::size_t size) {
  return [=](HelpWorld& world) { world.Write(name, Ending(text, size)); };
}

struct BadConfig {
  const char* sentence;
  Change change;
  const char* code;
};

void PrintTo(const BadConfig& row, std::ostream* out) { *out << row.sentence; }

class ABadConfiguration : public ::testing::TestWithParam<BadConfig> {};

TEST_P(ABadConfiguration, GivesACodeAndIsForgotten) {
  HelpWorld world;
  GetParam().change(world);
  EXPECT_EQ(world.Ask({"initialise", "Foo", "en_US"}), GetParam().code);
  EXPECT_EQ(world.Ask(Search("x")), GetParam().code == "6"s ? "4" : "5");
  world.Remove("{config}");
  world.Configure();
  EXPECT_TRUE(world.Initialise());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ABadConfiguration,
    ::testing::Values(
        BadConfig{"a missing file", Without("{config}"), "6"},
        BadConfig{"a directory", Directory("{config}"), "6"},
        BadConfig{"a pipe", Pipe("{config}"), "6"},
        BadConfig{"an unreadable file", Unreadable("{config}"), "6"},
        BadConfig{"an empty file", File("{config}", ""), "7"},
        BadConfig{"a binary file", File("{config}", kBinary), "7"},
        BadConfig{"a file full of zero bytes",
                  File("{config}", std::string(1U << 20U, '\0')), "7"},
        BadConfig{"a file of the longest length without keys",
                  FileThatEnds("{config}", "", kLongest), "7"},
        BadConfig{"a file that is one byte too long",
                  FileThatEnds("{config}", "", kLongest + 1), "6"},
        BadConfig{"no closing quote",
                  File("{config}", "<help path=\"Cfg id=en_US_Foo"), "7"},
        BadConfig{"no closing quote after the path",
                  File("{config}", "<help path=\"Cfg\" id=\"en_US_Foo"), "7"}),
    SentenceOf());

/// The first hundred folders are looked at, and no further one.
TEST(AConfigurationWithTooManyFolders, HasTheFirstHundred) {
  HelpWorld world;
  const ContentFolder own = world.config().folders.front();
  world.config().folders.assign(150, ContentFolder{"none", "yes"});
  world.config().folders[99] = own;
  world.Configure();
  world.Write("{installed}/intro.html", "<p>");
  ASSERT_TRUE(world.Initialise());
  EXPECT_EQ(world.Ask(Display("intro")), "0");
  EXPECT_EQ(world.Started(),
            world.Expanded(Viewer("HELP", "\"{url:installed}/intro.html\"")));
  std::swap(world.config().folders[99], world.config().folders[100]);
  world.Configure();
  EXPECT_EQ(world.Ask(Display("intro")), "0");
  EXPECT_EQ(world.Started(), world.Expanded(Viewer("HELP", "intro")));
}

TEST(ALongConfiguration, IsReadToItsEndUnlessItIsTooLong) {
  HelpWorld world;
  world.Write("{config}", Ending(world.config().Text(), kLongest));
  EXPECT_TRUE(world.Initialise());
  world.Write("{config}", Ending(world.config().Text(), kLongest + 1));
  EXPECT_EQ(world.Ask(Display("intro")), "4");
}

constexpr char kPreferences[] = "{store}/klh-pref.xml";
constexpr char kAccessible[] = "accessibleMode=\"TRUE\"";
const Change kPage = File("{installed}/intro.html");
const Words kInViewer = Viewer("HELP", "\"{url:installed}/intro.html\"");
const Words kInBrowser = Browser("{url:installed}/intro.html");

Route WithPreferences(const char* sentence, const Change& change,
                      const Words& started = kInViewer) {
  return {sentence, {change, kPage}, Display("intro"), "0", started};
}

class BadViewerPreferences : public ::testing::TestWithParam<Route> {};

TEST_P(BadViewerPreferences, SayNothing) { Follow(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rows, BadViewerPreferences,
    ::testing::Values(
        WithPreferences("a directory", Directory(kPreferences)),
        WithPreferences("a pipe", Pipe(kPreferences)),
        WithPreferences("an unreadable file", Unreadable(kPreferences)),
        WithPreferences("an empty file", File(kPreferences, "")),
        WithPreferences("a binary file", File(kPreferences, kBinary)),
        WithPreferences("a file full of zero bytes",
                        File(kPreferences, std::string(4096, '\0'))),
        WithPreferences("no closing quote",
                        File(kPreferences, "accessibleMode=\"TRUE")),
        WithPreferences("a file that is one byte too long",
                        FileThatEnds(kPreferences, kAccessible, kLongest + 1))),
    SentenceOf());

TEST(LongViewerPreferences, AreReadToTheirEnd) {
  Follow(WithPreferences("", FileThatEnds(kPreferences, kAccessible, kLongest),
                         kInBrowser));
}

constexpr char kMap[] = "{installed}/helpmap.txt";

Route WithMap(const char* sentence, const Change& change,
              const std::string& code, const Words& started) {
  return {sentence, {change, kPage}, Display("intro"), code, started};
}

class ABadHelpMap : public ::testing::TestWithParam<Route> {};

TEST_P(ABadHelpMap, GivesACode) { Follow(GetParam()); }

INSTANTIATE_TEST_SUITE_P(
    Rows, ABadHelpMap,
    ::testing::Values(
        WithMap("a missing file", Without(kMap), "0", kInViewer),
        WithMap("a directory", Directory(kMap), "11", Nothing()),
        WithMap("a pipe", Pipe(kMap), "0", Viewer("HELP", "intro")),
        WithMap("an unreadable file", Unreadable(kMap), "0",
                Viewer("HELP", "intro")),
        WithMap("an empty file", File(kMap, ""), "0", Viewer("HELP", "intro")),
        WithMap("a binary file", File(kMap, kBinary), "0",
                Viewer("HELP", "intro")),
        WithMap("a file full of zero bytes",
                File(kMap, std::string(1U << 20U, '\0')), "0",
                Viewer("HELP", "intro")),
        WithMap("100 MB before the entries",
                FileThatEnds(kMap, "\nintro\tintro.html\nVX_HOME\tx.html\n",
                             kHuge),
                "0", kInViewer)),
    SentenceOf());

/// Online help is on unless a file that can be read switches it off.
constexpr char kOff[] = "[Preferences]\nVelmoOnlineDefault=0\n";
constexpr char kUserFile[] = "{settings}/velmo/com.velmo.VelmoOnlineHelp.conf";

Route WithUserFile(const char* sentence, const Change& change) {
  return {sentence, {change}, {"status"}, "0", Nothing()};
}

class ABadUserPreference : public ::testing::TestWithParam<Route> {};

TEST_P(ABadUserPreference, LeavesOnlineHelpOn) {
  HelpWorld world;
  Apply(GetParam().changes, world);
  ASSERT_TRUE(world.Initialise());
  EXPECT_EQ(world.Ask(GetParam().request), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ABadUserPreference,
    ::testing::Values(
        WithUserFile("a missing file", Without(kUserFile)),
        WithUserFile("a directory", Directory(kUserFile)),
        WithUserFile("a pipe", Pipe(kUserFile)),
        WithUserFile("an unreadable file", Unreadable(kUserFile)),
        WithUserFile("an empty file", File(kUserFile, "")),
        WithUserFile("a binary file", File(kUserFile, kBinary)),
        WithUserFile("a file full of zero bytes",
                     File(kUserFile, std::string(4096, '\0'))),
        WithUserFile("a value that is not valid UTF-8",
                     File(kUserFile,
                          "[Preferences]\nVelmoOnlineDefault=\xFF\n")),
        WithUserFile("a file that is one byte too long",
                     FileThatBegins(kUserFile, kOff, kLongest + 1))),
    SentenceOf());

TEST(AUserPreference, SwitchesOnlineHelpOff) {
  HelpWorld world;
  ASSERT_TRUE(world.Initialise());
  EXPECT_EQ(world.Ask({"status"}), "1");
}

TEST(ALongUserPreference, SwitchesOnlineHelpOff) {
  HelpWorld world;
  FileThatBegins(kUserFile, kOff, kLongest)(world);
  ASSERT_TRUE(world.Initialise());
  EXPECT_EQ(world.Ask({"status"}), "1");
}

}  // namespace
}  // namespace velmohelp::testing
