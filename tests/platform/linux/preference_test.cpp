#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/linux/preference_file.h"
#include "platform/linux/preference_store.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using namespace std::string_literals;

struct TextRow {
  const char* sentence;
  std::string text;
  std::optional<std::string> value;
};

class PreferenceText : public ::testing::TestWithParam<TextRow> {};

TEST_P(PreferenceText, HoldsTheValueOfKey) {
  EXPECT_EQ(PreferenceInText(GetParam().text, "Key"), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PreferenceText,
    ::testing::Values(
        TextRow{"a plain line", "[Preferences]\nKey=0\n", "0"},
        TextRow{"spaces around the sign", "[Preferences]\nKey = 0\n", "0"},
        TextRow{"spaces at both ends of a line",
                " [Preferences]\t\n\t Key=0 \t\n", "0"},
        TextRow{"spaces within a value", "[Preferences]\nKey=a  b\n", "a  b"},
        TextRow{"lines that end in CR LF", "[Preferences]\r\nKey=0\r\n", "0"},
        TextRow{"no line end at the end", "[Preferences]\nKey=0", "0"},
        TextRow{"a byte order mark", "\xEF\xBB\xBF[Preferences]\nKey=0\n", "0"},
        TextRow{"an empty value", "[Preferences]\nKey=\n", ""},
        TextRow{"a value with a sign", "[Preferences]\nKey=a=b\n", "a=b"},
        TextRow{"a value with a number sign", "[Preferences]\nKey=0 # no\n",
                "0 # no"},
        TextRow{"a backslash is a backslash", "[Preferences]\nKey=\\s\n",
                "\\s"},
        TextRow{"UTF-8", "[Preferences]\nKey=\xC3\xA4\n", "\xC3\xA4"},
        TextRow{"the last of several lines",
                "[Preferences]\nKey=1\nOther=2\nKey=0\n", "0"},
        TextRow{"the group again after another",
                "[Preferences]\nKey=1\n[Other]\nKey=2\n[Preferences]\nKey=0\n",
                "0"},
        TextRow{"a comment that is not valid UTF-8",
                "[Preferences]\n# B\xE4r\nKey=0\n", "0"},
        TextRow{"another value that is not valid UTF-8",
                "[Preferences]\nOther=\xE4\nKey=0\n", "0"},
        TextRow{"lines that say nothing",
                "\n\n[Preferences]\n\nnothing\n=\n=x\nKey=0\n", "0"},
        TextRow{"an empty file", "", {}}, TextRow{"no group", "Key=0\n", {}},
        TextRow{"another group", "[Other]\nKey=0\n", {}},
        TextRow{"the group in other letters", "[preferences]\nKey=0\n", {}},
        TextRow{"the key in other letters", "[Preferences]\nkey=0\n", {}},
        TextRow{"a longer key", "[Preferences]\nKey2=0\nKey[de]=0\n", {}},
        TextRow{"a comment", "[Preferences]\n#Key=0\n # Key=0\n", {}},
        TextRow{"no sign", "[Preferences]\nKey 0\n", {}},
        TextRow{
            "a value that is not valid UTF-8", "[Preferences]\nKey=\xE4\n", {}},
        TextRow{"a value that is half a character",
                "[Preferences]\nKey=\xC3\n",
                {}},
        TextRow{"a last value that is not valid UTF-8",
                "[Preferences]\nKey=0\nKey=\xE4\n",
                {}},
        TextRow{"a value with a NUL", "[Preferences]\nKey=0\0x\n"s, {}},
        TextRow{"a surrogate", "[Preferences]\nKey=\xED\xA0\x80\n", {}}),
    testing::SentenceOf());

struct NameRow {
  const char* sentence;
  std::string domain;
  std::string name;
};

class PreferenceName : public ::testing::TestWithParam<NameRow> {};

TEST_P(PreferenceName, IsOnePathComponent) {
  EXPECT_EQ(PreferenceFileName(GetParam().domain), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PreferenceName,
    ::testing::Values(
        NameRow{"a plain domain", "com.velmo.x", "com.velmo.x.conf"},
        NameRow{"spaces and more stay", "a b\xC3\xA4", "a b\xC3\xA4.conf"},
        NameRow{"a slash", "a/../b", "a%2F..%2Fb.conf"},
        NameRow{"two points", "..", "%2E..conf"},
        NameRow{"a point in front", ".x", "%2Ex.conf"},
        NameRow{"a percent sign", "a%2Fb", "a%252Fb.conf"},
        NameRow{"a NUL", "a\0b"s, "a%00b.conf"},
        NameRow{"nothing", "", ".conf"}),
    testing::SentenceOf());

class PreferenceStore : public ::testing::Test {
 protected:
  std::optional<std::string> Read(const std::string& domain = "domain") {
    return ReadPreferenceIn(directory_.path(), domain, "Key");
  }
  void Write(const std::string& text) { directory_.Write("domain.conf", text); }
  const testing::TemporaryDirectory& directory() const { return directory_; }

 private:
  testing::TemporaryDirectory directory_;
};

TEST_F(PreferenceStore, IsReadAgainAtEachCall) {
  EXPECT_FALSE(Read());
  Write("[Preferences]\nKey=1\n");
  EXPECT_EQ(Read(), "1");
  Write("[Preferences]\nKey=0\n");
  EXPECT_EQ(Read(), "0");
}

TEST_F(PreferenceStore, NeverWaitsForAPipe) {
  ASSERT_EQ(mkfifo((directory() / "domain.conf").c_str(), S_IRWXU), 0);
  EXPECT_FALSE(Read());
}

TEST_F(PreferenceStore, TakesADirectoryForNothing) {
  directory().MakeDirectory("domain.conf");
  EXPECT_FALSE(Read());
}

TEST_F(PreferenceStore, TakesADeviceForNothing) {
  std::filesystem::create_symlink("/dev/zero", directory() / "domain.conf");
  EXPECT_FALSE(Read());
}

TEST_F(PreferenceStore, TakesAHugeFileForNothing) {
  Write("[Preferences]\nKey=0\n");
  std::filesystem::resize_file(directory() / "domain.conf", 1U << 30U);
  EXPECT_FALSE(Read());
}

TEST_F(PreferenceStore, FollowsALink) {
  directory().Write("elsewhere", "[Preferences]\nKey=0\n");
  std::filesystem::create_symlink("elsewhere", directory() / "domain.conf");
  EXPECT_EQ(Read(), "0");
}

TEST_F(PreferenceStore, HasNothingForADomainThatIsTooLong) {
  EXPECT_FALSE(Read(std::string(5000, 'x')));
}

TEST_F(PreferenceStore, NeverLeavesItsFolder) {
  directory().Write("inner/domain.conf", "");
  directory().Write("secret.conf", "[Preferences]\nKey=0\n");
  EXPECT_FALSE(ReadPreferenceIn(directory() / "inner", "../secret", "Key"));
  EXPECT_EQ(Read("secret"), "0");
}

}  // namespace
}  // namespace velmohelp
