// The tables of real help, as Debian has them: imported, checked, and asked of
// the client id by id. A table whose package is not installed is skipped.
#include <gtest/gtest.h>

#include <algorithm>

#include "resolve/help_map/help_map.h"
#include "resolve/page_id.h"
#include "tests/support/content_folders.h"
#include "tests/support/sentence.h"
#include "tests/tools/run_tool.h"
#include "tools/check/check_map.h"
#include "tools/import/formats.h"

namespace velmohelp {
namespace {

struct RealTable {
  std::string sentence;
  std::string format;
  std::string file;
  std::size_t fewest_rows;
};

void PrintTo(const RealTable& row, std::ostream* out) { *out << row.sentence; }

class Real : public testing::ContentFolders,
             public ::testing::WithParamInterface<RealTable> {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(GetParam().file)) GTEST_SKIP();
    AddRow("a");
    const auto run =
        testing::RunTool({"import", GetParam().format, GetParam().file, "-o",
                          Downloaded("a"), "--home", "home.html"});
    ASSERT_EQ(run.status, 0) << run.err;
    machine.AddFile(MapPath());
  }

  std::string MapPath() const { return Downloaded("a") + "/helpmap.txt"; }
};

/// The pages that the client finds for ids of one key: of all of them only the
/// first counts.
TEST_P(Real, IdsAreFoundByTheClient) {
  const tool::IdTable table =
      tool::ReadIdTable(GetParam().format, GetParam().file);
  EXPECT_GE(table.rows.size(), GetParam().fewest_rows);
  HelpMap map;
  ASSERT_TRUE(LoadHelpMap(MapPath(), map));
  HelpMap expected = {{"VX_HOME", "home.html"}};
  for (const tool::IdRow& row : table.rows) {
    std::string id = row.id;
    NormalizePageId(id);
    const std::string key(HelpMapKey(id));
    if (!key.empty()) expected.emplace(key, row.target);
  }
  EXPECT_EQ(map, expected);
}

/// The same through the client's own search, for each fiftieth id: it reads the
/// map anew for each.
TEST_P(Real, IdsLeadToTheirPages) {
  const tool::IdTable table =
      tool::ReadIdTable(GetParam().format, GetParam().file);
  for (std::size_t i = 0; i < table.rows.size(); i += 50) {
    std::string id = table.rows[i].id;
    NormalizePageId(id);
    EXPECT_EQ(Locally(id).code, 0) << id;
  }
}

TEST_P(Real, MapHasNoFindings) {
  const tool::MapFile map(MapPath());
  tool::Findings findings;
  tool::CheckMap(map, findings);
  for (const tool::Finding& finding : findings) ADD_FAILURE() << finding.text;
}

INSTANTIATE_TEST_SUITE_P(
    , Real,
    ::testing::Values(
        RealTable{"an office suite's", "hid2file",
                  "/usr/share/libreoffice/help/hid2file.js", 8000},
        RealTable{"GIMP's", "gimp", "/usr/share/gimp/2.0/help/en/gimp-help.xml",
                  1000},
        RealTable{"Qt Core's", "qch", "/usr/share/qt5/doc/qtcore.qch", 5000},
        RealTable{"Qt Widgets'", "qch", "/usr/share/qt5/doc/qtwidgets.qch",
                  5000}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
