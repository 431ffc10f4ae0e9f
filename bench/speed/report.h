// Prints the figures as a table, and as one JSON object per row.
#ifndef BENCH_SPEED_REPORT_H_
#define BENCH_SPEED_REPORT_H_

#include <cstdio>
#include <vector>

#include "bench/speed/rows.h"

namespace velmohelp::bench {

void PrintHead();

/// medians: one for each of the row's candidates. json: null to write none.
void Print(const Row& row, const std::vector<double>& medians, std::FILE* json);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_REPORT_H_
