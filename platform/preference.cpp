#include "platform/preference.h"

#include <cstdlib>

#include "util/platform_string.h"

namespace velmohelp {
namespace {

using ITEMInternal::GetCharFromCFStringRef;

PlatformStringPtr NameOf(const std::string& bytes) {
  return MakePlatformString(bytes, ITEMInternal::kTextEncodingMacRoman);
}

std::string TextOf(const std::string& value) {
  const auto text = MakePlatformString(value, ITEMInternal::kTextEncodingUtf8);
  const std::unique_ptr<char, decltype(&std::free)> bytes(
      GetCharFromCFStringRef(text.get()), &std::free);
  return bytes ? bytes.get() : "";
}

}  // namespace

std::string PreferenceText(Machine& machine, const std::string& domain,
                           const std::string& key, PreferenceScope scope) {
  const auto domain_name = NameOf(domain);
  const auto key_name = NameOf(key);
  const auto value =
      machine.Preference(domain_name->utf8(), key_name->utf8(), scope);
  return value ? TextOf(*value) : "";
}

}  // namespace velmohelp
