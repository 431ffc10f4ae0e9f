#include <velmohelp/embed.h>
#include <velmohelp/velmohelp.h>

#include <cstring>

#include "exports/failure_codes.h"
#include "exports/guarded.h"
#include "exports/this_client.h"
#include "util/percent_encoding.h"

using velmohelp::Guarded;
using velmohelp::GuardedWithState;
using velmohelp::kDisplayFailures;
using velmohelp::kOnlineStatusFailures;
using velmohelp::kOpenUrlFailures;
using velmohelp::kSearchFailures;
using velmohelp::ThisClient;
using velmohelp::Uncancelled;
using velmohelp::WithState;

namespace {

/// The text and a NUL into room bytes at out. Returns the text's length, or -1
/// when they do not fit.
long Copy(const std::string& text, char* out, long room) {
  const auto length = static_cast<long>(text.size());
  if (length >= room) return -1;
  std::memcpy(out, text.c_str(), text.size() + 1);
  return length;
}

}  // namespace

uint32_t InitializeVelmoHelpClient(const char* productId, const char* locale,
                                   unsigned int cleanProductId) {
  return WithState(kInitMissingConfig, [&] {
    return velmohelp::Initialise(ThisClient(), productId, locale,
                                 cleanProductId != 0);
  });
}

uint32_t GetVelmoHelpClientVersion(void) { return 0x10500; }

uint32_t GetVelmoHelpClientOnlineStatus(void) {
  return GuardedWithState(kOnlineStatusFailures, [] {
    return velmohelp::OnlineStatusOf(ThisClient());
  });
}

uint32_t DisplayVelmoHelpClientPage(const char* pageId) {
  return GuardedWithState(kDisplayFailures, [&] {
    return velmohelp::DisplayPage(ThisClient(), pageId);
  });
}

uint32_t OpenURL(const char* url) {
  return GuardedWithState(
      kOpenUrlFailures, [&] { return velmohelp::OpenUrl(ThisClient(), url); });
}

uint32_t SearchHelp(const char* productId, const char* locale,
                    const char* searchText) {
  return GuardedWithState(kSearchFailures, [&] {
    return velmohelp::SearchHelp(ThisClient(), productId, locale, searchText);
  });
}

uint32_t Search(const char* a, const char* b, const char* locale,
                const char* searchText) {
  return GuardedWithState(kSearchFailures, [&] {
    return velmohelp::SearchByNames(ThisClient(), a, b, locale, searchText);
  });
}

long VelmoHelpEncodeURIComponent(const char* in, char* out, long outSize) {
  if (in == nullptr || out == nullptr) return -1;
  return Uncancelled([&] {
    return Guarded(-1L, [&] {
      return Copy(velmohelp::EncodeUriComponent(in), out, outSize);
    });
  });
}

// Their prefixed names. Code of the library calls neither.
uint32_t velmohelp_initialise(const char* product, const char* locale) {
  return WithState(kInitMissingConfig, [&] {
    return velmohelp::Initialise(ThisClient(), product, locale, false);
  });
}

// NOLINTBEGIN(bugprone-macro-parentheses): a declaration's name takes none.
#define VELMO_ALIAS(name, of) \
  extern "C" decltype(of) name __attribute__((alias(#of)))
// NOLINTEND(bugprone-macro-parentheses)
VELMO_ALIAS(velmohelp_display, DisplayVelmoHelpClientPage);
VELMO_ALIAS(velmohelp_open_url, OpenURL);
VELMO_ALIAS(velmohelp_search, SearchHelp);
VELMO_ALIAS(velmohelp_online_status, GetVelmoHelpClientOnlineStatus);
VELMO_ALIAS(velmohelp_version, GetVelmoHelpClientVersion);
