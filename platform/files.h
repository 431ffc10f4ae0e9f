// Whether files exist, by the client's rule.
#ifndef PLATFORM_FILES_H_
#define PLATFORM_FILES_H_

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// See ITEMInternal::FileExists.
bool FileExists(Machine& machine, const std::string& path);

}  // namespace velmohelp

#endif  // PLATFORM_FILES_H_
