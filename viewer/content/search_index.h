// The full-text index of a product's pages, kept in the cache folder.
#ifndef VIEWER_CONTENT_SEARCH_INDEX_H_
#define VIEWER_CONTENT_SEARCH_INDEX_H_

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "viewer/content/database.h"
#include "viewer/web/places.h"

namespace viewer {

struct SearchHit {
  std::string address;
  std::string title;
  /// Words around the hits, which are between U+0002 and U+0003.
  std::string snippet;
};

inline constexpr char kHitBegin = '\2';
inline constexpr char kHitEnd = '\3';

/// Used from one thread.
class SearchIndex {
 public:
  /// file: where the index is kept. It is rebuilt when it is missing or broken.
  explicit SearchIndex(const std::string& file);

  /// Reads every page that is new or changed since the last update, and forgets
  /// those that are gone. pause is called after each small batch, with the
  /// pages so far searchable; false from it gives the update up.
  void Update(const std::set<ContentFolder>& folders,
              const std::function<bool()>& pause);

  /// The best pages for a text, titles before bodies; with all its words, else
  /// with any.
  std::vector<SearchHit> Search(const std::string& text);

  /// Every page with a title, by title.
  std::vector<SearchHit> Titles();

  /// A text that was kept under a name; "" when there is none.
  std::string Kept(const std::string& name);
  void Keep(const std::string& name, const std::string& text);

 private:
  std::vector<SearchHit> Match(const std::string& query);

  DatabasePtr database_;
};

}  // namespace viewer

#endif  // VIEWER_CONTENT_SEARCH_INDEX_H_
