// A request that another process makes with a copy of this client's state.
#ifndef CLIENT_REQUEST_H_
#define CLIENT_REQUEST_H_

#include <cstdint>
#include <optional>
#include <string>

#include "client/client.h"

namespace velmohelp {

enum class RequestKind : std::uint8_t { kDisplay, kUrl, kSearch };

/// A request and its arguments, as the caller gave them.
struct Request {
  RequestKind kind;
  const char* first;
  const char* second = nullptr;
  const char* third = nullptr;
};

/// The words that describe a request and the state that it is made in, for
/// Machine::StartWorker.
Arguments WordsOf(const ClientState& state, const Request& request);

/// Makes the request of such words with a state of its own. Returns the
/// request's code in decimal; "" for words of another version of the library.
/// When it is out of memory or a help map cannot be read, the code is 11 for a
/// display, 7 for a URL and 1 for a search.
std::string MakeRequest(Machine& machine, const Arguments& words);

/// The code in an answer of MakeRequest; nullopt when there is none.
std::optional<std::uint32_t> CodeIn(const std::string& answer);

}  // namespace velmohelp

#endif  // CLIENT_REQUEST_H_
