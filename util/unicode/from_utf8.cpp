#include <algorithm>

#include "util/unicode/put.h"
#include "util/unicode/squeeze.h"
#include "util/unicode/take.h"
#include "util/unicode/utf8_block.h"

namespace velmohelp::unicode {
namespace {

#ifdef VELMO_UNICODE_LANES

VELMO_INLINE void StoreAscii(ITEMUTF16* to, Bytes bytes) {
  Store(to, FirstHalf(bytes, Bytes{}));
  Store(to + kUnitLanes, SecondHalf(bytes, Bytes{}));
}

VELMO_INLINE void StoreAscii(ITEMUTF32* to, Bytes bytes) {
  StoreWidened(to, FirstHalf(bytes, Bytes{}));
  StoreWidened(to + kUnitLanes, SecondHalf(bytes, Bytes{}));
}

/// Asks for the memory where the units of a block that comes later will stand.
/// UTF-32 writes eight times what it reads: in a long text the stores would
/// wait for memory. Nothing is read or written there, and it may lie beyond the
/// target.
VELMO_INLINE void FetchAhead(const ITEMUTF32* to) {
  constexpr std::size_t kAhead = 256;
  constexpr std::size_t kLine = 64 / sizeof *to;
  for (std::size_t unit = 0; unit < kByteLanes; unit += kLine) {
    __builtin_prefetch(to + kAhead + unit, 1);
  }
}

VELMO_INLINE void FetchAhead(const ITEMUTF16* /*to*/) {}

/// ASCII, block by block.
template <typename Unit>
VELMO_INLINE void CopyAscii(Cursor<const ITEMUTF8>& source,
                            Cursor<Unit>& target) {
  while (source.left() >= kByteLanes && target.left() >= kByteLanes) {
    const auto bytes = Load<Bytes>(source.at());
    if (Any(bytes)) return;
    StoreAscii(target.at(), bytes);
    source.Advance(kByteLanes);
    target.Advance(kByteLanes);
  }
}

VELMO_WIDE VELMO_INLINE void SqueezeBlock(const Utf8Values& v, ITEMUTF16* to) {
  Squeeze(FirstHalf(v.low, v.middle), FirstHalf(v.kept, v.kept), to);
  Squeeze(SecondHalf(v.low, v.middle), SecondHalf(v.kept, v.kept), to);
}

VELMO_WIDE VELMO_INLINE void SqueezeBlock(const Utf8Values& v, ITEMUTF32* to) {
  SqueezeWide(FirstHalf(v.low, v.middle), FirstHalf(v.high, Bytes{}),
              FirstHalf(v.kept, v.kept), to);
  SqueezeWide(SecondHalf(v.low, v.middle), SecondHalf(v.high, Bytes{}),
              SecondHalf(v.kept, v.kept), to);
}

/// The same where blocks are wide. UTF-32 is bound by its stores, of which
/// these are twice as long.
VELMO_INLINE void CopyAsciiWide(Cursor<const ITEMUTF8>& source,
                                Cursor<ITEMUTF16>& target) {
  CopyAscii(source, target);
}

[[gnu::target("avx2"), gnu::noinline]] std::size_t StoreAscii32(
    const ITEMUTF8* from, std::size_t size, ITEMUTF32* to) {
  std::size_t done = 0;
  for (; size - done >= kByteLanes; done += kByteLanes) {
    if (Any(Load<Bytes>(from + done))) break;
    FetchAhead(to + done);
    for (std::size_t i = done; i < done + kByteLanes; i += 4) {
      const __m128i four = _mm_loadu_si32(from + i);
      _mm256_storeu_si256(reinterpret_cast<__m256i*>(to + i),
                          _mm256_cvtepu8_epi64(four));
    }
  }
  return done;
}

VELMO_INLINE void CopyAsciiWide(Cursor<const ITEMUTF8>& source,
                                Cursor<ITEMUTF32>& target) {
  const std::size_t done = StoreAscii32(
      source.at(), std::min(source.left(), target.left()), target.at());
  source.Advance(done);
  target.Advance(done);
}

/// All of the text but what only single steps can judge.
template <typename Direction, typename Unit>
VELMO_WIDE VELMO_INLINE void CopyBlocks(Direction direction,
                                        Cursor<const ITEMUTF8>& source,
                                        Cursor<Unit>& target) {
  while (source.left() >= kByteLanes &&
         target.left() >= kByteLanes + kBeyond<Unit>) {
    const auto bytes = Load<Bytes>(source.at());
    if (!Any(bytes)) {
      CopyAsciiWide(source, target);
      continue;
    }
    FetchAhead(target.at());
    const Utf8Block block(bytes);
    if (!IsLegal(block) || !direction.Takes(block)) return;
    const Utf8Values values = direction.Values(block);
    const std::size_t units = KeptIn<ITEMUTF8>(values.kept);
    const Beyond<Unit> beyond(target.at() + units);
    SqueezeBlock(values, target.at());
    beyond.PutBack();
    source.Advance(WholeCharacters(source.at()));
    target.Advance(units);
  }
}

#endif

struct Utf8ToUtf16 {
  bool lenient;

  void Blocks(Cursor<const ITEMUTF8>& source, Cursor<ITEMUTF16>& target) const {
    RunKernel(*this, source, target);
  }

#ifdef VELMO_UNICODE_LANES
  VELMO_INLINE static void Plain(Cursor<const ITEMUTF8>& source,
                                 Cursor<ITEMUTF16>& target) {
    CopyAscii(source, target);
  }
  VELMO_WIDE VELMO_INLINE void Wide(Cursor<const ITEMUTF8>& source,
                                    Cursor<ITEMUTF16>& target) const {
    CopyBlocks(*this, source, target);
  }
  VELMO_INLINE bool Takes(const Utf8Block& block) const {
    return lenient || !HasSurrogates(block);
  }
  VELMO_INLINE static Utf8Values Values(const Utf8Block& block) {
    return Utf16Units(block);
  }
#endif

  ITEMConversionResult Step(Cursor<const ITEMUTF8>& source,
                            Cursor<ITEMUTF16>& target) const {
    const Taken character = TakeUtf8(source);
    if (character.result != kConversionComplete) return character.result;
    const auto result = PutUtf16(character.value, lenient, target);
    if (result == kConversionComplete) source.Advance(character.units);
    return result;
  }
};

struct Utf8ToUtf32 {
  void Blocks(Cursor<const ITEMUTF8>& source, Cursor<ITEMUTF32>& target) const {
    RunKernel(*this, source, target);
  }

#ifdef VELMO_UNICODE_LANES
  VELMO_INLINE static void Plain(Cursor<const ITEMUTF8>& source,
                                 Cursor<ITEMUTF32>& target) {
    CopyAscii(source, target);
  }
  VELMO_WIDE VELMO_INLINE void Wide(Cursor<const ITEMUTF8>& source,
                                    Cursor<ITEMUTF32>& target) const {
    CopyBlocks(*this, source, target);
  }
  VELMO_INLINE static bool Takes(const Utf8Block& /*block*/) { return true; }
  VELMO_INLINE static Utf8Values Values(const Utf8Block& block) {
    return CodePoints(block);
  }
#endif

  static ITEMConversionResult Step(Cursor<const ITEMUTF8>& source,
                                   Cursor<ITEMUTF32>& target) {
    const Taken character = TakeUtf8(source);
    if (character.result != kConversionComplete) return character.result;
    const auto result = PutUtf32(character.value, target);
    if (result == kConversionComplete) source.Advance(character.units);
    return result;
  }
};

}  // namespace
}  // namespace velmohelp::unicode

using velmohelp::unicode::Convert;
using velmohelp::unicode::Utf8ToUtf16;
using velmohelp::unicode::Utf8ToUtf32;

ITEMConversionResult ITEMConvertUTF8toUTF16(const ITEMUTF8** source,
                                            const ITEMUTF8* sourceEnd,
                                            ITEMUTF16** target,
                                            ITEMUTF16* targetEnd, int flag) {
  return Convert(Utf8ToUtf16{flag != 0}, source, sourceEnd, target, targetEnd);
}

ITEMConversionResult ITEMConvertUTF8toUTF32(const ITEMUTF8** source,
                                            const ITEMUTF8* sourceEnd,
                                            ITEMUTF32** target,
                                            ITEMUTF32* targetEnd,
                                            int /*flag*/) {
  return Convert(Utf8ToUtf32{}, source, sourceEnd, target, targetEnd);
}
