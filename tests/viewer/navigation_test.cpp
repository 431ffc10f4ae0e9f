#include "viewer/web/navigation.h"

#include "tests/support/sentence.h"
#include "viewer/web/address.h"

namespace viewer {
namespace {

using velmohelp::testing::SentenceOf;

struct Row {
  const char* sentence;
  PageKind kind;
  Navigation navigation;
  Verdict verdict;
};

class NavigationTo : public ::testing::TestWithParam<Row> {};

TEST_P(NavigationTo, AnAddress) {
  EXPECT_EQ(Judge(GetParam().kind, SiteOf("https://help.example/a"),
                  GetParam().navigation),
            GetParam().verdict);
}

const Row kRows[] = {
    {"a local page leads to local pages",
     PageKind::kLocal,
     {.uri = "velmohelp://installed/a.html"},
     Verdict::kFollow},
    {"a click on a link to a site opens the browser",
     PageKind::kLocal,
     {.uri = "https://x.example/", .is_link_click = true},
     Verdict::kBrowser},
    {"a script leads to no site",
     PageKind::kLocal,
     {.uri = "https://x.example/"},
     Verdict::kRefuse},
    {"a redirect of a local page leads to no site",
     PageKind::kLocal,
     {.uri = "https://x.example/", .is_redirect = true},
     Verdict::kRefuse},
    {"no page opens a file",
     PageKind::kLocal,
     {.uri = "file:///etc/passwd", .is_link_click = true},
     Verdict::kRefuse},
    {"no page opens a mail program",
     PageKind::kLocal,
     {.uri = "mailto:a@b", .is_link_click = true},
     Verdict::kRefuse},
    {"no page opens another program",
     PageKind::kOnline,
     {.uri = "steam://run/1", .is_link_click = true},
     Verdict::kRefuse},
    {"no page opens data as a page",
     PageKind::kLocal,
     {.uri = "data:text/html,x", .is_link_click = true},
     Verdict::kRefuse},
    {"an online page leads on within its site",
     PageKind::kOnline,
     {.uri = "https://help.example/b"},
     Verdict::kFollow},
    {"a port makes another site",
     PageKind::kOnline,
     {.uri = "https://help.example:8443/b"},
     Verdict::kRefuse},
    {"so does the scheme",
     PageKind::kOnline,
     {.uri = "http://help.example/b"},
     Verdict::kRefuse},
    {"a server may redirect",
     PageKind::kOnline,
     {.uri = "https://x.example/", .is_redirect = true},
     Verdict::kFollow},
    {"a click on a link to another site opens the browser",
     PageKind::kOnline,
     {.uri = "https://x.example/", .is_link_click = true},
     Verdict::kBrowser},
    {"an online page reaches no local page",
     PageKind::kOnline,
     {.uri = "velmohelp://installed/a.html", .is_link_click = true},
     Verdict::kRefuse},
};

INSTANTIATE_TEST_SUITE_P(, NavigationTo, ::testing::ValuesIn(kRows),
                         SentenceOf());

}  // namespace
}  // namespace viewer
