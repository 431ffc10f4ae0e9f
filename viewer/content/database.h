// One SQLite database that may be deleted at any time.
#ifndef VIEWER_CONTENT_DATABASE_H_
#define VIEWER_CONTENT_DATABASE_H_

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace viewer {

struct StatementFinalize {
  void operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
  }
};

/// A prepared statement. Each Bind adds the next parameter.
class Statement {
 public:
  Statement(sqlite3* database, const char* sql);
  Statement& Bind(std::string_view text);
  Statement& Bind(std::int64_t number);
  /// True while there is a row.
  bool Step();
  /// Steps to the end; true when nothing failed. Ready for the next Bind.
  bool Run();
  std::string Text(int column) const;
  std::int64_t Number(int column) const;

 private:
  std::unique_ptr<sqlite3_stmt, StatementFinalize> statement_;
  int bound_ = 0;
  int result_ = SQLITE_OK;
};

struct DatabaseClose {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using DatabasePtr = std::unique_ptr<sqlite3, DatabaseClose>;

/// Opens the file with the schema in it. A file that is broken or has another
/// schema is deleted first; when the folder cannot be written, the database is
/// in memory. schema_version: any number that changes with the schema.
DatabasePtr OpenCache(const std::string& path, const char* schema,
                      int schema_version);

bool Execute(sqlite3* database, const char* sql);

}  // namespace viewer

#endif  // VIEWER_CONTENT_DATABASE_H_
