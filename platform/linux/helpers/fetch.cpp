// velmohelp-fetch: whether there is a text at a URL. See protocol.h.
#include <string_view>

#include "platform/linux/helpers/answer.h"
#include "platform/linux/helpers/transfer.h"
#include "platform/linux/protocol.h"

int main(int argc, char* argv[]) {
  const bool is_text = argc == 2 && velmohelp::IsTextAt(argv[1]);
  const std::string_view answer = is_text ? VELMO_IS_TEXT : "";
  return velmo_give_answer(answer.data(), answer.size()) ? 0 : 1;
}
