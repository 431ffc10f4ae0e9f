#include <velmohelp/velmohelp.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "tools/explain/cause_parts.h"
#include "tools/explain/near_ids.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;

/// A folder with more entries is not looked through to the end.
constexpr int kMostEntries = 10'000;

bool IsBlank(const std::string& text) {
  return text.find_first_not_of(' ') == std::string::npos;
}

std::string PlaceOf(const Step& step) {
  return PrintableWhole(step.subject[0]) + ":" + std::to_string(step.line) +
         ":" + std::to_string(step.column);
}

const Step* LastConfigFile(const Run& run) {
  const Step* last = nullptr;
  for (const Step& step : run.trail) {
    if (step.kind == Step::Kind::kKeyFile &&
        step.subject[0].ends_with(".helpcfg")) {
      last = &step;
    }
  }
  return last;
}

/// The last value that was looked for in a configuration, in the
/// initialisation too.
const Step* LastValue(const Run& run) {
  const Step* last = nullptr;
  for (const Step& step : run.trail) {
    if (step.kind == Step::Kind::kValue) last = &step;
  }
  return last;
}

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  int left = kMostEntries;
  for (fs::directory_iterator entry(folder, error), end;
       !error && entry != end && left > 0; entry.increment(error), --left) {
    names.push_back(entry->path().filename().string());
  }
  std::ranges::sort(names);
  return names;
}

/// The locales for which the host has the product's configuration.
std::string OtherLocales(const fs::path& file) {
  const fs::path help = file.parent_path().parent_path();
  std::string locales;
  std::error_code error;
  for (const std::string& name : NamesIn(help)) {
    if (!fs::exists(help / name / file.filename(), error)) continue;
    locales += (locales.empty() ? "" : ", ") + PrintableWhole(name);
  }
  return locales;
}

/// The other products that the locale's folder has.
std::string OtherProducts(const fs::path& file) {
  std::string products;
  for (const std::string& name : NamesIn(file.parent_path())) {
    const fs::path other = name;
    if (other.extension() != ".helpcfg") continue;
    products +=
        (products.empty() ? "" : ", ") + PrintableWhole(other.stem().string());
  }
  return products;
}

bool HasResources(const Run& run) {
  for (const Step& step : run.trail) {
    if (step.name == "ResourcesDirectory") return step.ok;
  }
  return false;
}

Cause NoResourcesCause(const Run& run, const Surroundings& around,
                       const std::string& file) {
  const std::string why = "the host " + PrintableWhole(around.host) +
                          " has no resources directory, and there is no " +
                          PrintableWhole(file);
  if (!around.host_is_named) {
    return {"no-resources", why,
            "name the application: --host /path/to/its/executable"};
  }
  return {"no-resources", why,
          "install " + PrintableWhole(around.host) + ".resources/help/" +
              PrintableWhole(run.request.locale) + "/" +
              PrintableWhole(run.request.product) + ".helpcfg"};
}

/// The file exists under a locale that was cut out of the id.
Cause LocaleCutCause(const Run& run) {
  return {"locale-cut",
          "the locale " + Quoted(run.request.locale) +
              " has not five characters: the client keeps the first five of "
              "the id, " +
              Quoted(run.variables.locale) + ", and looks for it there",
          "use a locale of five characters, such as en_US"};
}

Cause MissingFileCause(const Run& run, const Surroundings& around,
                       const std::string& file) {
  const std::string locales = OtherLocales(file);
  const std::string why = "there is no " + PrintableWhole(file);
  if (!locales.empty()) {
    return {"wrong-locale",
            why + "; the host has " + PrintableWhole(run.request.product) +
                " in: " + locales,
            "use one of these locales, or install the file"};
  }
  const std::string products = OtherProducts(file);
  if (!products.empty()) {
    return {"wrong-product", why + "; the folder has: " + products,
            "use one of these product ids, or install the file"};
  }
  if (!HasResources(run)) return NoResourcesCause(run, around, file);
  return {"no-config", why,
          "install it; velmo-help new " + PrintableWhole(run.request.product) +
              " writes one to start from"};
}

std::optional<Cause> UnreadableCause(const Run& run,
                                     const Surroundings& around) {
  const Step* file = LastConfigFile(run);
  if (file == nullptr || file->ok) return std::nullopt;
  const std::string& path = file->subject[0];
  if (run.variables.locale != run.request.locale) return LocaleCutCause(run);
  std::error_code error;
  if (fs::exists(fs::symlink_status(path, error))) {
    return Cause{"unreadable-config",
                 "the configuration " + PrintableWhole(path) +
                     " cannot be read" + InBrackets(file->reason),
                 "let the person who runs the host read it"};
  }
  return MissingFileCause(run, around, path);
}

std::string MissingValue(const Step& value) {
  if (value.line == 0) {
    return PrintableWhole(value.subject[0]) + " has no " + Quoted(value.name);
  }
  if (value.elsewhere) {
    return PlaceOf(value) + ": the letters of the key " + Quoted(value.name) +
           " come first in another word here, and the client takes " +
           Quoted(value.answer);
  }
  return PlaceOf(value) + ": " + Quoted(value.name) +
         (value.ok ? " is empty" : " has no value in double quotes");
}

std::string IdMismatch(const Run& run, const Step& value) {
  const std::string& locale = run.variables.locale;
  return PlaceOf(value) + ": id is " + Quoted(value.answer) + ", and must be " +
         Quoted(locale + "_" + run.request.product);
}

std::optional<Cause> InvalidCause(const Run& run) {
  const Step* value = LastValue(run);
  if (value == nullptr) return std::nullopt;
  const std::string advice =
      "correct it; velmo-help check FILE lists all that "
      "is wrong in it";
  const bool is_other_id =
      value->name == "id" && !value->answer.empty() && !value->elsewhere;
  if (is_other_id) {
    return Cause{"wrong-id", IdMismatch(run, *value), advice};
  }
  return Cause{"missing-value", MissingValue(*value), advice};
}

std::optional<Cause> ArgumentCause(const Run& run) {
  const Request& request = run.request;
  if (IsBlank(request.product) || IsBlank(request.locale)) {
    return Cause{"no-product", "the product id or the locale is empty",
                 "pass both: the configuration is help/LOCALE/PRODUCT.helpcfg"};
  }
  if (!run.initialised) return std::nullopt;
  if (IsBlank(request.what)) {
    return Cause{"empty-request", "what was asked for is empty or only spaces",
                 "pass a page id, a URL or a text"};
  }
  if (request.kind == Request::Kind::kOpen &&
      run.result.code == kOpenUrlInvalidArgument) {
    return Cause{"not-a-url",
                 Quoted(request.what) +
                     " does not begin with http://, https:// or file://",
                 "a page id is shown with: velmo-help display"};
  }
  return std::nullopt;
}

std::optional<Cause> BreakdownCause(const Run& run) {
  if (run.endless) {
    const Step* value = LastValue(run);
    return Cause{"endless-scan",
                 PlaceOf(*value) +
                     ": a backslash before the closing quote of " +
                     Quoted(value->name) + ": the host would hang here",
                 "remove the backslash: nothing escapes a quote"};
  }
  if (run.failure.empty()) return std::nullopt;
  return Cause{"broken-file",
               "a file broke while it was read: " + PrintableWhole(run.failure),
               "look at the last file of the trail (--verbose)"};
}

}  // namespace

std::optional<Cause> ConfigurationCause(const Run& run,
                                        const Surroundings& around) {
  if (auto cause = BreakdownCause(run)) return cause;
  if (auto cause = ArgumentCause(run)) return cause;
  if (run.variables.init_status == kInitMissingConfig) {
    return UnreadableCause(run, around);
  }
  if (run.variables.init_status == kInitInvalidConfig) return InvalidCause(run);
  if (run.variables.help_path_count > 0) return std::nullopt;
  const Step* file = LastConfigFile(run);
  return Cause{"no-folders",
               (file == nullptr ? "the configuration"
                                : PrintableWhole(file->subject[0])) +
                   " names no content folder with a contextSensitivity",
               "add one; velmo-help new PRODUCT shows the form"};
}

}  // namespace velmohelp::tool
