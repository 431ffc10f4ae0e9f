#include "platform/cancellation.h"

#include <pthread.h>

namespace velmohelp {

CancellationDisabled::CancellationDisabled() {
  pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &previous_);
}

CancellationDisabled::~CancellationDisabled() noexcept(false) {
  pthread_setcancelstate(previous_, nullptr);
}

}  // namespace velmohelp
