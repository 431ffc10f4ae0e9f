// How a test and the host program that it has started talk: lists of texts,
// each text with its length in front, so that it may hold any byte.
#ifndef TESTS_SYSTEM_WORDS_H_
#define TESTS_SYSTEM_WORDS_H_

#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmohelp::testing {

using Words = std::vector<std::string>;

/// The descriptor at which a host program finds its test.
inline constexpr int kTestDescriptor = 3;

inline bool SendBytes(int socket, const void* bytes, std::size_t size) {
  const auto* at = static_cast<const char*>(bytes);
  while (size > 0) {
    const ssize_t sent = send(socket, at, size, MSG_NOSIGNAL);
    if (sent <= 0) return false;
    at += sent;
    size -= static_cast<std::size_t>(sent);
  }
  return true;
}

inline bool ReceiveBytes(int socket, void* bytes, std::size_t size) {
  return size == 0 ||
         recv(socket, bytes, size, MSG_WAITALL) == static_cast<ssize_t>(size);
}

/// False when the other side has gone.
inline bool SendWords(int socket, const Words& words) {
  const auto count = static_cast<std::uint32_t>(words.size());
  bool sent = SendBytes(socket, &count, sizeof count);
  for (const std::string& word : words) {
    const auto size = static_cast<std::uint32_t>(word.size());
    sent = sent && SendBytes(socket, &size, sizeof size) &&
           SendBytes(socket, word.data(), size);
  }
  return sent;
}

/// nullopt when the other side has gone.
inline std::optional<Words> ReceiveWords(int socket) {
  std::uint32_t count = 0;
  if (!ReceiveBytes(socket, &count, sizeof count)) return std::nullopt;
  Words words(count);
  for (std::string& word : words) {
    std::uint32_t size = 0;
    if (!ReceiveBytes(socket, &size, sizeof size)) return std::nullopt;
    word.resize(size);
    if (!ReceiveBytes(socket, word.data(), size)) return std::nullopt;
  }
  return words;
}

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_WORDS_H_
