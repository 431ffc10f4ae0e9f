// Making texts in the platform's own form.
#ifndef UTIL_PLATFORM_STRING_H_
#define UTIL_PLATFORM_STRING_H_

#include <velmohelp/platform.h>

#include <cstdint>
#include <memory>
#include <string>

namespace velmohelp {

using PlatformStringPtr = std::unique_ptr<const ITEMInternal::PlatformString>;

/// The text of bytes up to the first zero byte; null when they are not valid
/// in the encoding (a TextEncoding; any other one has no valid bytes).
PlatformStringPtr MakePlatformString(const std::string& bytes,
                                     std::uint32_t encoding);

}  // namespace velmohelp

#endif  // UTIL_PLATFORM_STRING_H_
