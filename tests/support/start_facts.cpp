#include "tests/support/start_facts.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <sstream>

namespace velmohelp::testing {
namespace {

/// Above every descriptor that a test's host has open.
constexpr int kDescriptorLimit = 8192;

class Records {
 public:
  void Add(const std::string& fact) { text_ += fact + '\0'; }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

void AddDescriptors(Records& records) {
  for (int number = 0; number < kDescriptorLimit; ++number) {
    if (fcntl(number, F_GETFD) == -1) continue;
    records.Add("descriptor " + std::to_string(number));
  }
}

void AddStreams(Records& records) {
  for (const char* number : {"0", "1", "2"}) {
    char target[256] = "";
    const std::string link = std::string("/proc/self/fd/") + number;
    if (readlink(link.c_str(), target, sizeof target - 1) == -1) continue;
    records.Add(std::string("stream ") + target);
  }
}

void AddScheduling(Records& records) {
  cpu_set_t processors;
  sched_getaffinity(0, sizeof processors, &processors);
  records.Add("policy " + std::to_string(sched_getscheduler(0)));
  records.Add("nice " + std::to_string(getpriority(PRIO_PROCESS, 0)));
  records.Add("processors " + std::to_string(CPU_COUNT(&processors)));
}

void AddSignals(Records& records) {
  sigset_t blocked;
  sigprocmask(SIG_SETMASK, nullptr, &blocked);
  for (int signal = 1; signal < NSIG; ++signal) {
    const std::string number = std::to_string(signal);
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (sigismember(&blocked, signal) == 1) records.Add("blocked " + number);
    if (action.sa_handler == SIG_IGN) records.Add("ignored " + number);
  }
}

}  // namespace

std::string StartFacts(int argc, char* argv[]) {
  Records records;
  AddDescriptors(records);
  for (int i = 0; i < argc; ++i) {
    records.Add(std::string("argument ") + argv[i]);
  }
  for (char** entry = environ; *entry != nullptr; ++entry) {
    records.Add(std::string("environment ") + *entry);
  }
  AddStreams(records);
  AddScheduling(records);
  AddSignals(records);
  records.Add(getsid(0) == getpid() ? "own session" : "host's session");
  return records.text();
}

std::vector<std::string> Facts(const std::string& records,
                               const std::string& word) {
  std::vector<std::string> facts;
  std::istringstream lines(records);
  for (std::string line; std::getline(lines, line, '\0');) {
    if (line.starts_with(word + " ")) {
      facts.push_back(line.substr(word.size() + 1));
    }
  }
  return facts;
}

}  // namespace velmohelp::testing
