#include "platform/linux/bundles.h"

#include <vector>

#include "platform/linux/files.h"
#include "platform/locations.h"

namespace velmohelp {
namespace {

std::string ApplicationName(const std::string& directory) {
  std::string name = Basename(directory);
  if (name.ends_with(".app")) name.resize(name.size() - 4);
  return name;
}

std::vector<std::string> BundleFolders(
    const std::optional<std::string>& library_folder,
    const std::optional<std::string>& host) {
  std::vector<std::string> folders;
  if (library_folder) folders.push_back(*library_folder);
  if (host) folders.push_back(Dirname(*host) + "/../Frameworks");
  folders.emplace_back(kFrameworksDir);
  return folders;
}

}  // namespace

std::optional<std::string> ResourcesOf(const std::string& executable) {
  const std::string folder = Dirname(executable);
  const std::string name = Basename(executable) + ".resources";
  return FirstDirectory({folder + "/" + name, folder + "/../share/" + name});
}

std::optional<std::string> FindBundle(
    const std::string& identifier,
    const std::optional<std::string>& library_folder,
    const std::optional<std::string>& host) {
  // A bundle is named, never a path to it.
  if (identifier.find('/') != std::string::npos) return std::nullopt;
  std::vector<std::string> paths = BundleFolders(library_folder, host);
  for (std::string& path : paths) path += "/" + identifier + ".framework";
  return FirstDirectory(paths);
}

std::optional<std::string> ExecutableOf(const std::string& directory) {
  if (directory.empty()) return std::nullopt;
  const std::string name = ApplicationName(directory);
  const std::vector<std::string> candidates = {directory + "/bin/" + name,
                                               directory + "/AppRun",
                                               directory + "/" + name};
  for (const std::string& path : candidates) {
    if (IsExecutable(path)) return path;
  }
  return std::nullopt;
}

}  // namespace velmohelp
