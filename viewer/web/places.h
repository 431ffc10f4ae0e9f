// Where local pages may come from. A place is a folder of the machine under a
// short name; its content folders are what pages may be read from.
#ifndef VIEWER_WEB_PLACES_H_
#define VIEWER_WEB_PLACES_H_

#include <map>
#include <optional>
#include <set>
#include <string>

#include "viewer/web/address.h"

namespace viewer {

/// A content folder: the pages of one help set.
struct ContentFolder {
  std::string place;
  /// Relative to the place, without a "/" at its ends; "" for the place itself.
  std::string name;
  /// The folder on the machine.
  std::string directory;
  /// False for a page that belongs to no installed help: it is shown, but its
  /// scripts do not run.
  bool trusted = true;

  bool operator<(const ContentFolder& other) const {
    return directory < other.directory;
  }
  /// The address prefix of everything in it, with a "/" at its end.
  std::string Prefix() const;
};

/// A page of a content folder.
struct LocalFile {
  ContentFolder folder;
  /// Relative to the folder.
  std::string name;
};

class Places {
 public:
  /// directory may have a "/" at its end. An empty one is passed over.
  void AddPlace(const std::string& name, std::string directory);

  /// Declares a content folder of a place by its name. True when it is there.
  bool AddFolder(const std::string& place, const std::string& name);

  /// The address of the page of a file URL. A page below a place belongs to the
  /// content folder that holds it; when none is declared, to the nearest folder
  /// above it that has a help map, else to the outermost. Any other page is
  /// alone with its own folder. Nothing when url is not a file URL.
  std::optional<Address> Locate(const std::string& url);

  /// Declares the content folder of an address, as Locate does. False when the
  /// place is unknown.
  bool Admit(const Address& address);

  /// The file of an address; nothing when no declared folder holds it.
  std::optional<LocalFile> Find(const Address& address) const;

  /// The file URL of an address; "" when no declared folder holds it.
  std::string FileUrl(const Address& address) const;

  /// The declared folders of installed and downloaded help.
  std::set<ContentFolder> Folders() const;

 private:
  const ContentFolder* FolderOf(const Address& address) const;
  std::optional<Address> Below(const std::string& path) const;
  Address Alone(const std::string& path);

  std::map<std::string, std::string> places_;
  std::set<ContentFolder> folders_;
};

}  // namespace viewer

#endif  // VIEWER_WEB_PLACES_H_
