#include <sqlite3.h>

#include <memory>

#include "tools/files.h"
#include "tools/import/readers.h"

namespace velmohelp::tool {
namespace {

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
  }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// A URI file name: "immutable" keeps SQLite from making a journal or lock
/// beside the file, which may lie in a folder that the person may not write.
std::string ImmutableUri(const std::filesystem::path& file) {
  std::string uri = "file:";
  for (const char c : std::filesystem::absolute(file).string()) {
    if (c == '%' || c == '?' || c == '#') {
      constexpr char kHexDigits[] = "0123456789ABCDEF";
      const auto byte = static_cast<unsigned char>(c);
      uri += {'%', kHexDigits[byte / 16], kHexDigits[byte % 16]};
    } else {
      uri += c;
    }
  }
  return uri + "?immutable=1";
}

Database Open(const std::filesystem::path& file) {
  sqlite3* opened = nullptr;
  const int result =
      sqlite3_open_v2(ImmutableUri(file).c_str(), &opened,
                      SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
  Database database(opened);
  if (result != SQLITE_OK) throw ImportError(sqlite3_errstr(result));
  return database;
}

Statement Prepare(sqlite3* database, const char* query) {
  sqlite3_stmt* prepared = nullptr;
  if (sqlite3_prepare_v2(database, query, -1, &prepared, nullptr) !=
      SQLITE_OK) {
    throw ImportError(std::string("not a compressed help file: ") +
                      sqlite3_errmsg(database));
  }
  return Statement(prepared);
}

/// Both must be tables: a view could give rows without an end.
void ExpectTables(sqlite3* database) {
  const Statement tables =
      Prepare(database,
              "SELECT 1 FROM sqlite_master WHERE type = 'table' AND "
              "rootpage > 0 AND name IN ('IndexTable', 'FileNameTable')");
  int count = 0;
  while (sqlite3_step(tables.get()) == SQLITE_ROW) ++count;
  if (count != 2) {
    throw ImportError("not a compressed help file: no table of keywords");
  }
}

std::string TextOf(sqlite3_stmt* row, int column) {
  const void* text = sqlite3_column_blob(row, column);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(row, column));
  return text == nullptr ? ""
                         : std::string(static_cast<const char*>(text), size);
}

IdRow RowOf(sqlite3_stmt* row) {
  const std::string anchor = TextOf(row, 2);
  return {TextOf(row, 0), TextOf(row, 1) + (anchor.empty() ? "" : "#" + anchor),
          0};
}

}  // namespace

IdTable ReadQtCompressedHelp(const std::filesystem::path& file) {
  ExpectRegular(file);
  const Database database = Open(file);
  ExpectTables(database.get());
  const Statement rows =
      Prepare(database.get(),
              "SELECT Identifier, FileNameTable.Name, Anchor FROM IndexTable "
              "JOIN FileNameTable USING (FileId) "
              "WHERE Identifier <> '' ORDER BY IndexTable.Id");
  IdTable table;
  int step = sqlite3_step(rows.get());
  for (; step == SQLITE_ROW; step = sqlite3_step(rows.get())) {
    table.rows.push_back(RowOf(rows.get()));
  }
  if (step != SQLITE_DONE) throw ImportError(sqlite3_errmsg(database.get()));
  return table;
}

}  // namespace velmohelp::tool
