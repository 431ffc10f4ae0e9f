// How a variable of the state gets its exported name.
#ifndef EXPORTS_EXPORTED_VARIABLE_H_
#define EXPORTS_EXPORTED_VARIABLE_H_

/// Protected: a program that would copy the variable into itself at its start
/// is refused by the linker, and a host's variable of this name does not become
/// ours. <velmohelp/export.h> keeps compilers from asking for such copies.
#define VELMO_PROTECT(name) asm(".protected " #name)

/// Makes an exported name another name of the variable in velmohelp::own, which
/// the same file defines.
// NOLINTBEGIN(bugprone-macro-parentheses): the name of a declaration takes
// none.
#define VELMO_EXPORT_OWN(name)                        \
  extern "C" decltype(::name) name                    \
      __attribute__((alias(VELMO_OWN_SYMBOL(name)))); \
  VELMO_PROTECT(name)
// NOLINTEND(bugprone-macro-parentheses)

#endif  // EXPORTS_EXPORTED_VARIABLE_H_
