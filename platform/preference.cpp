#include "platform/preference.h"

#include <utility>

#include "util/c_string.h"
#include "util/mac_roman.h"
#include "util/text_encoding.h"

namespace velmohelp {

std::string PreferenceText(Machine& machine, const std::string& domain,
                           const std::string& key, PreferenceScope scope) {
  const auto value = machine.Preference(MacRomanToUtf8(UpToZero(domain)),
                                        MacRomanToUtf8(UpToZero(key)), scope);
  if (!value) return "";
  auto text = DecodeText(*value, TextEncoding::kUtf8);
  return text && FitsMaximumSize(*text) ? std::move(*text) : "";
}

}  // namespace velmohelp
