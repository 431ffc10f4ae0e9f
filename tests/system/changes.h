// What a row of a table changes in the world that it starts from.
#ifndef TESTS_SYSTEM_CHANGES_H_
#define TESTS_SYSTEM_CHANGES_H_

#include <functional>
#include <string>
#include <vector>

#include "tests/system/help_world.h"

namespace velmohelp::testing {

using Change = std::function<void(HelpWorld&)>;
using Changes = std::vector<Change>;

inline void Apply(const Changes& changes, HelpWorld& world) {
  for (const Change& change : changes) change(world);
}

inline Change File(const std::string& name, const std::string& text = "<p>") {
  return [=](HelpWorld& world) { world.Write(name, world.Expanded(text)); };
}

inline Change Program(const std::string& name, const std::string& text) {
  return [=](HelpWorld& world) { world.WriteProgram(name, text); };
}

inline Change Without(const std::string& name) {
  return [=](HelpWorld& world) { world.Remove(name); };
}

inline Change Tool(bool runtime, bool viewer) {
  return [=](HelpWorld& world) { world.AnswerTool(runtime, viewer); };
}

inline Change NoViewer() { return Without("{viewer}"); }

inline Change NoBrowser() { return Without("{settings}/mimeapps.list"); }

inline Change Config(const std::function<void(HelpConfig&)>& change) {
  return [=](HelpWorld& world) {
    change(world.config());
    world.Configure();
  };
}

/// The configuration names no viewer; the default one's folders count.
inline Change NoViewerNamed() {
  return [](HelpWorld& world) {
    world.config().app_id = "NULL";
    world.Configure();
    world.NameViewer("klh", "9C3A51F07B26D48E15A0C7F3B9D2E6418A75C0D2.1");
  };
}

inline Change UserPreference(const std::string& value) {
  return [=](HelpWorld& world) { world.SetUserPreference(value); };
}

inline Change Online() { return UserPreference("1"); }

/// The server has a page in the content folder, or something else.
inline Change Served(const std::string& path,
                     const std::string& response = Response("200 OK", "",
                                                            "<p>")) {
  return [=](HelpWorld& world) { world.Serve("/{folder}/" + path, response); };
}

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_CHANGES_H_
