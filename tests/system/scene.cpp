#include "tests/system/scene.h"

#include <gmock/gmock.h>

#include <ostream>
#include <sstream>

#ifdef VELMO_TEST_TOOL
#include "tests/system/json_schema.h"

namespace velmohelp::testing {
namespace {

void ExpectText(const Scene& scene, const HelpWorld& world,
                const ToolProcess& run) {
  EXPECT_EQ(run.status, scene.status) << run.err;
  const Words lines = FirstThree(run.out);
  ASSERT_EQ(lines.size(), 3U) << run.out << run.err;
  for (const std::string& text : scene.why) {
    EXPECT_THAT(lines[1], ::testing::HasSubstr(world.Expanded(text)));
  }
  EXPECT_TRUE(lines[1].starts_with("why: "));
  EXPECT_TRUE(lines[2].starts_with("do: ")) << lines[2];
}

void ExpectJson(const Scene& scene, const ToolProcess& run) {
  static const auto schema = DocumentedSchema("explain");
  ASSERT_TRUE(schema.is_object());
  const auto json = nlohmann::json::parse(run.out, nullptr, false);
  ASSERT_TRUE(json.is_object()) << run.out << run.err;
  EXPECT_THAT(SchemaErrors(json, schema), ::testing::IsEmpty());
  EXPECT_EQ(json["cause"]["name"], scene.cause);
}

}  // namespace

void PrintTo(const Scene& scene, std::ostream* out) { *out << scene.sentence; }

Words FirstThree(const std::string& text) {
  Words lines;
  std::istringstream stream(text);
  for (std::string line; lines.size() < 3 && std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

void ExpectCause(const Scene& scene, const HelpWorld& world,
                 const std::function<ToolProcess(const Words& options)>& run) {
  ExpectText(scene, world, run({}));
  ExpectJson(scene, run({"--json"}));
}

}  // namespace velmohelp::testing
#endif
