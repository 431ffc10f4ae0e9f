// velmohelp-request: makes one request for a host that does not wait for it.
#include <exception>

#include "client/request.h"
#include "platform/worker.h"

int main(int argc, char* argv[]) {
  try {
    return velmohelp::RunWorker(argc, argv, &velmohelp::MakeRequest);
  } catch (const std::exception&) {
    // The host reads the end of the file in place of an answer.
    return 1;
  }
}
