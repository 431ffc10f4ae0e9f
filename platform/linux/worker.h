// The host's end of a worker; for the other end see platform/worker.h.
#ifndef PLATFORM_LINUX_WORKER_H_
#define PLATFORM_LINUX_WORKER_H_

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// On whose behalf a worker acts.
struct WorkerHost {
  std::string helper_folder;
  std::string library_folder;
  /// The host's executable; "" when it is not known.
  std::string host;
  std::optional<std::string> activation_token;
};

/// See Machine for both. The worker is velmohelp-request in the helper folder.
int StartWorker(const WorkerHost& host, const Arguments& words);
std::optional<std::string> FinishWorker(int descriptor);

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_WORKER_H_
