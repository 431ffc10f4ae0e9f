#include "tests/faults/readers.h"

#include <gtest/gtest.h>
#include <velmohelp/config.h>
#include <velmohelp/resolve.h>

#include "platform/linux/open_file.h"
#include "platform/linux/preference_file.h"
#include "util/input_file.h"

namespace velmohelp::testing {

std::string Entry(const std::string& key) { return key + "\t=\"1\"\n"; }

std::string LongText() {
  std::string text = "[Preferences]\n" + Entry("VX_HOME") + Entry("first");
  while (text.size() < 300'000) text += "no entry\n";
  return text + Entry("last");
}

std::string FileIn(const TemporaryDirectory& folder) { return folder / "x"; }

Keys InConfiguration(const TemporaryDirectory& folder) {
  XMLParser parser;
  parser.ReadFileToBuffer(FileIn(folder));
  Keys keys = kAllKeys;
  std::erase_if(keys,
                [&](const auto& key) { return parser.GetKey(key) != "1"; });
  return keys;
}

Keys InHelpMap(const TemporaryDirectory& folder) {
  std::map<std::string, std::string> map;
  const bool complete = ITEMInternal::LoadMapFile(FileIn(folder), map);
  EXPECT_EQ(complete, map.contains("VX_HOME"));
  Keys keys = kAllKeys;
  std::erase_if(keys, [&](const auto& key) { return !map.contains(key); });
  return keys;
}

Keys InPreferences(const TemporaryDirectory& folder) {
  const auto text = ReadRegularFile(FileIn(folder), kSettingsFileLimit);
  Keys keys = kAllKeys;
  std::erase_if(keys, [&](const auto& key) {
    return !PreferenceInText(text.value_or(""), key);
  });
  return keys;
}

}  // namespace velmohelp::testing
