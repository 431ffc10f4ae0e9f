#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include <cstring>

#include "exports/guarded.h"

long VelmoHelpEncodeURIComponent(const char* in, char* out, long outSize) {
  constexpr long kNotWritten = -1;
  if (in == nullptr || out == nullptr) return kNotWritten;
  return velmohelp::Guarded<long>(kNotWritten, [&] {
    const std::string text = ITEMInternal::VelmoHelpEncodeURIComponent(in);
    const auto length = static_cast<long>(text.size());
    if (length >= outSize) return kNotWritten;
    std::memcpy(out, text.c_str(), text.size() + 1);
    return length;
  });
}
