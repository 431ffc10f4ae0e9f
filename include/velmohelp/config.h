// Help configuration files (".helpcfg") and the viewer's preferences.
// Strings are byte strings. These functions throw what the standard library
// throws (std::bad_alloc); they are not part of the C interface.
// After the end of the state (velmohelp.h, convention 8) the functions that use
// it return kConfigUnreadable or "".
#ifndef VELMOHELP_CONFIG_H_
#define VELMOHELP_CONFIG_H_

#include <velmohelp/export.h>

#include <cstdint>
#include <string>

/// What a read of a help configuration returns.
enum HelpConfigResult : std::uint32_t {
  kConfigAccepted = 0,
  kConfigUnreadable = 6,
  kConfigInvalid = 7,
};

/// Finds the quoted value that follows a key in a text file, by plain text
/// search: no elements, no entities, no comments, no word boundaries.
class VELMOHELP_API XMLParser {
 public:
  XMLParser();

  /// Replaces the buffer with the file's text. The file is read in pieces of
  /// 1023 bytes, and a zero byte drops the rest of its piece. False, with an
  /// empty buffer, when the path is empty, the file cannot be read, or it is
  /// longer than 16 MiB.
  bool ReadFileToBuffer(std::string path);

  /// The text between the first two double quotes after the first "=" after
  /// the first occurrence of key; "" when one of these is missing. The values
  /// of "accessibleMode" and "localHelp" are returned in upper case.
  ///
  /// Never returns when a backslash precedes the closing quote: the format has
  /// no escapes, and the scan looks at the same quote forever.
  std::string GetKey(std::string key) const;

  /// A copy with each byte passed through the C library's toupper.
  static std::string StringToUpper(std::string text);

  /// Fills the rows (content folder, upper-cased "contextSensitivity" value).
  /// count: rows available on entry, flags found on return; unchanged, like
  /// the table, when the text has no "path". The first "path" is skipped. A
  /// value begins two bytes after its key, whatever they are; an empty one
  /// extends to the next quote, and a quote after a backslash is part of it. A
  /// value without a closing quote ends its pass. Other rows stay unchanged.
  void PopulatePathArray(std::string (*table)[2], int& count) const;

 private:
  std::string buffer_;
};

/// A copy with each byte passed through the C library's toupper.
VELMOHELP_API std::string StringToUpper(std::string text);

/// Reads one configuration file into the client's state: "id", of which the
/// first five bytes become the locale, "baseUrl" and the content folders.
/// kConfigUnreadable changes nothing. Nothing is rolled back on kConfigInvalid:
/// the id stays in the state; once it has been accepted, so do its five bytes
/// as the locale and an empty base URL.
VELMOHELP_API std::uint32_t ReadHelpcfg(std::string path);

/// Finds and reads the configuration of the client's product in a locale: the
/// downloaded file when there is a valid one, else the installed one.
///
/// Sets the number of content folders to 100 before it reads anything. Sets the
/// viewer's ids, and whether there is a viewer, when the installed file has a
/// "path". Everything else is as ReadHelpcfg leaves it, for the downloaded file
/// and then for the installed one: a locale from a rejected download stays.
VELMOHELP_API std::uint32_t UpdateHelpConfigInfo(std::string locale);

/// Whether the viewer's preference file allows the viewer: 2 (no) when its
/// "accessibleMode" is "TRUE" in any letter case, else 1, also without a file.
VELMOHELP_API int GetKLHFilePreferenceForHelpApp(std::string path);

/// False when "localHelp" is "TRUE" in any letter case, else true, also without
/// a file. The client's requests do not use it; other modules do.
VELMOHELP_API bool GetPreferenceSettingsForNetwork(std::string path);

namespace ITEMInternal {

/// "<host resources>/help/<locale>/<product>.helpcfg".
VELMOHELP_API std::string GetHelpConfigPath(std::string product,
                                            std::string locale);

/// "<user Preferences><kDownloadedHelpcfg>/<first>/<second>.helpcfg".
VELMOHELP_API std::string GetDownloadedHelpConfigPath(std::string first,
                                                      std::string second);

/// The host preference "HelpcfgName" (any user, this host) of the domain
/// "com.velmo.<a>.<b>". a and b are Mac Roman, the value is UTF-8. "" when a or
/// b is empty, when nothing is set, and for a value of which
/// GetCharFromCFStringRef of <velmohelp/platform.h> makes no C string.
VELMOHELP_API std::string GetHelpConfigName(std::string a, std::string b);

}  // namespace ITEMInternal

#endif  // VELMOHELP_CONFIG_H_
