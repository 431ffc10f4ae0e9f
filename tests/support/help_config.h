// Help configurations as tests write them.
#ifndef TESTS_SUPPORT_HELP_CONFIG_H_
#define TESTS_SUPPORT_HELP_CONFIG_H_

#include <string>
#include <vector>

namespace velmohelp::testing {

/// A folder name that no other process uses, beginning with a word: installed
/// content is in a folder that all tests of a build tree share.
std::string OwnName(const std::string& word);

/// A content folder's row.
struct ContentFolder {
  std::string name = OwnName("manual");
  std::string flag = "yes";
};

/// What a help configuration says: where nothing else is stated, that product
/// Foo has one content folder in en_US, and a viewer of its own.
struct HelpConfig {
  std::string id = "en_US_Foo";
  std::string path = "Foo/Cfg";
  std::string app_id = "reader";
  std::string pub_id = "VELMO.1";
  std::string base_url = "http://localhost/help/";
  std::vector<ContentFolder> folders = {ContentFolder{}};

  std::string Text() const;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_HELP_CONFIG_H_
