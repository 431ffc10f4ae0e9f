// The complete example of docs/content.md, word for word: it must do what the
// document promises.
#include <gtest/gtest.h>
#include <velmohelp/resolve.h>
#include <velmohelp/velmohelp.h>

#include "exports/state.h"
#include "platform/scripted/scripted_machine.h"
#include "tests/support/sentence.h"
#include "tests/support/this_machine.h"

namespace velmohelp {
namespace {

constexpr char kBasics[] = EXAMPLE_DOWNLOADED "/Sketch/en_US/Basics";
constexpr char kBasicsOnline[] = "https://help.example.com/Sketch/en_US/Basics";
constexpr char kImporting[] = "https://help.example.com/importing.html";

struct Lookup {
  const char* sentence;
  const char* page_id;
  bool online;
  bool found;
  std::string target;
};

class ContentExample : public ::testing::TestWithParam<Lookup> {
 protected:
  ContentExample() {
    machine_.SetResourcesDirectory(EXAMPLE_WORLD "/resources");
    machine_.SetPreferencesFolder(EXAMPLE_WORLD "/config");
    machine_.AddFile(std::string(kBasics) + "/helpmap.txt");
    machine_.AddText(kImporting);
  }

 private:
  ScriptedMachine machine_;
  const testing::OnMachine on_machine_{machine_};
};

TEST_P(ContentExample, FindsWhatTheDocumentPromises) {
  const Lookup& lookup = GetParam();
  ASSERT_EQ(InitializeVelmoHelpClient("Sketch", "en_US", 0), kInitSuccess);
  ASSERT_EQ(sHelpPathCount, 3);
  sIsOnline = lookup.online;
  std::string id = lookup.page_id;
  NormalizePageID(id);
  std::string target;
  EXPECT_EQ(ValidateID(id, lookup.online, target) == 0, lookup.found);
  EXPECT_EQ(target, lookup.target);
}

INSTANTIATE_TEST_SUITE_P(
    Docs, ContentExample,
    ::testing::Values(
        Lookup{"a page offline", "drawing-lines", false, true,
               std::string(kBasics) + "/lines.html"},
        Lookup{"a page online", "drawing-lines", true, true,
               std::string(kBasicsOnline) + "/lines.html"},
        Lookup{"an anchor offline", "drawing-curves", false, true,
               std::string(kBasics) + "/lines.html?nameAnchor=curves"},
        Lookup{"an anchor online", "drawing-curves", true, true,
               std::string(kBasicsOnline) + "/lines.html#curves"},
        Lookup{"a mapped URL online", "importing", true, true, kImporting},
        Lookup{"the home page offline", "VX_HOME", false, true,
               std::string(kBasics) + "/index.html"},
        Lookup{"the home page online", "VX_HOME", true, true,
               std::string(kBasicsOnline) + "/index.html"},
        Lookup{"a mapped URL is skipped offline", "importing", false, false,
               "importing.html"},
        Lookup{"a page that no folder has", "other", false, false,
               "other.html"}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
