// A scene of trouble: of each, velmo-help names the cause in its first three
// lines.
#ifndef TESTS_SYSTEM_SCENE_H_
#define TESTS_SYSTEM_SCENE_H_

#include <functional>
#include <iosfwd>
#include <string>

#include "tests/system/changes.h"
#include "tests/system/explained.h"

namespace velmohelp::testing {

struct Scene {
  const char* sentence;
  Changes changes;
  /// The arguments of `velmo-help explain`, without the host.
  Words arguments;
  int status;
  /// The cause's name in the JSON form.
  const char* cause;
  /// Texts of the second line; may name places.
  Words why;
};

void PrintTo(const Scene& scene, std::ostream* out);

/// The usual request.
inline Words DisplayIntro() { return {"display", "Foo", "en_US", "intro"}; }

/// The first three lines, and no more.
Words FirstThree(const std::string& text);

/// The test fails unless velmo-help names the scene's cause, as text and as
/// JSON of the documented form. run: velmo-help explain with these options
/// added to the scene's arguments.
void ExpectCause(const Scene& scene, const HelpWorld& world,
                 const std::function<ToolProcess(const Words& options)>& run);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_SCENE_H_
