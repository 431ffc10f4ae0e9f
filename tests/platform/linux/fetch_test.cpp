// Fetching, with the helper of this build and a server on loopback.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>

#include "platform/linux/linux_machine.h"
#include "tests/support/children.h"
#include "tests/support/http_server.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::HttpServer;
using testing::Response;

/// Far longer than any fetch here takes.
constexpr std::chrono::seconds kTimeout = 1min;

constexpr char kPicture[] = "\x89PNG\r\n\x1A\n";
constexpr char kHtml[] = "Content-Type: text/html\r\n";
constexpr char kLatin1[] = "Content-Type: text/html; charset=iso-8859-1\r\n";

/// "a text", packed by gzip.
constexpr char kPacked[] =
    "\x1F\x8B\x08\x00\x00\x00\x00\x00\x02\xFF\x4B\x54\x28\x49\xAD\x28\x01\x00"
    "\x83\x2A\x64\xA9\x06\x00\x00\x00";

std::string Redirect(const std::string& location) {
  return Response("302 Found", "Location: " + location + "\r\n", kPicture);
}

/// Header lines of this many KiB in all.
std::string Headers(int size) {
  std::string headers;
  for (int i = 0; i < size; ++i) {
    headers += "X: " + std::string(1024 - 5, 'x') + "\r\n";
  }
  return headers;
}

struct ServerRow {
  const char* sentence;
  std::string response;
  bool is_text;
};

class FromAServer : public ::testing::TestWithParam<ServerRow> {};

TEST_P(FromAServer, IsText) {
  setenv("no_proxy", "*", 1);
  const HttpServer server([](const std::string& path) {
    return path == "/page" ? GetParam().response
                           : Response("200 OK", "", "another text");
  });
  LinuxMachine machine(VELMO_TEST_HELPERS);
  EXPECT_EQ(machine.FetchText(server.Url("/page"), kTimeout),
            GetParam().is_text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FromAServer,
    ::testing::Values(
        ServerRow{"a page", Response("200 OK", kHtml, "<p>"), true},
        ServerRow{"an empty page", Response("200 OK", kHtml, ""), true},
        ServerRow{"no content", "HTTP/1.1 204 No Content\r\n\r\n", true},
        ServerRow{"a page without a length",
                  "HTTP/1.1 200 OK\r\n\r\nup to the end", true},
        ServerRow{"a page in chunks",
                  "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                  "1\r\n\xC3\r\n1\r\n\xA4\r\n0\r\n\r\n",
                  true},
        ServerRow{"a packed page",
                  Response("200 OK", "Content-Encoding: gzip\r\n",
                           std::string(kPacked, sizeof kPacked - 1)),
                  true},
        ServerRow{"Latin 1 that is declared",
                  Response("200 OK", kLatin1, "B\xE4r"), true},
        ServerRow{"UTF-8 that is declared as something unknown",
                  Response("200 OK", "Content-Type: a/b; charset=x-none\r\n",
                           "\xC3\xA4"),
                  true},
        ServerRow{"UTF-16 with a mark",
                  Response("200 OK", "", "\xFF\xFE\xE4\x00"s), true},
        ServerRow{"a redirect", Redirect("/other"), true},
        ServerRow{"long headers", Response("200 OK", Headers(200), "<p>"),
                  true},
        ServerRow{"headers that are too long",
                  Response("200 OK", Headers(280), "<p>"), false},
        ServerRow{"Latin 1 that is not declared",
                  Response("200 OK", kHtml, "B\xE4r"), false},
        ServerRow{"a picture",
                  Response("200 OK", "Content-Type: image/png\r\n", kPicture),
                  false},
        ServerRow{"a page that is not found",
                  Response("404 Not Found", kHtml, "<p>"), false},
        ServerRow{"a failing server",
                  Response("500 Internal Server Error", kHtml, "<p>"), false},
        ServerRow{"a redirect to nowhere", Response("302 Found", "", "<p>"),
                  false},
        ServerRow{"a redirect to itself", Redirect("/page"), false},
        ServerRow{"a redirect to a file", Redirect("file:///etc/passwd"),
                  false},
        ServerRow{"a redirect to another protocol",
                  Redirect("ftp://127.0.0.1/"), false},
        ServerRow{"a page that is cut short",
                  "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n<p>", false},
        ServerRow{"chunks that are cut short",
                  "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                  "3\r\n<p>\r\n",
                  false},
        ServerRow{"no response", "", false},
        ServerRow{"no HTTP", "hello", false},
        ServerRow{"a reset", HttpServer::kReset, false}),
    testing::SentenceOf());

class Fetching : public ::testing::Test {
 protected:
  ~Fetching() override { testing::EndChildren(); }
  void SetUp() override { setenv("no_proxy", "*", 1); }

  LinuxMachine& machine() { return machine_; }

 private:
  LinuxMachine machine_{VELMO_TEST_HELPERS};
};

/// "/3" redirects to "/2", and so on; "/0" is a text.
std::string CountDown(const std::string& path) {
  const int left = std::atoi(path.c_str() + 1);
  if (left == 0) return Response("200 OK", "", "a text");
  return Redirect("/" + std::to_string(left - 1));
}

TEST_F(Fetching, FollowsTwentyRedirectsAndNoMore) {
  const HttpServer server(&CountDown);
  EXPECT_TRUE(machine().FetchText(server.Url("/20"), kTimeout));
  EXPECT_FALSE(machine().FetchText(server.Url("/21"), kTimeout));
}

TEST_F(Fetching, TakesTheCharacterSetOfTheLastResponse) {
  const HttpServer server([](const std::string& path) {
    if (path == "/") return Response("200 OK", kHtml, "B\xE4r");
    return Response("302 Found", kLatin1 + "Location: /\r\n"s, "B\xE4r");
  });
  EXPECT_FALSE(machine().FetchText(server.Url("/first"), kTimeout));
}

/// A host that waits for a second: its helper has the server's silence by then,
/// and takes a minute to give up by itself. That it has been ended is what the
/// server waits for.
class Hasty : public ::testing::Test {
 protected:
  static bool Fetch(const std::string& url) {
    setenv("no_proxy", "*", 1);
    return LinuxMachine(VELMO_TEST_HELPERS).FetchText(url, 1s);
  }
};

struct SilenceRow {
  const char* sentence;
  std::string start;
};

class Silence : public Hasty,
                public ::testing::WithParamInterface<SilenceRow> {};

TEST_P(Silence, EndsAtTheHostsTimeout) {
  {
    const HttpServer server([](const std::string&) {
      return GetParam().start + std::string(HttpServer::kHang);
    });
    EXPECT_FALSE(Fetch(server.Url("/")));
  }
  testing::EndChildren();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Silence,
    ::testing::Values(SilenceRow{"before the response", ""},
                      SilenceRow{"inside the headers",
                                 "HTTP/1.1 200 OK\r\nContent-"},
                      SilenceRow{"inside the body",
                                 "HTTP/1.1 200 OK\r\n"
                                 "Content-Length: 9\r\n\r\n<p>"}),
    testing::SentenceOf());

TEST_F(Hasty, WaitsForNoSecretThatDoesNotCome) {
  {
    const testing::LoopbackServer silent(&testing::AwaitClose);
    EXPECT_FALSE(Fetch("https://127.0.0.1:" + std::to_string(silent.port())));
  }
  testing::EndChildren();
}

TEST_F(Fetching, FailsWhereNobodyListens) {
  std::string url;
  {
    const HttpServer server(&CountDown);
    url = server.Url("/0");
  }
  EXPECT_FALSE(machine().FetchText(url, kTimeout));
}

struct FileRow {
  const char* sentence;
  const char* name;
  bool is_text;
};

class FromAFile : public ::testing::TestWithParam<FileRow> {};

TEST_P(FromAFile, IsText) {
  const testing::TemporaryDirectory directory;
  const testing::WorkingDirectory working_directory(directory.path());
  directory.Write("page.html", "a text");
  directory.Write("a b", "a text");
  directory.Write("empty", "");
  directory.Write("picture", kPicture);
  ASSERT_EQ(mkfifo("pipe", S_IRWXU), 0);
  LinuxMachine machine(VELMO_TEST_HELPERS);
  EXPECT_EQ(
      machine.FetchText("file:///proc/self/cwd/"s + GetParam().name, kTimeout),
      GetParam().is_text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FromAFile,
    ::testing::Values(FileRow{"a page", "page.html", true},
                      FileRow{"a page with query and anchor", "page.html?a=1#b",
                              true},
                      FileRow{"an escaped name", "a%20b", true},
                      FileRow{"an empty file", "empty", true},
                      FileRow{"a picture", "picture", false},
                      FileRow{"nothing", "missing", false},
                      FileRow{"a pipe that nobody writes to", "pipe", false},
                      FileRow{"a directory", "", false}),
    testing::SentenceOf());

TEST_F(Fetching, RefusesWhatIsNoUrlOfAResource) {
  testing::TemporaryDirectory directory;
  directory.Write("page", "a text");
  const testing::WorkingDirectory working_directory(directory.path());
  const HttpServer server(&CountDown);
  const std::string url = server.Url("/0");
  EXPECT_TRUE(machine().FetchText(url, kTimeout));
  for (const std::string& bad :
       {url.substr(7), url + "/a b", url + "/\"\xC3\xA4", " " + url,
        "ftp" + url.substr(4), "page"s, "/etc/passwd"s, "-V"s, ""s}) {
    EXPECT_FALSE(machine().FetchText(bad, kTimeout)) << bad;
  }
}

}  // namespace
}  // namespace velmohelp
