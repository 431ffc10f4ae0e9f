#include "viewer/web/page_bytes.h"

#include "tests/support/sentence.h"

namespace viewer {
namespace {

using velmohelp::testing::SentenceOf;
using std::string_literals::operator""s;

struct Row {
  const char* sentence;
  std::string bytes;
  PageProblem problem;
  std::string text;
};

class BytesOf : public ::testing::TestWithParam<Row> {};

TEST_P(BytesOf, APage) {
  std::string text = GetParam().bytes;
  EXPECT_EQ(MakeUtf8(text), GetParam().problem);
  EXPECT_EQ(text, GetParam().text);
}

const Row kRows[] = {
    {"UTF-8 stays", "\u00e4", PageProblem::kNone, "\u00e4"},
    {"an empty page is text", "", PageProblem::kNone, ""},
    {"a declared character set is decoded", "<meta charset=\"ISO-8859-1\">\xe4",
     PageProblem::kNone, "<meta charset=\"ISO-8859-1\">\u00e4"},
    {"the older declaration counts too",
     "<meta content='text/html; charset=windows-1252'>\x80", PageProblem::kNone,
     "<meta content='text/html; charset=windows-1252'>\u20ac"},
    {"bytes that are not UTF-8 are a problem", "\xe4", PageProblem::kEncoding,
     "\xe4"},
    {"so they are where UTF-8 is declared", "<meta charset=utf-8>\xe4",
     PageProblem::kEncoding, "<meta charset=utf-8>\xe4"},
    {"an unknown character set of valid UTF-8 is UTF-8",
     "<meta charset=martian>\u00e4", PageProblem::kNone,
     "<meta charset=martian>\u00e4"},
    {"a zero byte makes it binary", "a\0b"s, PageProblem::kBinary, "a\0b"s},
    {"UTF-16 with a mark is decoded", "\xff\xfe\x61\x00"s, PageProblem::kNone,
     "a"},
};

INSTANTIATE_TEST_SUITE_P(, BytesOf, ::testing::ValuesIn(kRows), SentenceOf());

TEST(MediaTypeOf, AName) {
  EXPECT_EQ(MediaType("a/b.HTML"), "text/html");
  EXPECT_EQ(MediaType("a.svg"), "image/svg+xml");
  EXPECT_EQ(MediaType("a.desktop"), "");
  EXPECT_EQ(MediaType("a"), "");
}

}  // namespace
}  // namespace viewer
