// Opening URLs, with the helper of this build and a desktop of the test's own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "platform/linux/linux_machine.h"
#include "tests/support/children.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using testing::FileText;

class Browser : public ::testing::Test {
 protected:
  void SetUp() override {
    setenv("XDG_CONFIG_HOME", directory_.MakeDirectory("config").c_str(), 1);
    setenv("XDG_CONFIG_DIRS", "/nonexistent", 1);
    setenv("XDG_DATA_HOME", directory_.MakeDirectory("data").c_str(), 1);
    setenv("XDG_DATA_DIRS", "/nonexistent", 1);
    unsetenv("XDG_CURRENT_DESKTOP");
  }
  ~Browser() override { testing::EndChildren(); }

  /// Makes a program that writes its arguments down the default for a scheme.
  void Install(const std::string& name, const std::string& scheme,
               const std::string& more = "") {
    const std::string program = directory_.WriteScript(
        name, "printf '%s|' \"$@\" > '" + directory_.path() + "/opened-" +
                  name + "'");
    InstallLine(name, scheme, "\"" + program + "\" %u", more);
  }

  void InstallLine(const std::string& name, const std::string& scheme,
                   const std::string& line, const std::string& more = "") {
    directory_.Write("data/applications/" + name + ".desktop",
                     "[Desktop Entry]\nType=Application\nName=" + name +
                         "\nExec=" + line + "\n" + more);
    defaults_ += "x-scheme-handler/" + scheme + "=" + name + ".desktop\n";
    directory_.Write("config/mimeapps.list", defaults_);
  }

  /// What the installed program was given; "" when it was not started.
  std::string Opened(const std::string& name, const std::string& url) {
    const bool opened = machine_.OpenInBrowser(url);
    testing::AwaitEndOfChildren();
    std::string arguments = FileText(directory_ / ("opened-" + name));
    EXPECT_EQ(opened, !arguments.empty());
    return arguments;
  }

  LinuxMachine& machine() { return machine_; }
  const testing::TemporaryDirectory& directory() const { return directory_; }

 private:
  testing::TemporaryDirectory directory_;
  LinuxMachine machine_{VELMO_TEST_HELPERS};
  std::string defaults_ = "[Default Applications]\n";
};

TEST_F(Browser, GetsAWebPage) {
  Install("browser", "https");
  EXPECT_EQ(Opened("browser", "http://localhost/a?b=c#d"),
            "http://localhost/a?b=c#d|");
}

TEST_F(Browser, GetsAFilesUrlWithItsQuery) {
  Install("browser", "https");
  const std::string url = "file:///tmp/a%20b.html?nameAnchor=top&x=%C3%A4";
  EXPECT_EQ(Opened("browser", url), url + "|");
}

TEST_F(Browser, IsTheHandlerOfHttpsBeforeThatOfHttp) {
  Install("plain", "http");
  EXPECT_EQ(Opened("plain", "http://localhost/"), "http://localhost/|");
  Install("secure", "https");
  EXPECT_EQ(Opened("secure", "http://localhost/"), "http://localhost/|");
}

TEST_F(Browser, IsFoundWithoutBeingStarted) {
  Install("browser", "https");
  const auto command = machine().FindBrowser("http://localhost/a?b=c");
  EXPECT_THAT(command, ::testing::Optional(::testing::ElementsAre(
                           directory() / "browser", "http://localhost/a?b=c")));
  EXPECT_FALSE(std::filesystem::exists(directory() / "opened-browser"));
}

TEST_F(Browser, IsNotFoundWhereNothingWouldOpen) {
  EXPECT_FALSE(machine().FindBrowser("http://localhost/"));
  Install("browser", "https");
  EXPECT_FALSE(machine().FindBrowser("file:///a b"));
  EXPECT_FALSE(machine().FindBrowser("page.html"));
}

TEST_F(Browser, IsFoundByItsName) {
  const std::string path = directory().path() + ":" + std::getenv("PATH");
  setenv("PATH", path.c_str(), 1);
  Install("browser", "https");
  InstallLine("browser", "https", "browser --new %u");
  EXPECT_EQ(Opened("browser", "http://localhost/"), "--new|http://localhost/|");
}

TEST_F(Browser, MayRunInATerminal) {
  setenv("PATH", (directory().path() + ":/usr/bin:/bin").c_str(), 1);
  directory().WriteScript("xdg-terminal-exec", "exec \"$@\" terminal");
  Install("browser", "https", "Terminal=true\n");
  EXPECT_EQ(Opened("browser", "http://localhost/"),
            "http://localhost/|terminal|");
}

/// A shell would run what follows the ";", and lose what follows the "&".
TEST_F(Browser, GetsAnAddressThatAShellWouldTakeApart) {
  Install("browser", "https");
  const std::string url = "http://localhost/a?b=1&b=2;c=$(x)#'d'";
  EXPECT_EQ(Opened("browser", url), url + "|");
}

TEST_F(Browser, IsNoneWhoseShellWouldGetTheAddressAsItsProgram) {
  const std::string marker = directory() / "opened-browser";
  directory().WriteScript("print", "printf '%s' \"$1\" > '" + marker + "'");
  setenv("PATH", (directory().path() + ":/usr/bin:/bin").c_str(), 1);
  InstallLine("browser", "https", "sh -c \"print %u\"");
  EXPECT_EQ(Opened("browser", "http://localhost/a;print"), "");
}

TEST_F(Browser, IsNoneWhereNoneIsInstalled) {
  EXPECT_FALSE(machine().OpenInBrowser("http://localhost/"));
}

TEST_F(Browser, IsNoneWhenItsProgramIsGone) {
  InstallLine("browser", "https", "/nonexistent/browser %u");
  EXPECT_FALSE(machine().OpenInBrowser("http://localhost/"));
}

TEST_F(Browser, GetsNothingThatIsNoAbsoluteUri) {
  Install("browser", "https");
  for (const char* bad : {"", "page.html", "/tmp/page.html", "file:///a b",
                          "http://localhost/\"", "http://localhost/%zz",
                          "http://localhost/\xC3\xA4", "http://localhost:x/"}) {
    EXPECT_EQ(Opened("browser", bad), "") << bad;
  }
}

}  // namespace
}  // namespace velmohelp
