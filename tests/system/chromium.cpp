#include "tests/system/chromium.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <optional>

#include "tests/support/loopback_server.h"

namespace velmohelp::testing {
namespace {

constexpr char kProgram[] = "/usr/bin/chromium";
constexpr char kProfile[] = "{bin}/profile";

/// --no-sandbox: it has none for root. The others keep it from everything but
/// showing pages.
constexpr char kOptions[] =
    " --headless --no-sandbox --disable-gpu --disable-dev-shm-usage"
    " --disable-quic --no-first-run --disable-background-networking"
    " --disable-component-update --disable-sync"
    " \"--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1\""
    " --remote-debugging-port=0 \"--user-data-dir=";

/// A minute, in looks.
constexpr int kLooks = 1200;
constexpr int kMillisecondsBetweenLooks = 50;

/// Asks a server that closes no connection by itself.
std::string Get(int port, const std::string& path) {
  const int connection = ConnectToLoopback(port);
  SendAll(connection, "GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
  const std::string head = ReadRequest(connection);
  const std::string length = "Content-Length:";
  const std::size_t at = head.find(length);
  std::string body = head.substr(std::min(head.find("\r\n\r\n"), head.size()));
  if (at != std::string::npos) {
    const std::size_t whole = std::stoul(head.substr(at + length.size())) + 4;
    const std::size_t had = body.size();
    body.resize(std::max(whole, had));
    recv(connection, body.data() + had, body.size() - had, MSG_WAITALL);
  }
  close(connection);
  return body;
}

/// The file's first line, once the browser listens.
int DebuggingPort(const HelpWorld& world) {
  const std::string text =
      FileText(world.Expanded(std::string(kProfile) + "/DevToolsActivePort"));
  return text.find('\n') == std::string::npos ? 0 : std::stoi(text);
}

/// In each target's description the title comes before the URL.
std::optional<std::string> TitleIn(const std::string& targets,
                                   const std::string& url) {
  const std::string title = "\"title\": \"";
  const std::size_t at = targets.find("\"url\": \"" + url + "\"");
  if (at == std::string::npos) return std::nullopt;
  const std::size_t start = targets.rfind(title, at) + title.size();
  return targets.substr(start, targets.find('"', start) - start);
}

}  // namespace

bool IsChromiumInstalled() { return access(kProgram, X_OK) == 0; }

void InstallChromium(HelpWorld& world) {
  world.InstallBrowser(std::string(kProgram) + kOptions + kProfile + "\" %u");
  world.Write("{bin}/temporary/empty", "");
  Words& environment = world.start().environment;
  environment.push_back(world.Expanded("TMPDIR={bin}/temporary"));
  // It has much to say of the desktop that is not there.
  world.start().preparation = [] {
    return dup2(open("/dev/null", O_WRONLY), STDERR_FILENO) == STDERR_FILENO;
  };
}

void AwaitPage(const HelpWorld& world, const std::string& url,
               const std::string& title) {
  std::string targets;
  for (int looks = kLooks; looks > 0; --looks) {
    const int port = DebuggingPort(world);
    targets = port == 0 ? "" : Get(port, "/json/list");
    if (TitleIn(targets, url) == title) return;
    poll(nullptr, 0, kMillisecondsBetweenLooks);
  }
  ADD_FAILURE() << "no page " << title << " at " << url << " in " << targets;
}

}  // namespace velmohelp::testing
