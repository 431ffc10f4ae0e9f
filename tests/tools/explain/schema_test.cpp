// The JSON Schemas of docs/schema against the document.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "tests/support/temporary_directory.h"

namespace velmohelp::tool {
namespace {

using Json = nlohmann::json;
using Names = std::set<std::string>;

constexpr char kDocument[] = VELMO_SOURCE_DIR "/docs/tool.md";

Json Schema(const std::string& name) {
  std::string file = VELMO_SOURCE_DIR "/docs/schema/";
  return Json::parse(testing::FileText(file.append(name).append(".json")));
}

/// The members that a schema names, at every depth.
void AddMembers(const Json& schema, Names& names) {
  if (!schema.is_structured()) return;
  for (const auto& [key, part] : schema.items()) {
    if (key == "properties") {
      for (const auto& [name, unused] : part.items()) names.insert(name);
    }
    AddMembers(part, names);
  }
}

TEST(Schemas, HaveTheMembersOfTheDocument) {
  const std::string document = testing::FileText(kDocument);
  for (const char* name : {"explain", "status"}) {
    Names members;
    AddMembers(Schema(name), members);
    EXPECT_GT(members.size(), 4U) << name;
    for (const std::string& member : members) {
      EXPECT_THAT(document, ::testing::HasSubstr("`" + member + "`")) << name;
    }
  }
}

/// The names in the first column of the table of causes.
Names CausesOfTheDocument() {
  const std::string document = testing::FileText(kDocument);
  const std::size_t begin = document.find("### Causes");
  std::istringstream lines(
      document.substr(begin, document.find("\n## ", begin) - begin));
  Names names;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("| `")) continue;
    std::istringstream words(line.substr(2, line.find(" | ") - 2));
    for (std::string word; words >> word;) {
      std::erase_if(word, [](char c) { return c == '`' || c == ','; });
      names.insert(word);
    }
  }
  return names;
}

TEST(Schemas, HaveTheCausesOfTheDocument) {
  const Json cause = Schema("explain")["properties"]["cause"];
  EXPECT_EQ(cause["properties"]["name"]["enum"].get<Names>(),
            CausesOfTheDocument());
}

}  // namespace
}  // namespace velmohelp::tool
