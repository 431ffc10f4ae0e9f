#include <velmohelp/embed.h>

#include <cstdlib>
#include <cstring>
#include <new>

#include "client/choose_locale.h"
#include "client/configuration.h"
#include "client/find.h"
#include "client/request.h"
#include "exports/failure_codes.h"
#include "exports/guarded.h"
#include "exports/this_client.h"
#include "util/utf8.h"

using velmohelp::Client;
using velmohelp::CodeIn;
using velmohelp::FailureCodes;
using velmohelp::FindResult;
using velmohelp::Guarded;
using velmohelp::GuardedWithState;
using velmohelp::NotedStart;
using velmohelp::Request;
using velmohelp::RequestKind;
using velmohelp::ThisClient;
using velmohelp::ThisMachine;
using velmohelp::Uncancelled;

namespace {

constexpr std::uint32_t kDone = 0;
constexpr std::uint32_t kBadArgument = 1;
constexpr std::uint32_t kNoLocale = 2;

/// Where a caller wants to know what would be shown; either may be null.
struct Target {
  std::uint32_t* kind;
  char** url;
};

void SetNothing(const Target& target) {
  if (target.kind != nullptr) *target.kind = kTargetNone;
  if (target.url != nullptr) *target.url = nullptr;
}

std::uint32_t KindOf(const NotedStart& start) {
  return start.kind == NotedStart::Kind::kViewer ? kTargetViewer
                                                 : kTargetBrowser;
}

/// For velmohelp_free.
char* Copy(const std::string& text) {
  char* copy = strdup(text.c_str());
  if (copy == nullptr) throw std::bad_alloc();
  return copy;
}

/// The copy comes first: without memory for it nothing is set.
void Set(const Target& target, const NotedStart& start) {
  const auto url = UrlOf(start);
  if (target.url != nullptr && url) *target.url = Copy(*url);
  if (target.kind != nullptr) *target.kind = KindOf(start);
}

template <typename Code, typename Request>
std::uint32_t FindFor(const Target& target, FailureCodes<Code> failures,
                      Request request) {
  SetNothing(target);
  return GuardedWithState(failures, [&] {
    const FindResult found = Find(ThisClient(), request);
    if (found.start) Set(target, *found.start);
    return static_cast<Code>(found.code);
  });
}

std::uint32_t ChooseLocale(const char* product, const char* preferred,
                           char* locale) {
  const auto chosen = velmohelp::ChooseLocale(
      ThisClient(), product, preferred == nullptr ? "" : preferred);
  if (!chosen) return kNoLocale;
  std::memcpy(locale, chosen->c_str(), chosen->size() + 1);
  return kDone;
}

std::uint32_t SetHost(const char* executable) {
  if (executable == nullptr) {
    return ThisMachine().SetHost(std::nullopt) ? kDone : kBadArgument;
  }
  if (executable[0] != '/') return kBadArgument;
  return ThisMachine().SetHost(executable) ? kDone : kBadArgument;
}

/// A launch that failed, in the table of every request.
constexpr std::uint32_t kNothingShown = 1;
static_assert(kNothingShown == kDisplayHelpAppLaunchFailure);
static_assert(kNothingShown == kOpenUrlBrowserLaunchFailure);
static_assert(kNothingShown == kSearchLaunchFailure);

int Start(const Request& request) {
  return GuardedWithState(
      FailureCodes<int>{.state_has_ended = -1, .exception = -1}, [&] {
        return ThisMachine().StartWorker(
            WordsOf(velmohelp::ThisState(), request));
      });
}

std::uint32_t Finish(int descriptor) {
  const auto answer = ThisMachine().FinishWorker(descriptor);
  return answer ? CodeIn(*answer).value_or(kNothingShown) : kNothingShown;
}

std::uint32_t SetActivationToken(const char* token) {
  const bool is_none = token == nullptr || *token == '\0';
  if (!is_none && !velmohelp::IsUtf8(token)) return kBadArgument;
  const bool is_set = ThisMachine().SetActivationToken(
      is_none ? std::nullopt : std::optional<std::string>(token));
  return is_set ? kDone : kBadArgument;
}

}  // namespace

uint32_t velmohelp_find_display(const char* page_id, uint32_t* kind,
                                char** url) {
  return FindFor({kind, url}, velmohelp::kDisplayFailures,
                 [&](const Client& client) {
                   return velmohelp::DisplayPage(client, page_id);
                 });
}

uint32_t velmohelp_find_url(const char* url, uint32_t* kind, char** target) {
  return FindFor(
      {kind, target}, velmohelp::kOpenUrlFailures,
      [&](const Client& client) { return velmohelp::OpenUrl(client, url); });
}

uint32_t velmohelp_find_search(const char* product, const char* locale,
                               const char* text, uint32_t* kind, char** url) {
  return FindFor({kind, url}, velmohelp::kSearchFailures,
                 [&](const Client& client) {
                   return velmohelp::SearchHelp(client, product, locale, text);
                 });
}

void velmohelp_free(void* memory) { std::free(memory); }

int velmohelp_start_display(const char* page_id) {
  return Start({.kind = RequestKind::kDisplay, .first = page_id});
}

int velmohelp_start_url(const char* url) {
  return Start({.kind = RequestKind::kUrl, .first = url});
}

int velmohelp_start_search(const char* product, const char* locale,
                           const char* text) {
  return Start({.kind = RequestKind::kSearch,
                .first = product,
                .second = locale,
                .third = text});
}

uint32_t velmohelp_finish(int descriptor) {
  return Uncancelled([&] {
    return Guarded(kNothingShown, [&] { return Finish(descriptor); });
  });
}

uint32_t velmohelp_set_activation_token(const char* token) {
  return GuardedWithState(
      FailureCodes<std::uint32_t>{.state_has_ended = kBadArgument,
                                  .exception = kBadArgument},
      [&] { return SetActivationToken(token); });
}

uint32_t velmohelp_choose_locale(const char* product, const char* preferred,
                                 char locale[6]) {
  if (!velmohelp::HasText(product) || locale == nullptr) return kBadArgument;
  return GuardedWithState(
      FailureCodes<std::uint32_t>{.state_has_ended = kNoLocale,
                                  .exception = kNoLocale},
      [&] { return ChooseLocale(product, preferred, locale); });
}

uint32_t velmohelp_set_host(const char* executable) {
  return GuardedWithState(
      FailureCodes<std::uint32_t>{.state_has_ended = kBadArgument,
                                  .exception = kBadArgument},
      [&] { return SetHost(executable); });
}
