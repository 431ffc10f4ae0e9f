// A page that was not found.
#include <velmohelp/velmohelp.h>

#include <algorithm>
#include <filesystem>

#include "platform/linux/folders.h"
#include "platform/linux/preference_file.h"
#include "platform/locations.h"
#include "resolve/content_folders.h"
#include "resolve/page_id.h"
#include "tools/explain/cause_parts.h"
#include "tools/explain/near_ids.h"
#include "tools/printable.h"

namespace velmohelp::tool {
namespace {

namespace fs = std::filesystem;
using Visits = std::vector<FolderVisit>;

std::string KeyOf(const Run& run) {
  for (std::size_t i = run.first; i < run.trail.size(); ++i) {
    const Step& step = run.trail[i];
    if (step.kind == Step::Kind::kLookUp) return step.subject[1];
  }
  return "";
}

std::string List(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) {
    list += (list.empty() ? "" : ", ") + Quoted(name);
  }
  return list;
}

/// The URL was not loaded; "" when it was not tried.
std::string WhyNotLoaded(const FolderVisit& visit) {
  const Step* question = visit.question;
  if (question == nullptr || question->name != "FetchText") {
    return "not a URL, or the time for loading pages was used up";
  }
  return question->reason.empty() ? "not loaded"
                                  : PrintableWhole(question->reason);
}

std::string PreferenceFileOf(const Step& preference) {
  const std::string name = PreferenceFileName(preference.subject[1]);
  if (preference.subject[0] == "administrator") {
    return std::string(kSysconfDir) + "/" + name;
  }
  return PreferencesFolderPath().value_or("") + "/velmo/" + name;
}

/// What is wrong with a folder that was refused, by name.
std::string Trouble(const FolderVisit& visit, const Run& run) {
  if (visit.map == nullptr) {
    return run.variables.is_online ? "page-not-loaded" : "page-missing";
  }
  if (!visit.map->ok) return "unreadable-map";
  if (visit.map->map.has_key && !visit.map->map.has_home) {
    return "map-without-home";
  }
  return visit.map->map.has_key ? "url-not-loaded" : "id-not-in-map";
}

const FolderVisit* FirstWith(const Visits& visits, const Run& run,
                             std::string_view trouble) {
  for (const FolderVisit& visit : visits) {
    if (!visit.folder->ok && Trouble(visit, run) == trouble) return &visit;
  }
  return nullptr;
}

std::string FileOf(const FolderVisit& visit) {
  return PrintableWhole(visit.map->subject[0]);
}

std::optional<Cause> MapCause(const Visits& visits, const Run& run) {
  if (const auto* visit = FirstWith(visits, run, "map-without-home")) {
    return Cause{"map-without-home",
                 FileOf(*visit) +
                     " has no entry VX_HOME, and the client takes "
                     "nothing from such a map",
                 "add a line: VX_HOME, a tab, and the home page"};
  }
  if (const auto* visit = FirstWith(visits, run, "unreadable-map")) {
    return Cause{
        "unreadable-map",
        FileOf(*visit) + " cannot be read" + InBrackets(visit->map->reason),
        "let the person who runs the host read it"};
  }
  if (const auto* visit = FirstWith(visits, run, "url-not-loaded")) {
    return Cause{"url-not-loaded",
                 FileOf(*visit) + " has the URL " +
                     PrintableWhole(visit->map->map.page) + ": " +
                     (run.variables.is_online ? WhyNotLoaded(*visit)
                                              : "the client is offline"),
                 run.variables.is_online ? "correct the URL or its server"
                                         : "go online, or use a local page"};
  }
  return std::nullopt;
}

Cause NearCause(const FolderVisit& visit, const std::string& key) {
  const auto& near = visit.map->map.near;
  const bool is_case = SameButForCase(near.front(), key);
  return {is_case ? "id-case" : "id-not-in-map",
          FileOf(visit) + " has no id " + Quoted(key) +
              (is_case ? ", but with other capitals: " : "; the nearest: ") +
              List(near),
          "ask for " + Quoted(near.front()) + ", or add the id to the map"};
}

std::optional<Cause> IdCause(const Visits& visits, const Run& run) {
  const FolderVisit* missing = FirstWith(visits, run, "id-not-in-map");
  if (missing == nullptr) return std::nullopt;
  for (const FolderVisit& visit : visits) {
    const bool has_near = visit.map != nullptr && !visit.map->map.near.empty();
    if (has_near) return NearCause(visit, KeyOf(run));
  }
  return Cause{"id-not-in-map",
               FileOf(*missing) + " has no id " + Quoted(KeyOf(run)) +
                   " among its " + std::to_string(missing->map->map.entries) +
                   ", and none like it",
               "add the id to the map"};
}

/// A page of the same name in other capitals; "" when there is none.
std::string SameNameIn(const fs::path& page) {
  std::error_code error;
  const std::string wanted = page.filename().string();
  for (fs::directory_iterator entry(page.parent_path(), error), end;
       !error && entry != end; entry.increment(error)) {
    std::string name = entry->path().filename().string();
    if (SameButForCase(name, wanted)) return name;
  }
  return "";
}

Cause LocalPageCause(const Visits& visits, const Run& run) {
  for (const FolderVisit& visit : visits) {
    const std::string name = SameNameIn(visit.folder->answer);
    if (name.empty()) continue;
    return {"page-case",
            "there is no " + PrintableWhole(visit.folder->answer) + ", but " +
                Quoted(name) + " with other capitals",
            "ask for it as it is written, or rename the page"};
  }
  std::error_code error;
  const bool has_content =
      std::ranges::any_of(visits, [&](const FolderVisit& visit) {
        return fs::is_directory(visit.folder->subject[0], error);
      });
  const std::string& installed = visits.back().folder->answer;
  if (has_content) {
    return {"page-missing", "there is no page " + PrintableWhole(installed),
            "install it, or correct the id"};
  }
  return {"no-local-content",
          WhyOffline(run) + ", and there is no local content in " +
              PrintableWhole(visits.back().folder->subject[0]),
          "install the content there, or make online help possible"};
}

Cause FlagCause(const Run& run) {
  const auto count = run.variables.help_path_count;
  std::string rows;
  for (std::int32_t i = 0; i < count && i < 3; ++i) {
    rows += (rows.empty() ? "" : ", ") +
            Quoted(run.variables.help_paths[i][0]) + " is " +
            Quoted(run.variables.help_paths[i][1]);
  }
  return {"folder-flag",
          "no content folder takes part: the contextSensitivity of " + rows,
          "set it to \"yes\" in the configuration"};
}

bool IsFound(const Visits& visits) {
  return !visits.empty() && visits.back().folder->ok;
}

/// The request looks for a page in content folders.
bool LooksForAPage(const Run& run) {
  if (run.request.kind == Request::Kind::kOpen) return false;
  if (run.request.kind == Request::Kind::kDisplay) {
    return LastStep(run, Step::Kind::kLookUp) != nullptr;
  }
  return run.result.code == kSearchNoLocalPage ||
         run.result.code == kSearchNoOnlinePage;
}

}  // namespace

std::string WhyOffline(const Run& run) {
  if (run.variables.is_online) return "";
  for (std::size_t i = run.trail.size(); i > 0; --i) {
    const Step& step = run.trail[i - 1];
    if (step.name == "HostReachability" && !step.ok) {
      return "offline: " + PrintableWhole(step.subject[0]) + " is " +
             step.answer + InBrackets(step.reason);
    }
    if (step.name == "Preference" && step.ok && step.answer == "0") {
      return "offline: the " + step.subject[0] +
             " has switched online help off (" +
             PrintableWhole(PreferenceFileOf(step)) + ")";
    }
    if (step.name == "HostReachability") return "";
  }
  return "";
}

std::string VerdictOn(const FolderVisit& visit, const Run& run) {
  if (visit.folder->ok) return "taken: " + PrintableWhole(visit.folder->answer);
  const std::string trouble = Trouble(visit, run);
  if (trouble == "unreadable-map") return "refused: its map cannot be read";
  if (trouble == "map-without-home") {
    return "refused: its map has no entry VX_HOME";
  }
  if (trouble == "id-not-in-map") {
    return "refused: " + Quoted(KeyOf(run)) + " is not among the " +
           std::to_string(visit.map->map.entries) + " ids of its map";
  }
  if (trouble == "url-not-loaded") {
    return "refused: its URL: " + (run.variables.is_online
                                       ? WhyNotLoaded(visit)
                                       : std::string("offline"));
  }
  const std::string page = PrintableWhole(visit.folder->answer);
  if (trouble == "page-missing") return "refused: no map, and no " + page;
  return "refused: no map, and " + page + ": " + WhyNotLoaded(visit);
}

std::optional<Cause> PageCause(const Run& run) {
  if (!LooksForAPage(run)) return std::nullopt;
  const Visits visits = FirstVisits(run);
  if (visits.empty()) return FlagCause(run);
  if (IsFound(visits)) return std::nullopt;
  if (auto cause = MapCause(visits, run)) return cause;
  if (auto cause = IdCause(visits, run)) return cause;
  if (!run.variables.is_online) return LocalPageCause(visits, run);
  const FolderVisit& visit = visits.back();
  return Cause{"page-not-loaded",
               PrintableWhole(visit.folder->answer) + ": " +
                   WhyNotLoaded(visit) +
                   "; online, local pages are not looked for",
               "put the page there, or correct the id, the baseUrl or the "
               "server"};
}

}  // namespace velmohelp::tool
