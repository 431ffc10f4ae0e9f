#include "tests/support/help_config.h"

#include <random>

namespace velmohelp::testing {
namespace {

std::string Attribute(const std::string& key, const std::string& value) {
  return " " + key + "=\"" + value + "\"";
}

}  // namespace

std::string OwnName(const std::string& word) {
  static const std::string token = std::to_string(std::random_device{}());
  return word + "-" + token;
}

std::string HelpConfig::Text() const {
  std::string text = "<help" + Attribute("id", id) + Attribute("path", path) +
                     Attribute("appId", app_id) + Attribute("pubId", pub_id) +
                     Attribute("baseUrl", base_url) + ">\n";
  for (const ContentFolder& folder : folders) {
    text += "  <content" + Attribute("path", folder.name) +
            Attribute("contextSensitivity", folder.flag) + "/>\n";
  }
  return text + "</help>\n";
}

}  // namespace velmohelp::testing
