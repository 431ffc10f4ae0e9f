#include "tests/support/http_server.h"

#include <sys/socket.h>

#include <utility>

namespace velmohelp::testing {
namespace {

/// The path in "GET /path HTTP/1.1".
std::string PathIn(const std::string& request) {
  const std::size_t start = request.find(' ') + 1;
  return request.substr(start, request.find(' ', start) - start);
}

/// Takes a word off the end of the bytes; false when it is not there.
bool TakeEnd(std::string_view& bytes, std::string_view word) {
  if (!bytes.ends_with(word)) return false;
  bytes.remove_suffix(word.size());
  return true;
}

void SendLongText(int connection) {
  const std::string piece(1U << 20U, 'a');
  long left = HttpServer::kLongTextSize;
  while (left > 0 && SendAll(connection, piece)) {
    left -= static_cast<long>(piece.size());
  }
}

}  // namespace

HttpServer::HttpServer(Answer answer)
    : answer_(std::move(answer)),
      server_([this](int connection) { Talk(connection); }) {}

std::string HttpServer::Url(const std::string& path) const {
  return "http://127.0.0.1:" + std::to_string(port()) + path;
}

void HttpServer::Talk(int connection) const {
  const std::string answer = answer_(PathIn(ReadRequest(connection)));
  std::string_view bytes = answer;
  const bool resets = TakeEnd(bytes, kReset);
  const bool hangs = TakeEnd(bytes, kHang);
  const bool goes_on = TakeEnd(bytes, kLongText);
  SendAll(connection, bytes);
  if (goes_on) SendLongText(connection);
  if (resets) {
    MakeCloseReset(connection);
    return;
  }
  if (!hangs) shutdown(connection, SHUT_WR);
  AwaitClose(connection);
}

std::string Response(const std::string& status, const std::string& headers,
                     const std::string& body) {
  return "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + headers +
         "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

}  // namespace velmohelp::testing
