// The client's readers of files, and a text that all of them understand.
#ifndef TESTS_FAULTS_READERS_H_
#define TESTS_FAULTS_READERS_H_

#include <set>
#include <string>

#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {

using Keys = std::set<std::string>;

/// The keys that the readers look for.
inline const Keys kAllKeys = {"first", "last", "added"};

/// A line that is an entry to all readers alike.
std::string Entry(const std::string& key);

/// An entry "first" in the first piece that any of the readers takes, and an
/// entry "last" in none but the last of many.
std::string LongText();

/// The file that is read.
std::string FileIn(const TemporaryDirectory& folder);

/// The keys that a reader finds in the file.
Keys InConfiguration(const TemporaryDirectory& folder);
Keys InHelpMap(const TemporaryDirectory& folder);
Keys InPreferences(const TemporaryDirectory& folder);

}  // namespace velmohelp::testing

#endif  // TESTS_FAULTS_READERS_H_
