// velmohelp-fetch: whether there is a text at a URL. See protocol.h.
#include "platform/linux/helpers/answer.h"
#include "platform/linux/helpers/protocol.h"
#include "platform/linux/helpers/transfer.h"

int main(int argc, char* argv[]) {
  if (argc != 2 || !velmohelp::IsTextAt(argv[1])) return 1;
  return velmohelp::GiveAnswer(VELMO_IS_TEXT) ? 0 : 1;
}
