/* The contract between the plug-in and a host with a script engine.
 *
 * The plug-in offers the two load entry points; the host offers the three
 * Lx... operations, visible to the dynamic linker. The plug-in refers to them
 * weakly, so that a program without a script engine can link and use the
 * library. Result codes are pushed as named integers; <velmohelp/velmohelp.h>
 * has their numbers. */
#ifndef VELMOHELP_SCRIPT_HOST_H_
#define VELMOHELP_SCRIPT_HOST_H_

#include <velmohelp/export.h>

#ifdef __cplusplus
#include <cstdint>
#else
#include <stdint.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The host's script state; the plug-in only passes it on. */
typedef struct lua_State LxState;

/* A function that scripts can call; returns the number of results pushed. */
typedef int (*LxFunction)(LxState* state);

/* One row of a registration table. The last row is { null, null }. */
typedef struct LxRegistration {
  const char* name;
  LxFunction function;
} LxRegistration;

/* One row of a list of named integers. The last row is { null, 0 }. */
typedef struct LxNamedValue {
  const char* name;
  int64_t value;
} LxNamedValue;

/* A table of named integers: the name of its type, and the list of values,
 * which directly follows this header in memory. Constant, never freed. */
typedef struct LxNamedIntegerTable {
  const char* typeName;
  const LxNamedValue* values;
} LxNamedIntegerTable;

/* Host: makes every function of the table callable from scripts as
 * namespaceName.name. Registering again replaces the functions. */
void LxNamespace_exportFunctions(LxState* state, const char* namespaceName,
                                 const LxRegistration* table);

/* Host: returns argument index (from 1) of the current script call,
 * NUL-terminated and valid until the call returns. Raises a script error, and
 * does not return, when the argument is not a string. */
const char* LxLua_checkString(LxState* state, int index);

/* Host: pushes value as a result that scripts see as a number and by its name
 * in the table. The table stays valid as long as the plug-in is loaded. */
void LxLua_pushNamedInteger(LxState* state, int64_t value,
                            const LxNamedIntegerTable* table);

/* Plug-in: registers LxHelp.displayClientPage(pageId). Returns 0. */
VELMOHELP_API int private_load_LxHelp(LxState* state);

/* Plug-in: registers LxHelpWorker.initializeClient(productId, locale).
 * Returns 0. */
VELMOHELP_API int private_load_LxHelpWorker(LxState* state);

#ifdef __cplusplus
}
#endif

#endif /* VELMOHELP_SCRIPT_HOST_H_ */
