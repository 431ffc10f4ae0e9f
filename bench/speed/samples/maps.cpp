// Loading help maps, and what that is compared with.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <velmohelp/resolve.h>

#include <algorithm>
#include <cstring>
#include <string_view>

#include "bench/speed/samples/samples.h"
#include "bench/stopwatch.h"

namespace velmohelp::bench {
namespace {

using Map = std::map<std::string, std::string>;

struct Fields {
  std::string_view key;
  std::string_view value;
};

/// The fields of a well-formed map: one tab and one LF per line. Reserves the
/// memory for all of them first: a growing vector frees memory that has been
/// touched, and a map built in such memory looks cheap.
std::vector<Fields> Split(std::string_view text) {
  std::vector<Fields> all;
  all.reserve(
      static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
  while (!text.empty()) {
    const std::size_t tab = text.find('\t');
    const std::size_t end = text.find('\n', tab);
    all.push_back({text.substr(0, tab), text.substr(tab + 1, end - tab - 1)});
    text.remove_prefix(end + 1);
  }
  return all;
}

/// Never freed: the end of the process does that, unmeasured.
Map& EmptyMap() { return *new Map; }

double Load(const Words& words) {
  Map& map = EmptyMap();
  const double time =
      Nanoseconds([&] { ITEMInternal::LoadMapFile(words.at(0), map); });
  Require(map.size() == std::stoul(words.at(1)), "not loaded");
  return time;
}

double LoadAgain(const Words& words) {
  Map& map = EmptyMap();
  ITEMInternal::LoadMapFile(words.at(0), map);
  return Nanoseconds([&] { ITEMInternal::LoadMapFile(words.at(0), map); });
}

/// The fields of a sorted file, each inserted at the map's end.
double BuildAtEnd(const Words& words) {
  const std::string text = Contents(words.at(0));
  const std::vector<Fields> all = Split(text);
  Map& map = EmptyMap();
  return Nanoseconds([&] {
    for (const auto& [key, value] : all) {
      map.emplace_hint(map.end(), key, value);
    }
  });
}

/// The fields in the order of the file, each inserted where it belongs.
double BuildInFileOrder(const Words& words) {
  const std::string text = Contents(words.at(0));
  const std::vector<Fields> all = Split(text);
  Map& map = EmptyMap();
  return Nanoseconds([&] {
    for (const auto& [key, value] : all) map.emplace(key, value);
  });
}

void ReadByGetline(const std::string& path, Map& map) {
  map.clear();
  std::ifstream file(path, std::ios::binary);
  std::string line;
  while (std::getline(file, line)) {
    const std::size_t tab = line.find('\t');
    map.emplace(line.substr(0, tab), line.substr(tab + 1));
  }
}

double GetlineAgain(const Words& words) {
  Map& map = EmptyMap();
  ReadByGetline(words.at(0), map);
  return Nanoseconds([&] { ReadByGetline(words.at(0), map); });
}

/// Reads a file into a buffer of its size; true when the text is in it.
bool IsInFile(const std::string& path, std::string_view text,
              std::vector<char>& room) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status = {};
  Require(fstat(file, &status) == 0, path.c_str());
  const auto size = static_cast<std::size_t>(status.st_size);
  if (room.size() < size) room.resize(size);
  Require(read(file, room.data(), size) == status.st_size, path.c_str());
  close(file);
  return memmem(room.data(), size, text.data(), text.size()) != nullptr;
}

/// scan FOLDER LINE: reads every folder's map up to the one that has the line,
/// and builds that one from fields that are split already.
double Scan(const Words& words) {
  constexpr int kFolders = 100;
  const auto path = [&](int folder) {
    return words.at(0) + "/f" + std::to_string(folder) + "/helpmap.txt";
  };
  const std::string last = Contents(path(kFolders - 1));
  const std::vector<Fields> all = Split(last);
  std::vector<char> room;
  Map& map = EmptyMap();
  int found = 0;
  const double time = Nanoseconds([&] {
    for (int folder = 0; folder < kFolders; ++folder) {
      found += IsInFile(path(folder), words.at(1), room) ? 1 : 0;
    }
    for (const auto& [key, value] : all) {
      map.emplace_hint(map.end(), key, value);
    }
  });
  Require(found == 1, "not found once");
  return time;
}

}  // namespace

Samples MapSamples() {
  return {{"load", Load},
          {"load-again", LoadAgain},
          {"build-at-end", BuildAtEnd},
          {"build-in-file-order", BuildInFileOrder},
          {"getline-again", GetlineAgain},
          {"scan", Scan}};
}

}  // namespace velmohelp::bench
