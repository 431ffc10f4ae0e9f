// A host with the library as it is shipped, on a machine that it has for
// itself.
#ifndef TESTS_SYSTEM_OWN_MACHINE_WORLD_H_
#define TESTS_SYSTEM_OWN_MACHINE_WORLD_H_

#include "tests/support/children.h"
#include "tests/system/own_machine.h"
#include "tests/system/routes.h"

namespace velmohelp::testing {

/// The machine knows the help server, as itself; the user wants online help.
class OwnMachine : public ::testing::Test {
 protected:
  OwnMachine() {
    world_.CopyLibrary(VELMO_TEST_FIXED_LIBRARY);
    world_.SetUserPreference("1");
    Put("hosts", "127.0.0.1 localhost help.velmo.com\n");
    Put("resolv.conf", "");
    Put("velmo/other.conf", "");
    Put("Library/other", "");
  }

  void SetUp() override {
    if (!InACopy(
            [&] { return EnterOwnMachine(Folder()) && RaiseLoopback(); })) {
      GTEST_SKIP() << "this system lets the test make no machine of its own";
    }
  }

  std::string Folder() const { return world_.Expanded("{bin}/machine"); }
  void Put(const std::string& name, const std::string& text) {
    world_.Write(Folder() + "/" + name, text);
  }

  void InstallIntroPage() {
    Put("Library/Application Support/Velmo/Help/{folder}/intro.html", "<p>");
  }
  void ExpectTheInstalledIntroPageInTheViewer() {
    EXPECT_EQ(world_.Started(),
              world_.Expanded(Viewer(
                  "HELP",
                  "\"file:///Library/Application%20Support/Velmo/Help//{folder}"
                  "/intro.html\"")));
  }

  /// Initialises a client on that machine, once this has been done there.
  void Start(const std::function<bool()>& step = &RaiseLoopback) {
    world_.start().preparation = [folder = Folder(), step] {
      return EnterOwnMachine(folder) && step();
    };
    ASSERT_TRUE(world_.Initialise());
  }

  HelpWorld world_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_OWN_MACHINE_WORLD_H_
