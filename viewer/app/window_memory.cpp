#include "viewer/app/window_memory.h"

#include <glib.h>

#include <algorithm>
#include <memory>
#include <string>

#include "viewer/gobject_ptr.h"

namespace viewer {
namespace {

constexpr char kGroup[] = "Window";

struct KeyFileFree {
  void operator()(GKeyFile* file) const { g_key_file_free(file); }
};
using KeyFilePtr = std::unique_ptr<GKeyFile, KeyFileFree>;

std::string Folder() {
  return std::string(g_get_user_state_dir()) + "/velmohelp-viewer";
}
std::string File() { return Folder() + "/window.ini"; }

int Size(GKeyFile* file, const char* key, int otherwise) {
  const int size = g_key_file_get_integer(file, kGroup, key, nullptr);
  return size > 0 ? std::clamp(size, 360, 10000) : otherwise;
}

}  // namespace

WindowMemory LoadWindowMemory() {
  const KeyFilePtr file(g_key_file_new());
  g_key_file_load_from_file(file.get(), File().c_str(), G_KEY_FILE_NONE,
                            nullptr);
  WindowMemory memory;
  memory.width = Size(file.get(), "Width", memory.width);
  memory.height = Size(file.get(), "Height", memory.height);
  const double zoom =
      g_key_file_get_double(file.get(), kGroup, "Zoom", nullptr);
  if (zoom > 0) memory.zoom = std::clamp(zoom, 0.3, 5.0);
  return memory;
}

void SaveWindowMemory(const WindowMemory& memory) {
  const KeyFilePtr file(g_key_file_new());
  g_key_file_set_integer(file.get(), kGroup, "Width", memory.width);
  g_key_file_set_integer(file.get(), kGroup, "Height", memory.height);
  g_key_file_set_double(file.get(), kGroup, "Zoom", memory.zoom);
  if (g_mkdir_with_parents(Folder().c_str(), 0700) == 0) {
    g_key_file_save_to_file(file.get(), File().c_str(), nullptr);
  }
}

}  // namespace viewer
