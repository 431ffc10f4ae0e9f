// What a helper does to itself, whoever started it: its time, its memory.
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <future>

#include "tests/support/children.h"
#include "tests/support/http_server.h"
#include "tests/support/temporary_directory.h"
#include "tests/system/name_server.h"
#include "tests/system/own_machine.h"

namespace velmohelp {
namespace {

using testing::HttpServer;

/// Starts a helper of this build without a timer, as only a test does.
pid_t Start(const std::string& name, const std::string& question) {
  const std::string program = VELMO_TEST_HELPERS "/" + name;
  const pid_t process = fork();
  if (process != 0) return process;
  setenv("no_proxy", "*", 1);
  close(STDOUT_FILENO);
  execl(program.c_str(), program.c_str(), question.c_str(), nullptr);
  _exit(1);
}

int StatusOf(pid_t process) {
  int status = 0;
  waitpid(process, &status, 0);
  return status;
}

bool EndedAtItsTimeLimit(int status) {
  return WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM;
}

TEST(AFetch, GivesUpAServerThatSendsTooLittle) {
  const HttpServer server([](const std::string&) {
    return "HTTP/1.1 200 OK\r\n\r\na start" + std::string(HttpServer::kHang);
  });
  EXPECT_TRUE(WIFEXITED(StatusOf(Start("velmohelp-fetch", server.Url("/")))));
}

/// Sends just enough, forever.
void Trickle(int connection) {
  testing::ReadRequest(connection);
  testing::SendAll(connection, "HTTP/1.1 200 OK\r\n\r\n");
  pollfd gone = {connection, POLLRDHUP, 0};
  const std::string piece(4096, 'a');
  while (poll(&gone, 1, 1000) == 0) {
    if (!testing::SendAll(connection, piece)) return;
  }
}

TEST(AFetch, EndsAtItsTimeLimit) {
  const testing::LoopbackServer server(&Trickle);
  const std::string url =
      "http://127.0.0.1:" + std::to_string(server.port()) + "/";
  EXPECT_TRUE(EndedAtItsTimeLimit(StatusOf(Start("velmohelp-fetch", url))));
}

TEST(AFetch, HasABoundedAddressSpace) {
#ifdef VELMO_TEST_SANITIZED
  GTEST_SKIP() << "a sanitizer needs more";
#endif
  std::promise<pid_t> started;
  rlimit limit = {};
  const HttpServer server([&](const std::string&) {
    prlimit(started.get_future().get(), RLIMIT_AS, nullptr, &limit);
    return testing::Response("200 OK", "", "a text");
  });
  const pid_t process = Start("velmohelp-fetch", server.Url("/"));
  started.set_value(process);
  StatusOf(process);
  EXPECT_EQ(limit.rlim_cur, 512U << 20U);
  EXPECT_EQ(limit.rlim_max, 512U << 20U);
}

/// The resolver itself would wait for minutes.
TEST(ANameLookup, EndsAtItsTimeLimit) {
  const testing::TemporaryDirectory directory;
  directory.MakeDirectory("Library");
  directory.MakeDirectory("velmo");
  directory.Write("hosts", "127.0.0.1 localhost\n");
  directory.Write("resolv.conf",
                  "nameserver 127.0.0.1\noptions timeout:30 attempts:5\n");
  const auto enter = [&] {
    return testing::EnterOwnMachine(directory.path()) &&
           testing::RaiseLoopback();
  };
  if (!testing::InACopy(enter)) {
    GTEST_SKIP() << "this system lets the test make no machine of its own";
  }
  EXPECT_TRUE(testing::InACopy([&] {
    return enter() && testing::StartNameServer(testing::NameAnswer::kNothing) &&
           EndedAtItsTimeLimit(
               StatusOf(Start("velmohelp-reach", "host.example")));
  }));
}

}  // namespace
}  // namespace velmohelp
