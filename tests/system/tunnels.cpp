#include "tests/system/tunnels.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace velmohelp::testing {
namespace {

constexpr std::size_t kPieceSize = 65536;

/// One end of a tunnel. Both functions give what read and write give.
struct End {
  int socket;
  std::function<long(char* bytes, int size)> read;
  std::function<long(const char* bytes, int size)> write;
};

End Plain(int socket) {
  return {socket,
          [=](char* bytes, int size) {
            return recv(socket, bytes, static_cast<std::size_t>(size), 0);
          },
          [=](const char* bytes, int size) {
            return send(socket, bytes, static_cast<std::size_t>(size),
                        MSG_NOSIGNAL);
          }};
}

End Secret(SSL* secret) {
  return {SSL_get_fd(secret),
          [=](char* bytes, int size) -> long {
            return SSL_read(secret, bytes, size);
          },
          [=](const char* bytes, int size) -> long {
            return SSL_write(secret, bytes, size);
          }};
}

/// What there was to read, as read has it; 0 when the other side did not accept
/// it.
long PassOn(const End& from, const End& to) {
  std::string piece(kPieceSize, '\0');
  const long got = from.read(piece.data(), static_cast<int>(piece.size()));
  if (got <= 0) return got;
  return to.write(piece.data(), static_cast<int>(got)) == got ? got : 0;
}

/// Until one of them has said all; negative when it broke off. A piece holds
/// more than a TLS record, so that nothing waits where poll does not see it.
long Join(const End& one, const End& other) {
  pollfd ready[] = {{one.socket, POLLIN, 0}, {other.socket, POLLIN, 0}};
  long passed = 1;
  while (passed > 0) {
    poll(ready, 2, -1);
    if (ready[0].revents != 0) passed = PassOn(one, other);
    if (ready[1].revents != 0 && passed > 0) passed = PassOn(other, one);
  }
  return passed;
}

/// The thread of a connection gets no signal from a client that has gone.
void BlockBrokenPipes() {
  sigset_t broken_pipe;
  sigemptyset(&broken_pipe);
  sigaddset(&broken_pipe, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &broken_pipe, nullptr);
}

}  // namespace

TlsFront::TlsFront(Identity identity, int port)
    : context_(SSL_CTX_new(TLS_server_method()), &SSL_CTX_free),
      port_(port),
      server_([this](int connection) { Talk(connection); }) {
  SSL_CTX_use_certificate(context_.get(), identity.certificate.get());
  SSL_CTX_use_PrivateKey(context_.get(), identity.key.get());
}

void TlsFront::Talk(int connection) const {
  const std::unique_ptr<SSL, decltype(&SSL_free)> secret(
      SSL_new(context_.get()), &SSL_free);
  BlockBrokenPipes();
  SSL_set_fd(secret.get(), connection);
  if (SSL_accept(secret.get()) != 1) return;
  const int server = ConnectToLoopback(port_);
  if (Join(Secret(secret.get()), Plain(server)) < 0) {
    MakeCloseReset(connection);
  } else {
    SSL_shutdown(secret.get());
  }
  close(server);
}

LoopbackServer::Talk TunnelTo(int port) {
  return [=](int connection) {
    if (!ReadRequest(connection).starts_with("CONNECT ") || port == 0) {
      SendAll(connection, "HTTP/1.1 403 Forbidden\r\n\r\n");
      return;
    }
    SendAll(connection, "HTTP/1.1 200 OK\r\n\r\n");
    const int server = ConnectToLoopback(port);
    Join(Plain(connection), Plain(server));
    close(server);
  };
}

}  // namespace velmohelp::testing
