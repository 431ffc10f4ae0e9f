#include "viewer/content/database.h"

#include <cstdio>

namespace viewer {

Statement::Statement(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  result_ = sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
  statement_.reset(statement);
}

Statement& Statement::Bind(std::string_view text) {
  sqlite3_bind_text(statement_.get(), ++bound_, text.data(),
                    static_cast<int>(text.size()), SQLITE_TRANSIENT);
  return *this;
}

Statement& Statement::Bind(std::int64_t number) {
  sqlite3_bind_int64(statement_.get(), ++bound_, number);
  return *this;
}

bool Statement::Step() {
  if (!statement_) return false;
  result_ = sqlite3_step(statement_.get());
  return result_ == SQLITE_ROW;
}

bool Statement::Run() {
  while (Step()) {
  }
  const bool done = result_ == SQLITE_DONE;
  sqlite3_reset(statement_.get());
  bound_ = 0;
  return done;
}

std::string Statement::Text(int column) const {
  const auto* text = sqlite3_column_text(statement_.get(), column);
  const auto size = sqlite3_column_bytes(statement_.get(), column);
  if (!text) return {};
  return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(size)};
}

std::int64_t Statement::Number(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

bool Execute(sqlite3* database, const char* sql) {
  return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

namespace {

DatabasePtr Open(const std::string& path) {
  sqlite3* database = nullptr;
  const int result = sqlite3_open_v2(
      path.c_str(), &database,
      SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX,
      nullptr);
  DatabasePtr owner(database);
  // The cache is rebuilt when it is lost, so nothing waits for the disk.
  if (result != SQLITE_OK ||
      !Execute(database,
               "PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF;"
               "PRAGMA temp_store=MEMORY; PRAGMA cache_size=-4096")) {
    owner.reset();
  }
  return owner;
}

bool HasSchema(sqlite3* database, int version) {
  Statement statement(database, "PRAGMA user_version");
  return statement.Step() && statement.Number(0) == version;
}

bool IsSound(sqlite3* database) {
  Statement statement(database, "PRAGMA quick_check(1)");
  return statement.Step() && statement.Text(0) == "ok";
}

bool CreateSchema(sqlite3* database, const char* schema, int version) {
  const std::string stamp = "PRAGMA user_version=" + std::to_string(version);
  return Execute(database, schema) && Execute(database, stamp.c_str());
}

}  // namespace

DatabasePtr OpenCache(const std::string& path, const char* schema,
                      int schema_version) {
  auto database = Open(path);
  if (database && HasSchema(database.get(), schema_version) &&
      IsSound(database.get())) {
    return database;
  }
  database.reset();
  std::remove(path.c_str());
  for (const std::string& place : {path, std::string(":memory:")}) {
    database = Open(place);
    if (database && CreateSchema(database.get(), schema, schema_version)) {
      return database;
    }
  }
  return nullptr;
}

}  // namespace viewer
