#include "util/uri.h"

#include <gtest/gtest.h>

#include <cctype>

#include "tests/support/random_text.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

struct Row {
  const char* sentence;
  const char* uri;
  const char* path;
  std::optional<std::string> host;
};

class UriParts : public ::testing::TestWithParam<Row> {};

TEST_P(UriParts, ArePathAndHost) {
  EXPECT_EQ(PathOfUri(GetParam().uri), GetParam().path);
  EXPECT_EQ(HostOfUri(GetParam().uri), GetParam().host);
}

const Row kRows[] = {
    {"all parts", "http://u:p@h:8/a/b?q#f", "/a/b", "h"},
    {"a host alone", "http://h", "", "h"},
    {"a path alone", "/a:b//c", "/a:b//c", std::nullopt},
    {"a relative path with a colon behind a slash", "a/b:c", "a/b:c",
     std::nullopt},
    {"a file URL", "file:///a", "/a", std::nullopt},
    {"a slash inside a query", "http://h?a/b@c", "", "h"},
    {"a question mark inside a fragment", "/a#b?c", "/a", std::nullopt},
    {"an at sign inside a path", "http://h/u@x", "/u@x", "h"},
    {"two at signs before a host", "http://a@b@h/", "/", "h"},
    {"a path with an escape", "/a%20b", "/a%20b", std::nullopt},
    {"a host with an escape", "//%61%62", "", "ab"},
    {"an IP literal", "http://[::1]:8/", "/", "::1"},
    {"an IP literal without an end", "http://[::1/x", "/x", "::1"},
    {"an empty IP literal", "http://[]/", "/", std::nullopt},
    {"an opaque URI", "mailto:a@b", "a@b", std::nullopt},
    {"an empty text", "", "", std::nullopt},
    {"a scheme alone", "http:", "", std::nullopt},
    {"slashes alone", "//", "", std::nullopt},
    {"a colon in front ends no scheme", "://h/p", "://h/p", std::nullopt},
    {"a colon alone is a path", ":", ":", std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(OfAText, UriParts, ::testing::ValuesIn(kRows),
                         SentenceOf());

TEST(Unescaped, ReplacesEscapesOfEitherLetterCaseOnce) {
  EXPECT_EQ(Unescaped("%41%c3%A4%2541%"), "A\xC3\xA4%41%");
  EXPECT_EQ(Unescaped("%4%zz%%41"), "%4%zz%A");
  EXPECT_EQ(Unescaped("a%00b"), std::string("a\0b", 3));
}

TEST(Uri, IsMadeOfUriCharactersAndEscapesAlone) {
  EXPECT_FALSE(IsUri(""));
  const std::string legal =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
      "-._~:/?#[]@!$&'()*+,;=";
  for (const char byte : AllBytes()) {
    const bool is_legal = legal.find(byte) != std::string::npos;
    EXPECT_EQ(IsUri({&byte, 1}), is_legal);
    EXPECT_EQ(IsUri(std::string("a%4") + byte + "a"),
              std::isxdigit(static_cast<unsigned char>(byte)) != 0);
  }
}

TEST(Uri, OfMegabytesIsWalkedOnce) {
  std::string text;
  while (text.size() < 4'000'000) text += "%20";
  EXPECT_TRUE(IsUri(text));
  EXPECT_FALSE(IsUri(text + "%2"));
  EXPECT_EQ(Unescaped(text).size(), text.size() / 3);
}

}  // namespace
}  // namespace velmohelp::testing
