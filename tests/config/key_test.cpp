#include <gtest/gtest.h>
#include <velmohelp/config.h>

#include "config/key_scanner.h"
#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"

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
    {"a quoted value is taken", R"(<c id="en_US_Foo"/>)", "id", "en_US_Foo"},
    {"an empty value is empty", R"(id="" x="y")", "id", ""},
    {"a value keeps its blanks", R"(id="  a b ")", "id", "  a b "},
    {"a value may span lines", "id=\"a\r\nb\"", "id", "a\r\nb"},
    {"a value keeps its entities", R"(id="a&amp;b")", "id", "a&amp;b"},
    {"a backslash inside a value is a byte like others", R"(id="a\b\\c")", "id",
     R"(a\b\\c)"},
    {"a backslash before the opening quote means nothing", R"(id=\"a")", "id",
     "a"},
    {"blanks around the equals sign are skipped", "id \t\r\n = \n \"a\"", "id",
     "a"},
    {"any bytes before the equals sign are skipped", R"(id>x</id y="a")", "id",
     "a"},
    {"any bytes before the opening quote are skipped", R"(id==x=y "a")", "id",
     "a"},
    {"the first occurrence wins", R"(id="1" id="2")", "id", "1"},
    {"an occurrence inside another word counts", R"(width="9" id="1")", "id",
     "9"},
    {"an occurrence inside a comment counts", R"(<!-- id="1" --> id="2")", "id",
     "1"},
    {"an occurrence inside a value leads to the next value",
     R"(name="my id" baseUrl="u")", "id", "u"},
    {"single quotes are no quotes", R"(id='a' path="b")", "id", "b"},
    {"a key at the very start is found", R"(id="a")", "id", "a"},
    {"an overlapping first occurrence is the one", R"(ididx="a")", "idid", "a"},
    {"what stands inside the key does not count", R"(a="1" id="2")",
     R"(a="1" id)", "2"},
    {"an empty key is found at once", R"(x="a")", "", "a"},
    {"bytes above 127 pass", "id=\"\xC3\xA4\xFF\"", "id", "\xC3\xA4\xFF"},
};

constexpr Row kNotFound[] = {
    {"an empty text has no key", "", "id", ""},
    {"the letter case of a key counts", R"(ID="a" Id="b")", "id", ""},
    {"a key at the very end has no value", "x=\"y\" id", "id", ""},
    {"without an equals sign there is no value", R"(x="1" id "a")", "id", ""},
    {"an equals sign before the key does not count", R"(="id"a")", "id", ""},
    {"an equals sign at the very end has no value", R"("" id=)", "id", ""},
    {"without an opening quote there is no value", "id=a", "id", ""},
    {"an opening quote at the very end has no value", "id=\"", "id", ""},
    {"without a closing quote there is no value", "id=\"abc", "id", ""},
    {"a key longer than the text is not found", "id", "idid", ""},
};

INSTANTIATE_TEST_SUITE_P(Found, Key, ::testing::ValuesIn(kFound), SentenceOf());
INSTANTIATE_TEST_SUITE_P(NotFound, Key, ::testing::ValuesIn(kNotFound),
                         SentenceOf());

std::string ValueInFile(const std::string& text, const std::string& key) {
  const TempFolder folder;
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

TEST(KeyInFile, AKeyBehindMegabytesOfNearMissesIsFound) {
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
