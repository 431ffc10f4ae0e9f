// What a request would show, without showing it.
#ifndef CLIENT_FIND_H_
#define CLIENT_FIND_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "client/client.h"
#include "client/client_variables.h"
#include "platform/dry_run_machine.h"

namespace velmohelp {

struct FindResult {
  /// What the request would return.
  std::uint32_t code = 0;
  /// What it would start; only when code is 0.
  std::optional<NotedStart> start;
};

/// Makes a request with a copy of the client's state, on a machine that notes
/// the start instead of making it. Nothing changes. Throws what the request
/// throws.
///
/// request: takes a Client and returns the request's code.
template <typename Request>
FindResult Find(const Client& client, Request request) {
  const auto copy = std::make_unique<ClientVariables>(client.state);
  DryRunMachine machine(client.machine);
  const std::uint32_t code = request(Client{machine, copy->state});
  return {.code = code, .start = code == 0 ? machine.start() : std::nullopt};
}

/// The URL that would be shown; nullopt when the viewer gets a page id or the
/// text of a search.
std::optional<std::string> UrlOf(const NotedStart& start);

}  // namespace velmohelp

#endif  // CLIENT_FIND_H_
