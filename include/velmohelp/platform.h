// The machine as the client uses it: files, folders, the help viewer and the
// browser, and text in the platform's own form.
//
// After the end of the state (velmohelp.h, convention 8) the functions that ask
// the machine fail: they return false, "", the code of a failed launch, or -43,
// and leave their out parameter untouched.
#ifndef VELMOHELP_PLATFORM_H_
#define VELMOHELP_PLATFORM_H_

#include <velmohelp/export.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace ITEMInternal {

/// Names one existing file, however it is reached (POSIX st_dev, st_ino).
struct FileReference {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
};

/// An immutable Unicode text. A null pointer to one means that the text could
/// not be made.
class PlatformString {
 public:
  /// utf8: valid UTF-8.
  explicit PlatformString(std::string utf8) : utf8_(std::move(utf8)) {}
  const std::string& utf8() const { return utf8_; }

 private:
  std::string utf8_;
};

/// The platform's numbers for text encodings.
enum TextEncoding : std::uint32_t {
  kTextEncodingMacRoman = 0,
  kTextEncodingAscii = 0x0600,
  kTextEncodingUtf8 = 0x08000100,
};

/// True when a file or a directory exists at path, whether or not it may be
/// read. False for a link to nothing, below a directory that may not be
/// searched, and for a path that is not valid UTF-8, whatever exists there.
VELMOHELP_API bool FileExists(std::string path);

/// True when the QTV tool says that the viewer's runtime is installed.
VELMOHELP_API bool IsZAMRuntimePresent();

/// The path of the viewer's executable, in the application that the QTV tool
/// names for sAppID and sPublisherID; "" when there is none.
VELMOHELP_API std::string GetHelpApplicationPath();

/// Starts an executable with four arguments and does not wait for it. 0: it was
/// running right after its start; 1: it was not, nothing exists at path, or it
/// may not be executed.
VELMOHELP_API int LaunchApplication(const std::string& path,
                                    const std::string& mode,
                                    const std::string& product,
                                    const std::string& locale,
                                    const std::string& request);

/// Opens a URL, unchanged, in the user's default browser. 0: opened; 2: not
/// opened, or url is not a URI: it is empty, or has a character that is neither
/// reserved nor unreserved in RFC 3986 (a space, a double quote, a backslash, a
/// byte beyond ASCII), or a "%" without two hexadecimal digits. url ends at its
/// first zero byte.
VELMOHELP_API int LaunchPlatformBrowser(const std::string& url);

/// Finds a standard folder. domain: -32763, the user's; type: 'pref'
/// (0x70726566), the Preferences folder; create: not 0 to make it when it is
/// missing. False, with out untouched, for any other folder and on failure.
VELMOHELP_API bool StdStringFindFolder(std::int16_t domain, std::uint32_t type,
                                       std::uint8_t create, std::string& out);

/// Preferences folder and kKLHPreferenceFile.
VELMOHELP_API std::string GetKLHPreferenceFilePath();
/// Preferences folder and kDownloadedOfflineContent.
VELMOHELP_API std::string GetDownloadedContentPath();
/// The machine's help content, with a final "/".
VELMOHELP_API std::string GetInstalledContentPath();
/// The machine's help content, joined with second, then with first.
VELMOHELP_API std::string GetHelpContentDirectory(std::string first,
                                                  std::string second);

/// The reference of the file at a path, which may be percent-encoded once or
/// twice, or at the path of a URL; what follows "?", "#" or a zero byte is
/// ignored. A "%" without two hexadecimal digits is an ordinary character.
///
/// Returns 0; -1403 when path is empty, is not valid UTF-8 as given or when it
/// is unescaped once, or has a colon before its first "/" and is not a URL with
/// a path, as "mailto:x" and the relative path "a:b/c"; -43 when the file does
/// not exist, or its path has more than 1023 bytes or is not valid UTF-8 when
/// it is unescaped twice; -1302 when it is a directory. out is written only on
/// 0.
VELMOHELP_API std::int16_t GetFSRefFromPath(std::string path,
                                            FileReference& out);

/// The text in an encoding (a TextEncoding), up to its first zero byte; "" when
/// it is null, cannot be expressed, or is longer than 1023 bytes.
VELMOHELP_API std::string GetString(const PlatformString* text,
                                    std::uint32_t encoding);

/// The text as a new NUL-terminated UTF-8 string that the caller frees with
/// free(), or null when it is null or out of memory. Null also for an empty
/// text and for one of three-byte characters only: the size that is reserved
/// is three bytes per UTF-16 unit, with nothing for the NUL.
VELMOHELP_API char* GetCharFromCFStringRef(const PlatformString* text);

/// The text made from UTF-8; null when text is null or not valid UTF-8.
VELMOHELP_API std::unique_ptr<const PlatformString> CstrToNSstr(
    const char* text);

}  // namespace ITEMInternal

#endif  // VELMOHELP_PLATFORM_H_
