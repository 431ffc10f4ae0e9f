// The script binding: strings in, a named integer out, and no logic of its own.
// The host's script engine may leave any Lx... operation with a longjmp, which
// skips destructors: nothing here holds an object that has one.
#include <velmohelp/script_host.h>
#include <velmohelp/velmohelp.h>

#include "exports/result_codes.h"

// Null in a process that offers no script engine: a C program links and loads
// the library without them.
#pragma weak LxNamespace_exportFunctions
#pragma weak LxLua_checkString
#pragma weak LxLua_pushNamedInteger

namespace velmohelp {
namespace {

int DisplayClientPage(LxState* state) {
  const char* page_id = LxLua_checkString(state, 1);
  LxLua_pushNamedInteger(state, DisplayVelmoHelpClientPage(page_id),
                         &kDisplayPageReturnCode.header);
  return 1;
}

int InitializeClient(LxState* state) {
  const char* product_id = LxLua_checkString(state, 1);
  const char* locale = LxLua_checkString(state, 2);
  LxLua_pushNamedInteger(state,
                         InitializeVelmoHelpClient(product_id, locale, 0),
                         &kInitReturnCode.header);
  return 1;
}

constexpr LxRegistration kHelpFunctions[] = {
    {"displayClientPage", DisplayClientPage}, {nullptr, nullptr}};

constexpr LxRegistration kHelpWorkerFunctions[] = {
    {"initializeClient", InitializeClient}, {nullptr, nullptr}};

int Register(LxState* state, const char* namespace_name,
             const LxRegistration* table) {
  if (LxNamespace_exportFunctions != nullptr) {
    LxNamespace_exportFunctions(state, namespace_name, table);
  }
  return 0;
}

}  // namespace
}  // namespace velmohelp

int private_load_LxHelp(LxState* state) {
  return velmohelp::Register(state, "LxHelp", velmohelp::kHelpFunctions);
}

int private_load_LxHelpWorker(LxState* state) {
  return velmohelp::Register(state, "LxHelpWorker",
                             velmohelp::kHelpWorkerFunctions);
}
