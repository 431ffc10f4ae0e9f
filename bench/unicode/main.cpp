// unicode_bench [--quick] [--json FILE] [--only PREFIX]: compares the
// converters with other libraries' and prints a table. --quick: fewer rounds,
// the small size only. --only: the rows that begin with PREFIX.
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

#include "bench/unicode/measure.h"

namespace velmohelp::bench {
namespace {

struct Options {
  bool quick = false;
  const char* json = nullptr;
  std::string_view only;  // measure the rows that begin with this
};

struct Row {
  const Task* task;
  std::size_t size;
  Medians medians;

  double Ours() const { return medians.candidates.at("ours"); }

  /// A peer's time divided by ours; 0 for a peer that cannot do the job.
  double Ratio(const std::string& peer) const {
    const auto found = medians.candidates.find(peer);
    return found == medians.candidates.end() ? 0 : found->second / Ours();
  }

  /// The peer that is fastest, and its ratio.
  std::pair<std::string, double> BestPeer() const {
    std::pair<std::string, double> best{"", 0};
    for (const auto& [name, time] : medians.candidates) {
      if (name == "ours") continue;
      if (best.second == 0 || time / Ours() < best.second) {
        best = {name, time / Ours()};
      }
    }
    return best;
  }

  double GigabytesPerSecond(double nanoseconds) const {
    return static_cast<double>(task->source_bytes) / nanoseconds;
  }

  double OfFloor() const { return medians.floor / Ours(); }
};

/// What a row is meant to reach.
struct Target {
  std::string text;
  bool met;
};

constexpr std::size_t kInCache = 64UL << 10;
constexpr std::size_t kInMemory = 16UL << 20;

Target TargetOf(const Row& row) {
  const std::string& what = row.task->what;
  const bool ascii = row.task->corpus == "ASCII";
  const bool ahead = row.BestPeer().second > 1;
  if (what == "UTF-8 to UTF-16" && ascii) {
    return {"10 x ICU", ahead && row.Ratio(kIcu) >= 10};
  }
  if (what == "UTF-8 to UTF-16" && row.task->corpus == "HTML") {
    return {"2 x ICU", ahead && row.Ratio(kIcu) >= 2};
  }
  if (what == "UTF-8 to UTF-32" && ascii && row.size == kInCache) {
    return {"60 % of floor", ahead && row.OfFloor() >= 0.6};
  }
  if (what == "legality, text" && ascii) {
    return {"5 x GLib", ahead && row.Ratio(kGlib) >= 5};
  }
  if (what == "legality, sequence") return {"none", true};
  return {"ahead", ahead};
}

void PrintHead() {
  std::printf(
      "Medians, in gigabytes of source per second; ratios: how many times as "
      "fast as the peer.\n\n| %-18s | %-8s | %6s | %6s | %-12s | %6s | %6s | "
      "%6s | %7s "
      "| "
      "%-12s | %-13s | %s |\n",
      "what", "corpus", "size", "ours", "best peer", kIcu, kIconv, kGlib,
      kUtf8cpp, "floor", "target", "met");
  std::printf("|---|---|---|---|---|---|---|---|---|---|---|---|\n");
}

std::string Ratio(double ratio) {
  char text[16] = "-";
  if (ratio != 0) std::snprintf(text, sizeof text, "%.2f", ratio);
  return text;
}

std::string Floor(const Row& row) {
  char text[32] = "-";
  if (row.medians.floor != 0) {
    std::snprintf(text, sizeof text, "%.1f (%.0f %%)",
                  row.GigabytesPerSecond(row.medians.floor),
                  100 * row.OfFloor());
  }
  return text;
}

void Print(const Row& row) {
  const auto [peer, ratio] = row.BestPeer();
  const Target target = TargetOf(row);
  std::printf(
      "| %-18s | %-8s | %6s | %6.2f | %-7s %4.2f | %6s | %6s | %6s | %7s | "
      "%-12s | %-13s | %s |\n",
      row.task->what.c_str(), row.task->corpus.c_str(),
      row.size == kInCache ? "64 KiB" : "16 MiB",
      row.GigabytesPerSecond(row.Ours()), peer.c_str(),
      row.GigabytesPerSecond(row.Ours() * ratio),
      Ratio(row.Ratio(kIcu)).c_str(), Ratio(row.Ratio(kIconv)).c_str(),
      Ratio(row.Ratio(kGlib)).c_str(), Ratio(row.Ratio(kUtf8cpp)).c_str(),
      Floor(row).c_str(), target.text.c_str(), target.met ? "yes" : "NO");
  std::fflush(stdout);
}

/// One object per line. Times are in nanoseconds per run.
void PrintJson(std::FILE* file, const Row& row) {
  std::fprintf(file,
               R"({"what":"%s","corpus":"%s","size":%zu,"source_bytes":)"
               R"(%zu,"floor":%.0f,"target":"%s","met":%s,"times":{)",
               row.task->what.c_str(), row.task->corpus.c_str(), row.size,
               row.task->source_bytes, row.medians.floor,
               TargetOf(row).text.c_str(),
               TargetOf(row).met ? "true" : "false");
  const char* comma = "";
  for (const auto& [name, time] : row.medians.candidates) {
    std::fprintf(file, R"(%s"%s":%.0f)", comma, name.c_str(), time);
    comma = ",";
  }
  std::fprintf(file, "}}\n");
}

void Run(const Options& options, std::size_t size, int rounds,
         std::FILE* json) {
  for (const Corpus& corpus : MakeCorpora(size)) {
    for (const Task& task : MakeTasks(corpus)) {
      if (!task.what.starts_with(options.only)) continue;
      const Row row{&task, size, Measure(task, rounds)};
      Print(row);
      if (json != nullptr) PrintJson(json, row);
    }
  }
}

Options Parse(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "--quick") options.quick = true;
    if (i + 1 == argc) continue;
    if (word == "--json") options.json = argv[i + 1];
    if (word == "--only") options.only = argv[i + 1];
  }
  return options;
}

int Main(const Options& options) {
  std::FILE* json = nullptr;
  if (options.json != nullptr) {
    json = std::fopen(options.json, "w");
    if (json == nullptr) return 1;
  }
  PrintHead();
  Run(options, kInCache, options.quick ? 5 : 21, json);
  if (!options.quick) Run(options, kInMemory, 11, json);
  return json == nullptr || std::fclose(json) == 0 ? 0 : 1;
}

}  // namespace
}  // namespace velmohelp::bench

int main(int argc, char** argv) {
  return velmohelp::bench::Main(velmohelp::bench::Parse(argc, argv));
}
