#include "viewer/content/help_client.h"

#include <velmohelp/config.h>
#include <velmohelp/online.h>
#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>
#include <velmohelp/state.h>
#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include <array>
#include <ios>
#include <map>

#include "viewer/content/own_paths.h"

namespace viewer {
namespace {

constexpr char kHome[] = "VX_HOME.html";
constexpr int kRows = 100;

// A local path becomes a URL as the client makes it one.
std::string FileUrl(const std::string& path) {
  if (path.empty() || IsUrl(path)) return path;
  return "file://" + ITEMInternal::VelmoHelpEncodeURIComponent(path);
}

// The file that the client has read: the downloaded one where it is valid.
std::string ConfigurationFile(const std::string& product,
                              const std::string& locale) {
  const std::string installed =
      ITEMInternal::GetHelpConfigPath(product, locale);
  XMLParser parser;
  if (!parser.ReadFileToBuffer(installed)) return {};
  const std::string downloaded =
      ITEMInternal::GetDownloadedHelpConfigPath(parser.GetKey("path"), product);
  const bool is_valid = ITEMInternal::FileExists(downloaded) &&
                        ReadHelpcfg(downloaded) == kConfigAccepted;
  return is_valid ? downloaded : installed;
}

std::vector<std::string> FolderNames(const std::string& configuration) {
  XMLParser parser;
  if (!parser.ReadFileToBuffer(configuration)) return {};
  std::array<std::string[2], kRows> rows;
  int count = kRows;
  parser.PopulatePathArray(rows.data(), count);
  std::vector<std::string> names;
  for (int i = 0; i < count && i < kRows; ++i) {
    if (const auto& name = rows.at(static_cast<std::size_t>(i))[0];
        !name.empty()) {
      names.push_back(name);
    }
  }
  return names;
}

// A help map that breaks while it is read counts as one that is not there.
std::string Target(const std::string& id) {
  std::string target;
  try {
    const bool is_online = GetVelmoHelpClientOnlineStatus() == 0;
    if (ValidateID(id, is_online, target) == 0) return FileUrl(target);
  } catch (const std::ios_base::failure&) {
  }
  return {};
}

std::string MappedHome(const std::string& directory) {
  std::map<std::string, std::string> map;
  try {
    const bool is_complete =
        ITEMInternal::LoadMapFile(ITEMInternal::GetHelpMapPath(directory), map);
    if (is_complete) return AppentPath(directory, map["VX_HOME"]);
  } catch (const std::ios_base::failure&) {
  }
  return {};
}

}  // namespace

ProductHelp LoadProduct(const std::string& product, const std::string& locale) {
  ProductHelp help;
  help.configured = InitializeVelmoHelpClient(product.c_str(), locale.c_str(),
                                              0) == kInitSuccess;
  if (!help.configured) return help;
  help.folders = FolderNames(ConfigurationFile(product, locale));
  std::string home;
  try {
    if (ValidateID(kHome, false, home) == 0) help.home = FileUrl(home);
  } catch (const std::ios_base::failure&) {
  }
  return help;
}

std::string FindPage(const std::string& page_id) {
  std::string id = page_id;
  NormalizePageID(id);
  return Target(id);
}

HelpLocations FindLocations() {
  AdoptOwnPaths();
  return {.downloaded = ITEMInternal::GetDownloadedContentPath(),
          .installed = ITEMInternal::GetInstalledContentPath()};
}

std::string FindHome(const std::string& directory) {
  if (const auto home = MappedHome(directory); !home.empty()) {
    return FileUrl(home);
  }
  for (const char* name : {kHome, "index.html", "index.htm"}) {
    if (const auto path = AppentPath(directory, name);
        ITEMInternal::FileExists(path)) {
      return FileUrl(path);
    }
  }
  return {};
}

bool IsUrl(const std::string& request) { return isUrl(request); }

std::string Unquoted(const std::string& request) {
  return StripDoubleQuotes(request);
}

bool IsOnlineAllowed() { return ITEMInternal::GetOnlineDefault(); }

}  // namespace viewer
