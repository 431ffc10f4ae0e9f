#include "bench/speed/report.h"

#include <algorithm>

namespace velmohelp::bench {
namespace {

double FigureOf(Rule rule, double ours, double peer) {
  switch (rule) {
    case Rule::kRatio:
      return ours / peer;
    case Rule::kTimesFaster:
      return peer / ours;
    case Rule::kDifference:
      return ours - peer;
    case Rule::kCount:
      return ours;
  }
  return 0;
}

bool Reaches(Rule rule, double figure, double target) {
  return rule == Rule::kTimesFaster ? figure >= target : figure <= target;
}

bool IsTime(Rule rule) {
  return rule == Rule::kRatio || rule == Rule::kTimesFaster;
}

std::string Formatted(const char* format, double value) {
  char text[64];
  // The formats are this file's own.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  std::snprintf(text, sizeof text, format, value);
#pragma GCC diagnostic pop
  return text;
}

std::string Amount(Rule rule, double value) {
  if (!IsTime(rule)) return Formatted("%.0f", value);
  if (value < 1e3) return Formatted("%.0f ns", value);
  if (value < 1e6) return Formatted("%.1f us", value / 1e3);
  return Formatted("%.2f ms", value / 1e6);
}

std::string Target(Rule rule, double target) {
  if (target == 0) return "";
  switch (rule) {
    case Rule::kRatio:
      return Formatted("%.2f x", target);
    case Rule::kTimesFaster:
      return Formatted("%.1f x faster", target);
    case Rule::kDifference:
      return Formatted("%.0f more", target);
    case Rule::kCount:
      return Formatted("%.0f", target);
  }
  return "";
}

const char* Verdict(const Row& row, double figure) {
  if (!Reaches(row.rule, figure, row.target)) return "NO";
  const bool stretch =
      row.stretch != 0 && Reaches(row.rule, figure, row.stretch);
  return stretch ? "yes, and more" : "yes";
}

}  // namespace

void PrintHead() {
  std::printf(
      "| what | ours | peer or floor | ratio | target | stretch target | met "
      "|\n|---|---|---|---|---|---|---|\n");
}

void Print(const Row& row, const std::vector<double>& medians,
           std::FILE* json) {
  const std::string& peer = row.candidates[1].name;
  const double figure = FigureOf(row.rule, medians[0], medians[1]);
  const std::string value =
      Formatted(IsTime(row.rule) ? "%.2f" : "%.0f", figure);
  const std::string target = Target(row.rule, row.target);
  std::printf("| %s | %s | %s: %s | %s | %s | %s | %s |\n", row.what.c_str(),
              Amount(row.rule, medians[0]).c_str(), peer.c_str(),
              Amount(row.rule, medians[1]).c_str(), value.c_str(),
              target.c_str(), Target(row.rule, row.stretch).c_str(),
              Verdict(row, figure));
  std::fflush(stdout);
  if (json == nullptr) return;
  std::fprintf(json,
               R"({"what":"%s","ours":%.0f,"peer":"%s","peers":%.0f,)"
               R"("figure":%.3f,"target":"%s","met":%s})"
               "\n",
               row.what.c_str(), medians[0], peer.c_str(), medians[1], figure,
               target.c_str(),
               Reaches(row.rule, figure, row.target) ? "true" : "false");
}

}  // namespace velmohelp::bench
