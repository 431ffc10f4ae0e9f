#include "bench/speed/growth.h"

#include <algorithm>

#include "bench/speed/rows.h"

namespace velmohelp::bench {
namespace {

struct Point {
  double amount;
  Words command;
};

struct Series {
  std::string what;
  std::string unit;
  std::vector<Point> points;
  /// A reading is the cost of each one, not of all together.
  bool each = false;
};

Series Rows() {
  Series series = {"page found in the last content folder", "folder", {}};
  for (const char* count : {"1", "10", "100"}) {
    series.points.push_back(
        {std::stod(count),
         Sample({"find", InWorld("offline"), std::string("rows") + count,
                 "page_0990050.html"})});
  }
  return series;
}

Series Lines(const std::string& kind) {
  Series series = {"LoadMapFile, " + kind, "line", {}};
  for (const char* count : {"100", "1000", "10000", "100000", "1000000"}) {
    const std::string path = InWorld("maps/" + kind + "-" + count + ".txt");
    series.points.push_back({std::stod(count), Sample({"load", path, count})});
  }
  return series;
}

Series Requests() {
  Series series = {"page display, each of", "request", {}, true};
  for (const char* count : {"1", "10", "100", "1000", "10000"}) {
    series.points.push_back(
        {std::stod(count), Sample({"requests", InWorld("offline"), count})});
  }
  return series;
}

/// Long series run fewer rounds: each reading is a mean of many already.
int RoundsFor(const Series& series, const Point& point, int rounds) {
  return series.each && point.amount > 100 ? std::min(rounds, 3) : rounds;
}

void PrintPoint(const Series& series, const Point& point, double time,
                std::FILE* json) {
  const double each = series.each ? time : time / point.amount;
  std::printf("| %s | %.0f | %.1f us | %.3f us |\n", series.what.c_str(),
              point.amount, (series.each ? time * point.amount : time) / 1e3,
              each / 1e3);
  std::fflush(stdout);
  if (json == nullptr) return;
  std::fprintf(json,
               R"({"growth":"%s","unit":"%s","amount":%.0f,"each":%.1f})"
               "\n",
               series.what.c_str(), series.unit.c_str(), point.amount, each);
}

}  // namespace

void PrintGrowth(int rounds, std::FILE* json) {
  std::printf("\n| what | amount | in all | each |\n|---|---|---|---|\n");
  for (const Series& series :
       {Rows(), Lines("sorted"), Lines("shuffled"), Requests()}) {
    for (const Point& point : series.points) {
      const auto medians = Measure({{series.what, point.command}},
                                   RoundsFor(series, point, rounds));
      PrintPoint(series, point, medians[0], json);
    }
  }
}

}  // namespace velmohelp::bench
