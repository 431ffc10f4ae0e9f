// How costs grow with what they grow with.
#ifndef BENCH_SPEED_GROWTH_H_
#define BENCH_SPEED_GROWTH_H_

#include <cstdio>

namespace velmohelp::bench {

/// Measures and prints the growth table. json: null for none.
void PrintGrowth(int rounds, std::FILE* json);

}  // namespace velmohelp::bench

#endif  // BENCH_SPEED_GROWTH_H_
