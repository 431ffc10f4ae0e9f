// Servers on loopback that pass on to others what is said to them.
#ifndef TESTS_SYSTEM_TUNNELS_H_
#define TESTS_SYSTEM_TUNNELS_H_

#include "tests/support/loopback_server.h"
#include "tests/system/certificates.h"

namespace velmohelp::testing {

/// Speaks TLS, as the server of an identity, in front of a server of this
/// machine that does not.
class TlsFront {
 public:
  TlsFront(Identity identity, int port);

  int port() const { return server_.port(); }

 private:
  void Talk(int connection) const;

  using Context = std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)>;

  Context context_;
  int port_;
  LoopbackServer server_;
};

/// A proxy whose every tunnel (RFC 9110, CONNECT) leads to the same server of
/// this machine; port 0 refuses them all.
LoopbackServer::Talk TunnelTo(int port);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_TUNNELS_H_
