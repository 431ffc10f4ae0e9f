// Asks for what the library alone cannot do: a fetch, by the helper program
// that the package has put beside it.
#include <velmohelp/resolve.h>

int main() {
  const bool there = ITEMInternal::ValidateURL("file:///etc/os-release", true);
  const bool not_there = ITEMInternal::ValidateURL("file:///no/such", true);
  return there && !not_there ? 0 : 1;
}
