/* The tool that the help client asks for the viewer, up to three times for each
 * request: so it links nothing and looks at two files at most.
 *
 *   QTV -isRuntimeInstalled                  status 0: the viewer can run here
 *   QTV -isAppInstalled APP_ID PUBLISHER_ID  status 0: this viewer is installed
 *   QTV -appLocation APP_ID PUBLISHER_ID     prints its application folder
 *
 * Any other answer has status 1, wrong usage 2. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include "viewer/identity.h"

/* From this tool's folder, <framework>/Versions/A/Resources, to the folder that
 * holds the framework. */
#define UP "/../../../../"

/* Writes the application's folder, without a link in it, to the 4096 bytes of
 * app. Returns 0 when there is none. */
static int FindApplication(char* app) {
  char self[4096 - sizeof(UP VIEWER_APP)];
  const ssize_t size = readlink("/proc/self/exe", self, sizeof(self));
  if (size <= 0 || (size_t)size >= sizeof(self)) return 0;
  self[size] = '\0';
  char* const name = strrchr(self, '/');
  if (name == NULL) return 0;
  strcpy(name, UP VIEWER_APP);
  return realpath(self, app) != NULL;
}

static int HasWindowProgram(void) {
  char app[4096 + sizeof("/" VIEWER_WINDOW_PROGRAM)];
  if (!FindApplication(app)) return 0;
  strcat(app, "/" VIEWER_WINDOW_PROGRAM);
  return access(app, X_OK) == 0;
}

static int IsSet(const char* variable) {
  const char* const value = getenv(variable);
  return value != NULL && *value != '\0';
}

/* Without a display the viewer could only fail after the client has reported
 * success. The person at a terminal gets the browser instead. */
static int CanRun(void) {
  return (IsSet("WAYLAND_DISPLAY") || IsSet("WAYLAND_SOCKET") ||
          IsSet("DISPLAY")) &&
         HasWindowProgram();
}

static int IsThisViewer(char** ids) {
  return strcmp(ids[0], VIEWER_APP_ID) == 0 &&
         strcmp(ids[1], VIEWER_PUBLISHER_ID) == 0;
}

static int PrintLocation(void) {
  char app[4096];
  return FindApplication(app) && puts(app) >= 0 && fflush(stdout) == 0;
}

int main(int argc, char** argv) {
  if (argc == 2 && strcmp(argv[1], "-isRuntimeInstalled") == 0) {
    return !CanRun();
  }
  if (argc == 4 && strcmp(argv[1], "-isAppInstalled") == 0) {
    return !(IsThisViewer(argv + 2) && HasWindowProgram());
  }
  if (argc == 4 && strcmp(argv[1], "-appLocation") == 0) {
    return !(IsThisViewer(argv + 2) && PrintLocation());
  }
  return 2;
}
