#include "tests/exports/client_doubles.h"

#include <velmohelp/velmohelp.h>

using velmohelp::testing::calls;
using velmohelp::testing::client_result;

uint32_t DisplayVelmoHelpClientPage(const char* pageId) {
  calls.push_back("display " + std::string(pageId));
  return client_result;
}

uint32_t InitializeVelmoHelpClient(const char* productId, const char* locale,
                                   unsigned int cleanProductId) {
  calls.push_back("initialize " + std::string(productId) + " " + locale + " " +
                  std::to_string(cleanProductId));
  return client_result;
}
