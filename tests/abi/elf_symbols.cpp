#include "tests/abi/elf_symbols.h"

#include <cxxabi.h>
#include <elf.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

namespace velmohelp::testing {
namespace {

template <typename T>
std::vector<T> Table(const std::string& file, std::size_t offset,
                     std::size_t count) {
  std::vector<T> table(count);
  if (count > 0) {
    const std::string bytes = file.substr(offset, count * sizeof(T));
    std::memcpy(table.data(), bytes.data(), bytes.size());
  }
  return table;
}

std::string Demangled(const char* name) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> text(
      abi::__cxa_demangle(name, nullptr, nullptr, &status), &std::free);
  std::string result = status == 0 ? text.get() : name;
  return result.substr(0, result.find("[abi:"));
}

}  // namespace

std::map<std::string, std::uintptr_t> SymbolsOf(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  const std::string file{std::istreambuf_iterator<char>(stream), {}};
  const auto header = Table<Elf64_Ehdr>(file, 0, 1).front();
  const auto sections = Table<Elf64_Shdr>(file, header.e_shoff, header.e_shnum);
  std::map<std::string, std::uintptr_t> symbols;
  for (const Elf64_Shdr& section : sections) {
    if (section.sh_type != SHT_SYMTAB) continue;
    const char* names = file.data() + sections.at(section.sh_link).sh_offset;
    for (const auto& symbol : Table<Elf64_Sym>(
             file, section.sh_offset, section.sh_size / sizeof(Elf64_Sym))) {
      symbols[Demangled(names + symbol.st_name)] = symbol.st_value;
    }
  }
  return symbols;
}

}  // namespace velmohelp::testing
