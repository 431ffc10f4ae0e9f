// The names that <velmohelp/result_name.h> gives to the result codes.
#include <gtest/gtest.h>
#include <velmohelp/result_name.h>

#include <vector>

#include "exports/result_codes.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using NameOf = const char* (*)(std::uint32_t);

/// names: those of the numbers from 0 on; "unknown" where a table has a gap.
struct Table {
  std::string sentence;
  NameOf name_of;
  std::vector<std::string> names;
};

void PrintTo(const Table& table, std::ostream* out) { *out << table.sentence; }

class ResultName : public ::testing::TestWithParam<Table> {};

TEST_P(ResultName, IsThatOfTheNumber) {
  const Table& table = GetParam();
  std::uint32_t number = 0;
  for (const std::string& name : table.names) {
    EXPECT_EQ(table.name_of(number), name) << number;
    ++number;
  }
}

TEST_P(ResultName, IsUnknownForANumberThatIsNotInTheTable) {
  const Table& table = GetParam();
  const auto next = static_cast<std::uint32_t>(table.names.size());
  for (const std::uint32_t number : {next, next + 1, 0xFFFFFFFFU}) {
    EXPECT_STREQ(table.name_of(number), "unknown") << number;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, ResultName,
    ::testing::Values(
        Table{"an initialisation",
              VelmoHelpInitResultName,
              {"success", "invalidArgument", "missingHelpMap", "invalidHelpMap",
               "missingOnlineUrlPrefix", "invalidOnlineUrlPrefix",
               "missingConfig", "invalidConfig"}},
        Table{"a page display",
              VelmoHelpDisplayResultName,
              {"success", "helpAppLaunchFailure", "browserLaunchFailure",
               "invalidArgument", "missingConfig", "invalidConfig",
               "invalidInitialization", "pageidDoesNotExist",
               "invalidOnlineUrlPrefix", "notAllowedOnline", "notOnline",
               "unexpectedResult"}},
        Table{"an opened URL",
              VelmoHelpOpenUrlResultName,
              {"success", "browserLaunchFailure", "helpAppLaunchFailure",
               "invalidArgument", "missingConfig", "invalidConfig",
               "invalidInitialization", "unexpectedResult"}},
        Table{"a search",
              VelmoHelpSearchResultName,
              {"success", "launchFailure", "unknown", "invalidArgument",
               "missingConfig", "invalidConfig", "noLocalPage", "noOnlinePage",
               "noConfigName"}},
        Table{"the online status",
              VelmoHelpOnlineStatusName,
              {"online", "offline", "notInitialized"}}),
    SentenceOf());

/// Scripts and C programs must not print different names for one number.
template <std::size_t kRows>
void ExpectNamesOf(const ResultCodeTable<kRows>& table, NameOf name_of) {
  for (const LxNamedValue& row : table.values) {
    if (row.name == nullptr) return;
    EXPECT_STREQ(name_of(static_cast<std::uint32_t>(row.value)), row.name);
  }
}

TEST(ResultNameInScripts, IsTheSame) {
  ExpectNamesOf(kInitReturnCode, VelmoHelpInitResultName);
  ExpectNamesOf(kDisplayPageReturnCode, VelmoHelpDisplayResultName);
}

}  // namespace
}  // namespace velmohelp::testing
