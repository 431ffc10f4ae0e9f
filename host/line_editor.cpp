// The editing and the history are libedit's.
#include "host/line_editor.h"

#include <histedit.h>

#include <clocale>
#include <cstdio>

namespace velmohelp {
namespace {

constexpr int kHistoryLines = 1000;

/// Lives in a userdata, whose finalizer frees what it has.
struct Editor {
  EditLine* line;
  History* history;
  const char* prompt;
};

Editor& EditorAt(lua_State* state, int index) {
  return *static_cast<Editor*>(lua_touserdata(state, index));
}

char* PromptOf(EditLine* line) {
  Editor* editor = nullptr;
  el_get(line, EL_CLIENTDATA, &editor);
  return const_cast<char*>(editor->prompt);
}

int Free(lua_State* state) {
  Editor& editor = EditorAt(state, 1);
  if (editor.line != nullptr) el_end(editor.line);
  if (editor.history != nullptr) history_end(editor.history);
  editor = {};
  return 0;
}

/// EL_SIGNAL: an interrupt must not leave the terminal as the editor set it.
bool Open(Editor& editor) {
  editor.history = history_init();
  editor.line = el_init("lxhost", stdin, stdout, stderr);
  if (editor.history == nullptr || editor.line == nullptr) return false;
  HistEvent event;
  history(editor.history, &event, H_SETSIZE, kHistoryLines);
  history(editor.history, &event, H_SETUNIQUE, 1);
  el_set(editor.line, EL_CLIENTDATA, &editor);
  el_set(editor.line, EL_PROMPT, PromptOf);
  el_set(editor.line, EL_EDITOR, "emacs");
  el_set(editor.line, EL_HIST, history, editor.history);
  el_set(editor.line, EL_SIGNAL, 1);
  el_source(editor.line, nullptr);
  return true;
}

int ReadLine(lua_State* state) {
  Editor& editor = EditorAt(state, lua_upvalueindex(1));
  editor.prompt = luaL_checkstring(state, 1);
  int size = 0;
  const char* line = el_gets(editor.line, &size);
  if (line == nullptr || size <= 0) return 0;
  HistEvent event;
  if (line[0] != '\n') history(editor.history, &event, H_ENTER, line);
  lua_pushlstring(state, line, static_cast<std::size_t>(size));
  return 1;
}

void PushEditor(lua_State* state) {
  auto* editor =
      static_cast<Editor*>(lua_newuserdatauv(state, sizeof(Editor), 0));
  *editor = {};
  lua_createtable(state, 0, 1);
  lua_pushcfunction(state, Free);
  lua_setfield(state, -2, "__gc");
  lua_setmetatable(state, -2);
  if (!Open(*editor)) luaL_error(state, "not enough memory");
}

}  // namespace

void PushLineReader(lua_State* state) {
  // The editor drops every byte that the locale does not know.
  std::setlocale(LC_CTYPE, "");
  PushEditor(state);
  lua_pushcclosure(state, ReadLine, 1);
}

}  // namespace velmohelp
