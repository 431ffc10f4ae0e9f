// A host sets its own global locale. Streams opened afterwards convert bytes by
// its codecvt and group digits by its numpunct; the client's files must be read
// byte for byte all the same.
#include <gtest/gtest.h>
#include <velmohelp/config.h>
#include <velmohelp/resolve.h>
#include <velmohelp/text.h>

#include <algorithm>
#include <locale>
#include <map>
#include <string>

#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

/// Reads every byte as "#".
class HashCodecvt : public std::codecvt<char, char, std::mbstate_t> {
 private:
  bool do_always_noconv() const noexcept override { return false; }
  int do_encoding() const noexcept override { return 1; }
  result do_in(state_type& /*state*/, const char* from, const char* from_end,
               const char*& from_next, char* to, char* to_end,
               char*& to_next) const override {
    const auto count = std::min(from_end - from, to_end - to);
    from_next = from + count;
    to_next = std::fill_n(to, count, '#');
    return ok;
  }
};

class Grouping : public std::numpunct<char> {
 private:
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\1"; }
};

class HostLocale : public ::testing::Test {
 protected:
  ~HostLocale() override { std::locale::global(before_); }

  const TemporaryDirectory folder;

 private:
  const std::locale before_ = std::locale::global(std::locale(
      std::locale(std::locale::classic(), new HashCodecvt), new Grouping));
};

TEST_F(HostLocale, LeavesHelpMapsAsTheyAre) {
  std::map<std::string, std::string> map;
  EXPECT_TRUE(ITEMInternal::LoadMapFile(
      folder.Write("x", "VX_HOME\thome.html\nb\t1\na\t2\n"), map));
  EXPECT_EQ(map, (std::map<std::string, std::string>{
                     {"VX_HOME", "home.html"}, {"a", "2"}, {"b", "1"}}));
}

TEST_F(HostLocale, LeavesBaseUrlsAsTheyAre) {
  EXPECT_EQ(ITEMInternal::GetHelpMapBaseUrl(
                folder.Write("x", "http://[fe80::1%en0]:8080/\n")),
            "http://[fe80::1%25en0]:8080/");
}

TEST_F(HostLocale, LeavesConfigurationsAsTheyAre) {
  XMLParser parser;
  EXPECT_TRUE(parser.ReadFileToBuffer(folder.Write("x", "id=\"a1000\"")));
  EXPECT_EQ(parser.GetKey("id"), "a1000");
}

TEST_F(HostLocale, LeavesEscapesAsTheyAre) {
  EXPECT_EQ(urlencode("\xDC 1000"), "%dc%201000");
  EXPECT_EQ(ITEMInternal::VelmoHelpEncodeURIComponent("\xC3\x9C 1000"),
            "%C3%9C%201000");
}

}  // namespace
}  // namespace velmohelp::testing
