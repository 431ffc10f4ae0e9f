/* bench_floor: process starts and file reads without a client.
 * Prints nanoseconds, the median of some runs.
 *
 * start PROGRAM: starts a program and waits for its end.
 * start-read-start PROGRAM BROWSER WORD...: reads the program's output until it
 *   ends, then starts the browser with the words.
 * request TOOL VIEWER REACH|- FILE...: what a page display asks of the system:
 *   runs the tool three times, and the reachability helper unless it is "-",
 *   reads every file, starts the viewer. */
#include <fcntl.h>
#include <spawn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

enum { RUNS = 15, WARM_UPS = 3, MAX_STARTED = 8 };

/* Started and not waited for; reaped at the next run, when they have ended. */
static pid_t started[MAX_STARTED];
static int started_count;

static long long now(void) {
  struct timespec time;
  clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * 1000000000LL + time.tv_nsec;
}

static pid_t spawn(char* argv[], int output, short flags) {
  pid_t process = -1;
  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, flags);
  if (output >= 0) posix_spawn_file_actions_adddup2(&actions, output, 1);
  if (posix_spawn(&process, argv[0], &actions, &attributes, argv, environ)) {
    exit(1);
  }
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  return process;
}

static void run_to_end(char* argv[]) {
  int status = 0;
  if (waitpid(spawn(argv, -1, 0), &status, 0) < 0 || status != 0) exit(1);
}

static void leave(pid_t process) {
  waitpid(process, NULL, WNOHANG);
  started[started_count++] = process;
}

static void reap_ended(void) {
  for (int i = 0; i < started_count; ++i) waitpid(started[i], NULL, WNOHANG);
  started_count = 0;
}

static void read_output(char* argv[], int until_closed) {
  int ends[2];
  char text[4096];
  if (pipe2(ends, O_CLOEXEC) != 0) exit(1);
  leave(spawn(argv, ends[1], 0));
  close(ends[1]);
  while (read(ends[0], text, sizeof text) > 0 && until_closed) continue;
  close(ends[0]);
}

static void read_file(const char* path) {
  static char piece[65536];
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  if (file < 0) return;
  while (read(file, piece, sizeof piece) == sizeof piece) continue;
  close(file);
}

static void request(char* words[]) {
  char* tool = words[0];
  char* installed[] = {tool, "-isAppInstalled", "reader", "bench.1", NULL};
  char* location[] = {tool, "-appLocation", "reader", "bench.1", NULL};
  char* runtime[] = {tool, "-isRuntimeInstalled", NULL};
  char* viewer[] = {words[1], "HELP", "page", "en_US", "page_7", NULL};
  char* reach[] = {words[2], "localhost", NULL};
  reap_ended();
  run_to_end(installed);
  read_output(location, 0);
  if (strcmp(words[2], "-") != 0) read_output(reach, 1);
  run_to_end(runtime);
  for (char** file = words + 3; *file != NULL; ++file) read_file(*file);
  leave(spawn(viewer, -1, POSIX_SPAWN_SETSID));
}

static void start(char* words[]) { run_to_end(words); }

static void start_read_start(char* words[]) {
  char* helper[] = {words[0], NULL};
  reap_ended();
  read_output(helper, 1);
  leave(spawn(words + 1, -1, POSIX_SPAWN_SETSID));
}

static int compare(const void* a, const void* b) {
  const long long left = *(const long long*)a;
  const long long right = *(const long long*)b;
  return (left > right) - (left < right);
}

static long long median(void (*run)(char**), char* words[]) {
  long long readings[RUNS];
  for (int i = 0; i < WARM_UPS; ++i) run(words);
  for (int i = 0; i < RUNS; ++i) {
    const long long begin = now();
    run(words);
    readings[i] = now() - begin;
  }
  qsort(readings, RUNS, sizeof *readings, compare);
  return readings[RUNS / 2];
}

int main(int argc, char* argv[]) {
  static const struct {
    const char* name;
    void (*run)(char**);
  } runs[] = {{"request", request},
              {"start", start},
              {"start-read-start", start_read_start}};
  for (size_t i = 0; argc > 2 && i < sizeof runs / sizeof *runs; ++i) {
    if (strcmp(argv[1], runs[i].name) != 0) continue;
    printf("%lld\n", median(runs[i].run, argv + 2));
    return 0;
  }
  return 2;
}
