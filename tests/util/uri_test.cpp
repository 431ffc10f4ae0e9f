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
    {.sentence = "all parts",
     .uri = "http://u:p@h:8/a/b?q#f",
     .path = "/a/b",
     .host = "h"},
    {.sentence = "a host alone", .uri = "http://h", .path = "", .host = "h"},
    {.sentence = "a path alone",
     .uri = "/a:b//c",
     .path = "/a:b//c",
     .host = std::nullopt},
    {.sentence = "a relative path with a colon after a slash",
     .uri = "a/b:c",
     .path = "a/b:c",
     .host = std::nullopt},
    {.sentence = "a file URL",
     .uri = "file:///a",
     .path = "/a",
     .host = std::nullopt},
    {.sentence = "a slash inside a query",
     .uri = "http://h?a/b@c",
     .path = "",
     .host = "h"},
    {.sentence = "a question mark inside a fragment",
     .uri = "/a#b?c",
     .path = "/a",
     .host = std::nullopt},
    {.sentence = "an at sign inside a path",
     .uri = "http://h/u@x",
     .path = "/u@x",
     .host = "h"},
    {.sentence = "two at signs before a host",
     .uri = "http://a@b@h/",
     .path = "/",
     .host = "h"},
    {.sentence = "a path with an escape",
     .uri = "/a%20b",
     .path = "/a%20b",
     .host = std::nullopt},
    {.sentence = "a host with an escape",
     .uri = "//%61%62",
     .path = "",
     .host = "ab"},
    {.sentence = "an IP literal",
     .uri = "http://[::1]:8/",
     .path = "/",
     .host = "::1"},
    {.sentence = "an IP literal without an end",
     .uri = "http://[::1/x",
     .path = "/x",
     .host = "::1"},
    {.sentence = "an empty IP literal",
     .uri = "http://[]/",
     .path = "/",
     .host = std::nullopt},
    {.sentence = "an opaque URI",
     .uri = "mailto:a@b",
     .path = "a@b",
     .host = std::nullopt},
    {.sentence = "an empty text", .uri = "", .path = "", .host = std::nullopt},
    {.sentence = "a scheme alone",
     .uri = "http:",
     .path = "",
     .host = std::nullopt},
    {.sentence = "slashes alone",
     .uri = "//",
     .path = "",
     .host = std::nullopt},
    {.sentence = "a colon at the start does not end a scheme",
     .uri = "://h/p",
     .path = "://h/p",
     .host = std::nullopt},
    {.sentence = "a colon alone is a path",
     .uri = ":",
     .path = ":",
     .host = std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(OfAText, UriParts, ::testing::ValuesIn(kRows),
                         SentenceOf());

TEST(Unescaped, ReplacesEscapesOfEitherLetterCaseOnce) {
  EXPECT_EQ(Unescaped("%41%c3%A4%2541%"), "A\xC3\xA4%41%");
  EXPECT_EQ(Unescaped("%4%zz%%41"), "%4%zz%A");
  EXPECT_EQ(Unescaped("a%00b"), std::string("a\0b", 3));
}

TEST(Uri, HasOnlyUriCharactersAndEscapes) {
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

TEST(Uri, OfMegabytesIsReadOnce) {
  std::string text;
  while (text.size() < 4'000'000) text += "%20";
  EXPECT_TRUE(IsUri(text));
  EXPECT_FALSE(IsUri(text + "%2"));
  EXPECT_EQ(Unescaped(text).size(), text.size() / 3);
}

}  // namespace
}  // namespace velmohelp::testing
