// The client's state at load, on a machine that a test describes.
#ifndef TESTS_SUPPORT_ON_SCRIPTED_MACHINE_H_
#define TESTS_SUPPORT_ON_SCRIPTED_MACHINE_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "client/state.h"
#include "exports/this_machine.h"
#include "platform/scripted/scripted_machine.h"

namespace velmohelp::testing {

/// Clears what the tests of these layers write.
inline void ResetState() {
  for (std::string* text :
       {&sProductID, &sLocale, &sConfigID, &sBaseUrl, &sAppID, &sPublisherID,
        &kKLHPreferenceFile, &kDownloadedOfflineContent, &kDownloadedHelpcfg}) {
    text->clear();
  }
  for (auto& row : sHelpPaths) row[0] = row[1] = "";
  sHelpPathCount = kHelpPathCapacity;
  sHelpMap.clear();
  sAppIDIsNull = false;
  sIsOnline = false;
}

class OnScriptedMachine : public ::testing::Test {
 protected:
  OnScriptedMachine() {
    ResetState();
    UseMachine(&machine);
  }
  ~OnScriptedMachine() override { UseMachine(nullptr); }

  ScriptedMachine machine;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_ON_SCRIPTED_MACHINE_H_
