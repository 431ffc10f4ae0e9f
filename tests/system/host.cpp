// A host program: loads the client from the file that its argument names, as
// applications load a plug-in, and makes the requests that its test sends.
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <velmohelp/embed.h>
#include <velmohelp/state.h>
#include <velmohelp/velmohelp.h>

#include <algorithm>
#include <clocale>
#include <fstream>
#include <functional>
#include <map>

#include "tests/system/small_stack.h"
#include "tests/system/words.h"

namespace velmohelp::testing {
namespace {

class Client {
 public:
  explicit Client(const char* file) : file_(file) { Load(); }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;
  ~Client() { Unload(); }

  bool Load() {
    library_ = dlopen(file_, RTLD_NOW | RTLD_LOCAL);
    return library_ != nullptr;
  }
  void Unload() {
    if (library_ != nullptr) dlclose(library_);
    library_ = nullptr;
  }

  /// What is exported under a name, a function or a variable of a type.
  template <typename Type>
  Type* Find(const char* name) const {
    return reinterpret_cast<Type*>(dlsym(library_, name));
  }

 private:
  const char* file_;
  void* library_ = nullptr;
};

#define VELMO_FIND(client, name) (client).Find<decltype(name)>(#name)

std::string Initialise(Client& client, const Words& words) {
  return std::to_string(VELMO_FIND(client, InitializeVelmoHelpClient)(
      words.at(1).c_str(), words.at(2).c_str(), 0));
}

std::string Display(Client& client, const Words& words) {
  return std::to_string(
      VELMO_FIND(client, DisplayVelmoHelpClientPage)(words.at(1).c_str()));
}

std::string Open(Client& client, const Words& words) {
  return std::to_string(VELMO_FIND(client, OpenURL)(words.at(1).c_str()));
}

std::string SearchFor(Client& client, const Words& words) {
  return std::to_string(VELMO_FIND(client, SearchHelp)(
      words.at(1).c_str(), words.at(2).c_str(), words.at(3).c_str()));
}

std::string SearchByName(Client& client, const Words& words) {
  return std::to_string(
      VELMO_FIND(client, Search)(words.at(1).c_str(), words.at(2).c_str(),
                                 words.at(3).c_str(), words.at(4).c_str()));
}

/// "<code> <kind> <url>", with "-" for no URL.
std::string Found(Client& client, std::uint32_t code, std::uint32_t kind,
                  char* url) {
  const std::string target = url == nullptr ? "-" : url;
  VELMO_FIND(client, velmohelp_free)(url);
  return std::to_string(code) + " " + std::to_string(kind) + " " + target;
}

std::string FindDisplay(Client& client, const Words& words) {
  std::uint32_t kind = 9;
  char* url = nullptr;
  const std::uint32_t code = VELMO_FIND(client, velmohelp_find_display)(
      words.at(1).c_str(), &kind, &url);
  return Found(client, code, kind, url);
}

std::string FindUrl(Client& client, const Words& words) {
  std::uint32_t kind = 9;
  char* url = nullptr;
  const std::uint32_t code =
      VELMO_FIND(client, velmohelp_find_url)(words.at(1).c_str(), &kind, &url);
  return Found(client, code, kind, url);
}

std::string FindSearch(Client& client, const Words& words) {
  std::uint32_t kind = 9;
  char* url = nullptr;
  const std::uint32_t code = VELMO_FIND(client, velmohelp_find_search)(
      words.at(1).c_str(), words.at(2).c_str(), words.at(3).c_str(), &kind,
      &url);
  return Found(client, code, kind, url);
}

std::string ChooseLocale(Client& client, const Words& words) {
  char locale[6] = "";
  const std::uint32_t code = VELMO_FIND(client, velmohelp_choose_locale)(
      words.at(1).c_str(), words.at(2).c_str(), locale);
  return std::to_string(code) + " " + locale;
}

std::string SetHost(Client& client, const Words& words) {
  return std::to_string(
      VELMO_FIND(client, velmohelp_set_host)(words.at(1).c_str()));
}

std::string StartDisplay(Client& client, const Words& words) {
  return std::to_string(
      VELMO_FIND(client, velmohelp_start_display)(words.at(1).c_str()));
}

std::string StartUrl(Client& client, const Words& words) {
  return std::to_string(
      VELMO_FIND(client, velmohelp_start_url)(words.at(1).c_str()));
}

std::string StartSearch(Client& client, const Words& words) {
  return std::to_string(VELMO_FIND(client, velmohelp_start_search)(
      words.at(1).c_str(), words.at(2).c_str(), words.at(3).c_str()));
}

bool IsReadable(const Words& words, int timeout) {
  pollfd waited = {std::stoi(words.at(1)), POLLIN, 0};
  return poll(&waited, 1, timeout) == 1;
}

std::string LookAt(Client&, const Words& words) {
  return IsReadable(words, 0) ? "yes" : "no";
}

std::string Await(Client&, const Words& words) {
  return IsReadable(words, -1) ? "readable" : "not a descriptor";
}

std::string Finish(Client& client, const Words& words) {
  return std::to_string(
      VELMO_FIND(client, velmohelp_finish)(std::stoi(words.at(1))));
}

std::string Cancel(Client&, const Words& words) {
  return close(std::stoi(words.at(1))) == 0 ? "closed" : "not open";
}

std::string SetToken(Client& client, const Words& words) {
  return std::to_string(
      VELMO_FIND(client, velmohelp_set_activation_token)(words.at(1).c_str()));
}

std::string Status(Client& client, const Words&) {
  return std::to_string(VELMO_FIND(client, GetVelmoHelpClientOnlineStatus)());
}

std::string Version(Client& client, const Words&) {
  return std::to_string(VELMO_FIND(client, GetVelmoHelpClientVersion)());
}

/// What requests leave in the variables that other modules may see: the
/// viewer's ids and the number of entries in the help map.
std::string State(Client& client, const Words&) {
  return *VELMO_FIND(client, sAppID) + "." + *VELMO_FIND(client, sPublisherID) +
         " " + std::to_string(VELMO_FIND(client, sHelpMap)->size());
}

/// Unloads the library and loads it again, that many times.
std::string Reload(Client& client, const Words& words) {
  bool loaded = true;
  for (int i = std::stoi(words.at(1)); i > 0 && loaded; --i) {
    client.Unload();
    loaded = client.Load();
  }
  return loaded ? "loaded" : "not loaded";
}

std::string Unload(Client& client, const Words&) {
  client.Unload();
  return "unloaded";
}

std::string Load(Client& client, const Words&) {
  return client.Load() ? "loaded" : "not loaded";
}

/// What the library may not change and nobody else can see.
std::string Self(Client&, const Words&) {
  std::string facts = std::setlocale(LC_ALL, nullptr);
  for (char** entry = environ; *entry != nullptr; ++entry) {
    facts += std::string("\n") + *entry;
  }
  return facts;
}

std::string SetDescriptorLimit(rlim_t limit) {
  rlimit both = {};
  getrlimit(RLIMIT_NOFILE, &both);
  both.rlim_cur = std::min(limit, both.rlim_max);
  return setrlimit(RLIMIT_NOFILE, &both) == 0 ? "freed" : "full";
}

/// Opens files until there is room for that many more alone.
std::string FillDescriptors(Client&, const Words& words) {
  SetDescriptorLimit(64);
  int last = 0;
  for (int next = 0; next != -1; next = open("/dev/null", O_RDONLY)) {
    last = next;
  }
  for (int left = std::stoi(words.at(1)); left > 0; --left) close(last--);
  return "filled";
}

std::string FreeDescriptors(Client&, const Words&) {
  return SetDescriptorLimit(RLIM_INFINITY);
}

pid_t own_child = -1;

/// Starts a child of the host's own, which ends at once.
std::string StartChild(Client&, const Words&) {
  own_child = fork();
  if (own_child == 0) _exit(7);
  siginfo_t info = {};
  waitid(P_PID, static_cast<id_t>(own_child), &info, WEXITED | WNOWAIT);
  return "started";
}

/// That child's exit status, when nobody has collected it.
std::string TakeChild(Client&, const Words&) {
  int status = 0;
  if (waitpid(own_child, &status, 0) != own_child) return "taken";
  return std::to_string(WEXITSTATUS(status));
}

/// What Linux can give without killing a process, in KiB.
long AvailableMemory() {
  std::ifstream facts("/proc/meminfo");
  std::string word;
  while (word != "MemAvailable:" && facts >> word) {
  }
  long available = 0;
  facts >> available;
  return available;
}

/// Keeps that many MiB resident, where there is room for twice as much.
std::string TakeMemory(Client&, const Words& words) {
  const std::size_t size = std::stoul(words.at(1)) << 20U;
  if (AvailableMemory() < static_cast<long>(size >> 9U)) return "no room";
  void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
  return memory == MAP_FAILED ? "no room" : "taken";
}

using Request = std::function<std::string(Client&, const Words&)>;

const std::map<std::string, Request>& Requests() {
  static const std::map<std::string, Request> requests = {
      {"initialise", Initialise},
      {"display", Display},
      {"open", Open},
      {"search", SearchFor},
      {"search by name", SearchByName},
      {"find display", FindDisplay},
      {"find open", FindUrl},
      {"find search", FindSearch},
      {"start display", StartDisplay},
      {"start open", StartUrl},
      {"start search", StartSearch},
      {"is readable", LookAt},
      {"await", Await},
      {"finish", Finish},
      {"cancel", Cancel},
      {"set token", SetToken},
      {"choose locale", ChooseLocale},
      {"set host", SetHost},
      {"status", Status},
      {"version", Version},
      {"state", State},
      {"reload", Reload},
      {"load", Load},
      {"unload", Unload},
      {"self", Self},
      {"fill descriptors", FillDescriptors},
      {"free descriptors", FreeDescriptors},
      {"start child", StartChild},
      {"take child", TakeChild},
      {"take memory", TakeMemory}};
  return requests;
}

std::size_t stack_used = 0;

/// "on stack", its size, and a request that is made on a thread's stack of that
/// size.
std::string AnswerOnStack(Client& client, const Words& words) {
  const Words request(words.begin() + 2, words.end());
  const Request& function = Requests().at(request.at(0));
  std::string answer;
  const auto used = UseOfStack(std::stoul(words.at(1)),
                               [&] { answer = function(client, request); });
  if (!used) return "overwritten";
  stack_used = std::max(stack_used, *used);
  return answer;
}

std::string Answer(Client& client, const Words& words) {
  if (words.at(0) == "stack used") return std::to_string(stack_used);
  if (words.at(0) == "on stack") return AnswerOnStack(client, words);
  return Requests().at(words.at(0))(client, words);
}

void Serve(Client& client) {
  while (const auto words = ReceiveWords(kTestDescriptor)) {
    if (!SendWords(kTestDescriptor, {Answer(client, *words)})) return;
  }
}

}  // namespace
}  // namespace velmohelp::testing

int main(int, char* argv[]) {
  velmohelp::testing::Client client(argv[1]);
  velmohelp::testing::Serve(client);
}
