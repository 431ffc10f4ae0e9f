// Content folders of a product whose configuration is not found.
#ifndef VIEWER_APP_FOLDER_SEARCH_H_
#define VIEWER_APP_FOLDER_SEARCH_H_

#include <string>
#include <utility>
#include <vector>

namespace viewer {

/// The places and names of folders with a help map: those that have the product
/// in their name, else those that have the locale, else all.
std::vector<std::pair<std::string, std::string>> FindFolders(
    const std::string& product, const std::string& locale);

}  // namespace viewer

#endif  // VIEWER_APP_FOLDER_SEARCH_H_
