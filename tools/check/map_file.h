// A help map with the places of its entries.
#ifndef TOOLS_CHECK_MAP_FILE_H_
#define TOOLS_CHECK_MAP_FILE_H_

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tools/check/finding.h"

namespace velmohelp::tool {

/// A line that has an entry. The views point into the file's text.
struct MapLine {
  std::string_view key;
  std::string_view value;
  const char* start;
  std::size_t number;

  Position PositionOf(std::string_view part) const {
    const auto before = static_cast<std::size_t>(part.data() - start);
    return {number, 1 + CountCharacters({start, before})};
  }
};

class MapFile {
 public:
  /// Throws FileError when the client could not read the file.
  explicit MapFile(const std::filesystem::path& path);
  MapFile(const MapFile&) = delete;
  MapFile& operator=(const MapFile&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path folder() const { return path_.parent_path(); }
  /// In the file's order, repeated keys included.
  const std::vector<MapLine>& lines() const { return lines_; }
  /// The first line with a key, the one that the client takes; null when there
  /// is none.
  const MapLine* Find(std::string_view key) const;
  /// The lines that are neither entries nor empty.
  const std::vector<std::size_t>& skipped() const { return skipped_; }
  /// The client uses no map without one.
  bool HasHome() const;

 private:
  void Add(std::string_view line, std::size_t number);

  std::filesystem::path path_;
  std::string text_;
  std::vector<MapLine> lines_;
  std::vector<std::size_t> skipped_;
  /// Positions in lines_.
  std::unordered_map<std::string_view, std::size_t> first_;
};

}  // namespace velmohelp::tool

#endif  // TOOLS_CHECK_MAP_FILE_H_
