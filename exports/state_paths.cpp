// The second part of the state, constructed after state.cpp: the standard
// streams (by including their header), then the viewer's folders.
#include <iostream>

#include "exports/exported_variable.h"
#include "exports/state.h"

namespace velmohelp {
namespace own {

String kKLHPreferenceFile;
String kDownloadedOfflineContent;
String kDownloadedHelpcfg;

}  // namespace own

namespace {

/// Constructed last, so that its destructor is the first to run.
struct StateEnd {
  StateEnd() = default;
  StateEnd(const StateEnd&) = delete;
  StateEnd& operator=(const StateEnd&) = delete;
  ~StateEnd() { EndStateUse(); }
} const state_end;

}  // namespace
}  // namespace velmohelp

VELMO_EXPORT_OWN(kKLHPreferenceFile);
VELMO_EXPORT_OWN(kDownloadedOfflineContent);
VELMO_EXPORT_OWN(kDownloadedHelpcfg);
