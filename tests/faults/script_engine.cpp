#include "tests/faults/script_engine.h"

namespace velmohelp::testing {
namespace {

const LxRegistration* loaded = nullptr;
const char* arguments[2] = {};
long result = 0;

}  // namespace

long CallFromScript(int (*load_namespace)(LxState*), const char* first,
                    const char* second) {
  load_namespace(nullptr);
  arguments[0] = first;
  arguments[1] = second;
  loaded->function(nullptr);
  return result;
}

}  // namespace velmohelp::testing

void LxNamespace_exportFunctions(LxState*, const char*,
                                 const LxRegistration* table) {
  velmohelp::testing::loaded = table;
}

const char* LxLua_checkString(LxState*, int index) {
  return velmohelp::testing::arguments[index - 1];
}

void LxLua_pushNamedInteger(LxState*, int64_t value,
                            const LxNamedIntegerTable*) {
  velmohelp::testing::result = value;
}
