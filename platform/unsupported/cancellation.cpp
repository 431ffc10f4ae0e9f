#include "platform/cancellation.h"

namespace velmohelp {

/// For a system whose threads cannot be cancelled.
CancellationDisabled::CancellationDisabled() = default;
CancellationDisabled::~CancellationDisabled() noexcept(false) = default;

}  // namespace velmohelp
