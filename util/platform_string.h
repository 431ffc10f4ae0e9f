// Makes platform strings.
#ifndef UTIL_PLATFORM_STRING_H_
#define UTIL_PLATFORM_STRING_H_

#include <velmohelp/platform.h>

#include <cstdint>
#include <memory>
#include <string>

namespace velmohelp {

using PlatformStringPtr = std::unique_ptr<const ITEMInternal::PlatformString>;

/// The string of the bytes up to the first zero byte. Null when they are not
/// valid in the encoding, and for any encoding that is not a TextEncoding.
PlatformStringPtr MakePlatformString(const std::string& bytes,
                                     std::uint32_t encoding);

}  // namespace velmohelp

#endif  // UTIL_PLATFORM_STRING_H_
