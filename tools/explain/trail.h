// What a request asked, read and decided, in order.
#ifndef TOOLS_EXPLAIN_TRAIL_H_
#define TOOLS_EXPLAIN_TRAIL_H_

#include <cstddef>
#include <string>
#include <vector>

#include "platform/machine.h"

namespace velmohelp::tool {

/// What a help map has for a key.
struct MapFacts {
  std::size_t entries = 0;
  bool has_home = false;
  bool has_key = false;
  /// Of the key's entry.
  std::string page = {};
  /// The nearest keys that it has, the best first.
  std::vector<std::string> near = {};
};

struct Step {
  enum class Kind {
    /// A question to the machine. name: the verb; subject: its arguments.
    kQuestion,
    /// A configuration or the viewer's preferences. subject: the file.
    kKeyFile,
    /// A value in the key file read last. name: the key; answer: the value.
    kValue,
    /// A search for a page. subject: its file name, its key in help maps.
    kLookUp,
    /// subject: the file.
    kHelpMap,
    /// subject: the folder; answer: the page's path or URL.
    kContentFolder,
  };

  Kind kind;
  std::string name = {};
  Arguments subject = {};
  /// The question's answer is yes or a value; the file was read, the value
  /// found, the folder accepted.
  bool ok = false;
  std::string answer = {};
  /// Why not, as far as that can be found out.
  std::string reason = {};
  /// Where a value's key was found, from 1; 0 for a key that is missing.
  std::size_t line = 0;
  std::size_t column = 0;
  /// The key is a part of another word, or no "=" comes right after it.
  bool elsewhere = false;
  MapFacts map = {};
};

using Trail = std::vector<Step>;

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_TRAIL_H_
