#include "tests/support/loopback_server.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <stdexcept>
#include <utility>
#include <vector>

namespace velmohelp::testing {
namespace {

sockaddr_in OnLoopback(int port) {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

sockaddr* Any(sockaddr_in& address) {
  return reinterpret_cast<sockaddr*>(&address);
}

int NewSocket() { return socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0); }

bool HasEnded(const std::future<void>& talk) {
  return talk.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace

LoopbackServer::LoopbackServer(Talk talk)
    : talk_(std::move(talk)), listener_(NewSocket()) {
  sockaddr_in address = OnLoopback(0);
  socklen_t size = sizeof address;
  if (bind(listener_, Any(address), size) != 0 || listen(listener_, 64) != 0) {
    throw std::runtime_error("no place for a server on loopback");
  }
  getsockname(listener_, Any(address), &size);
  port_ = ntohs(address.sin_port);
  std::promise<void> promise;
  const std::future<void> started = promise.get_future();
  thread_ = std::thread([this, running = std::move(promise)]() mutable {
    running.set_value();
    Accept();
  });
  // A thread that starts holds locks of the sanitizer's, which a copy of the
  // process made at that moment would wait for.
  started.wait();
}

LoopbackServer::~LoopbackServer() {
  shutdown(listener_, SHUT_RDWR);
  thread_.join();
  close(listener_);
}

/// A browser opens connections on which it says nothing at first: none may
/// keep another waiting.
void LoopbackServer::Accept() {
  std::vector<std::future<void>> talks;
  for (;;) {
    const int connection = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) return;
    std::erase_if(talks, HasEnded);
    talks.push_back(
        std::async(std::launch::async, [=, this] { Serve(connection); }));
  }
}

void LoopbackServer::Serve(int connection) const {
  talk_(connection);
  close(connection);
}

int ConnectToLoopback(int port) {
  sockaddr_in address = OnLoopback(port);
  const int connection = NewSocket();
  if (connect(connection, Any(address), sizeof address) == 0) return connection;
  close(connection);
  return -1;
}

std::string ReadRequest(int connection) {
  std::string request;
  char piece[1024];
  while (request.find("\r\n\r\n") == std::string::npos) {
    const ssize_t got = recv(connection, piece, sizeof piece, 0);
    if (got <= 0) break;
    request.append(piece, static_cast<std::size_t>(got));
  }
  return request;
}

bool SendAll(int connection, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent =
        send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

void AwaitClose(int connection) {
  char piece[1024];
  while (recv(connection, piece, sizeof piece, 0) > 0) {
  }
}

void MakeCloseReset(int connection) {
  const linger at_once = {1, 0};
  setsockopt(connection, SOL_SOCKET, SO_LINGER, &at_once, sizeof at_once);
}

}  // namespace velmohelp::testing
