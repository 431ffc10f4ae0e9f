#include <gtest/gtest.h>
#include <velmohelp/config.h>

#include "config/key_scanner.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

struct Row {
  const char* sentence;
  const char* text;
  const char* key;
  const char* value;
};

class Key : public ::testing::TestWithParam<Row> {};

TEST_P(Key, HasItsValue) {
  EXPECT_EQ(ScanKey(GetParam().text, GetParam().key), GetParam().value);
}

constexpr Row kFound[] = {
    {.sentence = "a quoted value is found",
     .text = R"(<c id="en_US_Foo"/>)",
     .key = "id",
     .value = "en_US_Foo"},
    {.sentence = "an empty value is empty",
     .text = R"(id="" x="y")",
     .key = "id",
     .value = ""},
    {.sentence = "a value keeps its spaces",
     .text = R"(id="  a b ")",
     .key = "id",
     .value = "  a b "},
    {.sentence = "a value may span lines",
     .text = "id=\"a\r\nb\"",
     .key = "id",
     .value = "a\r\nb"},
    {.sentence = "a value keeps its entities",
     .text = R"(id="a&amp;b")",
     .key = "id",
     .value = "a&amp;b"},
    {.sentence = "a backslash inside a value is a byte like any other",
     .text = R"(id="a\b\\c")",
     .key = "id",
     .value = R"(a\b\\c)"},
    {.sentence = "a backslash before the opening quote means nothing",
     .text = R"(id=\"a")",
     .key = "id",
     .value = "a"},
    {.sentence = "spaces around the equals sign are skipped",
     .text = "id \t\r\n = \n \"a\"",
     .key = "id",
     .value = "a"},
    {.sentence = "any bytes before the equals sign are skipped",
     .text = R"(id>x</id y="a")",
     .key = "id",
     .value = "a"},
    {.sentence = "any bytes before the opening quote are skipped",
     .text = R"(id==x=y "a")",
     .key = "id",
     .value = "a"},
    {.sentence = "the first occurrence wins",
     .text = R"(id="1" id="2")",
     .key = "id",
     .value = "1"},
    {.sentence = "an occurrence inside another word counts",
     .text = R"(width="9" id="1")",
     .key = "id",
     .value = "9"},
    {.sentence = "an occurrence inside a comment counts",
     .text = R"(<!-- id="1" --> id="2")",
     .key = "id",
     .value = "1"},
    {.sentence = "an occurrence inside a value leads to the next value",
     .text = R"(name="my id" baseUrl="u")",
     .key = "id",
     .value = "u"},
    {.sentence = "single quotes do not count as quotes",
     .text = R"(id='a' path="b")",
     .key = "id",
     .value = "b"},
    {.sentence = "a key at the very start is found",
     .text = R"(id="a")",
     .key = "id",
     .value = "a"},
    {.sentence = "the first of two overlapping occurrences wins",
     .text = R"(ididx="a")",
     .key = "idid",
     .value = "a"},
    {.sentence = "an equals sign inside the key does not count",
     .text = R"(a="1" id="2")",
     .key = R"(a="1" id)",
     .value = "2"},
    {.sentence = "an empty key is found at once",
     .text = R"(x="a")",
     .key = "",
     .value = "a"},
    {.sentence = "bytes above 127 pass",
     .text = "id=\"\xC3\xA4\xFF\"",
     .key = "id",
     .value = "\xC3\xA4\xFF"},
};

constexpr Row kNotFound[] = {
    {.sentence = "an empty text has no key",
     .text = "",
     .key = "id",
     .value = ""},
    {.sentence = "the letter case of a key counts",
     .text = R"(ID="a" Id="b")",
     .key = "id",
     .value = ""},
    {.sentence = "a key at the very end has no value",
     .text = "x=\"y\" id",
     .key = "id",
     .value = ""},
    {.sentence = "without an equals sign there is no value",
     .text = R"(x="1" id "a")",
     .key = "id",
     .value = ""},
    {.sentence = "an equals sign before the key does not count",
     .text = R"(="id"a")",
     .key = "id",
     .value = ""},
    {.sentence = "an equals sign at the very end has no value",
     .text = R"("" id=)",
     .key = "id",
     .value = ""},
    {.sentence = "without an opening quote there is no value",
     .text = "id=a",
     .key = "id",
     .value = ""},
    {.sentence = "an opening quote at the very end has no value",
     .text = "id=\"",
     .key = "id",
     .value = ""},
    {.sentence = "without a closing quote there is no value",
     .text = "id=\"abc",
     .key = "id",
     .value = ""},
    {.sentence = "a key longer than the text is not found",
     .text = "id",
     .key = "idid",
     .value = ""},
};

INSTANTIATE_TEST_SUITE_P(Found, Key, ::testing::ValuesIn(kFound), SentenceOf());
INSTANTIATE_TEST_SUITE_P(NotFound, Key, ::testing::ValuesIn(kNotFound),
                         SentenceOf());

std::string ValueInFile(const std::string& text, const std::string& key) {
  const TemporaryDirectory folder;
  XMLParser parser;
  EXPECT_TRUE(parser.ReadFileToBuffer(folder.Write("x.xml", text)));
  return parser.GetKey(key);
}

TEST(KeyInFile, TwoSettingsComeInUpperCase) {
  EXPECT_EQ(ValueInFile("accessibleMode=\"yes1\xE4\"", "accessibleMode"),
            "YES1\xE4");
  EXPECT_EQ(ValueInFile(R"(localHelp="True")", "localHelp"), "TRUE");
}

TEST(KeyInFile, AllOtherValuesKeepTheirLetterCase) {
  EXPECT_EQ(ValueInFile(R"(id="en_us_foo")", "id"), "en_us_foo");
  EXPECT_EQ(ValueInFile(R"(localHelpX="true")", "localHelpX"), "true");
  EXPECT_EQ(ValueInFile(R"(localHelp="true")", "localhelp"), "");
}

TEST(KeyInFile, AKeyAfterMegabytesOfNearMissesIsFound) {
  std::string text;
  while (text.size() < 4'000'000) text += "pat pa p i d ";
  EXPECT_EQ(ValueInFile(text + R"(path="a")", "path"), "a");
}

TEST(UpperCase, IsTheCLibrarysByteByByte) {
  EXPECT_EQ(StringToUpper(""), "");
  EXPECT_EQ(StringToUpper("Null-a1_z\xC3\xA4"), "NULL-A1_Z\xC3\xA4");
  EXPECT_EQ(StringToUpper(std::string("a\0b", 3)), std::string("A\0B", 3));
  EXPECT_EQ(XMLParser::StringToUpper("true"), "TRUE");
}

}  // namespace
}  // namespace velmohelp::testing
