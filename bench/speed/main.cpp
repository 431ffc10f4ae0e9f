// speed_bench [--rounds N] [--json FILE] [GROUP...]: the client beside its
// peers and floors, as a table. Groups: request, load, map, text, encode,
// helper, growth; without one, all.
#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "bench/speed/growth.h"
#include "bench/speed/report.h"

namespace velmohelp::bench {
namespace {

struct Options {
  int rounds = 15;
  const char* json = nullptr;
  std::vector<std::string_view> groups;

  bool Wants(std::string_view group) const {
    return groups.empty() ||
           std::find(groups.begin(), groups.end(), group) != groups.end();
  }
};

Options Parse(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "--rounds" && i + 1 < argc) {
      options.rounds = std::atoi(argv[++i]);
    } else if (word == "--json" && i + 1 < argc) {
      options.json = argv[++i];
    } else {
      options.groups.push_back(word);
    }
  }
  return options;
}

/// Makes the browser of the benchmarks' world the default one, whatever desktop
/// this runs on.
void SetDesktop() {
  setenv("XDG_DATA_HOME", InWorld("data").c_str(), 1);
  setenv("XDG_DATA_DIRS", InWorld("none").c_str(), 1);
  setenv("XDG_CONFIG_DIRS", InWorld("none").c_str(), 1);
}

int Main(const Options& options) {
  std::FILE* json = nullptr;
  if (options.json != nullptr) {
    json = std::fopen(options.json, "w");
    if (json == nullptr) return 1;
  }
  SetDesktop();
  PrintHead();
  for (const Row& row : AllRows()) {
    if (!options.Wants(row.group)) continue;
    Print(row, Measure(row.candidates, options.rounds), json);
  }
  if (options.Wants("growth")) PrintGrowth(options.rounds, json);
  return json == nullptr || std::fclose(json) == 0 ? 0 : 1;
}

}  // namespace
}  // namespace velmohelp::bench

int main(int argc, char** argv) {
  return velmohelp::bench::Main(velmohelp::bench::Parse(argc, argv));
}
