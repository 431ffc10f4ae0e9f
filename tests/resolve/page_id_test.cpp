#include <gtest/gtest.h>
#include <velmohelp/resolve.h>

#include "tests/support/page_id_oracle.h"
#include "tests/support/random_text.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;

struct Row {
  const char* sentence;
  std::string id;
  std::string normalised;
};

class PageId : public ::testing::TestWithParam<Row> {};

TEST_P(PageId, IsNormalised) {
  std::string id = GetParam().id;
  NormalizePageID(id);
  EXPECT_EQ(id, GetParam().normalised);
}

const Row kKept[] = {
    {"an http URL", "http://a b/", "http://a b/"},
    {"an https URL", "https://host/page", "https://host/page"},
    {"a file URL", "file:///x", "file:///x"},
    {"a URL of nothing but its scheme", "http://", "http://"},
    {"a page with html", "page.html", "page.html"},
    {"a page with htm", "page.htm", "page.htm"},
    {"an HTML page with bytes that are not allowed", "a/b c#d.html",
     "a/b c#d.html"},
    {"html alone", ".html", ".html"},
    {"htm alone", ".htm", ".htm"},
};

const Row kChanged[] = {
    {"an empty id", "", ".html"},
    {"a bare id", "intro", "intro.html"},
    {"an id with all kinds of allowed bytes", "a-b_c.d", "a-b_c.d.html"},
    {"an id that ends in a full stop", "x.", "x..html"},
    {"an id with another extension", "x.txt", "x.txt.html"},
    {"an extension in another letter case", "page.HTML", "page.HTML.html"},
    {"an anchor behind the extension", "page.html#top", "page.html_top.html"},
    {"a query behind the extension", "page.html?x=1", "page.html_x_1.html"},
    {"a blank behind the extension", "page.html ", "page.html_.html"},
    {"html without its full stop", "html", "html.html"},
    {"an underscore for each byte of a character", "my page/\xC3\xA4",
     "my_page___.html"},
    {"a leading blank before a URL", " http://x", "_http___x.html"},
    {"a URL in another letter case", "HTTP://x", "HTTP___x.html"},
    {"another scheme", "mailto:x", "mailto_x.html"},
    {"a scheme cut short", "http:/x", "http__x.html"},
    {"a NUL byte", "a\0b"s, "a_b.html"},
    {"nothing but bytes that are not allowed", "///", "___.html"},
    {"a path upwards", "../../x", ".._.._x.html"},
};

INSTANTIATE_TEST_SUITE_P(Kept, PageId, ::testing::ValuesIn(kKept),
                         SentenceOf());
INSTANTIATE_TEST_SUITE_P(Changed, PageId, ::testing::ValuesIn(kChanged),
                         SentenceOf());

struct UrlRow {
  const char* sentence;
  const char* text;
  bool is_url;
};

class Url : public ::testing::TestWithParam<UrlRow> {};

TEST_P(Url, IsToldByItsStart) {
  EXPECT_EQ(isUrl(GetParam().text), GetParam().is_url);
  EXPECT_EQ(ITEMInternal::isUrl(GetParam().text), GetParam().is_url);
}

constexpr UrlRow kUrls[] = {
    {"http is one", "http://x", true},
    {"https is one", "https://host/page", true},
    {"file is one", "file:///x", true},
    {"a scheme alone is one", "file://", true},
    {"http twice is one", "http://http://", true},
    {"an empty text is none", "", false},
    {"mailto is none", "mailto:x", false},
    {"ftp is none", "ftp://x", false},
    {"a capital letter makes it none", "Http://x", false},
    {"a leading blank makes it none", " http://x", false},
    {"a prefix elsewhere does not count", "x http://x https://x", false},
    {"one slash is too few", "http:/x", false},
    {"a scheme without slashes is none", "file:", false},
};

INSTANTIATE_TEST_SUITE_P(AText, Url, ::testing::ValuesIn(kUrls), SentenceOf());

TEST(HtmlPage, IsToldByItsEnd) {
  for (const char* name : {"a.html", "a.htm", ".html", ".htm", "a.htm.html"}) {
    EXPECT_TRUE(isHTMLPage(name)) << name;
  }
  for (const char* name : {"", "html", "htm", "a.HTML", "a.Htm", "a.html#b",
                           "a.htm?b", "a.htmlx", "a.html ", "a.xhtml", ".ht"}) {
    EXPECT_FALSE(isHTMLPage(name)) << name;
  }
}

void ExpectAsTheSlowRule(const std::string& id) {
  std::string normalised = id;
  NormalizePageID(normalised);
  EXPECT_EQ(normalised, OraclePageId(id));
}

TEST(PageIdOfAnyByte, IsAsTheSlowRuleHasIt) {
  for (const char byte : AllBytes()) ExpectAsTheSlowRule(std::string(1, byte));
}

TEST(PageIdOfRandomBytes, IsAsTheSlowRuleHasIt) {
  RandomText any(AllBytes());
  RandomText near("htpsfile:/.m# ");
  for (int i = 0; i < 3000; ++i) {
    ExpectAsTheSlowRule(any.Next(any.Below(40)));
    ExpectAsTheSlowRule(near.Next(near.Below(9)) + ".htm");
    ExpectAsTheSlowRule("http:/" + near.Next(near.Below(9)));
  }
}

TEST(PageIdOfMegabytes, IsNormalisedInOneGo) {
  std::string id(8'000'000, '/');
  NormalizePageID(id);
  EXPECT_EQ(id, std::string(8'000'000, '_') + ".html");
}

}  // namespace
}  // namespace velmohelp::testing
