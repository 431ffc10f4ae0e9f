// Entry points, and what they return when out of memory.
#ifndef TESTS_FAULTS_MEMORY_RUNS_OUT_H_
#define TESTS_FAULTS_MEMORY_RUNS_OUT_H_

#include <gtest/gtest.h>

#include <optional>
#include <set>

#include "tests/support/exhaustion.h"
#include "tests/support/exported_world.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {

/// The client before a call: as at load, or initialised on a
/// machine with a browser alone, with a viewer too, or with a network too.
void AtLoad(ClientWorld& world);
void Initialised(ClientWorld& world);
void WithViewer(ClientWorld& world);
void Online(ClientWorld& world);

struct EntryPoint {
  const char* sentence;
  /// Each code that the call returns when out of memory; none where it
  /// allocates nothing.
  std::set<long> codes_of_exhaustion;
  long (*call)();
  void (*prepare)(ClientWorld&) = AtLoad;
  /// What it returns when there is enough memory.
  long code = 0;
};

void PrintTo(const EntryPoint& point, std::ostream* out);

/// A world with help for the page "page", for any search, and a name "Foo" for
/// the words "a" and "b".
class MemoryRunsOut : public ::testing::TestWithParam<EntryPoint> {
 protected:
  MemoryRunsOut();

  /// The codes of one run for each allocation. After each the call works.
  std::set<long> CodesOf(Shortage shortage);

  /// Memory that is short while such a preference is read leaves online help
  /// on, and the call goes on.
  bool ReadsOnlinePreferences() const;

 private:
  /// The call's code; nullopt when it took fewer allocations than that.
  std::optional<long> CallExhaustedAt(std::size_t nth, Shortage shortage);

  ExportedWorld world_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_FAULTS_MEMORY_RUNS_OUT_H_
