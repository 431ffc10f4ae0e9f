// A program that tells how it was started: writes to the file named by its
// first argument, one fact a line.
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

namespace {

void TellSignals(std::ostream& out) {
  sigset_t blocked;
  sigprocmask(SIG_SETMASK, nullptr, &blocked);
  for (int signal = 1; signal < NSIG; ++signal) {
    struct sigaction action = {};
    const bool is_blocked = sigismember(&blocked, signal) == 1;
    if (is_blocked) out << "blocked " << signal << '\n';
    if (sigaction(signal, nullptr, &action) == 0 &&
        action.sa_handler == SIG_IGN) {
      out << "ignored " << signal << '\n';
    }
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  int descriptors[1024];
  int count = 0;
  for (int number = 0; number < 1024; ++number) {
    if (fcntl(number, F_GETFD) != -1) descriptors[count++] = number;
  }
  std::ofstream out(argv[1], std::ios::binary);
  for (int i = 0; i < argc; ++i) out << "argument " << argv[i] << '\n';
  for (char** entry = environ; *entry != nullptr; ++entry) {
    out << "environment " << *entry << '\n';
  }
  for (int i = 0; i < count; ++i) {
    out << "descriptor " << descriptors[i] << '\n';
  }
  TellSignals(out);
  out << (getsid(0) == getpid() ? "own session\n" : "host's session\n");
}
