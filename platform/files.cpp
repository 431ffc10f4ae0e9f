#include "platform/files.h"

namespace velmohelp {

bool FileExists(Machine& machine, const std::string& path) {
  return machine.FindFile(path).has_value();
}

}  // namespace velmohelp
