#include "tools/explain/privacy.h"

#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp::tool {
namespace {

struct Private {
  std::string sentence;
  std::string text;
  std::string clean;
};

void PrintTo(const Private& row, std::ostream* out) { *out << row.sentence; }

class PrivateText : public ::testing::TestWithParam<Private> {};

TEST_P(PrivateText, HasNoNames) {
  const PrivateNames names = {
      .user = "ann",
      .homes = {"/home/ann", "/data/home of ann", "/data/home%20of%20ann"},
      .hosts = {"box.example", "box"}};
  EXPECT_EQ(WithoutNames(GetParam().text, names, "help.velmo.com"),
            GetParam().clean);
}

INSTANTIATE_TEST_SUITE_P(
    , PrivateText,
    ::testing::Values(
        Private{"a path in the home", "read /home/ann/.config/x",
                "read HOME/.config/x"},
        Private{"the home itself", "/home/ann", "HOME"},
        Private{"another home that begins alike", "/home/anna/x",
                "/home/anna/x"},
        Private{"a home with spaces", "/data/home of ann/x", "HOME/x"},
        Private{"a home in a URL", "file:///data/home%20of%20ann/x",
                "file://HOME/x"},
        Private{"the user elsewhere", "/media/ann/disk", "/media/USER/disk"},
        Private{"a word with the user s name in it", "annual channel",
                "annual channel"},
        Private{"the user in capitals", "ANN", "USER"},
        Private{"the machine", "on box and box.example.", "on HOST and HOST."},
        Private{"a server in a URL", "http://help.intern:80/a",
                "http://HOST1:80/a"},
        Private{"two servers, and one again",
                "https://a.x/ https://b.x/ https://a.x/",
                "https://HOST1/ https://HOST2/ https://HOST1/"},
        Private{"a server outside a URL", "https://a.x/ a.x is unknown",
                "https://HOST1/ HOST1 is unknown"},
        Private{"the help server of everybody", "http://help.velmo.com/",
                "http://help.velmo.com/"}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp::tool
