// Every kind of finding.
#ifndef TOOLS_CHECK_RULES_H_
#define TOOLS_CHECK_RULES_H_

#include "tools/check/finding.h"

namespace velmohelp::tool::rules {

using enum Severity;

// Any file.
inline constexpr Rule kUnreadable{"unreadable", kError,
                                  "The client cannot read the file."};

// Configurations.
inline constexpr Rule kZeroByte{
    "zero-byte", kError, "A zero byte makes the client drop what follows it."};
inline constexpr Rule kMissingKey{
    "missing-key", kError, "A key that the client requires has no value."};
inline constexpr Rule kKeyElsewhere{
    "key-elsewhere", kError,
    "The client finds the letters of a key before the key itself."};
inline constexpr Rule kSingleQuotes{
    "single-quotes", kError, "The client ends values at double quotes only."};
inline constexpr Rule kEntity{"entity", kWarning,
                              "The client does not replace entities."};
inline constexpr Rule kEscapedQuote{
    "escaped-quote", kError,
    "The client never finds the end of a value that ends in a backslash."};
inline constexpr Rule kNoClosingQuote{"no-closing-quote", kError,
                                      "A value has no closing quote."};
inline constexpr Rule kEmptyFolder{
    "empty-folder", kError,
    "An empty value of a content folder runs on to the next quote."};
inline constexpr Rule kSpacedFolder{
    "spaced-folder", kError,
    "A content folder's key must be followed by =\" at once."};
inline constexpr Rule kFolderCount{
    "folder-count", kError, "There are not as many content folders as flags."};
inline constexpr Rule kTooManyFolders{
    "too-many-folders", kError,
    "The client has room for a hundred content folders."};
inline constexpr Rule kFlagValue{"flag-value", kWarning,
                                 "A flag is neither yes nor no."};
inline constexpr Rule kIdMismatch{
    "id-mismatch", kError,
    "The id is not that of the file's locale and product."};
inline constexpr Rule kLocaleLength{"locale-length", kError,
                                    "A locale has five characters."};
inline constexpr Rule kBaseUrl{
    "base-url", kWarning, "The base URL is no URL, or does not end with /."};

// Help maps and content.
inline constexpr Rule kSkippedLine{"skipped-line", kWarning,
                                   "A line without two fields is skipped."};
inline constexpr Rule kDuplicateKey{
    "duplicate-key", kError, "A key has several pages; the first counts."};
inline constexpr Rule kRepeatedEntry{"repeated-entry", kWarning,
                                     "An entry is there twice."};
inline constexpr Rule kUnreachableKey{
    "unreachable-key", kError,
    "The client never looks a key up that is not written as it looks ids up."};
inline constexpr Rule kCollidingIds{"colliding-ids", kError,
                                    "Two ids have the same key."};
inline constexpr Rule kNoHome{"no-home", kError,
                              "A help map without VX_HOME counts as broken."};
inline constexpr Rule kMissingPage{"missing-page", kError,
                                   "A page of the help map does not exist."};
inline constexpr Rule kMissingAnchor{"missing-anchor", kError,
                                     "An anchor is not in its page."};
inline constexpr Rule kNoTitle{"no-title", kWarning, "A page has no title."};
inline constexpr Rule kUncheckedPage{
    "unchecked-page", kWarning,
    "A page is too large or too deeply nested to be checked."};
inline constexpr Rule kUnreachedPage{
    "unreached-page", kWarning, "No entry of the help map leads to a page."};
inline constexpr Rule kNotAUrl{
    "not-a-url", kError, "An address is not a URL that the client takes."};
inline constexpr Rule kUnmappedId{
    "unmapped-id", kError, "An id of the application is in no help map."};
inline constexpr Rule kMissingInLocale{
    "missing-in-locale", kError,
    "An id or a page of one locale is missing in another."};
inline constexpr Rule kVanishedId{
    "vanished-id", kError, "An id of the earlier version is in no help map."};

inline constexpr const Rule* kAll[] = {
    &kUnreadable,   &kZeroByte,        &kMissingKey,    &kKeyElsewhere,
    &kSingleQuotes, &kEntity,          &kEscapedQuote,  &kNoClosingQuote,
    &kEmptyFolder,  &kSpacedFolder,    &kFolderCount,   &kTooManyFolders,
    &kFlagValue,    &kIdMismatch,      &kLocaleLength,  &kBaseUrl,
    &kSkippedLine,  &kDuplicateKey,    &kRepeatedEntry, &kUnreachableKey,
    &kCollidingIds, &kNoHome,          &kMissingPage,   &kMissingAnchor,
    &kNoTitle,      &kUncheckedPage,   &kUnreachedPage, &kNotAUrl,
    &kUnmappedId,   &kMissingInLocale, &kVanishedId};

}  // namespace velmohelp::tool::rules

#endif  // TOOLS_CHECK_RULES_H_
