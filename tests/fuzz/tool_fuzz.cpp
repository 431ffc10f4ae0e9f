// What another program writes: as the tool's output it names the viewer, as a
// helper's answer it is a command line; each is what its oracle gives.
#include "platform/help_tool.h"
#include "platform/linux/browser_command.h"
#include "platform/scripted/scripted_machine.h"
#include "tests/fuzz/input.h"
#include "tests/support/answer_oracle.h"

namespace velmohelp::testing {

void Check(Input input) {
  constexpr char kTool[] = "/fw//Versions/A/Resources/QTV";
  const std::string output = input.Rest();
  const std::string directory = OracleToolPath(output);
  ScriptedMachine machine;
  machine.SetBundle("com.velmo.vxclientframework", "/fw");
  machine.AddFile(kTool);
  machine.OnRun(kTool, {"-isAppInstalled", "a", "p"}, 0);
  machine.OnOutput(kTool, {"-appLocation", "a", "p"}, output);
  machine.SetExecutable(directory, "/viewer");
  const std::string viewer = HelpApplicationPath(machine, {"a", "p"});
  Same(viewer, directory.empty() ? "" : "/viewer");
  Same(ParseBrowserAnswer(output), OracleBrowserWords(output));
}

}  // namespace velmohelp::testing
