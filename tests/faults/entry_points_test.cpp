// Memory runs out at each allocation of each function with C linkage, one run
// per allocation: no exception reaches the host, the code is that of the table,
// and the next call works. Under the sanitizers nothing leaks either.
#include <gtest/gtest.h>
#include <velmohelp/embed.h>
#include <velmohelp/unicode.h>
#include <velmohelp/velmohelp.h>

#include <cstring>

#include "tests/faults/memory_runs_out.h"
#include "tests/faults/script_engine.h"

namespace velmohelp::testing {
namespace {

long Initialise() { return InitializeVelmoHelpClient("Foo", "en_US", 0); }
long InitialiseCleaned() {
  return InitializeVelmoHelpClient("no/such/product\\at all", "en_US", 1);
}
long AskOnlineStatus() { return GetVelmoHelpClientOnlineStatus(); }
long AskVersion() { return GetVelmoHelpClientVersion(); }
long Display() { return DisplayVelmoHelpClientPage("page"); }
long DisplayUnknown() { return DisplayVelmoHelpClientPage("unknown page"); }
long DisplayUrl() { return DisplayVelmoHelpClientPage("http://x/a b"); }
long Open() { return OpenURL("http://x/a b"); }
long SearchText() { return ::SearchHelp("Foo", "en_US", "some words"); }
long SearchByNames() { return Search("a", "b", "en_US", "some words"); }

long FindPage() {
  std::uint32_t kind = 0;
  char* url = nullptr;
  const long code = velmohelp_find_display("page", &kind, &url);
  velmohelp_free(url);
  return code;
}
long FindUrl() {
  std::uint32_t kind = 0;
  char* url = nullptr;
  const long code = velmohelp_find_url("http://x/a b", &kind, &url);
  velmohelp_free(url);
  return code;
}
long FindSearch() {
  return velmohelp_find_search("Foo", "en_US", "words", nullptr, nullptr);
}
long ChooseLocale() {
  char locale[6] = "";
  return velmohelp_choose_locale("Foo", "en_US:de", locale);
}
long SetHost() {
  return velmohelp_set_host("/a/path/that/is/longer/than/what/fits/in/place");
}
long SetToken() {
  return velmohelp_set_activation_token("a token that does not fit in place");
}
long StartDisplay() { return velmohelp_start_display("page"); }
long StartUrl() { return velmohelp_start_url("http://x/"); }
long StartSearch() { return velmohelp_start_search("Foo", "en_US", "a"); }

/// The scripted machine has no processes: a start fails there in any case.
const EntryPoint kEmbedding[] = {
    {"velmohelp_find_display in the viewer", {11}, FindPage, WithViewer},
    {"velmohelp_find_display in the browser", {11}, FindPage, Initialised},
    {"velmohelp_find_url", {7}, FindUrl, Initialised},
    {"velmohelp_find_search", {1}, FindSearch, WithViewer},
    {"velmohelp_choose_locale", {2}, ChooseLocale},
    {"velmohelp_set_host", {1}, SetHost},
    {"velmohelp_set_activation_token", {1}, SetToken},
    {"velmohelp_start_display", {-1}, StartDisplay, Initialised, -1},
    {"velmohelp_start_url", {-1}, StartUrl, Initialised, -1},
    {"velmohelp_start_search", {-1}, StartSearch, Initialised, -1},
};

const EntryPoint kClient[] = {
    {"InitializeVelmoHelpClient", {6}, Initialise},
    {"InitializeVelmoHelpClient cleaning", {6}, InitialiseCleaned, AtLoad, 6},
    {"GetVelmoHelpClientVersion", {}, AskVersion, AtLoad, 0x10500},
    {"GetVelmoHelpClientOnlineStatus", {1}, AskOnlineStatus, Online},
    {"DisplayVelmoHelpClientPage in the viewer", {11}, Display, WithViewer},
    {"DisplayVelmoHelpClientPage in the browser", {11}, Display, Initialised},
    {"DisplayVelmoHelpClientPage online", {11}, Display, Online},
    {"DisplayVelmoHelpClientPage unknown", {11}, DisplayUnknown, WithViewer},
    {"DisplayVelmoHelpClientPage of a URL", {11}, DisplayUrl, Initialised},
    {"OpenURL in the viewer", {7}, Open, WithViewer},
    {"OpenURL in the browser", {7}, Open, Initialised},
    {"SearchHelp in the viewer", {1}, SearchText, WithViewer},
    {"SearchHelp in the browser", {1}, SearchText, Initialised},
    {"SearchHelp online", {1}, SearchText, Online},
    // The search goes on from what the initialisation has returned.
    {"SearchHelp that initialises", {1, 4}, SearchText, AtLoad},
    {"Search", {1}, SearchByNames, WithViewer},
};

/// -2 when it reports a failure and has written all the same.
long Encode() {
  static char room[64];
  std::memset(room, '#', sizeof room);
  const long code = VelmoHelpEncodeURIComponent(
      "http://x/a text that needs memory", room, sizeof room);
  return code == -1 && room[0] != '#' ? -2 : code;
}

template <auto convert, typename Source, typename Target>
long Convert() {
  static constexpr Source kUnits[300] = {'a'};
  static Target target[1200];
  const Source* source = kUnits;
  Target* written = target;
  convert(&source, std::end(kUnits), &written, std::end(target), 0);
  return written - target;
}

constexpr auto k8To16 = Convert<ITEMConvertUTF8toUTF16, ITEMUTF8, ITEMUTF16>;
constexpr auto k8To32 = Convert<ITEMConvertUTF8toUTF32, ITEMUTF8, ITEMUTF32>;
constexpr auto k16To8 = Convert<ITEMConvertUTF16toUTF8, ITEMUTF16, ITEMUTF8>;
constexpr auto k16To32 = Convert<ITEMConvertUTF16toUTF32, ITEMUTF16, ITEMUTF32>;
constexpr auto k32To8 = Convert<ITEMConvertUTF32toUTF8, ITEMUTF32, ITEMUTF8>;
constexpr auto k32To16 = Convert<ITEMConvertUTF32toUTF16, ITEMUTF32, ITEMUTF16>;

template <bool (*is_legal)(const ITEMUTF8*, const ITEMUTF8*)>
long Legal() {
  static constexpr ITEMUTF8 kBytes[] = {0xC3, 0xA4};
  return is_legal(kBytes, std::end(kBytes));
}

const EntryPoint kTexts[] = {
    {"VelmoHelpEncodeURIComponent", {-1}, Encode, AtLoad, 41},
    {"ITEMConvertUTF8toUTF16", {}, k8To16, AtLoad, 300},
    {"ITEMConvertUTF8toUTF32", {}, k8To32, AtLoad, 300},
    {"ITEMConvertUTF16toUTF8", {}, k16To8, AtLoad, 300},
    {"ITEMConvertUTF16toUTF32", {}, k16To32, AtLoad, 300},
    {"ITEMConvertUTF32toUTF8", {}, k32To8, AtLoad, 300},
    {"ITEMConvertUTF32toUTF16", {}, k32To16, AtLoad, 300},
    {"ITEMisLegalUTF8Sequence", {}, Legal<ITEMisLegalUTF8Sequence>, AtLoad, 1},
    {"ITEMisLegalUTF8String", {}, Legal<ITEMisLegalUTF8String>, AtLoad, 1},
};

long Load() { return private_load_LxHelp(nullptr); }
long LoadWorker() { return private_load_LxHelpWorker(nullptr); }
long DisplayFromScript() { return CallFromScript(private_load_LxHelp, "page"); }
long InitialiseFromScript() {
  return CallFromScript(private_load_LxHelpWorker, "Foo", "en_US");
}

const EntryPoint kScript[] = {
    {"private_load_LxHelp", {}, Load},
    {"private_load_LxHelpWorker", {}, LoadWorker},
    {"displayClientPage", {11}, DisplayFromScript, WithViewer},
    {"initializeClient", {6}, InitialiseFromScript},
};

INSTANTIATE_TEST_SUITE_P(Client, MemoryRunsOut, ::testing::ValuesIn(kClient),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Embedding, MemoryRunsOut,
                         ::testing::ValuesIn(kEmbedding), SentenceOf());
INSTANTIATE_TEST_SUITE_P(Texts, MemoryRunsOut, ::testing::ValuesIn(kTexts),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Script, MemoryRunsOut, ::testing::ValuesIn(kScript),
                         SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
