// Compares a converter with the oracle.
#ifndef TESTS_SUPPORT_UNICODE_COMPARE_H_
#define TESTS_SUPPORT_UNICODE_COMPARE_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/unicode_oracle.h"

namespace velmohelp::testing {

template <typename From, typename To>
struct Direction {
  using Source = From;
  using Target = To;

  const char* name;
  ITEMConversionResult (*convert)(const From**, const From*, To**, To*, int);
  Outcome (*oracle)(const From*, std::size_t, To*, std::size_t, bool);
};

inline constexpr Direction<ITEMUTF8, ITEMUTF16> kUtf8To16{
    "UTF-8 to UTF-16", ITEMConvertUTF8toUTF16, OracleUtf8To16};
inline constexpr Direction<ITEMUTF8, ITEMUTF32> kUtf8To32{
    "UTF-8 to UTF-32", ITEMConvertUTF8toUTF32, OracleUtf8To32};
inline constexpr Direction<ITEMUTF16, ITEMUTF8> kUtf16To8{
    "UTF-16 to UTF-8", ITEMConvertUTF16toUTF8, OracleUtf16To8};
inline constexpr Direction<ITEMUTF16, ITEMUTF32> kUtf16To32{
    "UTF-16 to UTF-32", ITEMConvertUTF16toUTF32, OracleUtf16To32};
inline constexpr Direction<ITEMUTF32, ITEMUTF8> kUtf32To8{
    "UTF-32 to UTF-8", ITEMConvertUTF32toUTF8, OracleUtf32To8};
inline constexpr Direction<ITEMUTF32, ITEMUTF16> kUtf32To16{
    "UTF-32 to UTF-16", ITEMConvertUTF32toUTF16, OracleUtf32To16};

/// Two targets of the same size with the same filling, one for each
/// implementation. Both are longer than the room that a conversion gets, to
/// show what it writes past that.
template <typename Unit>
class TwoTargets {
 public:
  static constexpr Unit kFill = static_cast<Unit>(0xA5A5A5A5A5A5A5A5);
  static constexpr std::size_t kBeyond = 32 / sizeof(Unit) + 1;

  explicit TwoTargets(std::size_t room)
      : real_(room + kBeyond, kFill), oracle_(room + kBeyond, kFill) {}

  Unit* real() { return real_.data(); }
  Unit* oracle() { return oracle_.data(); }
  bool Same() const { return real_ == oracle_; }

  void Refill(std::size_t units) {
    std::fill_n(real_.begin(), units + kBeyond, kFill);
    std::fill_n(oracle_.begin(), units + kBeyond, kFill);
  }

 private:
  std::vector<Unit> real_;
  std::vector<Unit> oracle_;
};

/// Runs the real converter from cursor to cursor.
template <typename D>
Outcome RunReal(const D& direction, const typename D::Source* source,
                std::size_t size, typename D::Target* target, std::size_t room,
                int flag) {
  const auto* from = source;
  auto* to = target;
  const int result =
      direction.convert(&from, source + size, &to, target + room, flag);
  return {result, static_cast<std::size_t>(from - source),
          static_cast<std::size_t>(to - target)};
}

template <typename Unit>
std::string Dump(const Unit* units, std::size_t size) {
  std::ostringstream text;
  text << std::hex;
  for (std::size_t i = 0; i < size; ++i) text << ' ' << std::uint64_t{units[i]};
  return text.str();
}

/// One call of each with the same room: compares results, cursors, the units
/// written and everything after them. Refills the targets first.
template <typename D>
::testing::AssertionResult AgreeIn(const D& direction,
                                   const typename D::Source* source,
                                   std::size_t size, std::size_t room, int flag,
                                   TwoTargets<typename D::Target>& targets) {
  targets.Refill(room);
  const Outcome real =
      RunReal(direction, source, size, targets.real(), room, flag);
  const Outcome oracle =
      direction.oracle(source, size, targets.oracle(), room, flag != 0);
  if (real == oracle && targets.Same()) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << direction.name << ", room " << room << ", flag " << flag
         << "\n source" << Dump(source, size) << "\n real " << real.result
         << " at " << real.consumed << ":" << Dump(targets.real(), room + 1)
         << "\n oracle " << oracle.result << " at " << oracle.consumed << ":"
         << Dump(targets.oracle(), room + 1);
}

/// Both modes, with every amount of room from none to one unit too many.
/// targets: at least four units for each source unit, and one.
template <typename D>
::testing::AssertionResult AgreeInEveryRoom(
    const D& direction, const typename D::Source* source, std::size_t size,
    TwoTargets<typename D::Target>& targets) {
  for (const int flag : {kConversionStrict, kConversionLenient}) {
    const std::size_t needed =
        direction.oracle(source, size, targets.oracle(), 4 * size, flag != 0)
            .produced;
    targets.Refill(4 * size);
    for (std::size_t room = 0; room <= needed + 1; ++room) {
      auto agree = AgreeIn(direction, source, size, room, flag, targets);
      if (!agree) return agree;
    }
  }
  return ::testing::AssertionSuccess();
}

/// Any bytes as the source, and part/255 of the room that they may need.
template <typename D>
::testing::AssertionResult AgreeOnBytes(const D& direction,
                                        const std::uint8_t* bytes,
                                        std::size_t size, std::uint8_t part,
                                        int flag) {
  std::vector<typename D::Source> source(size / sizeof(typename D::Source));
  if (!source.empty()) {
    std::memcpy(source.data(), bytes, source.size() * sizeof source[0]);
  }
  const std::size_t room = 4 * source.size() * part / 255;
  TwoTargets<typename D::Target> targets(room);
  return AgreeIn(direction, source.data(), source.size(), room, flag, targets);
}

inline ::testing::AssertionResult AgreeOnLegality(const ITEMUTF8* source,
                                                  std::size_t size) {
  const bool text = ITEMisLegalUTF8String(source, source + size);
  const bool sequence = ITEMisLegalUTF8Sequence(source, source + size);
  if (text == OracleIsLegal(source, size) &&
      sequence == (OracleSequence(source, size) != 0)) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << "legality of" << Dump(source, size);
}

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_UNICODE_COMPARE_H_
