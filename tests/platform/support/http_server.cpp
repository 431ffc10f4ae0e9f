#include "tests/platform/support/http_server.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace velmohelp::testing {
namespace {

/// The path in "GET /path HTTP/1.1".
std::string PathIn(const std::string& request) {
  const std::size_t start = request.find(' ') + 1;
  return request.substr(start, request.find(' ', start) - start);
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

void AwaitClient(int connection) {
  char byte = 0;
  while (recv(connection, &byte, 1, 0) > 0) {
  }
}

void MakeCloseReset(int connection) {
  const linger at_once = {1, 0};
  setsockopt(connection, SOL_SOCKET, SO_LINGER, &at_once, sizeof at_once);
}

}  // namespace

HttpServer::HttpServer(Answer answer)
    : answer_(std::move(answer)),
      listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* any = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener_, any, size) != 0 || listen(listener_, 8) != 0) {
    throw std::runtime_error("no place for a server on loopback");
  }
  getsockname(listener_, any, &size);
  port_ = ntohs(address.sin_port);
  thread_ = std::thread([this] { Serve(); });
}

HttpServer::~HttpServer() {
  shutdown(listener_, SHUT_RDWR);
  thread_.join();
  close(listener_);
}

std::string HttpServer::Url(const std::string& path) const {
  return "http://127.0.0.1:" + std::to_string(port_) + path;
}

void HttpServer::Serve() const {
  for (;;) {
    const int connection = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) return;
    ServeOne(connection);
    close(connection);
  }
}

void HttpServer::ServeOne(int connection) const {
  const std::string bytes = answer_(PathIn(ReadRequest(connection)));
  if (bytes == kHang) {
    AwaitClient(connection);
  } else if (bytes == kReset) {
    MakeCloseReset(connection);
  } else {
    send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    shutdown(connection, SHUT_WR);
    AwaitClient(connection);
  }
}

std::string Response(const std::string& status, const std::string& headers,
                     const std::string& body) {
  return "HTTP/1.1 " + status + "\r\n" + headers +
         "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

}  // namespace velmohelp::testing
