#include "tests/support/unicode_text.h"

#include "tests/support/unicode_oracle.h"

namespace velmohelp::testing {
namespace {

std::size_t Below(std::mt19937& random, std::size_t bound) {
  return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
}

struct Kind {
  ITEMUTF32 first;
  ITEMUTF32 last;
};

/// ASCII, Latin, Cyrillic, CJK, private use, emoji, all supplementary planes.
constexpr Kind kKinds[] = {
    {0x00, 0x7F},     {0x80, 0x17F},      {0x400, 0x45F},     {0x800, 0xD7FF},
    {0xE000, 0xFFFF}, {0x1F300, 0x1F64F}, {0x10000, 0x10FFFF}};
constexpr Kind kSurrogates = {0xD800, 0xDFFF};
constexpr Kind kBeyond = {0x110000, 0x220000};

Kind DrawKind(std::mt19937& random, Purity purity) {
  if (purity != Purity::kWellFormed && Below(random, 12) == 0) {
    return kSurrogates;
  }
  if (purity == Purity::kAnything && Below(random, 12) == 0) return kBeyond;
  return kKinds[Below(random, std::size(kKinds))];
}

/// Overwrites a few units with random ones, and may drop the last.
template <typename Unit>
void Damage(std::mt19937& random, std::vector<Unit>& units) {
  if (units.empty()) return;
  for (std::size_t spots = Below(random, 3); spots != 0; --spots) {
    auto& unit = units[Below(random, units.size())];
    unit = static_cast<Unit>(Below(random, 2) == 0 ? random() : unit ^ 0x40U);
  }
  units.resize(units.size() - Below(random, 2));
}

}  // namespace

std::vector<ITEMUTF32> MixedValues(std::mt19937& random, std::size_t size,
                                   Purity purity) {
  constexpr std::size_t kRuns[] = {1, 1, 2, 5, 12, 40};
  std::vector<ITEMUTF32> values;
  while (values.size() < size) {
    const Kind kind = DrawKind(random, purity);
    for (std::size_t run = kRuns[Below(random, 6)]; run != 0; --run) {
      values.push_back(kind.first + Below(random, kind.last - kind.first + 1));
    }
  }
  values.resize(size);
  return values;
}

std::vector<ITEMUTF8> MixedUtf8(std::mt19937& random, std::size_t size,
                                Purity purity) {
  const auto values = MixedValues(random, size, purity);
  std::vector<ITEMUTF8> bytes(4 * values.size());
  bytes.resize(OracleUtf32To8(values.data(), values.size(), bytes.data(),
                              bytes.size(), true)
                   .produced);
  if (purity == Purity::kAnything) Damage(random, bytes);
  return bytes;
}

std::vector<ITEMUTF16> MixedUtf16(std::mt19937& random, std::size_t size,
                                  Purity purity) {
  const auto values = MixedValues(random, size, purity);
  std::vector<ITEMUTF16> units(2 * values.size());
  units.resize(OracleUtf32To16(values.data(), values.size(), units.data(),
                               units.size(), true)
                   .produced);
  if (purity == Purity::kAnything) Damage(random, units);
  return units;
}

}  // namespace velmohelp::testing
