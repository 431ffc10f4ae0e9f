// velmohelp-fetch: whether there is a text at a URL. See protocol.h.
#include <string>
#include <string_view>

#include "platform/linux/answer.h"
#include "platform/linux/helpers/transfer.h"
#include "platform/linux/protocol.h"

namespace {

/// A line for a person.
int SayWhy(const char* url) {
  const std::string line = velmohelp::WhyNoTextAt(url) + "\n";
  return velmo_write_all(line.data(), line.size()) ? 0 : 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc == 3 && std::string_view(argv[1]) == VELMO_SAY_WHY) {
    return SayWhy(argv[2]);
  }
  const bool is_text = argc == 2 && velmohelp::IsTextAt(argv[1]);
  const std::string_view answer = is_text ? VELMO_IS_TEXT : "";
  return velmo_give_answer(answer.data(), answer.size()) ? 0 : 1;
}
