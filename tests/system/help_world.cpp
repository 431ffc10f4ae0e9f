#include "tests/system/help_world.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <sstream>

#include "tests/support/children.h"
#include "tests/support/start_facts.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

constexpr char kFramework[] =
    "Frameworks/com.velmo.vxclientframework.framework/Versions/A/Resources/";

/// Worlds have spaces in their paths, and nothing else that a URL escapes.
std::string AsUrl(const std::string& path) {
  std::string url = "file://";
  for (const char c : path) {
    url += c == ' ' ? std::string("%20") : std::string(1, c);
  }
  return url;
}

/// The tool's shell complains about a working directory that is gone.
std::string WithoutShell(const std::string& errors) {
  std::string rest;
  std::istringstream lines(errors);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("sh: ")) rest += line + "\n";
  }
  return rest;
}

void Replace(std::string& text, const std::string& what,
             const std::string& by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos;) {
    text.replace(at, what.size(), by);
    at += by.size();
  }
}

}  // namespace

HelpWorld::HelpWorld()
    : server_([this](const std::string& path) { return Response(path); }) {
  const std::string folder = config_.folders.front().name;
  places_ = {{"folder", folder},
             {"server", server_.Url("")},
             {"bin", At("bin")},
             {"config", At("bin/host.resources/help/en_US/Foo.helpcfg")},
             {"settings", At("settings")},
             {"tool", At(std::string(kFramework) + "QTV")},
             {"viewer", At("Viewer.app/bin/Viewer")},
             {"browser", At("Browser.app/bin/Browser")},
             {"installed", VELMO_TEST_INSTALLED_HELP "/" + folder}};
  NameViewer(config_.app_id, config_.pub_id);
  config_.base_url = server_.Url("/");
  mkfifo(At("report").c_str(), S_IRWXU);
  for (const char* name :
       {"bin", "data", "Viewer.app/bin", "Browser.app/bin"}) {
    directory_.MakeDirectory(name);
  }
  fs::copy_file(VELMO_TEST_HOST, At("bin/host"));
  fs::copy_file(VELMO_TEST_RECORDER, Expanded("{viewer}"));
  fs::copy_file(VELMO_TEST_RECORDER, Expanded("{browser}"));
  Configure();
  AnswerTool(true, true);
  SetUserPreference("0");
  InstallBrowser("\"{browser}\" %u");
  start_.program = At("bin/host");
  start_.plug_in = VELMO_TEST_LIBRARY;
  start_.errors = At("errors");
  start_.environment = {"HOME=" + At("home"),
                        "XDG_CONFIG_HOME=" + At("settings"),
                        "XDG_DATA_HOME=" + At("data"),
                        "XDG_CONFIG_DIRS=/nonexistent",
                        "XDG_DATA_DIRS=/nonexistent",
                        "PATH=/usr/bin:/bin",
                        "no_proxy=*"};
}

HelpWorld::~HelpWorld() {
  if (host_) EndHost();
  EndChildren();
  Remove("{installed}");
}

std::string HelpWorld::Expanded(std::string text) const {
  for (const auto& [name, place] : places_) {
    Replace(text, "{" + name + "}", place);
    Replace(text, "{url:" + name + "}", AsUrl(place));
  }
  return text;
}

Words HelpWorld::Expanded(Words texts) const {
  for (std::string& text : texts) text = Expanded(text);
  return texts;
}

void HelpWorld::Write(const std::string& name, const std::string& text) const {
  const std::string path = Expanded(name);
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

void HelpWorld::Remove(const std::string& name) const {
  fs::remove_all(Expanded(name));
}

void HelpWorld::WriteProgram(const std::string& name,
                             const std::string& text) const {
  Write(name, text);
  fs::permissions(Expanded(name), fs::perms::owner_all);
}

void HelpWorld::Configure() const { Write("{config}", config_.Text()); }

void HelpWorld::NameViewer(const std::string& app_id,
                           const std::string& publisher_id) {
  const std::string store =
      At("settings/" + app_id + "." + publisher_id + "/Local Store");
  places_["store"] = store;
  places_["downloaded"] = store + "/Help/" + places_["folder"];
}

void HelpWorld::WriteTool(const std::string& lines) const {
  WriteProgram("{tool}", "#!/bin/sh\n" + lines);
}

void HelpWorld::AnswerTool(bool runtime, bool viewer) const {
  const auto status = [](bool yes) {
    return yes ? "exit 0;;\n" : "exit 1;;\n";
  };
  WriteTool(std::string("case $1 in\n-isRuntimeInstalled) ") + status(runtime) +
            "-isAppInstalled) " + status(viewer) + "-appLocation) echo '" +
            At("Viewer.app") + "';;\nesac\n");
}

void HelpWorld::SetUserPreference(const std::string& value) const {
  Write("{settings}/velmo/com.velmo.VelmoOnlineHelp.conf",
        "[Preferences]\nVelmoOnlineDefault=" + value + "\n");
}

void HelpWorld::InstallBrowser(const std::string& exec_line) const {
  Write(At("data/applications/browser.desktop"),
        "[Desktop Entry]\nType=Application\nName=Browser\nExec=" +
            Expanded(exec_line) + "\n");
  Write("{settings}/mimeapps.list",
        "[Default Applications]\nx-scheme-handler/https=browser.desktop\n");
}

void HelpWorld::Serve(const std::string& path, const std::string& response) {
  responses_[Expanded(path)] = response;
}

std::string HelpWorld::Response(const std::string& path) const {
  on_request_();
  const auto response = responses_.find(path);
  if (response != responses_.end()) return response->second;
  return testing::Response("404 Not Found", "", "");
}

std::string HelpWorld::CopyLibrary(const std::string& library) {
  const std::string folder = directory_.MakeDirectory("lib");
  fs::copy_file(library, folder + "/libvelmohelp.so");
  fs::copy(fs::path(VELMO_TEST_LIBRARY).parent_path() / "velmohelp",
           folder + "/velmohelp");
  start_.plug_in = folder + "/libvelmohelp.so";
  return folder + "/velmohelp";
}

HostProcess& HelpWorld::Host() {
  if (!host_) host_ = std::make_unique<HostProcess>(start_);
  return *host_;
}

std::string HelpWorld::Ask(const Words& request) {
  return Host().Ask(Expanded(request));
}

bool HelpWorld::Initialise() {
  return Ask({"initialise", "Foo", "en_US"}) == "0";
}

std::vector<pid_t> HelpWorld::Programs() {
  std::vector<pid_t> programs = Children();
  std::erase(programs, Host().pid());
  return programs;
}

/// Both programs run until their report is read. On a machine of its own a
/// host's paths have something in front.
std::optional<pid_t> HelpWorld::ProgramOfHere() {
  for (const pid_t child : Programs()) {
    const std::string program = ProgramOf(child);
    if (program.ends_with(places_["viewer"]) ||
        program.ends_with(places_["browser"])) {
      return child;
    }
  }
  return std::nullopt;
}

std::string HelpWorld::Report() {
  const auto program = ProgramOfHere();
  if (!program) return "";
  std::string report = FileText(At("report"));
  AwaitEnd(*program);
  return report;
}

Words HelpWorld::Started() { return Facts(Report(), "argument"); }

void HelpWorld::EndHost() {
  EXPECT_EQ(host_->End(), 0);
  EXPECT_EQ(WithoutShell(FileText(start_.errors)), "");
  host_.reset();
}

}  // namespace velmohelp::testing
