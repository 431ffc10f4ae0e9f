// velmo-help status
#include "tools/explain/status.h"

#include <memory>

#include "client/client.h"
#include "config/help_config.h"
#include "online/network_status.h"
#include "platform/folders.h"
#include "platform/help_tool.h"
#include "platform/linux/folders.h"
#include "platform/linux/preference_file.h"
#include "platform/locations.h"
#include "tools/commands.h"
#include "tools/explain/file_facts.h"
#include "tools/explain/report.h"
#include "tools/explain/tracing_machine.h"
#include "tools/json.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

constexpr char kExamples[] =
    "Examples:\n"
    "  velmo-help status\n"
    "  velmo-help status Sketch en_US --host /opt/sketch/bin/sketch\n"
    "  velmo-help status --pid \"$(pidof sketch)\"\n"
    "\n"
    "Exit status: 0; with a product the result of its initialisation.";

constexpr char kOnlineDomain[] = "com.velmo.VelmoOnlineHelp";
constexpr char kOnlineKey[] = "VelmoOnlineDefault";

/// The facts as they are found out.
class Facts {
 public:
  void Add(std::string name, std::string label, std::string value, bool ok) {
    facts_.push_back(
        {std::move(name), std::move(label), PrintableWhole(value), ok});
  }
  void AddPath(std::string name, std::string label, const std::string& path) {
    const std::string reason = WhyNotFound(path);
    Add(std::move(name), std::move(label),
        path + (reason.empty() ? "" : " (" + reason + ")"), reason.empty());
  }
  /// A place that is looked up.
  void AddPlace(std::string name, std::string label,
                const std::optional<std::string>& path,
                const std::string& without) {
    Add(std::move(name), std::move(label), path.value_or(without),
        path.has_value());
  }
  std::vector<Fact> Take() { return std::move(facts_); }

 private:
  std::vector<Fact> facts_;
};

void AddLocations(RequestMachine& here, const Surroundings& around,
                  Facts& facts) {
  Machine& machine = here.machine();
  facts.Add("version", "version", VELMO_VERSION, true);
  facts.Add("host", "host", around.host, true);
  if (!around.host_flatpak.empty()) {
    facts.Add("host-flatpak", "host's Flatpak", around.host_flatpak, true);
  }
  facts.AddPlace("resources", "host's resources", machine.ResourcesDirectory(),
                 "none: /Library/Application Support/Velmo/HelpCfg is used");
  facts.AddPath("helpers", "helper programs", here.helper_folder());
  facts.AddPath("installed-content", "installed content",
                InstalledContentPath());
  facts.AddPath("preferences", "user's settings",
                PreferencesFolderPath().value_or(""));
  facts.AddPath("administrator", "administrator's", kSysconfDir);
}

void AddPreference(Machine& machine, PreferenceScope scope,
                   const std::string& name, const std::string& label,
                   const std::string& folder, Facts& facts) {
  const auto value = machine.Preference(kOnlineDomain, kOnlineKey, scope);
  facts.Add(name, label,
            std::string(kOnlineKey) + " " +
                (value ? Quoted(*value) : std::string("not set")) + ", " +
                folder + "/" + PreferenceFileName(kOnlineDomain),
            value != "0");
}

void AddOnline(RequestMachine& here, Facts& facts) {
  Machine& machine = here.machine();
  AddPreference(machine, PreferenceScope::kAnyUserCurrentHost, "admin-online",
                "for all users", kSysconfDir, facts);
  AddPreference(machine, PreferenceScope::kCurrentUserAnyHost, "user-online",
                "for this user",
                PreferencesFolderPath().value_or("") + "/velmo", facts);
  Run run;
  TracingMachine tracing(machine, here.helper_folder(), run.trail);
  run.variables.is_online = NetworkStatus(tracing);
  const std::string why = WhyOffline(run);
  facts.Add("online", "online help",
            run.variables.is_online
                ? std::string(kOnlineHelpHost) + " is reachable"
                : why,
            run.variables.is_online);
}

void AddViewer(Machine& machine, const ClientState& state, Facts& facts) {
  facts.AddPlace("framework", "framework",
                 machine.BundleDirectory("com.velmo.vxclientframework"),
                 "none: no help viewer is known");
  const bool named = !state.app_id_is_null && !state.app_id.empty();
  const ViewerIdentity viewer = {
      .app_id = named ? state.app_id : state.default_app_id,
      .publisher_id = named ? state.publisher_id : state.default_publisher_id};
  const std::string path = HelpApplicationPath(machine, viewer);
  facts.Add("viewer", "viewer " + Quoted(viewer.app_id),
            path.empty() ? "not installed" : path, !path.empty());
  const bool runtime = IsZamRuntimePresent(machine);
  facts.Add("runtime", "viewer's runtime",
            runtime ? "installed" : "not installed", runtime);
}

void AddBrowser(const std::optional<Arguments>& words,
                const Surroundings& around, Facts& facts) {
  if (!words) {
    facts.Add("browser", "browser", "none", false);
    return;
  }
  facts.Add("browser", "browser",
            words->empty() ? "opened by the desktop" : ShellCommand(*words),
            true);
  const std::string confinement = ConfinementOf(around.browser);
  facts.Add("browser-entry", "its desktop entry", around.browser.file, true);
  facts.Add("browser-confinement", "it is",
            confinement.empty()
                ? "an ordinary program"
                : "a " + confinement + ": it cannot read most local pages",
            confinement.empty());
}

void AddFolders(const Run& run, Facts& facts) {
  const ClientState& state = run.variables.state;
  for (std::int32_t i = 0; i < state.help_path_count; ++i) {
    const auto& row = state.help_paths[i];
    const std::string label = "folder " + Quoted(row[0]);
    if (row[1] != "YES") {
      facts.Add("content-folder", label,
                "takes no part: contextSensitivity is " + Quoted(row[1]),
                false);
    }
    const std::string downloaded = PreferencesFolderPath().value_or("") +
                                   state.downloaded_content + row[0];
    facts.AddPath("content-folder", label, downloaded);
    facts.AddPath("content-folder", label,
                  InstalledContentPath() + "/" + row[0]);
  }
}

std::string ConfigurationFile(const Run& run) {
  std::string file;
  for (const Step& step : run.trail) {
    if (step.kind == Step::Kind::kKeyFile) file = step.subject[0];
  }
  return file;
}

/// The initialisation, as hosts make it at their start. Its cause says why it
/// fails.
void AddProduct(const Run& run, const Surroundings& around, Facts& facts) {
  facts.AddPath("configuration", "configuration", ConfigurationFile(run));
  facts.Add("initialisation", "initialisation",
            std::to_string(run.result.code) + " " + run.result.name + " of " +
                run.result.table +
                (run.initialised ? "" : ": " + CauseOf(run, around).why),
            run.initialised);
  if (run.initialised) AddFolders(run, facts);
}

struct Options {
  CommonOptions common;
  MachineOptions machine;
  std::string product;
  std::string locale;
};

}  // namespace

std::vector<Fact> StatusOf(RequestMachine& here, const std::string& product,
                           const std::string& locale) {
  const auto words = here.machine().FindBrowser("https://localhost/");
  const Surroundings around = here.Look(words.value_or(Arguments{}));
  Run run;
  run.request.product = product;
  run.request.locale = locale;
  if (!product.empty()) MakeClient(here.machine(), here.helper_folder(), run);
  Facts facts;
  AddLocations(here, around, facts);
  if (!product.empty()) AddProduct(run, around, facts);
  AddOnline(here, facts);
  AddViewer(here.machine(), run.variables.state, facts);
  AddBrowser(words, around, facts);
  return facts.Take();
}

std::string TextOf(const std::vector<Fact>& facts) {
  constexpr std::size_t kWidth = 18;
  std::string text;
  for (const Fact& fact : facts) {
    const std::size_t size = fact.label.size();
    text += (fact.ok ? "  " : "! ") + fact.label +
            std::string(size < kWidth ? kWidth - size : 1, ' ') + fact.value +
            "\n";
  }
  return text;
}

nlohmann::ordered_json JsonOf(const std::vector<Fact>& facts) {
  nlohmann::ordered_json list = nlohmann::json::array();
  for (const Fact& fact : facts) {
    list.push_back({{"name", fact.name},
                    {"label", fact.label},
                    {"value", fact.value},
                    {"ok", fact.ok}});
  }
  return {{"schema", 1}, {"facts", list}};
}

namespace {

int Status(const Options& options, const Console& console) {
  RequestMachine machine(options.machine, true);
  const auto facts = StatusOf(machine, options.product, options.locale);
  console.out << (options.common.json ? JsonText(JsonOf(facts))
                                      : TextOf(facts));
  int code = 0;
  for (const Fact& fact : facts) {
    if (fact.name == "initialisation") code = std::stoi(fact.value);
  }
  return code;
}

}  // namespace

void AddStatusCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<Options>();
  CLI::App* command =
      AddSubcommand(app, "status", "Print what the client sees on this machine",
                    kExamples, options->common);
  auto* product =
      command->add_option("PRODUCT", options->product, "The product id");
  auto* locale = command->add_option("LOCALE", options->locale, "Its locale");
  product->needs(locale);
  AddHostOptions(*command, options->machine);
  command->callback([&action, options] {
    action = [options](const Console& console) {
      return Status(*options, console);
    };
  });
}

}  // namespace velmohelp::tool
