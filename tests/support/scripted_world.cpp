#include "platform/scripted/scripted_machine.h"
#include "tests/support/world.h"

namespace velmohelp::testing {
namespace {

class ScriptedWorld : public World {
 public:
  Machine& machine() override { return machine_; }
  std::string root() const override { return "/world"; }

  std::string AddFile(const std::string& name) override {
    machine_.AddFile(At(name));
    return At(name);
  }
  std::string AddDirectory(const std::string& name) override {
    machine_.AddDirectory(At(name));
    return At(name);
  }
  std::string AddBundle(const std::string& identifier) override {
    machine_.SetBundle(identifier, At(identifier));
    return At(identifier);
  }
  std::string AddApplication(const std::string& name) override {
    machine_.SetExecutable(At(name), At(name) + "/AppRun");
    return At(name);
  }
  std::string AddProgram(const std::string& name, int status) override {
    machine_.OnRun(At(name), {}, status);
    return AddFile(name);
  }
  std::string AddSpeaker(const std::string& name,
                         const std::string& text) override {
    machine_.OnOutput(At(name), {"speak"}, text);
    return AddFile(name);
  }
  std::string AddLastingProgram(const std::string& name) override {
    machine_.OnStart(At(name));
    return AddFile(name);
  }
  std::string SetPreferencesFolder() override {
    machine_.SetPreferencesFolder(At("settings"));
    return At("settings");
  }
  void SetUserPreference(const std::string& domain, const std::string& key,
                         const std::string& value) override {
    machine_.SetPreference(domain, key, PreferenceScope::kCurrentUserAnyHost,
                           value);
  }
  std::string AddText(const std::string& name) override {
    machine_.AddText("file://" + At(name));
    return "file://" + At(name);
  }

 private:
  std::string At(const std::string& name) const { return root() + "/" + name; }

  ScriptedMachine machine_;
};

}  // namespace

std::unique_ptr<World> MakeScriptedWorld() {
  return std::make_unique<ScriptedWorld>();
}

}  // namespace velmohelp::testing
