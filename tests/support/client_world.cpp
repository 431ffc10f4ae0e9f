#include "tests/support/client_world.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <ostream>

#include "platform/locations.h"

namespace velmohelp::testing {
namespace {

namespace fs = std::filesystem;

constexpr char kFramework[] = "com.velmo.vxclientframework";

std::string Replaced(std::string text, const std::string& from,
                     const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

bool IsLaunch(const std::string& question) {
  return question.starts_with("StartProgram") ||
         question.starts_with("OpenInBrowser");
}

}  // namespace

ClientWorld::ClientWorld(ScriptedMachine& machine, ClientState& state)
    : machine_(machine),
      client_machine_(&machine),
      state_(state),
      root_(fs::temp_directory_path() / OwnName("velmohelp")) {
  fs::create_directories(root_);
  machine_.SetResourcesDirectory(root_ + "/Host");
  machine_.SetPreferencesFolder(Preferences());
}

ClientWorld::~ClientWorld() {
  std::error_code ignored;
  fs::remove_all(root_, ignored);
  fs::remove_all(InstalledManual(), ignored);
}

std::uint32_t ClientWorld::Initialise(const char* product, const char* locale,
                                      bool clean_product) {
  return velmohelp::Initialise(client(), product, locale, clean_product);
}

std::uint32_t ClientWorld::OnlineStatus() { return OnlineStatusOf(client()); }

std::uint32_t ClientWorld::DisplayPage(const char* page_id) {
  return velmohelp::DisplayPage(client(), page_id);
}

std::uint32_t ClientWorld::OpenUrl(const char* url) {
  return velmohelp::OpenUrl(client(), url);
}

std::uint32_t ClientWorld::SearchHelp(const char* product, const char* locale,
                                      const char* text) {
  return velmohelp::SearchHelp(client(), product, locale, text);
}

std::uint32_t ClientWorld::SearchByNames(const char* a, const char* b,
                                         const char* locale, const char* text) {
  return velmohelp::SearchByNames(client(), a, b, locale, text);
}

void ClientWorld::AddFile(const std::string& path, const std::string& text) {
  fs::create_directories(fs::path(path).parent_path());
  std::ofstream(path, std::ios::binary) << text;
  machine_.AddFile(path);
}

void ClientWorld::RemoveFile(const std::string& path) {
  fs::remove(path);
  machine_.Remove(path);
}

void ClientWorld::AddDirectory(const std::string& path) {
  fs::create_directories(path);
  machine_.AddDirectory(path);
}

std::string ClientWorld::InstalledConfig(const std::string& locale,
                                         const std::string& product) const {
  return root_ + "/Host/help/" + locale + "/" + product + ".helpcfg";
}

std::string ClientWorld::DownloadedConfig() const {
  return ViewerStore() + "Foo/Cfg/Foo.helpcfg";
}

void ClientWorld::Install(const HelpConfig& config) {
  AddFile(InstalledConfig(), config.Text());
}

void ClientWorld::Download(const HelpConfig& config) {
  AddFile(DownloadedConfig(), config.Text());
}

std::string ClientWorld::DownloadedManual() const {
  return ViewerStore() + "Help/" + OwnName("manual");
}

std::string ClientWorld::InstalledManual() {
  return kInstalledHelpDir + OwnName("manual");
}

void ClientWorld::InstallTool() {
  machine_.SetBundle(kFramework, root_ + "/Framework");
  machine_.AddFile(Tool());
}

void ClientWorld::InstallViewer(const std::string& app_id,
                                const std::string& publisher_id) {
  InstallTool();
  machine_.OnRun(Tool(), {"-isAppInstalled", app_id, publisher_id}, 0);
  machine_.OnOutput(Tool(), {"-appLocation", app_id, publisher_id},
                    root_ + "/Viewer.app\n");
  machine_.SetExecutable(root_ + "/Viewer.app", Viewer());
  AddFile(Viewer());
}

void ClientWorld::InstallRuntime() {
  InstallTool();
  machine_.OnRun(Tool(), {"-isRuntimeInstalled"}, 0);
}

void ClientWorld::InstallWorkingViewer(const std::string& app_id,
                                       const std::string& publisher_id) {
  InstallViewer(app_id, publisher_id);
  InstallRuntime();
  machine_.OnStart(Viewer());
}

std::string ClientWorld::PreferenceFile() const {
  return ViewerStore() + "klh-pref.xml";
}

void ClientWorld::SetAccessibleMode(const std::string& value) {
  AddFile(PreferenceFile(), "<pref accessibleMode=\"" + value + "\"/>");
}

void ClientWorld::GoOnline() {
  machine_.SetReachability(kOnlineHelpHost, {.reachable = true});
}

void ClientWorld::Initialise() {
  ASSERT_EQ(Initialise("Foo", "en_US"), 0U);
  machine_.ForgetQuestions();
}

std::vector<std::string> ClientWorld::Questions() const {
  std::vector<std::string> questions;
  for (const std::string& question : machine_.Questions()) {
    questions.push_back(Abbreviated(question));
  }
  return questions;
}

std::vector<std::string> ClientWorld::Shown() const {
  std::vector<std::string> shown = Questions();
  std::erase_if(shown,
                [](const auto& question) { return !IsLaunch(question); });
  return shown;
}

std::string ClientWorld::Tool() const {
  return root_ + "/Framework//Versions/A/Resources/QTV";
}

std::string ClientWorld::Viewer() const { return root_ + "/Viewer"; }

std::string ClientWorld::ViewerStore() const {
  return Preferences() + "/reader.VELMO.1/Local Store/";
}

std::string ClientWorld::Abbreviated(std::string text) const {
  text = Replaced(std::move(text), root_, "~");
  text = Replaced(std::move(text), kInstalledHelpDir, "/Help/");
  return Replaced(std::move(text), OwnName(""), "");
}

void PrintTo(const Outcome& outcome, std::ostream* out) {
  *out << outcome.code << " " << ::testing::PrintToString(outcome.shown);
}

}  // namespace velmohelp::testing
