#include "tools/explain/confinement.h"

#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp::tool {
namespace {

struct Reading {
  std::string sentence;
  BrowserEntry entry;
  std::string page;
  bool readable;
};

void PrintTo(const Reading& row, std::ostream* out) { *out << row.sentence; }

class AConfinedBrowser : public ::testing::TestWithParam<Reading> {};

TEST_P(AConfinedBrowser, Reads) {
  const Reading& row = GetParam();
  EXPECT_EQ(WhyUnreadable(row.entry, row.page, "/home/ann").empty(),
            row.readable);
}

const BrowserEntry kOrdinary = {.name = "Bird"};
const BrowserEntry kSnap = {.name = "Bird", .snap = "bird"};
const BrowserEntry kFlatpak = {.name = "Bird", .flatpak = "org.bird.Bird"};

INSTANTIATE_TEST_SUITE_P(
    , AConfinedBrowser,
    ::testing::Values(
        Reading{"an ordinary one reads everything", kOrdinary, "/opt/a", true},
        Reading{"a Snap reads the home", kSnap, "/home/ann/a/b", true},
        Reading{"a Snap reads no hidden folder", kSnap, "/home/ann/.config/a",
                false},
        Reading{"a Snap reads hidden folders further down", kSnap,
                "/home/ann/a/.b/c", true},
        Reading{"a Snap reads no other home", kSnap, "/home/anna/a", false},
        Reading{"a Snap reads removable media", kSnap, "/media/ann/a", true},
        Reading{"a Snap reads nothing else", kSnap, "/Library/a", false},
        Reading{"a Flatpak reads nothing of the home", kFlatpak, "/home/ann/a",
                false}),
    testing::SentenceOf());

TEST(ABrowsersCommand, TellsWhatItIsPackedAs) {
  BrowserEntry snap;
  AddFromCommand({"/usr/bin/env", "A=b", "/snap/bin/bird", "https://x"}, snap);
  EXPECT_EQ(snap.snap, "bird");
  BrowserEntry flatpak;
  AddFromCommand({"/usr/bin/flatpak", "run", "--arch=x.y", "org.bird.Bird"},
                 flatpak);
  EXPECT_EQ(flatpak.flatpak, "org.bird.Bird");
  BrowserEntry ordinary;
  AddFromCommand({"/usr/bin/bird", "https://snap/bin/x"}, ordinary);
  EXPECT_EQ(ConfinementOf(ordinary), "");
}

TEST(ASandboxsFile, NamesItsApplication) {
  EXPECT_EQ(SandboxedApplication("[Application]\nname=org.a.B\n"), "org.a.B");
  EXPECT_EQ(SandboxedApplication("[Instance]\nname=org.a.B\n"), "");
  EXPECT_EQ(SandboxedApplication(""), "");
}

}  // namespace
}  // namespace velmohelp::tool
