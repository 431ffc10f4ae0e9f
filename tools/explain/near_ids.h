// Ids that look like another one.
#ifndef TOOLS_EXPLAIN_NEAR_IDS_H_
#define TOOLS_EXPLAIN_NEAR_IDS_H_

#include <string>
#include <string_view>
#include <vector>

namespace velmohelp::tool {

/// The keys of a help map's text that are most like key, at most three, the
/// best first: those that differ in letter case alone, then those within a few
/// typing mistakes. Never the key itself, nor the home page's.
std::vector<std::string> NearKeys(std::string_view map, std::string_view key);

/// How many bytes must be inserted, left out, replaced or swapped with the next
/// one to make one text the other, whatever the case of ASCII letters; limit +
/// 1 when it is more than limit.
std::size_t EditDistance(std::string_view a, std::string_view b,
                         std::size_t limit);

/// a and b differ at most in the case of ASCII letters.
bool SameButForCase(std::string_view a, std::string_view b);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_NEAR_IDS_H_
