#include <velmohelp/resolve.h>

#include "client/state_views.h"
#include "exports/this_machine.h"
#include "resolve/page_target.h"
#include "resolve/url_check.h"

using velmohelp::ThisMachine;

unsigned char ValidateID(std::string pageId, bool online, std::string& out) {
  return velmohelp::ValidateId(ThisMachine(), velmohelp::ContentView(), pageId,
                               online, sHelpMap, out);
}

bool ITEMInternal::ValidateURL(std::string target, bool fetch) {
  return velmohelp::ValidateUrl(ThisMachine(), target, fetch);
}
