// The program that makes a request in the place of a host that cannot wait.
#ifndef PLATFORM_WORKER_H_
#define PLATFORM_WORKER_H_

#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// What a worker does: takes the words of Machine::StartWorker and returns the
/// answer for Machine::FinishWorker.
using WorkerTask = std::string (*)(Machine& machine, const Arguments& words);

/// The main function of the program that Machine::StartWorker starts: runs the
/// task on the machine of the host that started it. Ends at once, with
/// everything that the task waits for, when nobody wants the answer any more;
/// what the task has started for the person stays. Each system's folder that
/// has workers defines it.
int RunWorker(int argc, char* argv[], WorkerTask task);

}  // namespace velmohelp

#endif  // PLATFORM_WORKER_H_
