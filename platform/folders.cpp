#include "platform/folders.h"

#include <optional>

#include "platform/locations.h"
#include "util/path_join.h"
#include "util/percent_encoding.h"
#include "util/text_encoding.h"
#include "util/uri.h"

namespace velmohelp {
namespace {

/// The current user's folders, and among them the Preferences folder: the only
/// standard folder that there is.
constexpr std::int16_t kUserDomain = -32763;
constexpr std::uint32_t kPreferencesFolderType = 0x70726566;  // 'pref'

constexpr std::int16_t kFileNotFound = -43;
constexpr std::int16_t kNotAFile = -1302;
constexpr std::int16_t kNoSuchReference = -1403;

/// nullopt when the unescaped bytes are not valid UTF-8.
std::optional<std::string> WithoutEscapes(std::string_view text) {
  return DecodeText(Unescaped(text), TextEncoding::kUtf8);
}

/// The path of a URL in the file system. It is unescaped twice, as a URL and
/// then as a path: a path that its caller had escaped already is found too.
/// nullopt when the URL has no path or one that is not valid UTF-8; "", where
/// no file exists, when it is not after the second time or is longer than the
/// text buffer.
std::optional<std::string> FileSystemPathOf(const std::string& url) {
  if (!IsHierarchical(url)) return std::nullopt;
  const auto path = WithoutEscapes(PathOfUri(url));
  if (!path) return std::nullopt;
  const auto file_path = WithoutEscapes(*path);
  return file_path ? EncodeText(*file_path, TextEncoding::kUtf8) : "";
}

std::string WithoutFinalSlash(std::string path) {
  if (path.ends_with('/')) path.pop_back();
  return path;
}

}  // namespace

bool FindStandardFolder(Machine& machine, std::int16_t domain,
                        std::uint32_t type, bool create, std::string& out) {
  if (domain != kUserDomain || type != kPreferencesFolderType) return false;
  const auto folder = machine.PreferencesFolder(create);
  if (folder) out = *folder;
  return folder.has_value();
}

std::string BelowPreferences(Machine& machine, const std::string& suffix) {
  return machine.PreferencesFolder(true).value_or("") + suffix;
}

std::string InstalledContentPath() { return kInstalledHelpDir; }

std::string HelpContentDirectory(const std::string& first,
                                 const std::string& second) {
  const std::string base = WithoutFinalSlash(kInstalledHelpDir);
  return JoinPath(JoinPath(base, second), first);
}

std::int16_t FindFileReference(Machine& machine, const std::string& path,
                               FileReference& out) {
  const auto text = DecodeText(path, TextEncoding::kUtf8);
  if (!text) return kNoSuchReference;
  const std::string escaped = EscapeForUri(*text);
  if (!IsUri(escaped)) return kNoSuchReference;
  const auto file_path = FileSystemPathOf(escaped);
  if (!file_path) return kNoSuchReference;
  const auto entry = machine.FindFile(*file_path);
  if (!entry) return kFileNotFound;
  if (entry->is_directory) return kNotAFile;
  out = entry->reference;
  return 0;
}

}  // namespace velmohelp
