// <velmohelp/embed.h>: what would be shown, and in which locale.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/embed.h>
#include <velmohelp/velmohelp.h>

#include "tests/support/exported_world.h"
#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using testing::ClientWorld;
using testing::Described;
using testing::ExportedWorld;
using ::testing::IsEmpty;
using testing::SetAsAtLoad;

struct Found {
  std::uint32_t code = 0;
  std::uint32_t kind = 0;
  std::string url = {};
  bool operator==(const Found&) const = default;
};

void PrintTo(const Found& found, std::ostream* out) {
  *out << found.code << " " << found.kind << " " << found.url;
}

/// Asks with an initial value that must be replaced.
template <typename Function, typename... Arguments>
Found Ask(Function find, Arguments... arguments) {
  Found found{.kind = 9};
  char unset[] = "unset";
  char* url = unset;
  found.code = find(arguments..., &found.kind, &url);
  if (url == nullptr) return found;
  found.url = url;
  velmohelp_free(url);
  return found;
}

Found FindPage() { return Ask(&velmohelp_find_display, "page"); }
Found FindUrlAsPage() { return Ask(&velmohelp_find_display, "http://x/a b"); }
Found FindNoPage() {
  return Ask(&velmohelp_find_display, static_cast<const char*>(nullptr));
}
Found FindUrl() { return Ask(&velmohelp_find_url, "http://x/a b"); }
Found FindNoUrl() { return Ask(&velmohelp_find_url, "page"); }
Found FindSearch() {
  return Ask(&velmohelp_find_search, "Foo", "en_US", "a b");
}

std::uint32_t Display() { return DisplayVelmoHelpClientPage("page"); }
std::uint32_t DisplayUrl() {
  return DisplayVelmoHelpClientPage("http://x/a b");
}
std::uint32_t DisplayNothing() { return DisplayVelmoHelpClientPage(nullptr); }
std::uint32_t Open() { return OpenURL("http://x/a b"); }
std::uint32_t OpenNoUrl() { return OpenURL("page"); }
std::uint32_t SearchText() { return ::SearchHelp("Foo", "en_US", "a b"); }

void Viewer(ClientWorld& world) { world.InstallWorkingViewer(); }
void Browser(ClientWorld& world) { world.StartBrowsers(); }
void Nothing(ClientWorld&) {}

struct FindRow {
  const char* sentence;
  void (*given)(ClientWorld&);
  Found (*find)();
  std::uint32_t (*request)();
  Found found;
  bool is_initialised = true;
};

void PrintTo(const FindRow& row, std::ostream* out) { *out << row.sentence; }

class Find : public ::testing::TestWithParam<FindRow> {
 protected:
  void SetUp() override {
    SetAsAtLoad(ThisState());
    world_.Install();
    world_.AddFile(world_.DownloadedManual() + "/search.html");
    GetParam().given(world_);
    if (GetParam().is_initialised) world_.Initialise();
  }

  ExportedWorld world_;
};

TEST_P(Find, SaysWhatTheRequestThenDoesAndChangesNothing) {
  const auto before = Described(ThisState());
  EXPECT_EQ(GetParam().find(), GetParam().found);
  EXPECT_EQ(Described(ThisState()), before);
  EXPECT_THAT(world_.Shown(), IsEmpty());
  EXPECT_THAT(world_.Questions(),
              ::testing::Not(::testing::Contains("PreferencesFolder create")));
  EXPECT_EQ(GetParam().request(), GetParam().found.code);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Find,
    ::testing::Values(
        FindRow{.sentence = "a page in the viewer",
                .given = Viewer,
                .find = FindPage,
                .request = Display,
                .found = {.code = 0, .kind = kTargetViewer, .url = ""}},
        FindRow{.sentence = "a URL in the viewer",
                .given = Viewer,
                .find = FindUrl,
                .request = Open,
                .found = {.kind = kTargetViewer, .url = "http://x/a b"}},
        FindRow{.sentence = "a URL in the browser",
                .given = Browser,
                .find = FindUrl,
                .request = Open,
                .found = {.kind = kTargetBrowser, .url = "http://x/a%20b"}},
        FindRow{.sentence = "a URL as a page id",
                .given = Browser,
                .find = FindUrlAsPage,
                .request = DisplayUrl,
                .found = {.kind = kTargetBrowser, .url = "http://x/a%20b"}},
        FindRow{.sentence = "a URL that nothing shows",
                .given = Nothing,
                .find = FindUrl,
                .request = Open,
                .found = {.code = kOpenUrlBrowserLaunchFailure}},
        FindRow{.sentence = "a text that is not a URL",
                .given = Viewer,
                .find = FindNoUrl,
                .request = OpenNoUrl,
                .found = {.code = kOpenUrlInvalidArgument}},
        FindRow{.sentence = "no page id",
                .given = Viewer,
                .find = FindNoPage,
                .request = DisplayNothing,
                .found = {.code = kDisplayInvalidArgument}},
        FindRow{.sentence = "a client that is not initialised",
                .given = Viewer,
                .find = FindPage,
                .request = Display,
                .found = {.code = kDisplayInvalidInitialization},
                .is_initialised = false},
        FindRow{.sentence = "a search in the viewer",
                .given = Viewer,
                .find = FindSearch,
                .request = SearchText,
                .found = {.kind = kTargetViewer}},
        FindRow{.sentence = "a search that would initialise the client",
                .given = Viewer,
                .find = FindSearch,
                .request = SearchText,
                .found = {.kind = kTargetViewer},
                .is_initialised = false}),
    testing::SentenceOf());

class OnExportedWorld : public ::testing::Test {
 protected:
  void SetUp() override { SetAsAtLoad(ThisState()); }
  ExportedWorld world_;
};

using FindAnswers = OnExportedWorld;

TEST_F(FindAnswers, AreOptional) {
  world_.Install();
  world_.StartBrowsers();
  world_.Initialise();
  EXPECT_EQ(velmohelp_find_url("http://x/", nullptr, nullptr), 0U);
  velmohelp_free(nullptr);
}

struct LocaleRow {
  const char* sentence;
  std::vector<const char*> installed;
  const char* preferred;
  const char* chosen;
};

void PrintTo(const LocaleRow& row, std::ostream* out) { *out << row.sentence; }

class ChosenLocale : public ::testing::TestWithParam<LocaleRow> {
 protected:
  void SetUp() override {
    SetAsAtLoad(ThisState());
    for (const char* locale : GetParam().installed) {
      world_.AddFile(
          world_.InstalledConfig(locale),
          testing::HelpConfig{.id = std::string(locale) + "_Foo"}.Text());
    }
  }
  ExportedWorld world_;
};

TEST_P(ChosenLocale, IsOneThatAnInitialisationAccepts) {
  const auto before = Described(ThisState());
  char locale[6] = "?????";
  const bool is_none = GetParam().chosen == nullptr;
  EXPECT_EQ(velmohelp_choose_locale("Foo", GetParam().preferred, locale),
            is_none ? 2U : 0U);
  EXPECT_STREQ(locale, is_none ? "?????" : GetParam().chosen);
  EXPECT_EQ(Described(ThisState()), before);
  EXPECT_THAT(
      world_.Questions(),
      ::testing::Not(::testing::Contains(::testing::StartsWith("HostReach"))));
  if (!is_none) {
    EXPECT_EQ(velmohelp_initialise("Foo", locale), 0U);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ChosenLocale,
    ::testing::Values(
        LocaleRow{
            "the same one", {"de_AT", "de_DE", "en_US"}, "de_DE:en", "de_DE"},
        LocaleRow{"another one of the same language",
                  {"de_DE", "en_US"},
                  "de_AT:en_US",
                  "de_DE"},
        LocaleRow{"a language alone", {"de_DE", "en_US"}, "en", "en_US"},
        LocaleRow{"the second entry when the first has no language here",
                  {"de_DE", "en_US"},
                  "fr_FR:en_GB:de",
                  "en_US"},
        LocaleRow{"with a character set and a modifier",
                  {"de_AT", "de_DE"},
                  "de_DE.UTF-8@euro",
                  "de_DE"},
        LocaleRow{"with a hyphen", {"de_AT", "de_DE"}, "de-DE", "de_DE"},
        LocaleRow{"the first by name for an unknown language",
                  {"fr_FR", "en_US"},
                  "ja_JP:C",
                  "en_US"},
        LocaleRow{"for an empty list", {"fr_FR", "en_US"}, "", "en_US"},
        LocaleRow{"for no list", {"fr_FR"}, nullptr, "fr_FR"},
        LocaleRow{"with empty entries", {"en_US", "fr_FR"}, "::fr", "fr_FR"},
        LocaleRow{"none is installed", {}, "en_US", nullptr},
        LocaleRow{"not one of another length",
                  {"en", "eng_US", "fr_FR"},
                  "en",
                  "fr_FR"}),
    testing::SentenceOf());

using LocaleChoice = OnExportedWorld;

/// Its folder is there, and its configuration is that of another locale.
TEST_F(LocaleChoice, PassesOverALocaleThatIsRefused) {
  world_.AddFile(world_.InstalledConfig("de_DE"),
                 testing::HelpConfig{.id = "de_AT_Foo"}.Text());
  world_.AddFile(world_.InstalledConfig("en_US"),
                 testing::HelpConfig{.id = "en_US_Foo"}.Text());
  char locale[6] = "";
  EXPECT_EQ(velmohelp_choose_locale("Foo", "de_DE:en_US", locale), 0U);
  EXPECT_STREQ(locale, "en_US");
}

TEST_F(LocaleChoice, NeedsAProductAndRoom) {
  char locale[6] = "";
  for (const char* bad : {static_cast<const char*>(nullptr), "", "  "}) {
    EXPECT_EQ(velmohelp_choose_locale(bad, "en_US", locale), 1U);
  }
  EXPECT_EQ(velmohelp_choose_locale("Foo", "en_US", nullptr), 1U);
}

using SettingTheHost = OnExportedWorld;

TEST_F(SettingTheHost, TakesAnAbsolutePath) {
  world_.machine().ForgetQuestions();
  EXPECT_EQ(velmohelp_set_host("/opt/app/bin/app"), 0U);
  EXPECT_EQ(velmohelp_set_host(nullptr), 0U);
  for (const char* bad : {"", "app", "./app", "~/app"}) {
    EXPECT_EQ(velmohelp_set_host(bad), 1U) << bad;
  }
  EXPECT_THAT(
      world_.Questions(),
      ::testing::ElementsAre("SetHost /opt/app/bin/app", "SetHost \"\""));
}

using PrefixedNames = OnExportedWorld;

TEST_F(PrefixedNames, AreTheSameFunctions) {
  world_.Install();
  world_.InstallWorkingViewer();
  EXPECT_EQ(velmohelp_display("page"), kDisplayInvalidInitialization);
  EXPECT_EQ(velmohelp_initialise("Foo", "en_US"), 0U);
  EXPECT_EQ(velmohelp_display(""), kDisplayInvalidArgument);
  EXPECT_EQ(velmohelp_open_url("http://x/"), 0U);
  EXPECT_EQ(velmohelp_search("Foo", "en_US", "a b"), 0U);
  EXPECT_EQ(velmohelp_online_status(), kOnlineStatusOffline);
  EXPECT_EQ(velmohelp_version(), 0x10500U);
  EXPECT_EQ(world_.Shown().size(), 2U);
}

}  // namespace
}  // namespace velmohelp
