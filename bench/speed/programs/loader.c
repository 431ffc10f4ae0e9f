/* bench_loader time|libraries|resident LIBRARY: loads a library as a plug-in.
 * Prints nanoseconds, the number of libraries in the process (the C library
 * included, the dynamic loader not), or how many KiB more are resident. */
#include <dlfcn.h>
#include <link.h>
#include <stdio.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

static long long now(void) {
  struct timespec time;
  clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * 1000000000LL + time.tv_nsec;
}

static long resident_kib(void) {
  char line[256];
  long kib = 0;
  FILE* file = fopen("/proc/self/smaps_rollup", "r");
  while (file != NULL && fgets(line, sizeof line, file) != NULL) {
    if (sscanf(line, "Rss: %ld", &kib) == 1) break;
  }
  if (file != NULL) fclose(file);
  return kib;
}

static int count_library(struct dl_phdr_info* info, size_t size, void* count) {
  (void)size;
  const char* name = info->dlpi_name;
  const int is_library = strstr(name, ".so") != NULL &&
                         strstr(name, "/ld-linux") == NULL &&
                         strstr(name, "vdso") == NULL;
  *(int*)count += is_library;
  return 0;
}

int main(int argc, char* argv[]) {
  if (argc != 3) return 2;
  int libraries = 0;
  resident_kib(); /* The first one has costs of its own. */
  const long before = resident_kib();
  const long long start = now();
  void* library = dlopen(argv[2], RTLD_NOW | RTLD_LOCAL);
  const long long spent = now() - start;
  const long more = resident_kib() - before;
  if (library == NULL) return 1;
  dl_iterate_phdr(count_library, &libraries);
  if (strcmp(argv[1], "time") == 0) printf("%lld\n", spent);
  if (strcmp(argv[1], "libraries") == 0) printf("%d\n", libraries);
  if (strcmp(argv[1], "resident") == 0) printf("%ld\n", more);
  return 0;
}
