#include "platform/folders.h"

#include <velmohelp/platform.h>
#include <velmohelp_locations.h>

#include "util/path_join.h"
#include "util/percent_encoding.h"
#include "util/text_encoding.h"
#include "util/uri.h"

namespace velmohelp {
namespace {

constexpr std::int16_t kFileNotFound = -43;
constexpr std::int16_t kNotAFile = -1302;
constexpr std::int16_t kNoSuchReference = -1403;

/// nullopt when the unescaped bytes are not valid UTF-8.
std::optional<std::string> WithoutEscapes(std::string_view text) {
  return DecodeText(Unescaped(text), TextEncoding::kUtf8);
}

/// The path of a URL in the file system. Escapes are taken off twice, first
/// from the URL and then from the path: a path that was escaped before its
/// caller escaped it again is found too. nullopt when the URL's path is no
/// text; "", where no file is, when only the second time gives none or the path
/// is longer than GetString takes.
std::optional<std::string> FileSystemPathOf(const std::string& url) {
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

bool StdStringFindFolder(Machine& machine, std::int16_t domain,
                         std::uint32_t type, bool create, std::string& out) {
  const auto folder = machine.StandardFolder(domain, type, create);
  if (folder) out = *folder;
  return folder.has_value();
}

std::string BelowPreferences(Machine& machine, const std::string& suffix) {
  std::string folder;
  StdStringFindFolder(machine, kUserDomain, kPreferencesFolderType, true,
                      folder);
  return folder + suffix;
}

std::int16_t GetFsRefFromPath(Machine& machine, const std::string& path,
                              ITEMInternal::FileReference& out) {
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

std::string ITEMInternal::GetInstalledContentPath() {
  return velmohelp::kInstalledHelpDir;
}

std::string ITEMInternal::GetHelpContentDirectory(std::string first,
                                                  std::string second) {
  const std::string base =
      velmohelp::WithoutFinalSlash(velmohelp::kInstalledHelpDir);
  return velmohelp::JoinPath(velmohelp::JoinPath(base, second), first);
}
