// Files of keys and values: help configurations and the viewer's preferences.
#ifndef CONFIG_KEY_FILE_H_
#define CONFIG_KEY_FILE_H_

#include <string>

#include "platform/observer.h"

namespace velmohelp {

/// Replaces text with the file's. The file is read in pieces of 1023 bytes, and
/// a zero byte drops the rest of its piece. False, with text empty, when the
/// path is empty or the file cannot be read to its end.
bool ReadKeyFile(const std::string& path, std::string& text,
                 RequestObserver* observer = nullptr);

}  // namespace velmohelp

#endif  // CONFIG_KEY_FILE_H_
