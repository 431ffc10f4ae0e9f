// velmohelp-browser: gives the argument vector that opens a URL in the user's
// default browser, or in a sandbox opens it or says whether the desktop would.
// See protocol.h.
#include <glib.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <string_view>

#include "platform/linux/answer.h"
#include "platform/linux/helpers/browser_portal.h"
#include "platform/linux/helpers/default_browser.h"
#include "platform/linux/protocol.h"
#include "util/uri.h"

namespace velmohelp {
namespace {

constexpr std::string_view kFind = VELMO_BROWSER_FIND;

/// Below the library's own timeout for this program.
constexpr std::chrono::seconds kAnswerTimeout(8);
/// A dialog in which nobody chooses is closed after this time.
constexpr std::chrono::minutes kChoiceTimeout(10);

bool IsAbsoluteUri(const char* text) {
  return IsUri(text) && g_uri_is_valid(text, G_URI_FLAGS_NONE, nullptr) != 0;
}

std::string Record(const std::string& text) { return text + '\0'; }

std::string StartRecords(const std::vector<std::string>& words) {
  std::string answer = Record(VELMO_BROWSER_START);
  answer += Record(std::to_string(words.size()));
  for (const std::string& word : words) answer += Record(word);
  return answer;
}

/// answer: "" for a URL that nothing opens. False when nobody reads the pipe.
bool GiveAnswer(const std::string& answer) {
  return velmo_give_answer(answer.data(), answer.size()) != 0;
}

/// "" when no program opens the URL.
std::string StartAnswer(const std::string& url) {
  const auto words = DefaultBrowserCommand(url);
  return words.empty() ? "" : StartRecords(words);
}

/// The library has its answer in time, and 0 for the host means that something
/// opened. While the person is still choosing an application nothing has, and
/// the answer is empty. The request goes on, so that the choice still counts.
bool OpenFromSandbox(const std::string& url) {
  PortalRequest request(url);
  const PortalOutcome outcome = request.Await(kAnswerTimeout);
  const bool opened = outcome == PortalOutcome::kOpened;
  const bool given = GiveAnswer(opened ? Record(VELMO_BROWSER_OPENED) : "");
  if (outcome == PortalOutcome::kPending) {
    alarm(0);
    request.Await(kChoiceTimeout);
  }
  return given && opened;
}

bool FindFromSandbox(const std::string& url) {
  return GiveAnswer(PortalTakes(url) ? Record(VELMO_BROWSER_OPENED) : "");
}

bool Answer(const char* url, bool find) {
  if (!IsAbsoluteUri(url)) return GiveAnswer("");
  if (!IsInSandbox()) return GiveAnswer(StartAnswer(url));
  return find ? FindFromSandbox(url) : OpenFromSandbox(url);
}

/// What a desktop's registry logs must not appear in the host's terminal.
GLogWriterOutput DropMessage(GLogLevelFlags, const GLogField*, gsize,
                             gpointer) {
  return G_LOG_WRITER_HANDLED;
}

int Main(int argc, char* argv[]) {
  g_log_set_writer_func(&DropMessage, nullptr, nullptr);
  if (argc == 2 && std::string_view(argv[1]) == VELMO_BROWSER_DESCRIBE) {
    alarm(static_cast<unsigned>(kAnswerTimeout.count()));
    const std::string text = DefaultBrowserDescription();
    return velmo_write_all(text.data(), text.size()) != 0 ? 0 : 1;
  }
  const bool find = argc == 3 && std::string_view(argv[1]) == kFind;
  if (argc != 2 && !find) return 1;
  return Answer(argv[argc - 1], find) ? 0 : 1;
}

}  // namespace
}  // namespace velmohelp

int main(int argc, char* argv[]) { return velmohelp::Main(argc, argv); }
