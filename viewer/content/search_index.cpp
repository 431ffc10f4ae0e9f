#include "viewer/content/search_index.h"

#include "viewer/content/index_update.h"
#include "viewer/content/search_query.h"

namespace viewer {
namespace {

// To be raised with every change of the tables or of what is read from a page.
constexpr int kSchemaVersion = 1;
constexpr char kSchema[] =
    "CREATE TABLE page(id INTEGER PRIMARY KEY, address TEXT UNIQUE,"
    " modified INTEGER, size INTEGER, title TEXT);"
    "CREATE VIRTUAL TABLE words USING fts5(title, body,"
    " tokenize='unicode61 remove_diacritics 2');"
    "CREATE TABLE kept(name TEXT PRIMARY KEY, text TEXT);";

constexpr char kMatch[] =
    "SELECT page.address, page.title,"
    " snippet(words, 1, char(2), char(3), '\u2026', 16)"
    " FROM words JOIN page ON page.id = words.rowid"
    " WHERE words MATCH ?1 ORDER BY bm25(words, 8.0, 1.0), page.address"
    " LIMIT 100";

std::vector<SearchHit> Hits(Statement& statement) {
  std::vector<SearchHit> hits;
  while (statement.Step()) {
    hits.push_back({.address = statement.Text(0),
                    .title = statement.Text(1),
                    .snippet = statement.Text(2)});
  }
  return hits;
}

}  // namespace

SearchIndex::SearchIndex(const std::string& file)
    : database_(OpenCache(file, kSchema, kSchemaVersion)) {}

void SearchIndex::Update(const std::set<ContentFolder>& folders,
                         const std::function<bool()>& pause) {
  if (database_) IndexUpdate(database_.get(), pause).Run(folders);
}

std::vector<SearchHit> SearchIndex::Match(const std::string& query) {
  if (query.empty() || !database_) return {};
  Statement statement(database_.get(), kMatch);
  statement.Bind(query);
  return Hits(statement);
}

std::vector<SearchHit> SearchIndex::Search(const std::string& text) {
  const auto words = WordsOf(text);
  auto hits = Match(AllWords(words));
  return hits.empty() && words.size() > 1 ? Match(AnyWord(words)) : hits;
}

std::vector<SearchHit> SearchIndex::Titles() {
  Statement statement(database_.get(),
                      "SELECT address, title, '' FROM page WHERE title != ''"
                      " ORDER BY title COLLATE NOCASE, address");
  return Hits(statement);
}

std::string SearchIndex::Kept(const std::string& name) {
  Statement statement(database_.get(), "SELECT text FROM kept WHERE name=?1");
  statement.Bind(name);
  return statement.Step() ? statement.Text(0) : std::string();
}

void SearchIndex::Keep(const std::string& name, const std::string& text) {
  Statement statement(database_.get(),
                      "INSERT OR REPLACE INTO kept VALUES(?1, ?2)");
  statement.Bind(name).Bind(text).Run();
}

}  // namespace viewer
