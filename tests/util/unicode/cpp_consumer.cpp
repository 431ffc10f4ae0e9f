// The string layer of the shared library: a program catches its exception by
// the class that the library threw.
#include <velmohelp/unicode.h>

#include <cstdio>
#include <cstring>

using ITEMInternal::velmo::gen::convert_utf;
using ITEMInternal::velmo::gen::illegal_utf_sequence;

namespace {

bool WholeTexts() {
  return convert_utf<std::wstring>(std::string("a\xC3\xA9"), false) ==
             L"a\u00E9" &&
         convert_utf<std::string>(std::wstring(L"a\u00E9"), false) ==
             "a\xC3\xA9";
}

bool BoundedTexts() {
  const wchar_t wide[] = L"ab";
  char narrow[2];
  wchar_t back[2];
  convert_utf(wide, wide + 2, narrow, narrow + 2, false);
  convert_utf(narrow, narrow + 2, back, back + 2, false);
  return std::memcmp(wide, back, sizeof back) == 0;
}

bool Throws() {
  try {
    convert_utf<std::wstring>(std::string("abc\xE2"), false);
  } catch (const illegal_utf_sequence& error) {
    return std::strcmp(error.what(), "UTF-8 seqence is not complete.") == 0;
  }
  return false;
}

}  // namespace

int main() {
  const bool passed = WholeTexts() && BoundedTexts() && Throws() &&
                      illegal_utf_sequence("own").what() != nullptr;
  if (!passed) std::fputs("the string layer does not work\n", stderr);
  return passed ? 0 : 1;
}
