#include "client/request.h"

#include <charconv>
#include <concepts>
#include <exception>
#include <memory>
#include <type_traits>

#include "client/client_variables.h"

namespace velmohelp {
namespace {

/// The first word. Another number for another meaning of the words: an update
/// replaces the helper program while hosts run that have the library before it.
constexpr char kVersion[] = "1.5.0-1";

/// Appends values, in the order in which Reader reads them.
class Writer {
 public:
  explicit Writer(Arguments& words) : words_(words) {}

  void operator()(const std::string& text) { words_.push_back(text); }
  void operator()(std::integral auto number) {
    words_.push_back(std::to_string(number));
  }

 private:
  Arguments& words_;
};

/// Reads values; "" and 0 after the last word.
class Reader {
 public:
  explicit Reader(const Arguments& words) : words_(words) {}

  void operator()(std::string& text) { text = Next(); }
  void operator()(std::integral auto& number) {
    const std::string text = Next();
    long long value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    number = static_cast<std::remove_reference_t<decltype(number)>>(value);
  }

 private:
  std::string Next() { return next_ < words_.size() ? words_[next_++] : ""; }

  const Arguments& words_;
  std::size_t next_ = 0;
};

/// What a request can depend on: all but the help map, which is read anew.
template <typename Visit>
void VisitState(ClientVariables& state, Visit& visit) {
  visit(state.init_status);
  visit(state.product_id);
  visit(state.locale);
  visit(state.config_id);
  visit(state.base_url);
  visit(state.help_path_count);
  visit(state.app_id);
  visit(state.publisher_id);
  visit(state.default_app_id);
  visit(state.default_publisher_id);
  visit(state.app_id_is_null);
  visit(state.preference_file);
  visit(state.downloaded_content);
  visit(state.downloaded_config);
  visit(state.help_app_path);
  visit(state.viewer_choice);
  visit(state.is_online);
  visit(state.query_is_raw);
  for (auto& row : state.help_paths) {
    visit(row[0]);
    visit(row[1]);
  }
}

/// A null text is not an empty one.
std::string WordOf(const char* text) {
  return text == nullptr ? "null" : std::string("=") + text;
}

/// Valid as long as word.
const char* TextOf(const std::string& word) {
  return word.starts_with('=') ? word.c_str() + 1 : nullptr;
}

std::uint32_t FailureOf(RequestKind kind) {
  switch (kind) {
    case RequestKind::kDisplay:
      return kDisplayUnexpectedResult;
    case RequestKind::kUrl:
      return kOpenUrlUnexpectedResult;
    case RequestKind::kSearch:
      break;
  }
  return kSearchLaunchFailure;
}

std::uint32_t Make(const Client& client, const Request& request) {
  switch (request.kind) {
    case RequestKind::kDisplay:
      return DisplayPage(client, request.first);
    case RequestKind::kUrl:
      return OpenUrl(client, request.first);
    case RequestKind::kSearch:
      break;
  }
  return SearchHelp(client, request.first, request.second, request.third);
}

std::uint32_t MakeOrFail(const Client& client, const Request& request) {
  try {
    return Make(client, request);
  } catch (const std::exception&) {
    return FailureOf(request.kind);
  }
}

}  // namespace

Arguments WordsOf(const ClientState& state, const Request& request) {
  const auto copy = std::make_unique<ClientVariables>(state);
  Arguments words = {kVersion};
  Writer writer(words);
  VisitState(*copy, writer);
  writer(static_cast<int>(request.kind));
  for (const char* text : {request.first, request.second, request.third}) {
    writer(WordOf(text));
  }
  return words;
}

std::string MakeRequest(Machine& machine, const Arguments& words) {
  const auto state = std::make_unique<ClientVariables>();
  Reader reader(words);
  std::string version;
  reader(version);
  if (version != kVersion) return "";
  VisitState(*state, reader);
  int kind = 0;
  std::string texts[3];
  reader(kind);
  for (std::string& text : texts) reader(text);
  return std::to_string(MakeOrFail({machine, state->state},
                                   {.kind = static_cast<RequestKind>(kind),
                                    .first = TextOf(texts[0]),
                                    .second = TextOf(texts[1]),
                                    .third = TextOf(texts[2])}));
}

std::optional<std::uint32_t> CodeIn(const std::string& answer) {
  std::uint32_t code = 0;
  const char* end = answer.data() + answer.size();
  const auto result = std::from_chars(answer.data(), end, code);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return code;
}

}  // namespace velmohelp
