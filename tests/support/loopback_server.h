// A server on loopback, of any protocol.
#ifndef TESTS_SUPPORT_LOOPBACK_SERVER_H_
#define TESTS_SUPPORT_LOOPBACK_SERVER_H_

#include <functional>
#include <string>
#include <string_view>
#include <thread>

namespace velmohelp::testing {

class LoopbackServer {
 public:
  /// Talks to a client, on a thread of the connection's own; the server closes
  /// it afterwards.
  using Talk = std::function<void(int connection)>;

  explicit LoopbackServer(Talk talk);
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;
  /// Waits until every connection has been talked to.
  ~LoopbackServer();

  int port() const { return port_; }

 private:
  void Accept();
  void Serve(int connection) const;

  Talk talk_;
  int listener_;
  int port_ = 0;
  std::thread thread_;
};

/// A connection to a server of this machine; -1 where there is none.
int ConnectToLoopback(int port);

/// All that a client says up to the end of its request's headers, or of what it
/// has to say.
std::string ReadRequest(int connection);

/// False when the other side has gone.
bool SendAll(int connection, std::string_view bytes);

/// Reads until the other side closes, and drops what it says.
void AwaitClose(int connection);

/// The other side finds the connection reset once it is closed here.
void MakeCloseReset(int connection);

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_LOOPBACK_SERVER_H_
