// The figures as a table for people and as lines of JSON.
#ifndef BENCH_SPEED_REPORT_H_
#define BENCH_SPEED_REPORT_H_

#include <cstdio>
#include <vector>

#include "bench/speed/rows.h"

namespace velmohelp::bench {

void PrintHead();

/// medians: one for each of the row's candidates. json: null for none.
void Print(const Row& row, const std::vector<double>& medians, std::FILE* json);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_REPORT_H_
