#include "tests/system/name_server.h"

#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <string>

namespace velmohelp::testing {
namespace {

constexpr std::size_t kHeaderSize = 12;
constexpr char kTypeOfAddress = 1;

/// The record after the question: its name is the one at byte 12.
constexpr unsigned char kRecord[] = {0xC0, kHeaderSize, 0, 1, 0,   1, 0, 0,
                                     0,    4,           0, 4, 127, 0, 0, 1};

char ErrorCode(NameAnswer answer) {
  switch (answer) {
    case NameAnswer::kFailure:
      return 2;
    case NameAnswer::kNoSuchName:
      return 3;
    case NameAnswer::kRefusal:
      return 5;
    default:
      return 0;
  }
}

/// The type is the third byte from the end.
bool AsksForAnAddress(const std::string& question) {
  return question[question.size() - 3] == kTypeOfAddress;
}

/// The question itself, with the header of a response.
std::string ReplyTo(std::string question, NameAnswer answer) {
  const bool knows =
      answer == NameAnswer::kThisMachine && AsksForAnAddress(question);
  question[2] = static_cast<char>(0x81);
  question[3] = static_cast<char>(0x80 | ErrorCode(answer));
  question[7] = knows ? 1 : 0;
  if (knows) question.append(std::begin(kRecord), std::end(kRecord));
  return question;
}

[[noreturn]] void Serve(int server, NameAnswer answer) {
  for (;;) {
    sockaddr_in client = {};
    socklen_t size = sizeof client;
    auto* any = reinterpret_cast<sockaddr*>(&client);
    std::string question(512, '\0');
    const ssize_t got =
        recvfrom(server, question.data(), question.size(), 0, any, &size);
    if (got <= static_cast<ssize_t>(kHeaderSize)) continue;
    question.resize(static_cast<std::size_t>(got));
    if (answer == NameAnswer::kNothing) continue;
    const std::string reply = ReplyTo(question, answer);
    sendto(server, reply.data(), reply.size(), 0, any, size);
  }
}

int Bound() {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(53);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const int server = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  const bool bound =
      bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
  return bound ? server : -1;
}

}  // namespace

bool StartNameServer(NameAnswer answer) {
  const int server = Bound();
  if (server == -1) return false;
  const pid_t process = fork();
  if (process != 0) return close(server) == 0 && process > 0;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  // The host's streams are not the server's to hold open.
  dup2(server, 0);
  closefrom(1);
  Serve(0, answer);
}

}  // namespace velmohelp::testing
