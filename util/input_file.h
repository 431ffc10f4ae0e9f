// A file of configuration or content, open for reading.
#ifndef UTIL_INPUT_FILE_H_
#define UTIL_INPUT_FILE_H_

#include <cstddef>

namespace velmohelp {

/// A longer file is not read: the host would wait for it, and its memory with
/// it. Configuration, preferences, base URLs; and help maps.
inline constexpr std::size_t kSettingsFileLimit = 16U << 20U;
inline constexpr std::size_t kHelpMapLimit = 256U << 20U;

/// Closed at its destruction. platform/open_file.h opens one.
class InputFile {
 public:
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  virtual ~InputFile() = default;

  /// The size when it was opened, 0 when the system does not tell. A hint: the
  /// file may grow.
  std::size_t size() const { return size_; }
  /// Readers give up after so many bytes: some files have no end.
  std::size_t limit() const { return limit_; }

  /// Reads up to size bytes, size not 0; returns how many, 0 at the end. Throws
  /// std::ios_base::failure on a read error.
  virtual std::size_t Read(char* buffer, std::size_t size) = 0;

 protected:
  InputFile(std::size_t size, std::size_t limit) : size_(size), limit_(limit) {}

 private:
  std::size_t size_;
  std::size_t limit_;
};

}  // namespace velmohelp

#endif  // UTIL_INPUT_FILE_H_
