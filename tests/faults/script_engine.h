// A script engine of two arguments and one result, without memory of its own.
#ifndef TESTS_FAULTS_SCRIPT_ENGINE_H_
#define TESTS_FAULTS_SCRIPT_ENGINE_H_

#include <velmohelp/script_host.h>

namespace velmohelp::testing {

/// What a script's call of the function in a namespace gives it.
long CallFromScript(int (*load_namespace)(LxState*), const char* first,
                    const char* second = nullptr);

}  // namespace velmohelp::testing

#endif  // TESTS_FAULTS_SCRIPT_ENGINE_H_
