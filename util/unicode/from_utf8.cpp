#include <algorithm>

#include "util/unicode/compress.h"
#include "util/unicode/convert.h"
#include "util/unicode/decode.h"
#include "util/unicode/encode.h"
#include "util/unicode/utf8_block.h"

namespace velmohelp::unicode {
namespace {

#ifdef VELMO_UNICODE_LANES

VELMO_INLINE void StoreAscii(ITEMUTF16* to, U8x16 bytes) {
  Store(to, InterleaveLow(bytes, U8x16{}));
  Store(to + kUnitLanes, InterleaveHigh(bytes, U8x16{}));
}

VELMO_INLINE void StoreAscii(ITEMUTF32* to, U8x16 bytes) {
  StoreWidened(to, InterleaveLow(bytes, U8x16{}));
  StoreWidened(to + kUnitLanes, InterleaveHigh(bytes, U8x16{}));
}

/// Prefetches the target of a later block. UTF-32 writes eight times what it
/// reads: in a long text the stores would wait for memory. A prefetch reads and
/// writes nothing, so it may reach past the target's end.
VELMO_INLINE void PrefetchAhead(const ITEMUTF32* to) {
  constexpr std::size_t kAhead = 256;
  constexpr std::size_t kLine = 64 / sizeof *to;
  for (std::size_t unit = 0; unit < kByteLanes; unit += kLine) {
    __builtin_prefetch(to + kAhead + unit, 1);
  }
}

VELMO_INLINE void PrefetchAhead(const ITEMUTF16* /*to*/) {}

/// ASCII, block by block.
template <typename Unit>
VELMO_INLINE void CopyAscii(Cursor<const ITEMUTF8>& source,
                            Cursor<Unit>& target) {
  while (source.left() >= kByteLanes && target.left() >= kByteLanes) {
    const auto bytes = Load<U8x16>(source.at());
    if (Any(bytes)) return;
    StoreAscii(target.at(), bytes);
    source.Advance(kByteLanes);
    target.Advance(kByteLanes);
  }
}

VELMO_BMI2 VELMO_INLINE void CompressBlock(const Utf8Values& v, ITEMUTF16* to) {
  Compress(InterleaveLow(v.low, v.middle), InterleaveLow(v.mask, v.mask), to);
  Compress(InterleaveHigh(v.low, v.middle), InterleaveHigh(v.mask, v.mask), to);
}

VELMO_BMI2 VELMO_INLINE void CompressBlock(const Utf8Values& v, ITEMUTF32* to) {
  CompressWidened(InterleaveLow(v.low, v.middle),
                  InterleaveLow(v.high, U8x16{}), InterleaveLow(v.mask, v.mask),
                  to);
  CompressWidened(InterleaveHigh(v.low, v.middle),
                  InterleaveHigh(v.high, U8x16{}),
                  InterleaveHigh(v.mask, v.mask), to);
}

/// CopyAscii for processors with AVX2.
VELMO_INLINE void CopyAsciiAvx2(Cursor<const ITEMUTF8>& source,
                                Cursor<ITEMUTF16>& target) {
  CopyAscii(source, target);
}

/// Returns how many characters it wrote. UTF-32 is bound by its stores, and
/// those of AVX2 are twice as wide.
[[gnu::target("avx2"), gnu::noinline]] std::size_t StoreAscii32(
    const ITEMUTF8* from, std::size_t size, ITEMUTF32* to) {
  std::size_t done = 0;
  for (; size - done >= kByteLanes; done += kByteLanes) {
    if (Any(Load<U8x16>(from + done))) break;
    PrefetchAhead(to + done);
    for (std::size_t i = done; i < done + kByteLanes; i += 4) {
      const __m128i four = _mm_loadu_si32(from + i);
      _mm256_storeu_si256(reinterpret_cast<__m256i*>(to + i),
                          _mm256_cvtepu8_epi64(four));
    }
  }
  return done;
}

VELMO_INLINE void CopyAsciiAvx2(Cursor<const ITEMUTF8>& source,
                                Cursor<ITEMUTF32>& target) {
  const std::size_t done = StoreAscii32(
      source.at(), std::min(source.left(), target.left()), target.at());
  source.Advance(done);
  target.Advance(done);
}

/// Stops at what may be illegal, and at surrogates where the direction refuses
/// them: single steps have to judge both.
template <typename Direction, typename Unit>
VELMO_BMI2 VELMO_INLINE void ConvertBlocks(Direction direction,
                                           Cursor<const ITEMUTF8>& source,
                                           Cursor<Unit>& target) {
  while (source.left() >= kByteLanes &&
         target.left() >= kByteLanes + kOvershoot<Unit>) {
    const auto bytes = Load<U8x16>(source.at());
    if (!Any(bytes)) {
      CopyAsciiAvx2(source, target);
      continue;
    }
    PrefetchAhead(target.at());
    const Utf8Block block(bytes);
    if (!IsLegal(block) || !direction.Accepts(block)) return;
    const Utf8Values values = direction.Values(block);
    const std::size_t units = Kept<ITEMUTF8>(values.mask);
    const SavedOvershoot<Unit> overshoot(target.at() + units);
    CompressBlock(values, target.at());
    overshoot.Restore();
    source.Advance(WholeCharacters(source.at()));
    target.Advance(units);
  }
}

#endif

struct Utf8ToUtf16 {
  bool lenient;

#ifdef VELMO_UNICODE_LANES
  VELMO_INLINE static void Sse2(Cursor<const ITEMUTF8>& source,
                                Cursor<ITEMUTF16>& target) {
    CopyAscii(source, target);
  }
  VELMO_BMI2 VELMO_INLINE void Bmi2(Cursor<const ITEMUTF8>& source,
                                    Cursor<ITEMUTF16>& target) const {
    ConvertBlocks(*this, source, target);
  }
  VELMO_INLINE bool Accepts(const Utf8Block& block) const {
    return lenient || !HasSurrogates(block);
  }
  VELMO_INLINE static Utf8Values Values(const Utf8Block& block) {
    return Utf16Units(block);
  }
#endif

  static Decoded Decode(const Cursor<const ITEMUTF8>& source) {
    return DecodeUtf8(source);
  }
  ITEMConversionResult Encode(ITEMUTF32 value,
                              Cursor<ITEMUTF16>& target) const {
    return EncodeUtf16(value, lenient, target);
  }
};

/// Accepts surrogates in strict mode too, and so has no flag.
struct Utf8ToUtf32 {
#ifdef VELMO_UNICODE_LANES
  VELMO_INLINE static void Sse2(Cursor<const ITEMUTF8>& source,
                                Cursor<ITEMUTF32>& target) {
    CopyAscii(source, target);
  }
  VELMO_BMI2 VELMO_INLINE void Bmi2(Cursor<const ITEMUTF8>& source,
                                    Cursor<ITEMUTF32>& target) const {
    ConvertBlocks(*this, source, target);
  }
  VELMO_INLINE static bool Accepts(const Utf8Block& /*block*/) { return true; }
  VELMO_INLINE static Utf8Values Values(const Utf8Block& block) {
    return CodePoints(block);
  }
#endif

  static Decoded Decode(const Cursor<const ITEMUTF8>& source) {
    return DecodeUtf8(source);
  }
  static ITEMConversionResult Encode(ITEMUTF32 value,
                                     Cursor<ITEMUTF32>& target) {
    return EncodeUtf32(value, target);
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
