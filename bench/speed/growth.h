// How costs grow with the number of folders, lines and requests.
#ifndef BENCH_SPEED_GROWTH_H_
#define BENCH_SPEED_GROWTH_H_

#include <cstdio>

namespace velmohelp::bench {

/// Measures and prints the growth table. json: null to write none.
void PrintGrowth(int rounds, std::FILE* json);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_GROWTH_H_
