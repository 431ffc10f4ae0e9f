// A web server on loopback.
#ifndef TESTS_SUPPORT_HTTP_SERVER_H_
#define TESTS_SUPPORT_HTTP_SERVER_H_

#include <functional>
#include <string>

#include "tests/support/loopback_server.h"

namespace velmohelp::testing {

/// Answers every connection's first request with the bytes that a function
/// has for its path, and closes the connection. (A proxy's client asks for a
/// whole URL in place of a path.)
class HttpServer {
 public:
  /// At the end of the bytes: the server then resets the connection, or holds
  /// it open without a further word, or sends a long text.
  static constexpr char kReset[] = "\x01reset";
  static constexpr char kHang[] = "\x01hang";
  static constexpr char kLongText[] = "\x01long text";
  static constexpr long kLongTextSize = 100L << 20;

  /// Called by several threads at once.
  using Answer = std::function<std::string(const std::string& path)>;

  explicit HttpServer(Answer answer);

  int port() const { return server_.port(); }
  /// "http://127.0.0.1:<port>" and the path.
  std::string Url(const std::string& path) const;

 private:
  void Talk(int connection) const;

  Answer answer_;
  LoopbackServer server_;
};

/// A whole response: "200 OK", header lines each with its CR LF, and a body
/// whose length is declared. Says that the connection is closed after it:
/// otherwise a client asks again on the closed one, and gives up after a few.
std::string Response(const std::string& status, const std::string& headers,
                     const std::string& body);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_HTTP_SERVER_H_
