// velmohelp-browser: how the user's default browser is started with a URL. See
// protocol.h.
#include <glib.h>

#include <string>

#include "platform/linux/helpers/answer.h"
#include "platform/linux/helpers/browser_portal.h"
#include "platform/linux/helpers/default_browser.h"
#include "platform/linux/helpers/protocol.h"
#include "util/uri.h"

namespace velmohelp {
namespace {

bool IsAbsoluteUri(const char* text) {
  return IsUri(text) && g_uri_is_valid(text, G_URI_FLAGS_NONE, nullptr) != 0;
}

std::string Record(const std::string& text) { return text + '\0'; }

std::string StartAnswer(const std::vector<std::string>& words) {
  std::string answer = Record(VELMO_BROWSER_START);
  answer += Record(std::to_string(words.size()));
  for (const std::string& word : words) answer += Record(word);
  return answer;
}

/// "" when the URL cannot be opened.
std::string AnswerFor(const std::string& url) {
  if (IsInSandbox()) {
    return OpenThroughPortal(url) ? Record(VELMO_BROWSER_OPENED) : "";
  }
  const auto words = DefaultBrowserCommand(url);
  return words.empty() ? "" : StartAnswer(words);
}

/// The host's terminal is not the place for what a desktop's registry has to
/// say about itself.
GLogWriterOutput DropMessage(GLogLevelFlags, const GLogField*, gsize,
                             gpointer) {
  return G_LOG_WRITER_HANDLED;
}

int Main(int argc, char* argv[]) {
  g_log_set_writer_func(&DropMessage, nullptr, nullptr);
  if (argc != 2 || !IsAbsoluteUri(argv[1])) return 1;
  const std::string answer = AnswerFor(argv[1]);
  return !answer.empty() && GiveAnswer(answer) ? 0 : 1;
}

}  // namespace
}  // namespace velmohelp

int main(int argc, char* argv[]) { return velmohelp::Main(argc, argv); }
