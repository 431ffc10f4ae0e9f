#include <velmohelp/platform.h>

#include "client/state_views.h"
#include "exports/this_machine.h"
#include "platform/folders.h"
#include "platform/help_tool.h"
#include "platform/launch.h"
#include "util/text_encoding.h"

using Encoding = velmohelp::TextEncoding;
using velmohelp::ThisMachine;

namespace ITEMInternal {

bool FileExists(std::string path) { return ThisMachine().FileExists(path); }

bool IsZAMRuntimePresent() {
  return velmohelp::IsZamRuntimePresent(ThisMachine());
}

std::string GetHelpApplicationPath() {
  return velmohelp::GetHelpApplicationPath(ThisMachine(),
                                           velmohelp::ViewerView());
}

int LaunchApplication(const std::string& path, const std::string& mode,
                      const std::string& product, const std::string& locale,
                      const std::string& request) {
  return velmohelp::LaunchApplication(ThisMachine(), path,
                                      {mode, product, locale, request});
}

int LaunchPlatformBrowser(const std::string& url) {
  return velmohelp::LaunchPlatformBrowser(ThisMachine(), url);
}

bool StdStringFindFolder(std::int16_t domain, std::uint32_t type,
                         std::uint8_t create, std::string& out) {
  return velmohelp::StdStringFindFolder(ThisMachine(), domain, type,
                                        create != 0, out);
}

std::string GetKLHPreferenceFilePath() {
  return velmohelp::BelowPreferences(ThisMachine(), kKLHPreferenceFile);
}

std::string GetDownloadedContentPath() {
  return velmohelp::BelowPreferences(ThisMachine(), kDownloadedOfflineContent);
}

std::int16_t GetFSRefFromPath(std::string path, FileReference& out) {
  return velmohelp::GetFsRefFromPath(ThisMachine(), path, out);
}

static_assert(Encoding{kTextEncodingMacRoman} == Encoding::kMacRoman);
static_assert(Encoding{kTextEncodingAscii} == Encoding::kAscii);
static_assert(Encoding{kTextEncodingUtf8} == Encoding::kUtf8);

std::string GetString(const PlatformString* text, std::uint32_t encoding) {
  if (text == nullptr) return "";
  return velmohelp::EncodeText(text->utf8(), Encoding{encoding});
}

char* GetCharFromCFStringRef(const PlatformString* text) {
  return text == nullptr ? nullptr : velmohelp::AllocateUtf8(text->utf8());
}

std::unique_ptr<const PlatformString> CstrToNSstr(const char* text) {
  if (text == nullptr) return nullptr;
  auto utf8 = velmohelp::DecodeText(text, Encoding::kUtf8);
  if (!utf8) return nullptr;
  return std::make_unique<const PlatformString>(std::move(*utf8));
}

}  // namespace ITEMInternal
