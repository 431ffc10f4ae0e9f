// Brings a full-text index up to date with the pages on disk.
#ifndef VIEWER_CONTENT_INDEX_UPDATE_H_
#define VIEWER_CONTENT_INDEX_UPDATE_H_

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <unordered_map>

#include "viewer/content/database.h"
#include "viewer/web/confined_file.h"
#include "viewer/web/places.h"

namespace viewer {

class IndexUpdate {
 public:
  /// pause: see SearchIndex::Update.
  IndexUpdate(sqlite3* database, const std::function<bool()>& pause);

  void Run(const std::set<ContentFolder>& folders);

 private:
  struct Known {
    std::int64_t id;
    std::int64_t modified;
    std::int64_t size;
  };

  void LoadKnown();
  bool ReadFolder(const ContentFolder& folder);
  void ReadPage(const ContentFolder& folder, const std::string& name);
  void Store(const std::string& address, ConfinedFile& file);
  void Forget(std::int64_t id);
  bool Pause();

  sqlite3* database_;
  const std::function<bool()>& pause_;
  Statement insert_page_;
  Statement insert_words_;
  Statement delete_page_;
  Statement delete_words_;
  std::unordered_map<std::string, Known> known_;
  int in_batch_ = 0;
};

}  // namespace viewer

#endif  // VIEWER_CONTENT_INDEX_UPDATE_H_
