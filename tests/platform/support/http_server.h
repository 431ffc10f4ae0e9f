// A web server on loopback.
#ifndef TESTS_PLATFORM_SUPPORT_HTTP_SERVER_H_
#define TESTS_PLATFORM_SUPPORT_HTTP_SERVER_H_

#include <functional>
#include <string>
#include <thread>

namespace velmohelp::testing {

/// Answers every connection's first request with the bytes that a function
/// has for its path, and closes the connection.
class HttpServer {
 public:
  /// Bytes that make the server reset the connection, or hold it open without
  /// a word.
  static constexpr char kReset[] = "reset";
  static constexpr char kHang[] = "hang";

  using Answer = std::function<std::string(const std::string& path)>;

  explicit HttpServer(Answer answer);
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;
  ~HttpServer();

  /// "http://127.0.0.1:<port>" and the path.
  std::string Url(const std::string& path) const;

 private:
  void Serve() const;
  void ServeOne(int connection) const;

  Answer answer_;
  int listener_;
  int port_ = 0;
  std::thread thread_;
};

/// A whole response: "200 OK", header lines each with its CR LF, and a body
/// whose length is declared.
std::string Response(const std::string& status, const std::string& headers,
                     const std::string& body);

}  // namespace velmohelp::testing

#endif  // TESTS_PLATFORM_SUPPORT_HTTP_SERVER_H_
