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
    {.sentence = "an http URL",
     .id = "http://a b/",
     .normalised = "http://a b/"},
    {.sentence = "an https URL",
     .id = "https://host/page",
     .normalised = "https://host/page"},
    {.sentence = "a file URL", .id = "file:///x", .normalised = "file:///x"},
    {.sentence = "a URL of nothing but its scheme",
     .id = "http://",
     .normalised = "http://"},
    {.sentence = "a page with html",
     .id = "page.html",
     .normalised = "page.html"},
    {.sentence = "a page with htm", .id = "page.htm", .normalised = "page.htm"},
    {.sentence = "an HTML page with bytes that are not allowed",
     .id = "a/b c#d.html",
     .normalised = "a/b c#d.html"},
    {.sentence = "html alone", .id = ".html", .normalised = ".html"},
    {.sentence = "htm alone", .id = ".htm", .normalised = ".htm"},
};

const Row kChanged[] = {
    {.sentence = "an empty id", .id = "", .normalised = ".html"},
    {.sentence = "a bare id", .id = "intro", .normalised = "intro.html"},
    {.sentence = "an id with all kinds of allowed bytes",
     .id = "a-b_c.d",
     .normalised = "a-b_c.d.html"},
    {.sentence = "an id that ends in a dot",
     .id = "x.",
     .normalised = "x..html"},
    {.sentence = "an id with another extension",
     .id = "x.txt",
     .normalised = "x.txt.html"},
    {.sentence = "an extension in another letter case",
     .id = "page.HTML",
     .normalised = "page.HTML.html"},
    {.sentence = "an anchor after the extension",
     .id = "page.html#top",
     .normalised = "page.html_top.html"},
    {.sentence = "a query after the extension",
     .id = "page.html?x=1",
     .normalised = "page.html_x_1.html"},
    {.sentence = "a space after the extension",
     .id = "page.html ",
     .normalised = "page.html_.html"},
    {.sentence = "html without its dot",
     .id = "html",
     .normalised = "html.html"},
    {.sentence = "an underscore for each byte of a character",
     .id = "my page/\xC3\xA4",
     .normalised = "my_page___.html"},
    {.sentence = "a leading space before a URL",
     .id = " http://x",
     .normalised = "_http___x.html"},
    {.sentence = "a URL in another letter case",
     .id = "HTTP://x",
     .normalised = "HTTP___x.html"},
    {.sentence = "another scheme",
     .id = "mailto:x",
     .normalised = "mailto_x.html"},
    {.sentence = "a scheme cut short",
     .id = "http:/x",
     .normalised = "http__x.html"},
    {.sentence = "a NUL byte", .id = "a\0b"s, .normalised = "a_b.html"},
    {.sentence = "nothing but bytes that are not allowed",
     .id = "///",
     .normalised = "___.html"},
    {.sentence = "a path upwards",
     .id = "../../x",
     .normalised = ".._.._x.html"},
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

TEST_P(Url, IsRecognisedByItsStart) {
  EXPECT_EQ(isUrl(GetParam().text), GetParam().is_url);
  EXPECT_EQ(ITEMInternal::isUrl(GetParam().text), GetParam().is_url);
}

constexpr UrlRow kUrls[] = {
    {.sentence = "http is a URL", .text = "http://x", .is_url = true},
    {.sentence = "https is a URL", .text = "https://host/page", .is_url = true},
    {.sentence = "file is a URL", .text = "file:///x", .is_url = true},
    {.sentence = "a scheme alone is a URL", .text = "file://", .is_url = true},
    {.sentence = "http twice is a URL",
     .text = "http://http://",
     .is_url = true},
    {.sentence = "an empty text is not a URL", .text = "", .is_url = false},
    {.sentence = "mailto is not a URL", .text = "mailto:x", .is_url = false},
    {.sentence = "ftp is not a URL", .text = "ftp://x", .is_url = false},
    {.sentence = "a URL with a capital letter is not recognised",
     .text = "Http://x",
     .is_url = false},
    {.sentence = "a URL after a space is not recognised",
     .text = " http://x",
     .is_url = false},
    {.sentence = "a prefix elsewhere does not count",
     .text = "x http://x https://x",
     .is_url = false},
    {.sentence = "one slash is not enough", .text = "http:/x", .is_url = false},
    {.sentence = "a scheme without slashes is not a URL",
     .text = "file:",
     .is_url = false},
};

INSTANTIATE_TEST_SUITE_P(AText, Url, ::testing::ValuesIn(kUrls), SentenceOf());

TEST(HtmlPage, IsRecognisedByItsEnd) {
  for (const char* name : {"a.html", "a.htm", ".html", ".htm", "a.htm.html"}) {
    EXPECT_TRUE(isHTMLPage(name)) << name;
  }
  for (const char* name : {"", "html", "htm", "a.HTML", "a.Htm", "a.html#b",
                           "a.htm?b", "a.htmlx", "a.html ", "a.xhtml", ".ht"}) {
    EXPECT_FALSE(isHTMLPage(name)) << name;
  }
}

void ExpectAsTheOracle(const std::string& id) {
  std::string normalised = id;
  NormalizePageID(normalised);
  EXPECT_EQ(normalised, OraclePageId(id));
}

TEST(PageIdOfAnyByte, IsAsTheOracle) {
  for (const char byte : AllBytes()) ExpectAsTheOracle(std::string(1, byte));
}

TEST(PageIdOfRandomBytes, IsAsTheOracle) {
  RandomText any(AllBytes());
  RandomText near("htpsfile:/.m# ");
  for (int i = 0; i < 3000; ++i) {
    ExpectAsTheOracle(any.Next(any.Below(40)));
    ExpectAsTheOracle(near.Next(near.Below(9)) + ".htm");
    ExpectAsTheOracle("http:/" + near.Next(near.Below(9)));
  }
}

TEST(PageIdOfMegabytes, IsNormalisedInOnePass) {
  std::string id(8'000'000, '/');
  NormalizePageID(id);
  EXPECT_EQ(id, std::string(8'000'000, '_') + ".html");
}

}  // namespace
}  // namespace velmohelp::testing
