#include <gtest/gtest.h>
#include <sys/stat.h>
#include <velmohelp/resolve.h>

#include <stdexcept>

#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ITEMInternal::GetHelpMapBaseUrl;

struct Row {
  const char* sentence;
  std::string text;
  std::string base_url;
};

class BaseUrl : public ::testing::TestWithParam<Row> {};

TEST_P(BaseUrl, IsTheFirstLine) {
  const TemporaryDirectory folder;
  const std::string path = folder.Write("x", GetParam().text);
  EXPECT_EQ(GetHelpMapBaseUrl(path), GetParam().base_url);
}

const Row kLines[] = {
    {.sentence = "an empty file has no base URL", .text = "", .base_url = ""},
    {.sentence = "an empty first line is empty",
     .text = "\nhttp://x",
     .base_url = ""},
    {.sentence = "a line feed ends it",
     .text = "http://host/x\nhttp://y\n",
     .base_url = "http://host/x"},
    {.sentence = "a carriage return ends it",
     .text = "http://host/x\rhttp://y",
     .base_url = "http://host/x"},
    {.sentence = "CR LF ends it",
     .text = "http://host/x\r\nhttp://y",
     .base_url = "http://host/x"},
    {.sentence = "the end of the file ends it",
     .text = "http://host/x",
     .base_url = "http://host/x"},
    {.sentence = "spaces and tabs stay",
     .text = " \thttp://host/x \t\n",
     .base_url = " \thttp://host/x \t"},
    {.sentence = "it need not be a URL",
     .text = "any\0thing"s,
     .base_url = "any\0thing"s},
    {.sentence = "a percent sign stays without a bracketed host",
     .text = "http://host/a%20b",
     .base_url = "http://host/a%20b"},
    {.sentence = "a bracket elsewhere does not begin a host",
     .text = "http://host/[a%20b",
     .base_url = "http://host/[a%20b"},
};

const Row kZones[] = {
    {.sentence = "a bare zone separator is encoded",
     .text = "http://[fe80::1%en0]/help",
     .base_url = "http://[fe80::1%25en0]/help"},
    {.sentence = "an encoded zone separator stays",
     .text = "http://[fe80::1%25en0]/help",
     .base_url = "http://[fe80::1%25en0]/help"},
    {.sentence = "a host without a zone stays",
     .text = "http://[::1]/help",
     .base_url = "http://[::1]/help"},
    {.sentence = "the first percent sign is encoded even after the host",
     .text = "http://[::1]/a%20b",
     .base_url = "http://[::1]/a%2520b"},
    {.sentence = "only the first percent sign is encoded",
     .text = "http://[fe80::1%en0]/a%20b%20c",
     .base_url = "http://[fe80::1%25en0]/a%20b%20c"},
    {.sentence = "an encoded sign after the host does not protect the zone",
     .text = "http://[fe80::1%en0]/a%25b",
     .base_url = "http://[fe80::1%25en0]/a%25b"},
    {.sentence = "a single encoded sign after the host is encoded again",
     .text = "http://[::1]/a%25b",
     .base_url = "http://[::1]/a%2525b"},
    {.sentence = "an encoded zone stays with more signs after it",
     .text = "http://[fe80::1%25en0]/a%20b",
     .base_url = "http://[fe80::1%25en0]/a%20b"},
    {.sentence = "an encoded sign right before the bracket counts",
     .text = "http://[a%25]",
     .base_url = "http://[a%25]"},
    {.sentence = "a bare sign without a closing bracket is encoded",
     .text = "http://[fe80::1%en0",
     .base_url = "http://[fe80::1%25en0"},
    {.sentence = "an encoded sign without a closing bracket is encoded again",
     .text = "http://[fe80::1%25en0",
     .base_url = "http://[fe80::1%2525en0"},
    {.sentence = "any scheme counts", .text = "://[%", .base_url = "://[%25"},
    {.sentence = "the first closing bracket counts wherever it is",
     .text = "]://[fe80::1%25en0]",
     .base_url = "]://[fe80::1%2525en0]"},
    {.sentence =
         "without a percent sign a closing bracket at the start is enough",
     .text = "]://[",
     .base_url = "]://["},
};

INSTANTIATE_TEST_SUITE_P(OfAFile, BaseUrl, ::testing::ValuesIn(kLines),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(WithABracketedHost, BaseUrl,
                         ::testing::ValuesIn(kZones), SentenceOf());

class BaseUrlFile : public ::testing::Test {
 protected:
  const TemporaryDirectory folder;
};

TEST_F(BaseUrlFile, ThatCannotBeOpenedHasNoBaseUrl) {
  EXPECT_EQ(GetHelpMapBaseUrl(""), "");
  EXPECT_EQ(GetHelpMapBaseUrl(folder / "missing"), "");
  EXPECT_EQ(GetHelpMapBaseUrl("/dev/zero"), "");
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(GetHelpMapBaseUrl(folder / "pipe"), "");
}

TEST_F(BaseUrlFile, ThatIsADirectoryThrowsTheStreamsFailure) {
  EXPECT_THROW(GetHelpMapBaseUrl(folder.path()), std::ios_base::failure);
}

// A mistake that callers rely on.
TEST_F(BaseUrlFile, WithABracketButNoSignAndNoEndIsOutOfRange) {
  EXPECT_THROW(GetHelpMapBaseUrl(folder.Write("x", "http://[fe80::1\n%]")),
               std::out_of_range);
  EXPECT_THROW(GetHelpMapBaseUrl(folder.Write("x", "://[")), std::out_of_range);
}

TEST_F(BaseUrlFile, OfMegabytesIsReadForItsFirstLine) {
  const std::string line = "http://[fe80::1%" + std::string(4'000'000, 'z');
  const std::string path = folder.Write("x", line + "\n" + line);
  EXPECT_EQ(GetHelpMapBaseUrl(path).size(), line.size() + 2);
}

}  // namespace
}  // namespace velmohelp::testing
