// From what a person types to a query of the full-text index.
#ifndef VIEWER_CONTENT_SEARCH_QUERY_H_
#define VIEWER_CONTENT_SEARCH_QUERY_H_

#include <string>
#include <string_view>
#include <vector>

namespace viewer {

/// The words of a text: letters, digits and every byte beyond ASCII.
std::vector<std::string> WordsOf(std::string_view text);

/// The words of a page id, in which a capital letter may begin a word:
/// "drawCurve_2" has "draw", "Curve" and "2".
std::vector<std::string> WordsOfId(std::string_view id);

/// A query for pages with all words, the last one as the beginning of a word,
/// since the person may still be typing it; "" when there are none.
std::string AllWords(const std::vector<std::string>& words);

/// The same for pages with any of the words.
std::string AnyWord(const std::vector<std::string>& words);

/// The text that a percent-encoded search term stands for.
std::string DecodeSearchTerm(const std::string& term);

}  // namespace viewer

#endif  // VIEWER_CONTENT_SEARCH_QUERY_H_
