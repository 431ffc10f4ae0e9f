#include <utility>

#include "tools/import/readers.h"
#include "tools/lines.h"

namespace velmohelp::tool {
namespace {

/// A record of RFC 4180 and the line on which it starts.
struct Record {
  std::vector<std::string> fields;
  std::size_t line = 1;
};

/// Splits a text into the records of RFC 4180. A quoted field may hold line
/// ends, so records are not lines.
class CsvParser {
 public:
  explicit CsvParser(std::string_view text) : rest_(text) {}

  /// False at the end of the text.
  bool Next(Record& record) {
    record = {{}, line_};
    if (rest_.empty()) return false;
    do {
      record.fields.push_back(ReadField());
    } while (SkipComma());
    SkipLineEnd();
    return true;
  }

 private:
  std::string ReadField() {
    return rest_.starts_with('"') ? ReadQuoted() : ReadPlain();
  }

  std::string ReadPlain() {
    const std::size_t end = rest_.find_first_of(",\r\n");
    std::string field(rest_.substr(0, end));
    rest_.remove_prefix(field.size());
    return field;
  }

  /// Two quotes inside stand for one.
  std::string ReadQuoted() {
    const std::size_t start = line_;
    std::string field;
    rest_.remove_prefix(1);
    while (!rest_.empty()) {
      const char c = Pop();
      if (c != '"') {
        field += c;
      } else if (rest_.starts_with('"')) {
        field += Pop();
      } else {
        return field;
      }
    }
    throw ImportError("line " + std::to_string(start) +
                      ": a quoted field has no closing quote");
  }

  char Pop() {
    const char c = rest_.front();
    if (c == '\n') ++line_;
    rest_.remove_prefix(1);
    return c;
  }

  bool SkipComma() {
    if (!rest_.starts_with(',')) return false;
    rest_.remove_prefix(1);
    return true;
  }

  void SkipLineEnd() {
    if (rest_.empty()) return;
    if (!rest_.starts_with('\r') && !rest_.starts_with('\n')) {
      throw ImportError("line " + std::to_string(line_) +
                        ": text after a field's closing quote");
    }
    if (rest_.starts_with('\r')) rest_.remove_prefix(1);
    if (rest_.starts_with('\n')) Pop();
  }

  std::string_view rest_;
  std::size_t line_ = 1;
};

void AddRecord(IdTable& table, Record record) {
  if (record.fields.size() == 1 && record.fields.front().empty()) return;
  if (record.fields.size() < 2) {
    table.remarks.push_back({record.line, "has an id and no page; skipped"});
    return;
  }
  table.rows.push_back(
      {std::move(record.fields[0]), std::move(record.fields[1]), record.line});
}

std::vector<std::string> SplitAtTabs(std::string_view line) {
  std::vector<std::string> fields;
  for (std::size_t tab = 0; tab != std::string_view::npos;) {
    tab = line.find('\t');
    fields.emplace_back(line.substr(0, tab));
    if (tab != std::string_view::npos) line.remove_prefix(tab + 1);
  }
  return fields;
}

}  // namespace

IdTable ReadTabSeparated(std::string_view text) {
  IdTable table;
  ForEachLine(text, [&](std::string_view line, std::size_t number) {
    AddRecord(table, {SplitAtTabs(line), number});
  });
  return table;
}

IdTable ReadCommaSeparated(std::string_view text) {
  IdTable table;
  CsvParser parser(text);
  for (Record record; parser.Next(record);) AddRecord(table, std::move(record));
  return table;
}

}  // namespace velmohelp::tool
