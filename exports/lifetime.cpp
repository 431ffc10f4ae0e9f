#include "exports/lifetime.h"

#include <atomic>
#include <cstdint>

namespace velmohelp {
namespace {

/// How many calls use the state, and in the highest bit whether it has ended:
/// one number, so that either a call sees the end or the end sees the call.
constexpr std::uint32_t kEnded = 0x80000000;
constinit std::atomic<std::uint32_t> uses = 0;

constinit bool is_in_use = false;

}  // namespace

StateUse::StateUse() noexcept : is_allowed_((uses++ & kEnded) == 0) {}

StateUse::~StateUse() { --uses; }

void EndStateUse() noexcept { is_in_use = uses.fetch_or(kEnded) != 0; }

bool IsStateInUse() noexcept { return is_in_use; }

}  // namespace velmohelp
