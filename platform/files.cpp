#include "platform/files.h"

#include "util/utf8.h"

namespace velmohelp {

/// A page at a path that is not text has no URL: it must not hide the one of a
/// later folder.
bool FileExists(Machine& machine, const std::string& path) {
  return IsUtf8(path) && machine.FindFile(path).has_value();
}

}  // namespace velmohelp
