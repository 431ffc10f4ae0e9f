// The plain page that says what is wrong.
#ifndef VIEWER_WEB_PROBLEM_PAGE_H_
#define VIEWER_WEB_PROBLEM_PAGE_H_

#include <string>

namespace viewer {

std::string ProblemTitle();

/// HTML, with both texts escaped.
std::string ProblemPage(const std::string& sentence, const std::string& uri);

}  // namespace viewer

#endif  // VIEWER_WEB_PROBLEM_PAGE_H_
