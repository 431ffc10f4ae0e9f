#include <velmohelp/unicode.h>

#include <memory>

#include "util/unicode/cursor.h"

namespace ITEMInternal::velmo::gen {

illegal_utf_sequence::illegal_utf_sequence(const std::string& message)
    : std::runtime_error(message) {}

illegal_utf_sequence::~illegal_utf_sequence() = default;

namespace {

using velmohelp::unicode::HoldsUnits;

/// Units between the two steps of a conversion, one for each wide character.
class Utf16Buffer {
 public:
  explicit Utf16Buffer(std::size_t size)
      : units_(std::make_unique_for_overwrite<ITEMUTF16[]>(size)),
        end_(units_.get() + size) {}

  ITEMUTF16* begin() const { return units_.get(); }
  ITEMUTF16* end() const { return end_; }

 private:
  std::unique_ptr<ITEMUTF16[]> units_;
  ITEMUTF16* end_;
};

void RequireTarget(const void* first, const void* last) {
  if (!HoldsUnits(first, last)) {
    throw illegal_utf_sequence("Empty target buffer.");
  }
}

void RequireLegal(ITEMConversionResult result, const char* message) {
  if (result == kConversionSourceIllegal) throw illegal_utf_sequence(message);
}

}  // namespace

std::pair<const wchar_t*, char*> convert_utf(const wchar_t* first,
                                             const wchar_t* last, char* dfirst,
                                             char* dlast, bool lenient) {
  if (!HoldsUnits(first, last)) return {first, dfirst};
  RequireTarget(dfirst, dlast);
  const Utf16Buffer units(static_cast<std::size_t>(last - first));
  ITEMUTF16* narrowed = units.begin();
  for (const wchar_t* wide = first; wide != last; ++wide) {
    *narrowed++ = static_cast<ITEMUTF16>(*wide & 0xFFFF);
  }
  const ITEMUTF16* source = units.begin();
  auto* target = reinterpret_cast<ITEMUTF8*>(dfirst);
  RequireLegal(
      ITEMConvertUTF16toUTF8(&source, units.end(), &target,
                             reinterpret_cast<ITEMUTF8*>(dlast), lenient),
      "Bad UTF-16 sequence.");
  return {first + (source - units.begin()), reinterpret_cast<char*>(target)};
}

std::pair<const char*, wchar_t*> convert_utf(const char* first,
                                             const char* last, wchar_t* dfirst,
                                             wchar_t* dlast, bool lenient) {
  if (!HoldsUnits(first, last)) return {first, dfirst};
  RequireTarget(dfirst, dlast);
  const Utf16Buffer units(static_cast<std::size_t>(dlast - dfirst));
  const auto* source = reinterpret_cast<const ITEMUTF8*>(first);
  ITEMUTF16* target = units.begin();
  RequireLegal(
      ITEMConvertUTF8toUTF16(&source, reinterpret_cast<const ITEMUTF8*>(last),
                             &target, units.end(), lenient),
      "Bad UTF-8 sequence.");
  for (const ITEMUTF16* unit = units.begin(); unit != target; ++unit) {
    *dfirst++ = static_cast<wchar_t>(*unit);
  }
  return {reinterpret_cast<const char*>(source), dfirst};
}

template <typename Result, typename Source>
Result convert_utf(const Source& source, bool lenient) {
  Result result;
  const auto* position = source.data();
  const auto* const end = position + source.size();
  while (position != end) {
    typename Result::value_type piece[256];
    const auto [reached, written] =
        convert_utf(position, end, std::begin(piece), std::end(piece), lenient);
    result.append(piece, written);
    if (reached == position) {
      throw illegal_utf_sequence("UTF-8 seqence is not complete.");
    }
    position = reached;
  }
  return result;
}

template std::string convert_utf<std::string, std::wstring>(const std::wstring&,
                                                            bool);
template std::wstring convert_utf<std::wstring, std::string>(const std::string&,
                                                             bool);

}  // namespace ITEMInternal::velmo::gen
