/* A tool that has everything installed, and a viewer that shows nothing until
 * it is ended: for tests that start thousands of them. The tool finds the
 * viewer's place in its environment. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

int main(int argc, char* argv[]) {
  if (argc < 2) return 1;
  if (argv[1][0] != '-') return pause();
  if (strcmp(argv[1], "-appLocation") == 0) puts(getenv("QUICK_VIEWER"));
  return 0;
}
