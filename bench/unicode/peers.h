// The peers' conversions, each through the interface that its library offers
// for the job. All return the number of units written, 0 on failure.
//
// GLib allocates its results. ICU and utf8cpp read and write UTF-32 in our
// units of 64 bits where the interface allows it; iconv, GLib and ICU's string
// functions use 32 bits and move half as much.
#ifndef BENCH_UNICODE_PEERS_H_
#define BENCH_UNICODE_PEERS_H_

#include <glib.h>
#include <iconv.h>
#include <unicode/ustring.h>
#include <unicode/utf8.h>
#include <utf8.h>
#include <velmohelp/unicode.h>

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmohelp::bench {

using Utf8 = std::span<const ITEMUTF8>;
using Utf16 = std::span<const ITEMUTF16>;
using Utf32 = std::span<const ITEMUTF32>;
using Ucs4 = std::span<const std::uint32_t>;

inline std::size_t IcuUtf8To16(Utf8 from, ITEMUTF16* to, std::size_t room) {
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF8(reinterpret_cast<UChar*>(to), static_cast<std::int32_t>(room),
                &length, reinterpret_cast<const char*>(from.data()),
                static_cast<std::int32_t>(from.size()), &error);
  return U_SUCCESS(error) ? static_cast<std::size_t>(length) : 0;
}

inline std::size_t IcuUtf16To8(Utf16 from, ITEMUTF8* to, std::size_t room) {
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strToUTF8(reinterpret_cast<char*>(to), static_cast<std::int32_t>(room),
              &length, reinterpret_cast<const UChar*>(from.data()),
              static_cast<std::int32_t>(from.size()), &error);
  return U_SUCCESS(error) ? static_cast<std::size_t>(length) : 0;
}

inline std::size_t IcuUtf16To32(Utf16 from, std::uint32_t* to,
                                std::size_t room) {
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strToUTF32(reinterpret_cast<UChar32*>(to), static_cast<std::int32_t>(room),
               &length, reinterpret_cast<const UChar*>(from.data()),
               static_cast<std::int32_t>(from.size()), &error);
  return U_SUCCESS(error) ? static_cast<std::size_t>(length) : 0;
}

inline std::size_t IcuUtf32To16(Ucs4 from, ITEMUTF16* to, std::size_t room) {
  std::int32_t length = 0;
  UErrorCode error = U_ZERO_ERROR;
  u_strFromUTF32(reinterpret_cast<UChar*>(to), static_cast<std::int32_t>(room),
                 &length, reinterpret_cast<const UChar32*>(from.data()),
                 static_cast<std::int32_t>(from.size()), &error);
  return U_SUCCESS(error) ? static_cast<std::size_t>(length) : 0;
}

inline std::size_t IcuUtf8To32(Utf8 from, ITEMUTF32* to) {
  std::size_t units = 0;
  for (std::size_t i = 0; i < from.size();) {
    UChar32 value = 0;
    U8_NEXT(from.data(), i, from.size(), value);
    if (value < 0) return 0;
    to[units++] = static_cast<ITEMUTF32>(value);
  }
  return units;
}

inline std::size_t IcuUtf32To8(Utf32 from, ITEMUTF8* to, std::size_t room) {
  std::size_t bytes = 0;
  for (const ITEMUTF32 value : from) {
    UBool failed = false;
    U8_APPEND(to, bytes, room, static_cast<UChar32>(value), failed);
    if (failed) return 0;
  }
  return bytes;
}

inline std::size_t IcuIsLegal(Utf8 from) {
  for (std::size_t i = 0; i < from.size();) {
    UChar32 value = 0;
    U8_NEXT(from.data(), i, from.size(), value);
    if (value < 0) return 0;
  }
  return 1;
}

/// One iconv converter, opened once.
class Iconv {
 public:
  Iconv(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;
  ~Iconv() { iconv_close(handle_); }

  template <typename From, typename To>
  std::size_t operator()(std::span<const From> from, To* to,
                         std::size_t room) const {
    char* in = const_cast<char*>(reinterpret_cast<const char*>(from.data()));
    char* out = reinterpret_cast<char*>(to);
    std::size_t in_left = from.size_bytes();
    std::size_t out_left = room * sizeof(To);
    if (iconv(handle_, &in, &in_left, &out, &out_left) != 0) return 0;
    return room - out_left / sizeof(To);
  }

 private:
  iconv_t handle_;
};

inline std::size_t GlibUtf8To16(Utf8 from) {
  glong units = 0;
  g_free(g_utf8_to_utf16(reinterpret_cast<const char*>(from.data()),
                         static_cast<glong>(from.size()), nullptr, &units,
                         nullptr));
  return static_cast<std::size_t>(units);
}

inline std::size_t GlibUtf16To8(Utf16 from) {
  glong units = 0;
  g_free(g_utf16_to_utf8(from.data(), static_cast<glong>(from.size()), nullptr,
                         &units, nullptr));
  return static_cast<std::size_t>(units);
}

inline std::size_t GlibUtf8To32(Utf8 from) {
  glong units = 0;
  g_free(g_utf8_to_ucs4(reinterpret_cast<const char*>(from.data()),
                        static_cast<glong>(from.size()), nullptr, &units,
                        nullptr));
  return static_cast<std::size_t>(units);
}

inline std::size_t GlibUtf32To8(Ucs4 from) {
  glong units = 0;
  g_free(g_ucs4_to_utf8(from.data(), static_cast<glong>(from.size()), nullptr,
                        &units, nullptr));
  return static_cast<std::size_t>(units);
}

inline std::size_t GlibUtf16To32(Utf16 from) {
  glong units = 0;
  g_free(g_utf16_to_ucs4(from.data(), static_cast<glong>(from.size()), nullptr,
                         &units, nullptr));
  return static_cast<std::size_t>(units);
}

inline std::size_t GlibUtf32To16(Ucs4 from) {
  glong units = 0;
  g_free(g_ucs4_to_utf16(from.data(), static_cast<glong>(from.size()), nullptr,
                         &units, nullptr));
  return static_cast<std::size_t>(units);
}

inline std::size_t GlibIsLegal(Utf8 from) {
  return g_utf8_validate(reinterpret_cast<const char*>(from.data()),
                         static_cast<gssize>(from.size()), nullptr)
             ? 1
             : 0;
}

inline std::size_t GlibWalk(Utf8 from) {
  const char* at = reinterpret_cast<const char*>(from.data());
  const char* const end = at + from.size();
  while (at < end) {
    const gunichar value = g_utf8_get_char_validated(at, end - at);
    if (value >= 0x110000) return 0;
    at = g_utf8_next_char(at);
  }
  return 1;
}

inline std::size_t CppUtf8To16(Utf8 from, ITEMUTF16* to) {
  return static_cast<std::size_t>(
      utf8::utf8to16(from.data(), from.data() + from.size(), to) - to);
}

inline std::size_t CppUtf16To8(Utf16 from, ITEMUTF8* to) {
  return static_cast<std::size_t>(
      utf8::utf16to8(from.data(), from.data() + from.size(), to) - to);
}

inline std::size_t CppUtf8To32(Utf8 from, ITEMUTF32* to) {
  return static_cast<std::size_t>(
      utf8::utf8to32(from.data(), from.data() + from.size(), to) - to);
}

inline std::size_t CppUtf32To8(Utf32 from, ITEMUTF8* to) {
  ITEMUTF8* end = to;
  for (const ITEMUTF32 value : from) {
    end = utf8::append(static_cast<std::uint32_t>(value), end);
  }
  return static_cast<std::size_t>(end - to);
}

inline std::size_t CppIsLegal(Utf8 from) {
  return utf8::is_valid(from.data(), from.data() + from.size()) ? 1 : 0;
}

inline std::size_t CppWalk(Utf8 from) {
  const ITEMUTF8* at = from.data();
  const ITEMUTF8* const end = at + from.size();
  while (at < end) utf8::next(at, end);
  return 1;
}

}  // namespace velmohelp::bench

#endif  // BENCH_UNICODE_PEERS_H_
