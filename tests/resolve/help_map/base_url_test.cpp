#include <gtest/gtest.h>
#include <sys/stat.h>
#include <velmohelp/resolve.h>

#include <stdexcept>

#include "tests/support/sentence.h"
#include "tests/support/temp_folder.h"

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
  const TempFolder folder;
  const std::string path = folder.Write("x", GetParam().text);
  EXPECT_EQ(GetHelpMapBaseUrl(path), GetParam().base_url);
}

const Row kLines[] = {
    {"an empty file has none", "", ""},
    {"an empty first line is empty", "\nhttp://x", ""},
    {"a line feed ends it", "http://host/x\nhttp://y\n", "http://host/x"},
    {"a carriage return ends it", "http://host/x\rhttp://y", "http://host/x"},
    {"both together end it", "http://host/x\r\nhttp://y", "http://host/x"},
    {"the end of the file ends it", "http://host/x", "http://host/x"},
    {"blanks and TABs stay", " \thttp://host/x \t\n", " \thttp://host/x \t"},
    {"it need not be a URL", "any\0thing"s, "any\0thing"s},
    {"a percent sign stays without a bracketed host", "http://host/a%20b",
     "http://host/a%20b"},
    {"a bracket elsewhere is no bracketed host", "http://host/[a%20b",
     "http://host/[a%20b"},
};

const Row kZones[] = {
    {"a bare zone separator is encoded", "http://[fe80::1%en0]/help",
     "http://[fe80::1%25en0]/help"},
    {"an encoded zone separator stays", "http://[fe80::1%25en0]/help",
     "http://[fe80::1%25en0]/help"},
    {"a host without a zone stays", "http://[::1]/help", "http://[::1]/help"},
    {"the first percent sign is encoded even behind the host",
     "http://[::1]/a%20b", "http://[::1]/a%2520b"},
    {"only the first percent sign is encoded", "http://[fe80::1%en0]/a%20b%20c",
     "http://[fe80::1%25en0]/a%20b%20c"},
    {"an encoded sign behind the host does not help the zone",
     "http://[fe80::1%en0]/a%25b", "http://[fe80::1%25en0]/a%25b"},
    {"an encoded sign alone behind the host is encoded again",
     "http://[::1]/a%25b", "http://[::1]/a%2525b"},
    {"an encoded zone stays with more signs behind it",
     "http://[fe80::1%25en0]/a%20b", "http://[fe80::1%25en0]/a%20b"},
    {"an encoded sign right before the bracket counts", "http://[a%25]",
     "http://[a%25]"},
    {"a bare sign without a closing bracket is encoded", "http://[fe80::1%en0",
     "http://[fe80::1%25en0"},
    {"an encoded sign without a closing bracket is encoded again",
     "http://[fe80::1%25en0", "http://[fe80::1%2525en0"},
    {"any scheme will do", "://[%", "://[%25"},
    {"the first closing bracket counts wherever it stands",
     "]://[fe80::1%25en0]", "]://[fe80::1%2525en0]"},
    {"a closing bracket at the start is enough without a percent sign", "]://[",
     "]://["},
};

INSTANTIATE_TEST_SUITE_P(OfAFile, BaseUrl, ::testing::ValuesIn(kLines),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(WithABracketedHost, BaseUrl,
                         ::testing::ValuesIn(kZones), SentenceOf());

class BaseUrlFile : public ::testing::Test {
 protected:
  const TempFolder folder;
};

TEST_F(BaseUrlFile, ThatCannotBeOpenedHasNone) {
  EXPECT_EQ(GetHelpMapBaseUrl(""), "");
  EXPECT_EQ(GetHelpMapBaseUrl(folder.Path("missing")), "");
  EXPECT_EQ(GetHelpMapBaseUrl("/dev/zero"), "");
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(GetHelpMapBaseUrl(folder.Path("pipe")), "");
}

TEST_F(BaseUrlFile, ThatIsADirectoryRaisesTheStreamsFailure) {
  EXPECT_THROW(GetHelpMapBaseUrl(folder.Path()), std::ios_base::failure);
}

// The mistake that callers have come to expect.
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
