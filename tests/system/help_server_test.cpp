// The help server: which of its responses show a page, over http, https and
// through a proxy.
#include <sys/resource.h>
#include <sys/wait.h>

#include "tests/support/children.h"
#include "tests/system/own_machine.h"
#include "tests/system/routes.h"
#include "tests/system/tunnels.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;

constexpr char kShown[] = "0";
constexpr char kNowhere[] = "7";
constexpr char kHost[] = "help.example";

/// A server over http and https whose name and authority are known to this
/// machine alone; no viewer, so that a page that is not there is not shown.
class AServer : public ::testing::Test {
 protected:
  AServer() {
    Apply({Online(), NoViewer()}, world_);
    Put("hosts", "127.0.0.1 localhost "s + kHost + " other.example\n");
    Put("resolv.conf", "");
    Put("velmo/other.conf", "");
    Put("Library/other", "");
    Put("ssl/certs/ca-certificates.crt", authority_.Pem());
    world_.start().preparation = [folder = Folder()] {
      return EnterOwnFiles(folder);
    };
  }

  void SetUp() override {
    if (!InACopy([&] { return EnterOwnFiles(Folder()); })) {
      GTEST_SKIP() << "this system lets the test make no machine of its own";
    }
  }

  std::string Folder() const { return world_.Expanded("{bin}/machine"); }
  void Put(const std::string& name, const std::string& text) const {
    world_.Write(Folder() + "/" + name, text);
  }
  int port() const { return http_.port(); }

  /// What the server sends for a request for the page "intro".
  void Answer(const std::string& response) { response_ = response; }

  /// Displays the page of the server at a URL; returns the code.
  std::string Display(const std::string& url) {
    world_.config().base_url = url;
    world_.Configure();
    if (!world_.Initialise()) return "not initialised";
    return world_.Ask(testing::Display("intro"));
  }
  std::string DisplayOver(const std::string& scheme, int server_port,
                          const std::string& host = kHost) {
    return Display(scheme + "://" + host + ":" + std::to_string(server_port) +
                   "/");
  }

  const Authority authority_;
  HelpWorld world_;

 private:
  std::string ResponseFor(const std::string& path) const {
    if (path.ends_with("/intro.html")) return response_;
    return path == "/other" ? Response("200 OK", "", "a text")
                            : Response("404 Not Found", "", "");
  }

  std::string response_ = Response("200 OK", "", "<p>");
  HttpServer http_{
      [this](const std::string& path) { return ResponseFor(path); }};
};

struct Answered {
  const char* sentence;
  std::string response;
  const char* code;
};

void PrintTo(const Answered& row, std::ostream* out) { *out << row.sentence; }

class AnAnswer : public AServer,
                 public ::testing::WithParamInterface<Answered> {};

TEST_P(AnAnswer, IsTakenOverHttpAndHttps) {
  const TlsFront https(authority_.Issue(kHost), port());
  Answer(GetParam().response);
  for (const auto& [scheme, at] :
       {std::pair("http", port()), std::pair("https", https.port())}) {
    EXPECT_EQ(DisplayOver(scheme, at), GetParam().code) << scheme;
    const Words shown = world_.Started();
    EXPECT_EQ(shown.empty(), GetParam().code == std::string(kNowhere));
    if (shown.empty()) continue;
    EXPECT_EQ(shown, world_.Expanded(Browser(world_.config().base_url +
                                             "{folder}/intro.html")));
  }
}

std::string Typed(const std::string& charset, const std::string& body) {
  return Response("200 OK", "Content-Type: text/html" + charset + "\r\n", body);
}

std::string Redirect(const std::string& location) {
  return Response("302 Found", "Location: " + location + "\r\n", "");
}

constexpr char kChunked[] =
    "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\n<p>\r\n";
constexpr char kCut[] = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n<p>";

/// "a text", packed by gzip.
constexpr char kPacked[] =
    "\x1F\x8B\x08\x00\x00\x00\x00\x00\x02\xFF\x4B\x54\x28\x49\xAD\x28\x01\x00"
    "\x83\x2A\x64\xA9\x06\x00\x00\x00";

std::vector<Answered> Answers() {
  return {
      {"a page", Response("200 OK", "", "<p>"), kShown},
      {"no content", "HTTP/1.1 204 No Content\r\n\r\n", kShown},
      {"not found", Response("404 Not Found", "", "<p>"), kNowhere},
      {"a failure", Response("500 Internal Server Error", "", ""), kNowhere},
      {"a redirect", Redirect("/other"), kShown},
      {"a redirect to nowhere", Redirect("/nowhere"), kNowhere},
      {"a redirect to itself", Redirect("intro.html"), kNowhere},
      {"a redirect to a file", Redirect("file:///etc/passwd"), kNowhere},
      {"a reset", HttpServer::kReset, kNowhere},
      {"a reset inside the body", kCut + std::string(HttpServer::kReset),
       kNowhere},
      {"an end inside the body", kCut, kNowhere},
      {"packed",
       Response("200 OK", "Content-Encoding: gzip\r\n",
                std::string(kPacked, sizeof kPacked - 1)),
       kShown},
      {"said to be packed",
       Response("200 OK", "Content-Encoding: gzip\r\n", "a text"), kNowhere},
      {"in chunks", kChunked + "0\r\n\r\n"s, kShown},
      {"in chunks without the last", kChunked, kNowhere},
      {"UTF 8", Typed("", "\xC3\xA4"), kShown},
      {"UTF 8 against its declaration", Typed("; charset=us-ascii", "\xC3\xA4"),
       kShown},
      {"Latin 1 that is declared", Typed("; charset=iso-8859-1", "\xE4"),
       kShown},
      {"Latin 1 that is not declared", Typed("", "\xE4"), kNowhere},
      {"Latin 1 that is declared as UTF 8", Typed("; charset=utf-8", "\xE4"),
       kNowhere},
      {"Shift JIS in quotes", Typed("; charset=\"Shift_JIS\"", "\x83\x65"),
       kShown},
      {"a character set that nobody knows", Typed("; charset=x-none", "\xE4"),
       kNowhere},
      {"UTF 16 with a mark", Typed("", "\xFF\xFE\xE4\x00"s), kShown},
      {"UTF 16 that is declared", Typed("; charset=utf-16be", "\x00\xE4"s),
       kShown},
      {"half a character", Typed("", "\xC3"), kNowhere},
      {"a picture", Response("200 OK", "", "\x89PNG\r\n\x1A\n"), kNowhere},
  };
}

INSTANTIATE_TEST_SUITE_P(Rows, AnAnswer, ::testing::ValuesIn(Answers()),
                         SentenceOf());

TEST_F(AServer, ShowsNoPageWithoutTls) {
  const LoopbackServer plain([](int connection) {
    SendAll(connection, Response("400 Bad Request", "", ""));
  });
  EXPECT_EQ(DisplayOver("https", plain.port()), kNowhere);
}

TEST_F(AServer, ShowsNoPageWithAnExpiredCertificate) {
  const TlsFront https(authority_.Issue(kHost, {-3, -1}), port());
  EXPECT_EQ(DisplayOver("https", https.port()), kNowhere);
}

TEST_F(AServer, ShowsNoPageWithACertificateOfTheFuture) {
  const TlsFront https(authority_.Issue(kHost, {1, 3}), port());
  EXPECT_EQ(DisplayOver("https", https.port()), kNowhere);
}

TEST_F(AServer, ShowsNoPageUnderAnotherName) {
  const TlsFront https(authority_.Issue(kHost), port());
  EXPECT_EQ(DisplayOver("https", https.port(), "other.example"), kNowhere);
  EXPECT_EQ(DisplayOver("https", https.port(), "127.0.0.1"), kNowhere);
  EXPECT_EQ(DisplayOver("https", https.port()), kShown);
}

TEST_F(AServer, ShowsNoPageWhenNobodyVouchesForIt) {
  const TlsFront https(Authority().Issue(kHost), port());
  EXPECT_EQ(DisplayOver("https", https.port()), kNowhere);
}

/// A page that leads from a server that can be trusted to one that cannot.
TEST_F(AServer, LeadsToNoServerThatNobodyVouchesFor) {
  const TlsFront https(authority_.Issue(kHost), port());
  const TlsFront stranger(Authority().Issue(kHost), port());
  Answer(Redirect("https://"s + kHost + ":" + std::to_string(stranger.port()) +
                  "/other"));
  EXPECT_EQ(DisplayOver("https", https.port()), kNowhere);
  Answer(Redirect("https://"s + kHost + ":" + std::to_string(https.port()) +
                  "/other"));
  EXPECT_EQ(DisplayOver("https", https.port()), kShown);
}

/// What a helper of the host may ever have needed, far below the page's size.
constexpr long kHelperKilobytes = VELMO_TEST_SANITIZED ? 400000 : 50000;

TEST_F(AServer, ShowsAPageOfHundredMegabytesThatNobodyKeeps) {
  Answer("HTTP/1.1 200 OK\r\nContent-Length: " +
         std::to_string(HttpServer::kLongTextSize) + "\r\n\r\n" +
         HttpServer::kLongText);
  EXPECT_EQ(DisplayOver("http", port()), kShown);
  EXPECT_NE(world_.Started(), Nothing());
  for (const pid_t program : world_.Programs()) {
    rusage usage = {};
    wait4(program, nullptr, 0, &usage);
    EXPECT_LT(usage.ru_maxrss, kHelperKilobytes);
  }
}

/// The user's proxy is the one that the environment names.
class AProxy : public AServer {
 protected:
  void Use(const std::string& variable, int proxy_port) {
    Words& environment = world_.start().environment;
    std::erase(environment, "no_proxy=*");
    environment.push_back(variable +
                          "=http://127.0.0.1:" + std::to_string(proxy_port));
  }
};

TEST_F(AProxy, GetsPages) {
  const HttpServer proxy([&](const std::string& url) {
    return url == world_.Expanded("http://far.example/{folder}/intro.html")
               ? Response("200 OK", "", "<p>")
               : Response("404 Not Found", "", "");
  });
  Use("http_proxy", proxy.port());
  EXPECT_EQ(Display("http://far.example/"), kShown);
  EXPECT_EQ(Display("http://farther.example/"), kNowhere);
}

TEST_F(AProxy, LeadsToAServerThatSomebodyVouchesFor) {
  const TlsFront https(authority_.Issue("far.example"), port());
  const LoopbackServer proxy(TunnelTo(https.port()));
  Use("https_proxy", proxy.port());
  EXPECT_EQ(Display("https://far.example/"), kShown);
  EXPECT_EQ(Display("https://farther.example/"), kNowhere);
}

/// The server could be reached without it.
TEST_F(AProxy, MayRefuse) {
  const TlsFront https(authority_.Issue(kHost), port());
  const LoopbackServer proxy(TunnelTo(0));
  Use("https_proxy", proxy.port());
  EXPECT_EQ(DisplayOver("https", https.port()), kNowhere);
}

TEST_F(AProxy, MayBeGone) {
  int free_port = 0;
  { free_port = LoopbackServer(TunnelTo(0)).port(); }
  Use("http_proxy", free_port);
  EXPECT_EQ(DisplayOver("http", port()), kNowhere);
}

}  // namespace
}  // namespace velmohelp::testing
