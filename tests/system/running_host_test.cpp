// A running host on a machine of its own, as velmo-help sees it by its process
// id: its files, network and sandbox.
#include <gmock/gmock.h>

#include <functional>
#include <map>

#include "tests/system/name_server.h"
#include "tests/system/own_machine_world.h"
#include "tests/system/scene.h"
#include "tests/system/session_bus.h"

#ifdef VELMO_TEST_TOOL
#include "tests/system/json_schema.h"

namespace velmohelp::testing {
namespace {

class ARunningHost : public OwnMachine {
 protected:
  ToolProcess Run(const char* tool, Words arguments) {
    arguments.insert(arguments.end(),
                     {"--pid", std::to_string(world_.Host().pid())});
    return RunToolIn(world_, arguments, tool);
  }
  ToolProcess Explain(Words arguments, const char* tool = VELMO_TEST_TOOL) {
    arguments.insert(arguments.begin(), "explain");
    return Run(tool, std::move(arguments));
  }
};

TEST_F(ARunningHost, IsItsExecutableEnvironmentAndNetwork) {
  world_.SetUserPreference("1");
  world_.Remove("{viewer}");
  world_.start().environment.emplace_back("UNRELATED=1");
  Start([] { return true; });
  world_.start().environment = {"PATH=/usr/bin:/bin"};
  const auto run = Explain(DisplayIntro());
  EXPECT_EQ(run.err, "");
  const Words lines = FirstThree(run.out);
  ASSERT_EQ(lines.size(), 3U) << run.out;
  EXPECT_THAT(lines[1], ::testing::HasSubstr("(no route to it)"));
  EXPECT_EQ(run.status, 7);
}

TEST_F(ARunningHost, IsInItsSandbox) {
  InstallIntroPage();
  world_.Remove("{viewer}");
  world_.SetUserPreference("0");
  Start([] {
    WriteFile("/.flatpak-info", "[Application]\nname=org.example.Host\n");
    return RaiseLoopback();
  });
  const auto run = Explain({"open", "Foo", "en_US",
                            "file:///Library/Application%20Support/Velmo/Help/"
                            "{folder}/intro.html"});
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(run.out, ::testing::HasSubstr("helpcfg"));
}

struct OnItsMachine : Scene {
  /// /etc/hosts, /etc/resolv.conf and the files in /etc/velmo.
  const char* hosts = "127.0.0.1 localhost help.velmo.com\n";
  const char* resolver = "";
  std::map<std::string, std::string> administrator = {};
  std::function<bool()> step = &RaiseLoopback;
};

class ASceneOnItsMachine : public ARunningHost,
                           public ::testing::WithParamInterface<OnItsMachine> {
};

/// The tool has the places that it is shipped with, as the host's library has.
TEST_P(ASceneOnItsMachine, HasItsCauseInTheFirstLines) {
  const OnItsMachine& row = GetParam();
  Put("hosts", row.hosts);
  Put("resolv.conf", row.resolver);
  for (const auto& [name, text] : row.administrator) {
    Put("velmo/" + name, text);
  }
  world_.start().environment.push_back(
      std::string("DBUS_SESSION_BUS_ADDRESS=").append(kBusAddress));
  Start(row.step);
  Apply(row.changes, world_);
  ExpectCause(row, world_, [&](const Words& options) {
    Words arguments = row.arguments;
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Explain(arguments, VELMO_TEST_FIXED_TOOL);
  });
}

const Change kIntroPage = File(
    "{bin}/machine/Library/Application Support/Velmo/Help/{folder}/"
    "intro.html");

/// A Flatpak's host, whose desktop has a portal.
bool BeAFlatpak() {
  WriteFile("/.flatpak-info", "[Application]\nname=org.example.Host\n");
  return RaiseLoopback() && StartBusWithPortal("/.bus");
}

INSTANTIATE_TEST_SUITE_P(
    , ASceneOnItsMachine,
    ::testing::Values(
        OnItsMachine{{"a dead name server",
                      {NoViewer()},
                      DisplayIntro(),
                      7,
                      "no-local-content",
                      {"offline: help.velmo.com is unknown",
                       "(the name server does not answer)"}},
                     "127.0.0.1 localhost\n",
                     "nameserver 127.0.0.1\noptions timeout:30 attempts:5\n",
                     {},
                     [] {
                       return RaiseLoopback() &&
                              StartNameServer(NameAnswer::kNothing);
                     }},
        OnItsMachine{{"a name server that knows no such name",
                      {NoViewer()},
                      DisplayIntro(),
                      7,
                      "no-local-content",
                      {"offline: help.velmo.com is unknown",
                       "(Name or service not known)"}},
                     "127.0.0.1 localhost\n",
                     "nameserver 127.0.0.1\n",
                     {},
                     [] {
                       return RaiseLoopback() &&
                              StartNameServer(NameAnswer::kNoSuchName);
                     }},
        OnItsMachine{{"an administrator s lock in its file",
                      {NoViewer()},
                      DisplayIntro(),
                      7,
                      "no-local-content",
                      {"the administrator has switched online help off",
                       "/etc/velmo/com.velmo.VelmoOnlineHelp.conf"}},
                     "127.0.0.1 localhost help.velmo.com\n",
                     "",
                     {{"com.velmo.VelmoOnlineHelp.conf",
                       "[Preferences]\nVelmoOnlineDefault=0\n"}}},
        OnItsMachine{{"a host inside Flatpak",
                      {NoViewer(), UserPreference("0"), kIntroPage},
                      DisplayIntro(),
                      0,
                      "host-in-flatpak",
                      {"the host is the Flatpak org.example.Host",
                       "gets this page alone"}},
                     "127.0.0.1 localhost help.velmo.com\n",
                     "",
                     {},
                     &BeAFlatpak}),
    SentenceOf());

TEST_F(ARunningHost, HasAStatusOfTheDocumentedForm) {
  Start(&BeAFlatpak);
  const auto run =
      Run(VELMO_TEST_FIXED_TOOL, {"status", "Foo", "en_US", "--json"});
  const auto json = nlohmann::json::parse(run.out, nullptr, false);
  ASSERT_TRUE(json.is_object()) << run.out << run.err;
  EXPECT_THAT(SchemaErrors(json, DocumentedSchema("status")),
              ::testing::IsEmpty());
  EXPECT_THAT(run.out, ::testing::HasSubstr("\"host-flatpak\""));
}

TEST(AHostThatHasEnded, IsAFailure) {
  HelpWorld world;
  const auto run = RunToolIn(world, {"explain", "display", "Foo", "en_US",
                                     "intro", "--pid", "999999999"});
  EXPECT_EQ(run.status, 74);
  EXPECT_THAT(run.err, ::testing::HasSubstr("process 999999999"));
}

}  // namespace
}  // namespace velmohelp::testing
#endif
