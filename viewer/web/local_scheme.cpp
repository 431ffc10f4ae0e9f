#include "viewer/web/local_scheme.h"

#include <gio/gunixinputstream.h>
#include <glib/gi18n.h>

#include <utility>

#include "viewer/gobject_ptr.h"
#include "viewer/web/confined_file.h"
#include "viewer/web/content_policy.h"
#include "viewer/web/page_bytes.h"

namespace viewer {
namespace {

// A page that a person can read has less. What is read here is read while the
// window waits.
constexpr std::int64_t kLargestPage = 32 << 20;
constexpr std::int64_t kLargestResource = std::int64_t{1} << 30;

const char* Sentence(FileProblem problem) {
  switch (problem) {
    case FileProblem::kOutside:
      return _("The page lies outside the help that is installed.");
    case FileProblem::kNotAFile:
      return _("There is no page at this place.");
    case FileProblem::kTooLarge:
      return _("The page is too large to be shown.");
    case FileProblem::kUnreadable:
      return _("The page cannot be read.");
    case FileProblem::kMissing:
    case FileProblem::kNone:
      break;
  }
  return _("The page is missing.");
}

const char* Sentence(PageProblem problem) {
  return problem == PageProblem::kBinary
             ? _("The page is not text but binary data.")
             : _("The page is not valid UTF-8 text and declares no other "
                 "character set.");
}

void Fail(WebKitURISchemeRequest* request, const char* sentence) {
  const ErrorPtr error(g_error_new_literal(LocalPageError(), 0, sentence));
  webkit_uri_scheme_request_finish_error(request, error.get());
}

void Answer(WebKitURISchemeRequest* request, const char* media_type,
            GInputStream* stream, gint64 size) {
  const ObjectPtr<WebKitURISchemeResponse> response(
      webkit_uri_scheme_response_new(stream, size));
  webkit_uri_scheme_response_set_content_type(response.get(), media_type);
  webkit_uri_scheme_request_finish_with_response(request, response.get());
}

void ServePage(WebKitURISchemeRequest* request, const ContentFolder& folder,
               ConfinedFile& file, const std::string& media_type) {
  std::string text;
  const auto problem = file.Read(kLargestPage, text);
  if (problem != FileProblem::kNone) return Fail(request, Sentence(problem));
  const auto page_problem = MakeUtf8(text);
  if (page_problem != PageProblem::kNone) {
    return Fail(request, Sentence(page_problem));
  }
  text = WithPolicy(std::move(text), ContentPolicy(folder));
  GBytes* bytes = g_bytes_new(text.data(), text.size());
  const ObjectPtr<GInputStream> stream(
      g_memory_input_stream_new_from_bytes(bytes));
  g_bytes_unref(bytes);
  Answer(request, (media_type + "; charset=utf-8").c_str(), stream.get(),
         static_cast<gint64>(text.size()));
}

void ServeResource(WebKitURISchemeRequest* request, ConfinedFile& file,
                   const std::string& media_type) {
  if (file.problem() != FileProblem::kNone) {
    return Fail(request, Sentence(file.problem()));
  }
  const auto size = file.size();
  if (size > kLargestResource) {
    return Fail(request, Sentence(FileProblem::kTooLarge));
  }
  const ObjectPtr<GInputStream> stream(
      g_unix_input_stream_new(file.Release(), TRUE));
  Answer(request, media_type.c_str(), stream.get(), size);
}

// A hidden file beside a page that belongs to no help is nobody's help: a key,
// a password.
bool IsHidden(const LocalFile& file) {
  return !file.folder.trusted && (file.name.starts_with('.') ||
                                  file.name.find("/.") != std::string::npos);
}

// The policy in a page's text says the same; a drawing that is shown as a page
// has no place for one.
bool IsScriptOfAnotherFolder(WebKitURISchemeRequest* request,
                             const Places& places, const LocalFile& file) {
  if (MediaType(file.name) != "text/javascript") return false;
  auto* view = webkit_uri_scheme_request_get_web_view(request);
  const auto page =
      ParseAddress(view ? Copy(webkit_web_view_get_uri(view)) : std::string());
  const auto local = page ? places.Find(*page) : std::nullopt;
  return !local || local->folder.directory != file.folder.directory;
}

void Serve(WebKitURISchemeRequest* request, const Places& places) {
  const auto address =
      ParseAddress(Copy(webkit_uri_scheme_request_get_uri(request)));
  const auto local = address ? places.Find(*address) : std::nullopt;
  if (!local || IsHidden(*local) ||
      IsScriptOfAnotherFolder(request, places, *local)) {
    return Fail(request, Sentence(FileProblem::kOutside));
  }
  const std::string media_type = MediaType(local->name);
  ConfinedFile file(local->folder.directory, local->name);
  if (media_type.empty() && file.problem() == FileProblem::kNone) {
    return Fail(request, _("The viewer does not show files of this kind."));
  }
  if (IsPageName(local->name)) {
    return ServePage(request, local->folder, file, media_type);
  }
  ServeResource(request, file, media_type);
}

}  // namespace

GQuark LocalPageError() {
  return g_quark_from_static_string("velmohelp-local-page");
}

void ServeLocalPages(WebKitWebContext* context, const Places& places) {
  webkit_web_context_register_uri_scheme(
      context, kLocalScheme,
      [](WebKitURISchemeRequest* request, gpointer data) {
        Serve(request, *static_cast<const Places*>(data));
      },
      const_cast<Places*>(&places), nullptr);
}

}  // namespace viewer
