// A key or domain in the first line, a preference file in the rest.
#include <velmohelp/config.h>

#include "platform/linux/preference_file.h"
#include "tests/fuzz/input.h"
#include "tests/support/answer_oracle.h"
#include "tests/support/key_oracle.h"
#include "tests/support/uri_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  static FileInMemory file;
  const std::string key = input.Line();
  Same(PreferenceInText(input.Rest(), key),
       OraclePreference(input.Rest(), key));
  const std::string name = PreferenceFileName(key);
  Same(name.find_first_of(std::string("/\0", 2)), std::string::npos);
  Same(name[0] == '.', key.empty());
  Same(OracleUnescaped(name), key + ".conf");
  const std::string path = file.Write(input.Rest());
  const std::string text = OracleBuffer(input.Rest());
  const auto mode = OracleKey(text, "accessibleMode");
  const auto local = OracleKey(text, "localHelp");
  if (mode) Same(GetKLHFilePreferenceForHelpApp(path), *mode == "TRUE" ? 2 : 1);
  if (local) Same(GetPreferenceSettingsForNetwork(path), *local != "TRUE");
}

}  // namespace velmohelp::testing
