// The format of a preference file.
#ifndef PLATFORM_LINUX_PREFERENCE_FILE_H_
#define PLATFORM_LINUX_PREFERENCE_FILE_H_

#include <optional>
#include <string>
#include <string_view>

namespace velmohelp {

/// The value of a key in the text of a preference file:
///
///   # a comment
///   [Preferences]
///   VelmoOnlineDefault = 0
///
/// White space around the "=" and at both ends of a line does not count, lines
/// may end in CR LF, a byte order mark may come first; there are no escapes. Of
/// several lines with the key the last one counts. nullopt when there is none,
/// or when its value is not valid UTF-8 or has a NUL in it.
std::optional<std::string> PreferenceInText(std::string_view text,
                                            std::string_view key);

/// The file name of a domain's preferences: one path component, whatever the
/// domain. "/", NUL, "%" and a leading "." are percent-encoded, so that no
/// caller's text names a file outside the store's folder.
std::string PreferenceFileName(std::string_view domain);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PREFERENCE_FILE_H_
