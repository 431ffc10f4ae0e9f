// What the viewer remembers of its windows: their size and the zoom, and
// nothing else.
#ifndef VIEWER_APP_WINDOW_MEMORY_H_
#define VIEWER_APP_WINDOW_MEMORY_H_

namespace viewer {

struct WindowMemory {
  int width = 1000;
  int height = 720;
  double zoom = 1.0;
};

WindowMemory LoadWindowMemory();
void SaveWindowMemory(const WindowMemory& memory);

}  // namespace viewer

#endif  // VIEWER_APP_WINDOW_MEMORY_H_
