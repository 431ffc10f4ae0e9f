#include <velmohelp/unicode.h>

#include <memory>

#include "util/unicode/cursor.h"

namespace ITEMInternal::velmo::gen {

illegal_utf_sequence::illegal_utf_sequence(const std::string& message)
    : std::runtime_error(message) {}

illegal_utf_sequence::~illegal_utf_sequence() = default;

namespace {

using velmohelp::unicode::HoldsUnits;

/// The UTF-16 units between wide characters and UTF-8.
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

/// What a conversion returned, and the positions that it reached.
template <typename Source, typename Target>
struct Conversion {
  ITEMConversionResult result;
  std::pair<const Source*, Target*> reached;
};

// These two return, and free their buffer, before an illegal sequence throws.

Conversion<wchar_t, char> Narrow(const wchar_t* first, const wchar_t* last,
                                 char* dfirst, char* dlast, bool lenient) {
  const Utf16Buffer units(static_cast<std::size_t>(last - first));
  ITEMUTF16* narrowed = units.begin();
  for (const wchar_t* wide = first; wide != last; ++wide) {
    *narrowed++ = static_cast<ITEMUTF16>(*wide & 0xFFFF);
  }
  const ITEMUTF16* source = units.begin();
  auto* target = reinterpret_cast<ITEMUTF8*>(dfirst);
  const auto result =
      ITEMConvertUTF16toUTF8(&source, units.end(), &target,
                             reinterpret_cast<ITEMUTF8*>(dlast), lenient);
  return {result,
          {first + (source - units.begin()), reinterpret_cast<char*>(target)}};
}

Conversion<char, wchar_t> Widen(const char* first, const char* last,
                                wchar_t* dfirst, wchar_t* dlast, bool lenient) {
  const Utf16Buffer units(static_cast<std::size_t>(dlast - dfirst));
  const auto* source = reinterpret_cast<const ITEMUTF8*>(first);
  ITEMUTF16* target = units.begin();
  const auto result =
      ITEMConvertUTF8toUTF16(&source, reinterpret_cast<const ITEMUTF8*>(last),
                             &target, units.end(), lenient);
  if (result == kConversionSourceIllegal) return {result, {}};
  for (const ITEMUTF16* unit = units.begin(); unit != target; ++unit) {
    *dfirst++ = static_cast<wchar_t>(*unit);
  }
  return {result, {reinterpret_cast<const char*>(source), dfirst}};
}

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
  const auto [result, reached] = Narrow(first, last, dfirst, dlast, lenient);
  RequireLegal(result, "Bad UTF-16 sequence.");
  return reached;
}

std::pair<const char*, wchar_t*> convert_utf(const char* first,
                                             const char* last, wchar_t* dfirst,
                                             wchar_t* dlast, bool lenient) {
  if (!HoldsUnits(first, last)) return {first, dfirst};
  RequireTarget(dfirst, dlast);
  const auto [result, reached] = Widen(first, last, dfirst, dlast, lenient);
  RequireLegal(result, "Bad UTF-8 sequence.");
  return reached;
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
