#include "viewer/web/places.h"

#include <filesystem>
#include <system_error>

namespace viewer {
namespace {

namespace fs = std::filesystem;

constexpr char kHelpMap[] = "helpmap.txt";

bool IsDirectory(const std::string& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool IsFile(const std::string& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

std::string WithoutFinalSlash(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

std::string Normal(const std::string& path) {
  return WithoutFinalSlash(fs::path(path).lexically_normal().string());
}

std::string Join(const std::string& directory, const std::string& name) {
  return name.empty() ? directory : directory + "/" + name;
}

// "x" for "<name>/x"; nothing when path is not below the folder of that name.
std::optional<std::string> Inside(const std::string& path,
                                  const std::string& name) {
  if (name.empty()) return path;
  if (!path.starts_with(name + "/")) return std::nullopt;
  return path.substr(name.size() + 1);
}

bool LeavesFolder(const std::string& name) {
  const fs::path path(name);
  return name.empty() || path.is_absolute() ||
         *path.lexically_normal().begin() == "..";
}

std::string Parent(const std::string& name) {
  return fs::path(name).parent_path().string();
}

// The nearest folder with a help map, else the outermost one.
std::string LikelyFolder(const std::string& root, const std::string& page) {
  std::string outermost;
  for (auto name = Parent(page); !name.empty(); name = Parent(name)) {
    if (IsFile(Join(root, name) + "/" + kHelpMap)) return name;
    outermost = name;
  }
  return outermost;
}

}  // namespace

std::string ContentFolder::Prefix() const {
  const std::string prefix = Address{place, name, {}, {}}.Document();
  return prefix.ends_with('/') ? prefix : prefix + "/";
}

void Places::AddPlace(const std::string& name, std::string directory) {
  if (!directory.empty()) places_[name] = Normal(directory);
}

bool Places::AddFolder(const std::string& place, const std::string& name) {
  const auto found = places_.find(place);
  const std::string plain = WithoutFinalSlash(name);
  if (found == places_.end() || LeavesFolder(plain)) return false;
  const std::string directory = Join(found->second, plain);
  if (!IsDirectory(directory)) return false;
  folders_.insert({.place = place, .name = plain, .directory = directory});
  return true;
}

const ContentFolder* Places::FolderOf(const Address& address) const {
  for (const auto& folder : folders_) {
    if (folder.place == address.place && Inside(address.path, folder.name)) {
      return &folder;
    }
  }
  return nullptr;
}

std::optional<LocalFile> Places::Find(const Address& address) const {
  const auto* folder = FolderOf(address);
  if (!folder) return std::nullopt;
  return LocalFile{*folder, *Inside(address.path, folder->name)};
}

bool Places::Admit(const Address& address) {
  if (FolderOf(address)) return true;
  const auto place = places_.find(address.place);
  if (place == places_.end() || LeavesFolder(address.path)) return false;
  return AddFolder(address.place, LikelyFolder(place->second, address.path));
}

std::optional<Address> Places::Below(const std::string& path) const {
  for (const auto& [name, directory] : places_) {
    if (const auto rest = Inside(path, directory)) {
      return Address{.place = name, .path = *rest, .query = {}, .fragment = {}};
    }
  }
  return std::nullopt;
}

Address Places::Alone(const std::string& path) {
  const std::string directory = Parent(path);
  // One name per folder, so that reloading finds the page again.
  const auto known =
      folders_.insert({.place = "file" + std::to_string(folders_.size()),
                       .name = {},
                       .directory = directory,
                       .trusted = false});
  return {.place = known.first->place,
          .path = path.substr(path.rfind('/') + 1),
          .query = {},
          .fragment = {}};
}

std::optional<Address> Places::Locate(const std::string& url) {
  const auto file = ParseFileUrl(url);
  if (!file) return std::nullopt;
  const std::string path = Normal(file->path);
  auto address = Below(path);
  if (!address || !Admit(*address)) address = Alone(path);
  address->query = file->query;
  address->fragment = file->fragment;
  return address;
}

std::string Places::FileUrl(const Address& address) const {
  const auto file = Find(address);
  if (!file) return {};
  const std::string path = Join(file->folder.directory, file->name);
  // The same escapes, query and fragment, after another scheme.
  const Address local{{}, path.substr(1), address.query, address.fragment};
  return "file" + local.Uri().substr(sizeof(kLocalScheme) - 1);
}

std::set<ContentFolder> Places::Folders() const {
  auto folders = folders_;
  std::erase_if(folders, [](const auto& folder) { return !folder.trusted; });
  return folders;
}

}  // namespace viewer
