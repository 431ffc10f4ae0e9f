#include <velmohelp/platform.h>

#include "exports/guarded.h"
#include "exports/this_client.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/help_tool.h"
#include "platform/launch.h"
#include "util/text_encoding.h"

using Encoding = velmohelp::TextEncoding;
using velmohelp::ThisMachine;
using velmohelp::ThisState;
using velmohelp::Uncancelled;
using velmohelp::WithState;

namespace ITEMInternal {
namespace {

constexpr std::int16_t kNoSuchFile = -43;
constexpr int kViewerNotLaunched = 1;
constexpr int kBrowserNotLaunched = 2;

int CodeOf(velmohelp::LaunchResult result) {
  switch (result) {
    case velmohelp::LaunchResult::kLaunched:
      return 0;
    case velmohelp::LaunchResult::kViewerNotLaunched:
      return kViewerNotLaunched;
    case velmohelp::LaunchResult::kBrowserNotLaunched:
      break;
  }
  return kBrowserNotLaunched;
}

}  // namespace

bool FileExists(std::string path) {
  return WithState(false,
                   [&] { return velmohelp::FileExists(ThisMachine(), path); });
}

bool IsZAMRuntimePresent() {
  return WithState(
      false, [&] { return velmohelp::IsZamRuntimePresent(ThisMachine()); });
}

std::string GetHelpApplicationPath() {
  return WithState("", [&] {
    return velmohelp::HelpApplicationPath(ThisMachine(),
                                          ViewerView(ThisState()));
  });
}

int LaunchApplication(const std::string& path, const std::string& mode,
                      const std::string& product, const std::string& locale,
                      const std::string& request) {
  return WithState(kViewerNotLaunched, [&] {
    return CodeOf(velmohelp::LaunchApplication(
        ThisMachine(), path, {mode, product, locale, request}));
  });
}

int LaunchPlatformBrowser(const std::string& url) {
  return WithState(kBrowserNotLaunched, [&] {
    return CodeOf(velmohelp::LaunchPlatformBrowser(ThisMachine(), url));
  });
}

bool StdStringFindFolder(std::int16_t domain, std::uint32_t type,
                         std::uint8_t create, std::string& out) {
  return WithState(false, [&] {
    return velmohelp::FindStandardFolder(ThisMachine(), domain, type,
                                         create != 0, out);
  });
}

std::string GetKLHPreferenceFilePath() {
  return WithState("", [&] {
    return velmohelp::BelowPreferences(ThisMachine(),
                                       ThisState().preference_file);
  });
}

std::string GetDownloadedContentPath() {
  return WithState("", [&] {
    return velmohelp::BelowPreferences(ThisMachine(),
                                       ThisState().downloaded_content);
  });
}

std::string GetInstalledContentPath() {
  return Uncancelled([&] { return velmohelp::InstalledContentPath(); });
}

std::string GetHelpContentDirectory(std::string first, std::string second) {
  return Uncancelled(
      [&] { return velmohelp::HelpContentDirectory(first, second); });
}

std::int16_t GetFSRefFromPath(std::string path, FileReference& out) {
  return WithState(kNoSuchFile, [&] {
    velmohelp::FileReference reference;
    const auto code =
        velmohelp::FindFileReference(ThisMachine(), path, reference);
    if (code == 0) out = {reference.device, reference.inode};
    return code;
  });
}

static_assert(Encoding{kTextEncodingMacRoman} == Encoding::kMacRoman);
static_assert(Encoding{kTextEncodingAscii} == Encoding::kAscii);
static_assert(Encoding{kTextEncodingUtf8} == Encoding::kUtf8);

std::string GetString(const PlatformString* text, std::uint32_t encoding) {
  if (text == nullptr) return "";
  return Uncancelled(
      [&] { return velmohelp::EncodeText(text->utf8(), Encoding{encoding}); });
}

char* GetCharFromCFStringRef(const PlatformString* text) {
  if (text == nullptr) return nullptr;
  return Uncancelled([&] { return velmohelp::AllocateUtf8(text->utf8()); });
}

std::unique_ptr<const PlatformString> CstrToNSstr(const char* text) {
  if (text == nullptr) return nullptr;
  return Uncancelled([&]() -> std::unique_ptr<const PlatformString> {
    auto utf8 = velmohelp::DecodeText(text, Encoding::kUtf8);
    if (!utf8) return nullptr;
    return std::make_unique<const PlatformString>(std::move(*utf8));
  });
}

}  // namespace ITEMInternal
