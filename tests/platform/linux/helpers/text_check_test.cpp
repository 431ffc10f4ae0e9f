#include "platform/linux/helpers/text_check.h"

#include <gtest/gtest.h>

#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

using namespace std::string_literals;

struct BodyRow {
  const char* sentence;
  const char* charset;
  std::string body;
  bool is_text;
};

class Body : public ::testing::TestWithParam<BodyRow> {
 protected:
  /// Feeds the body in pieces of a size.
  static TextCheck Fed(std::size_t size) {
    TextCheck check(GetParam().charset);
    const std::string& body = GetParam().body;
    for (std::size_t at = 0; at < body.size(); at += size) {
      check.Feed(std::string_view(body).substr(at, size));
    }
    return check;
  }
};

TEST_P(Body, IsTextHoweverItIsCut) {
  for (std::size_t size = 1; size <= GetParam().body.size() + 1; ++size) {
    EXPECT_EQ(Fed(size).IsText(), GetParam().is_text) << size;
  }
}

TEST_P(Body, IsNotGivenUpBeforeItsEndWhenItIsText) {
  EXPECT_TRUE(Fed(1).MayBeText() || !GetParam().is_text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Body,
    ::testing::Values(
        BodyRow{"empty", "", "", true}, BodyRow{"ASCII", "", "a text\n", true},
        BodyRow{"UTF-8 of every length", "",
                "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", true},
        BodyRow{"UTF-8 with a mark", "", "\xEF\xBB\xBF\xC3\xA4", true},
        BodyRow{"UTF-8 declared", "UTF-8", "\xC3\xA4", true},
        BodyRow{"UTF-8 declared as ASCII", "us-ascii", "\xC3\xA4", true},
        BodyRow{"UTF-8 declared as an unknown set", "none", "\xC3\xA4", true},
        BodyRow{"Latin 1 declared", "iso-8859-1", "B\xE4r", true},
        BodyRow{"Shift JIS declared", "Shift_JIS", "\x83\x65\x83\x4C", true},
        BodyRow{"ISO 2022 declared", "ISO-2022-JP", "\x1B$B%F%-\x1B(B", true},
        BodyRow{"GB 18030 declared", "gb18030", "\x81\x30\x81\x30\xC4\xE3",
                true},
        BodyRow{"UTF-16 declared, with its mark", "utf-16", "\xFE\xFF\x00\xE4"s,
                true},
        BodyRow{"UTF-16 declared by its order", "utf-16be", "\x00\xE4"s, true},
        BodyRow{"UTF-16 little first by its mark", "", "\xFF\xFE\xE4\x00"s,
                true},
        BodyRow{"UTF-16 big first by its mark", "", "\xFE\xFF\x00\xE4"s, true},
        BodyRow{"a surrogate pair", "", "\xFE\xFF\xD8\x3D\xDE\x00"s, true},
        BodyRow{"UTF-16 that begins with a NUL", "",
                "\xFF\xFE\x00\x00\xE4\x00"s, true},
        BodyRow{"UTF-32 little first by its mark", "",
                "\xFF\xFE\x00\x00\xE4\x00\x00\x00"s, true},
        BodyRow{"UTF-32 big first by its mark", "",
                "\x00\x00\xFE\xFF\x00\x00\x00\xE4"s, true},
        BodyRow{"a mark alone", "", "\xFE\xFF", true},
        BodyRow{"UTF-16 by its mark against its declaration", "us-ascii",
                "\xFE\xFF\x00\xE4"s, true},
        BodyRow{"a picture", "", "\x89PNG\r\n\x1A\n", false},
        BodyRow{"Latin 1 not declared", "", "B\xE4r", false},
        BodyRow{"Latin 1 declared as UTF-8", "utf-8", "B\xE4r", false},
        BodyRow{"Latin 1 with the locale's set", "", "\xE4", false},
        BodyRow{"half a character at the end", "", "a\xE2\x82", false},
        BodyRow{"half a declared character at the end", "Shift_JIS", "\x83",
                false},
        BodyRow{"a byte that is not in Shift JIS", "Shift_JIS", "\x83\x20",
                false},
        BodyRow{"an overlong form", "", "\xC0\x80", false},
        BodyRow{"a surrogate in UTF-8", "", "\xED\xA0\x80", false},
        BodyRow{"beyond the last character", "", "\xF4\x90\x80\x80", false},
        BodyRow{"half a unit of UTF-16", "", "\xFE\xFF\x00\xE4\x00"s, false},
        BodyRow{"half a surrogate pair", "", "\xFE\xFF\xD8\x3D\x00\x41"s,
                false},
        BodyRow{"a mark cut in half", "", "\xFE", false},
        BodyRow{"a set with an option to drop errors", "us-ascii//IGNORE",
                "\xE4", false}),
    testing::SentenceOf());

TEST(ALongBody, IsHeldInPiecesOnly) {
  TextCheck check("");
  const std::string piece(100000, 'a');
  for (int i = 0; i < 100; ++i) check.Feed(piece);
  EXPECT_TRUE(check.MayBeText());
  check.Feed("\xFF");
  EXPECT_FALSE(check.MayBeText());
  check.Feed(piece);
  EXPECT_FALSE(check.IsText());
}

struct TypeRow {
  const char* sentence;
  const char* content_type;
  const char* charset;
};

class ContentType : public ::testing::TestWithParam<TypeRow> {};

TEST_P(ContentType, NamesItsCharacterSet) {
  EXPECT_EQ(CharsetOf(GetParam().content_type), GetParam().charset);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ContentType,
    ::testing::Values(
        TypeRow{"plain", "text/html; charset=utf-8", "utf-8"},
        TypeRow{"without a space", "text/html;charset=utf-8", "utf-8"},
        TypeRow{"with spaces", "text/html ;  charset = utf-8 ", "utf-8"},
        TypeRow{"in quotes", "text/html; charset=\"utf-8\"", "utf-8"},
        TypeRow{"in capitals", "text/html; CHARSET=UTF-8", "UTF-8"},
        TypeRow{"after another parameter", "a/b; x=y; charset=utf-8; z",
                "utf-8"},
        TypeRow{"the first of two", "a/b; charset=a; charset=b", "a"},
        TypeRow{"an open quote", "a/b; charset=\"utf-8", "utf-8"},
        TypeRow{"a quote alone", "a/b; charset=\"", "\""},
        TypeRow{"an empty name", "a/b; charset=", ""},
        TypeRow{"no parameter", "text/html", ""},
        TypeRow{"another parameter", "text/html; xcharset=utf-8", ""},
        TypeRow{"in place of the type", "charset=utf-8", ""},
        TypeRow{"nothing", "", ""}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
