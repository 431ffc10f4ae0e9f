#include "viewer/app/request.h"

#include "viewer/content/help_client.h"
#include "viewer/content/search_query.h"

namespace viewer {
namespace {

Request::Kind KindOf(const std::string& verb, const std::string& text) {
  if (verb == "SEARCH") return Request::kSearch;
  if (verb != "HELP" && verb != "URL") return Request::kUnknown;
  if (text.empty()) return Request::kHome;
  return IsUrl(text) ? Request::kUrl : Request::kPage;
}

}  // namespace

Request ParseRequest(const std::string& verb, const std::string& product,
                     const std::string& locale, const std::string& text) {
  const std::string plain = Unquoted(text);
  Request request{.kind = KindOf(verb, plain),
                  .product = product,
                  .locale = locale,
                  .text = plain,
                  .is_explicit = verb == "URL"};
  if (request.kind == Request::kSearch) request.text = DecodeSearchTerm(text);
  return request;
}

}  // namespace viewer
