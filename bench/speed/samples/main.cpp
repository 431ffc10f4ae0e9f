// bench_sample NAME ARGUMENT...: takes one sample and prints its nanoseconds.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>

#include "bench/speed/samples/samples.h"

namespace velmohelp::bench {

std::string Contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  Require(file.is_open(), path.c_str());
  std::string contents(std::filesystem::file_size(path), '\0');
  file.read(contents.data(), static_cast<std::streamsize>(contents.size()));
  Require(file.good(), path.c_str());
  return contents;
}

namespace {

double Take(const std::string& name, const Words& words) {
  for (const auto& family : {RequestSamples(), MapSamples(), TextSamples()}) {
    const auto sample = family.find(name);
    if (sample != family.end()) return sample->second(words);
  }
  throw std::runtime_error("no such sample");
}

}  // namespace
}  // namespace velmohelp::bench

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  try {
    std::printf("%.0f\n",
                velmohelp::bench::Take(argv[1], {argv + 2, argv + argc}));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", argv[1], error.what());
    return 1;
  }
}
