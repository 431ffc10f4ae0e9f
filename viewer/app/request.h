// One request of the help client: VERB PRODUCT LOCALE REQUEST.
#ifndef VIEWER_APP_REQUEST_H_
#define VIEWER_APP_REQUEST_H_

#include <string>

namespace viewer {

struct Request {
  enum Kind {
    kPage,     ///< A page id.
    kUrl,      ///< A URL that the client has resolved or the program named.
    kSearch,   ///< A search text.
    kHome,     ///< Just the product's help.
    kUnknown,  ///< A verb that this viewer does not know.
  };
  Kind kind = kHome;
  std::string product;
  std::string locale;
  /// The page id, the URL without quotes, or the decoded search text.
  std::string text;
  /// The program asked for the URL itself ("URL"), which online help's
  /// preference does not concern.
  bool is_explicit = false;
};

Request ParseRequest(const std::string& verb, const std::string& product,
                     const std::string& locale, const std::string& text);

}  // namespace viewer

#endif  // VIEWER_APP_REQUEST_H_
