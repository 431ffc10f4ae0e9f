// Runs a fuzz target over the files of a folder: the corpus as a normal test.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size);

int main(int argc, char** argv) {
  std::size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& file : std::filesystem::directory_iterator(argv[i])) {
      std::ifstream in(file.path(), std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
      const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
      LLVMFuzzerTestOneInput(data.data(), data.size());
      ++count;
    }
  }
  return count == 0 ? 1 : 0;  // an empty folder proves nothing
}
