// A host that calls the library at its own end, from an exit handler or another
// thread, and that cancels a thread in a call. Built twice: linked with the
// library, and loading it as a plug-in, which resolves the same names.
#include <dlfcn.h>
#include <pthread.h>
#include <unistd.h>
#include <velmohelp/config.h>
#include <velmohelp/embed.h>
#include <velmohelp/online.h>
#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>
#include <velmohelp/script_host.h>
#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

namespace {

const LxRegistration* registered = nullptr;

void Report(const char* name, long value) {
  dprintf(STDOUT_FILENO, "%s %ld\n", name, value);
}
void Report(const char* name, const std::string& text) {
  dprintf(STDOUT_FILENO, "%s \"%s\"\n", name, text.c_str());
}

}  // namespace

#define HOST_OPERATION extern "C" __attribute__((visibility("default")))

HOST_OPERATION void LxNamespace_exportFunctions(LxState* /*state*/,
                                                const char* /*name*/,
                                                const LxRegistration* table) {
  registered = table;
}
HOST_OPERATION const char* LxLua_checkString(LxState* /*state*/,
                                             int /*index*/) {
  return "intro";
}
HOST_OPERATION void LxLua_pushNamedInteger(
    LxState* /*state*/, int64_t value, const LxNamedIntegerTable* /*table*/) {
  Report("pushed", value);
}

namespace {

#define REPORT(call) Report(#call, call)

uint32_t Initialise() { return InitializeVelmoHelpClient("Foo", "en_US", 0); }

void CallC() {
  REPORT(Initialise());
  REPORT(GetVelmoHelpClientVersion());
  REPORT(GetVelmoHelpClientOnlineStatus());
  REPORT(DisplayVelmoHelpClientPage("intro"));
  REPORT(OpenURL("http://localhost/"));
  REPORT(SearchHelp("Foo", "en_US", "x"));
  REPORT(Search("a", "b", "en_US", "x"));
  char text[8] = "";
  REPORT(VelmoHelpEncodeURIComponent("a b", text, sizeof text));
}

void CallEmbedding() {
  char locale[6] = "";
  REPORT(velmohelp_find_display("intro", nullptr, nullptr));
  REPORT(velmohelp_find_url("http://localhost/", nullptr, nullptr));
  REPORT(velmohelp_find_search("Foo", "en_US", "x", nullptr, nullptr));
  REPORT(velmohelp_start_display("intro"));
  REPORT(velmohelp_start_url("http://localhost/"));
  REPORT(velmohelp_start_search("Foo", "en_US", "x"));
  REPORT(velmohelp_finish(-1));
  REPORT(velmohelp_set_activation_token("x"));
  REPORT(velmohelp_set_host("/x"));
  REPORT(velmohelp_choose_locale("Foo", "en_US", locale));
  REPORT(velmohelp_initialise("Foo", "en_US"));
  REPORT(velmohelp_display("intro"));
}

void CallBinding() {
  private_load_LxHelp(nullptr);
  registered->function(nullptr);
  private_load_LxHelpWorker(nullptr);
  registered->function(nullptr);
}

void CallConfig() {
  using namespace ITEMInternal;
  REPORT(ReadHelpcfg("x"));
  REPORT(UpdateHelpConfigInfo("en_US"));
  REPORT(GetHelpConfigPath("Foo", "en_US"));
  REPORT(GetDownloadedHelpConfigPath("a", "b"));
  REPORT(GetHelpConfigName("a", "b"));
}

void CallResolve() {
  std::string out = "unchanged";
  REPORT(ValidateID("intro.html", false, out));
  REPORT(GetSearchPage(out, "en_US", nullptr));
  REPORT(out);
  REPORT(ITEMInternal::ValidateURL("/", false));
  REPORT(isHTMLPage("a.html"));
}

void CallOnline() {
  using namespace ITEMInternal;
  GetNetworkStatus();
  REPORT(GetOnlineDefault());
  REPORT(GetAdminOnlinePref());
  REPORT(GetUserOnlinePref());
  REPORT(GetOnlineStatus("http://localhost/"));
  REPORT(GetNexletPreference(kUserPreference));
}

void CallPlatform() {
  using namespace ITEMInternal;
  REPORT(ITEMInternal::FileExists("/"));
  REPORT(IsZAMRuntimePresent());
  REPORT(GetHelpApplicationPath());
  REPORT(LaunchApplication("/bin/true", "", "", "", ""));
  REPORT(LaunchPlatformBrowser("http://localhost/"));
  std::string folder = "unchanged";
  REPORT(StdStringFindFolder(-32763, 0x70726566, 0, folder));
  REPORT(folder);
  REPORT(GetKLHPreferenceFilePath());
  REPORT(GetDownloadedContentPath());
  FileReference file;
  REPORT(GetFSRefFromPath("/etc/passwd", file));
  REPORT(urlencode("a b"));
}

void CallEverything() {
  CallC();
  CallEmbedding();
  CallBinding();
  CallConfig();
  CallResolve();
  CallOnline();
  CallPlatform();
}

void Display() { REPORT(DisplayVelmoHelpClientPage("intro")); }

/// The tool opens one named pipe when it runs, and waits at another one.
std::string Pipe(const char* name) {
  return std::getenv("VELMO_TEST_PIPES") + std::string("/") + name;
}
void AwaitTool() { std::ifstream(Pipe("started")).get(); }
void ReleaseTool() { std::ofstream(Pipe("go")) << "x\n"; }

std::atomic<int> rounds = 0;

/// Never ends: the process does.
void CallForever() {
  for (std::string out;; ++rounds) {
    Initialise();
    DisplayVelmoHelpClientPage("");
    ValidateID("absent.html", false, out);
    ITEMInternal::GetKLHPreferenceFilePath();
    ITEMInternal::FileExists("/nonexistent");
    rounds.notify_all();
  }
}

void AwaitRounds(int count) {
  for (const int last = rounds + count; rounds < last;) rounds.wait(rounds);
}

std::atomic<bool> has_displayed = false;

void DisplayInThread() {
  Display();
  has_displayed = true;
  has_displayed.notify_all();
}

void ReleaseDisplay() {
  ReleaseTool();
  has_displayed.wait(false);
}

std::string_view mode;

/// Registered before the library is loaded, so it runs after the library's
/// destructors.
void AtTheEnd(int /*status*/, void* /*argument*/) {
  if (mode == "exit handler") CallEverything();
  if (mode == "running thread") AwaitRounds(100);
  if (mode == "display in a thread") ReleaseDisplay();
}

std::atomic<bool> has_returned = false;
std::atomic<bool> has_gone_on = false;

/// Cancels the thread that reads from it, and breaks.
class CancellingBuffer : public std::streambuf {
 protected:
  int_type underflow() override {
    pthread_cancel(pthread_self());
    throw std::ios_base::failure("broken");
  }
};

void ReadBrokenLine() {
  CancellingBuffer buffer;
  std::ifstream stream;
  static_cast<std::ios&>(stream).rdbuf(&buffer);
  std::string line;
  try {
    ITEMInternal::GetLine(stream, line);
  } catch (const std::ios_base::failure&) {
    return;
  }
  Report("thrown", 0);
}

void* BeCancelled(void* type) {
  int old = 0;
  pthread_setcanceltype(
      type != nullptr ? PTHREAD_CANCEL_ASYNCHRONOUS : PTHREAD_CANCEL_DEFERRED,
      &old);
  if (mode.find("thrown") != std::string_view::npos) {
    ReadBrokenLine();
  } else if (mode.find("typed") != std::string_view::npos) {
    ITEMInternal::IsZAMRuntimePresent();
  } else {
    DisplayVelmoHelpClientPage("intro");
  }
  has_returned = true;
  pthread_testcancel();
  has_gone_on = true;
  return nullptr;
}

void Cancel(bool asynchronous) {
  pthread_t thread = {};
  pthread_create(&thread, nullptr, BeCancelled,
                 asynchronous ? &thread : nullptr);
  if (mode.find("thrown") == std::string_view::npos) {
    AwaitTool();
    pthread_cancel(thread);
    ReleaseTool();
  }
  pthread_join(thread, nullptr);
  Report("returned", has_returned ? 1 : 0);
  Report("went on", has_gone_on ? 1 : 0);
}

void Run() {
  REPORT(Initialise());
  if (mode == "late exit handler") std::atexit(Display);
  if (mode == "exit handler") Display();
  if (mode == "running thread") {
    std::thread(CallForever).detach();
    AwaitRounds(10);
  }
  if (mode == "display in a thread") {
    std::thread(DisplayInThread).detach();
    AwaitTool();
  }
  if (mode.find("cancel") != std::string_view::npos) {
    Cancel(mode.find("asynchronous") != std::string_view::npos);
  }
}

/// A handler of std::atexit runs with the destructors of the program that has
/// registered it, which come before those of a linked library.
void RegisterExitHandler() { on_exit(AtTheEnd, nullptr); }

#ifdef VELMO_TEST_PLUG_IN
bool Load() {
  RegisterExitHandler();
  return dlopen(VELMO_TEST_PLUG_IN, RTLD_LAZY | RTLD_GLOBAL) != nullptr;
}
#else
// Runs before the constructors of linked libraries do.
__attribute__((section(".preinit_array"),
               used)) void (*const before_all)() = RegisterExitHandler;
bool Load() { return true; }
#endif

}  // namespace

int main(int /*count*/, char* arguments[]) {
  mode = arguments[1];
  if (!Load()) return 1;
  Run();
}
