#include "tools/create/help_config_text.h"

#include "tools/check/check_config.h"
#include "tools/import/id_table.h"
#include "util/str_cat.h"

namespace velmohelp::tool {

std::string HelpConfigText(const HelpConfigValues& values) {
  // The first "path" is not a content folder, and "id" comes before all that
  // could have these two letters in it.
  std::string text = StrCat({"<helpConfig id=\"",
                             values.locale,
                             "_",
                             values.product,
                             "\"\n",
                             "            path=\"",
                             values.product,
                             "/",
                             values.locale,
                             "\"\n",
                             "            baseUrl=\"",
                             values.base_url,
                             "\"\n",
                             "            appId=\"",
                             values.app_id,
                             "\" pubId=\"",
                             values.publisher_id,
                             "\">\n",
                             "  <content path=\"",
                             values.content,
                             "\" contextSensitivity=\"YES\"/>\n",
                             "</helpConfig>\n"});
  Findings findings;
  CheckConfigText({.path = "the new configuration",
                   .text = text,
                   .product = values.product,
                   .locale = values.locale},
                  findings);
  if (findings.empty()) return text;
  throw ImportError("the configuration would be wrong: " +
                    findings.front().text);
}

std::filesystem::path InstalledName(const HelpConfigValues& values) {
  return std::filesystem::path("help") / values.locale /
         (values.product + ".helpcfg");
}

}  // namespace velmohelp::tool
