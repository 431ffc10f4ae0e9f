#include <cstdlib>

#include "platform/linux/linux_machine.h"
#include "platform/linux/own_location.h"
#include "tests/support/children.h"
#include "tests/support/temporary_directory.h"
#include "tests/support/world.h"

namespace velmohelp::testing {
namespace {

/// Real files in a directory of its own, real scripts, and the helpers of this
/// build.
class LinuxWorld : public World {
 public:
  LinuxWorld() {
    setenv("XDG_CONFIG_HOME", directory_.MakeDirectory("settings").c_str(), 1);
  }
  LinuxWorld(const LinuxWorld&) = delete;
  LinuxWorld& operator=(const LinuxWorld&) = delete;
  ~LinuxWorld() override {
    if (!bundle_.empty()) std::filesystem::remove(bundle_);
    EndChildren();
  }

  Machine& machine() override { return machine_; }
  std::string root() const override { return directory_.path(); }

  std::string AddFile(const std::string& name) override {
    return directory_.Write(name, "");
  }
  std::string AddDirectory(const std::string& name) override {
    return directory_.MakeDirectory(name);
  }
  std::string AddBundle(const std::string& identifier) override {
    bundle_ = OwnFolder().value() + "/" + identifier + ".framework";
    std::filesystem::create_directory(bundle_);
    return bundle_;
  }
  std::string AddApplication(const std::string& name) override {
    directory_.WriteScript(name + "/AppRun", "");
    return directory_ / name;
  }
  std::string AddProgram(const std::string& name, int status) override {
    return directory_.WriteScript(name, "exit " + std::to_string(status));
  }
  std::string AddSpeaker(const std::string& name,
                         const std::string& text) override {
    return directory_.WriteScript(
        name, "test \"$1\" = speak && printf %s '" + text + "'");
  }
  std::string AddLastingProgram(const std::string& name) override {
    return directory_.WriteScript(name, "exec sleep 1000");
  }
  std::string SetPreferencesFolder() override {
    return directory_ / "settings";
  }
  void SetUserPreference(const std::string& domain, const std::string& key,
                         const std::string& value) override {
    directory_.Write("settings/velmo/" + domain + ".conf",
                     "[Preferences]\n" + key + "=" + value + "\n");
  }
  std::string AddText(const std::string& name) override {
    const std::string url = "file://" + directory_.Write(name, "a text");
    return Escaped(url);
  }

 private:
  static std::string Escaped(std::string url) {
    for (std::size_t space = 0; (space = url.find(' ')) != std::string::npos;) {
      url.replace(space, 1, "%20");
    }
    return url;
  }

  TemporaryDirectory directory_;
  LinuxMachine machine_{VELMO_TEST_HELPERS};
  std::string bundle_;
};

}  // namespace

std::unique_ptr<World> MakeLinuxWorld() {
  return std::make_unique<LinuxWorld>();
}

}  // namespace velmohelp::testing
