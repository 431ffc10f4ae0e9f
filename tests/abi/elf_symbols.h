// The symbol table of a shared library's file, with the names that it keeps to
// itself.
#ifndef TESTS_ABI_ELF_SYMBOLS_H_
#define TESTS_ABI_ELF_SYMBOLS_H_

#include <cstdint>
#include <map>
#include <string>

namespace velmohelp::testing {

/// Demangled name, without ABI tags ("velmohelp::sLocale"), to the address
/// relative to where the library is loaded. Empty when the file is stripped.
std::map<std::string, std::uintptr_t> SymbolsOf(const std::string& path);

}  // namespace velmohelp::testing

#endif  // TESTS_ABI_ELF_SYMBOLS_H_
