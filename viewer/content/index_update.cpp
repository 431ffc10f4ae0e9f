#include "viewer/content/index_update.h"

#include <filesystem>
#include <system_error>

#include "viewer/content/page_text.h"
#include "viewer/web/page_bytes.h"

namespace viewer {
namespace {

namespace fs = std::filesystem;

// Larger files are data, and reading one would delay every other page.
constexpr std::int64_t kLargestPage = 4 << 20;
// Some 10 ms of work: how long a person who types may wait.
constexpr int kBatch = 48;

}  // namespace

IndexUpdate::IndexUpdate(sqlite3* database, const std::function<bool()>& pause)
    : database_(database),
      pause_(pause),
      insert_page_(database,
                   "INSERT INTO page(address, modified, size, title)"
                   " VALUES(?1, ?2, ?3, ?4)"),
      insert_words_(database,
                    "INSERT INTO words(rowid, title, body) VALUES(?1, ?2, ?3)"),
      delete_page_(database, "DELETE FROM page WHERE id=?1"),
      delete_words_(database, "DELETE FROM words WHERE rowid=?1") {}

void IndexUpdate::Run(const std::set<ContentFolder>& folders) {
  LoadKnown();
  Execute(database_, "BEGIN");
  bool finished = true;
  for (const auto& folder : folders) finished = finished && ReadFolder(folder);
  // What was not seen is gone.
  if (finished) {
    for (const auto& page : known_) Forget(page.second.id);
  }
  Execute(database_, "COMMIT");
}

void IndexUpdate::LoadKnown() {
  Statement rows(database_, "SELECT address, id, modified, size FROM page");
  while (rows.Step()) {
    known_[rows.Text(0)] = {.id = rows.Number(1),
                            .modified = rows.Number(2),
                            .size = rows.Number(3)};
  }
}

bool IndexUpdate::ReadFolder(const ContentFolder& folder) {
  std::error_code error;
  const fs::path root(folder.directory);
  fs::recursive_directory_iterator at(
      root, fs::directory_options::skip_permission_denied, error);
  for (; !error && at != fs::recursive_directory_iterator();
       at.increment(error)) {
    const std::string name = at->path().lexically_relative(root).string();
    if (!IsPageName(name)) continue;
    ReadPage(folder, name);
    if (!Pause()) return false;
  }
  return true;
}

void IndexUpdate::ReadPage(const ContentFolder& folder,
                           const std::string& name) {
  ConfinedFile file(folder.directory, name);
  if (file.problem() != FileProblem::kNone) return;
  const std::string address = Address{
      folder.place,
      folder.name.empty() ? name : folder.name + "/" + name,
      {},
      {}}.Uri();
  if (const auto known = known_.find(address); known != known_.end()) {
    const auto page = known->second;
    known_.erase(known);
    if (page.modified == file.modified() && page.size == file.size()) return;
    Forget(page.id);
  }
  Store(address, file);
}

void IndexUpdate::Store(const std::string& address, ConfinedFile& file) {
  std::string text;
  PageText page;
  // A page that cannot be shown is known, so that it is not read again.
  if (file.Read(kLargestPage, text) == FileProblem::kNone &&
      MakeUtf8(text) == PageProblem::kNone) {
    page = ReadPageText(text);
  }
  insert_page_.Bind(address)
      .Bind(std::int64_t{file.modified()})
      .Bind(file.size())
      .Bind(page.title)
      .Run();
  insert_words_.Bind(sqlite3_last_insert_rowid(database_))
      .Bind(page.title)
      .Bind(page.body)
      .Run();
  ++in_batch_;
}

void IndexUpdate::Forget(std::int64_t id) {
  delete_page_.Bind(id).Run();
  delete_words_.Bind(id).Run();
}

bool IndexUpdate::Pause() {
  if (in_batch_ < kBatch) return true;
  in_batch_ = 0;
  return pause_();
}

}  // namespace viewer
