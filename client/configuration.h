// The help configuration as the three requests (page display, URL, search) use
// it: each reads it again before it does anything.
#ifndef CLIENT_CONFIGURATION_H_
#define CLIENT_CONFIGURATION_H_

#include <string>

#include "client/client.h"

namespace velmohelp {

/// Whether a request can go on with the configuration that was read. Each
/// request has its own number for each of these.
enum class Configuration { kUsable, kMissing, kInvalid };

/// Reads the configuration of a locale again. The result becomes the state's
/// init_status, so that an unusable configuration uninitialises the client.
void RereadConfiguration(const Client& client, const std::string& locale);

/// What the state says of the configuration read last. One without content
/// folders counts as invalid.
Configuration ConfigurationOf(const ClientState& state);

/// text is not null and has a byte other than a space. Spaces count only in
/// this test; a text is used as the caller gave it.
bool HasText(const char* text);

}  // namespace velmohelp

#endif  // CLIENT_CONFIGURATION_H_
