#include "viewer/app/product.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <utility>

#include "viewer/app/folder_search.h"
#include "viewer/web/confined_file.h"
#include "viewer/web/page_bytes.h"

namespace viewer {
namespace {

// Fewer links than that are a list in a page, not its table of contents.
constexpr std::size_t kFewestLinks = 8;
constexpr std::int64_t kLargestHome = 4 << 20;

std::string CacheFile(const std::string& product, const std::string& locale) {
  const std::string folder =
      std::string(g_get_user_cache_dir()) + "/velmohelp-viewer";
  g_mkdir_with_parents(folder.c_str(), 0700);
  const std::string key = product + "\n" + locale;
  return folder + "/" +
         viewer::Adopt(g_compute_checksum_for_string(G_CHECKSUM_SHA256,
                                                     key.c_str(), -1)) +
         ".index";
}

std::size_t CountLinks(const std::vector<ContentsEntry>& entries) {
  std::size_t count = 0;
  for (const auto& entry : entries) {
    count += (entry.href.empty() ? 0U : 1U) + CountLinks(entry.children);
  }
  return count;
}

void Resolve(std::vector<ContentsEntry>& entries, const std::string& base) {
  for (auto& entry : entries) {
    if (!entry.href.empty()) {
      entry.href = viewer::Adopt(g_uri_resolve_relative(
          base.c_str(), entry.href.c_str(), G_URI_FLAGS_ENCODED, nullptr));
    }
    Resolve(entry.children, base);
  }
}

}  // namespace

Product::Product(Engine& engine, ClientThread& client, std::string name,
                 std::string locale, Listener listener)
    : engine_(engine),
      client_(client),
      name_(std::move(name)),
      locale_(std::move(locale)),
      listener_(std::move(listener)),
      self_(std::make_shared<Product*>(this)) {}

Product::~Product() { *self_ = nullptr; }

void Product::Prepare(const std::string& locale, std::function<void()> done) {
  if (is_prepared_ && locale == locale_) return done();
  locale_ = locale;
  is_prepared_ = true;
  client_.Ask([name = name_, locale] { return LoadProduct(name, locale); },
              [self = self_, done = std::move(done)](const ProductHelp& help) {
                if (!*self) return;
                (*self)->OnConfiguration(help);
                done();
              });
}

void Product::OnConfiguration(const ProductHelp& help) {
  is_configured_ = help.configured;
  configured_home_ = help.home;
  for (const char* place : {"downloaded", "installed"}) {
    for (const auto& folder : help.folders) {
      if (engine_.places().AddFolder(place, folder)) {
        Adopt(Address{place, folder + "/", {}, {}}.Uri());
      }
    }
  }
}

// Without a configuration, the folders that name the product or its locale.
void Product::DiscoverFolders() {
  if (is_configured_ || !folders_.empty()) return;
  for (const auto& [place, folder] : FindFolders(name_, locale_)) {
    if (engine_.places().AddFolder(place, folder)) {
      Adopt(Address{place, folder + "/", {}, {}}.Uri());
    }
  }
}

void Product::Adopt(const std::string& address) {
  const auto parsed = ParseAddress(address);
  const auto local = parsed ? engine_.places().Find(*parsed) : std::nullopt;
  if (local && local->folder.trusted) folders_.insert(local->folder);
}

bool Product::HasFolders() {
  DiscoverFolders();
  return !folders_.empty();
}

std::string Product::Home() {
  DiscoverFolders();
  std::string home = configured_home_;
  for (const auto& folder : folders_) {
    if (home.empty()) home = FindHome(folder.directory);
  }
  const auto address = engine_.places().Locate(home);
  return address ? address->Uri() : home;
}

void Product::FindPage(const std::string& page_id,
                       std::function<void(const std::string&)> done) {
  // Without a configuration the client has no folders to look into.
  if (!is_configured_) return done({});
  client_.Ask([page_id] { return viewer::FindPage(page_id); },
              [self = self_, done = std::move(done)](const std::string& url) {
                if (!*self) return;
                const auto address = (*self)->engine_.places().Locate(url);
                done(address ? address->Uri() : url);
              });
}

void Product::Search(const std::string& text) {
  if (!worker_) Refresh();
  worker_->Search(text);
}

void Product::Refresh() {
  DiscoverFolders();
  if (!worker_) {
    worker_ = std::make_unique<SearchWorker>(
        CacheFile(name_, locale_),
        SearchWorker::Listener{
            .on_answer =
                [this](const auto& answer) { listener_.on_answer(answer); },
            .on_kept = [this](const auto& lines) { OnKept(lines); },
            .on_updated = [this](const auto& titles) { OnUpdated(titles); }});
  }
  contents_home_ = Home();
  if (!has_contents_) ReadStaticContents();
  worker_->Update(folders_, ContentsKey());
}

void Product::ReadStaticContents() {
  const auto address = ParseAddress(contents_home_);
  const auto local = address ? engine_.places().Find(*address) : std::nullopt;
  if (!local) return;
  std::string page;
  ConfinedFile file(local->folder.directory, local->name);
  if (file.Read(kLargestHome, page) != FileProblem::kNone ||
      MakeUtf8(page) != PageProblem::kNone) {
    return;
  }
  std::string base;
  auto entries = ReadContents(page, base);
  if (CountLinks(entries) < kFewestLinks) return;
  std::string origin = address->Document();
  if (!base.empty()) {
    origin = viewer::Adopt(g_uri_resolve_relative(
        origin.c_str(), base.c_str(), G_URI_FLAGS_ENCODED, nullptr));
  }
  Resolve(entries, origin);
  ShowContents(entries);
}

// Changes with the home page and when it is written.
std::string Product::ContentsKey() {
  const auto address = ParseAddress(contents_home_);
  const auto local = address ? engine_.places().Find(*address) : std::nullopt;
  if (!local) return {};
  const ConfinedFile file(local->folder.directory, local->name);
  return "contents " + std::to_string(file.modified()) + " " + contents_home_;
}

void Product::OnKept(const std::string& lines) {
  if (!has_contents_ && !lines.empty()) ShowContents(ReadContentsLines(lines));
}

// Some home pages make their contents by a script: the page is loaded out of
// sight, once for each version of it.
void Product::ReadLiveContents() {
  live_contents_ = std::make_unique<PageView>(
      engine_, PageKind::kLocal, PageView::Listener{.on_loaded = [this] {
        live_contents_->ReadContents([self = self_](const std::string& lines) {
          if (*self) (*self)->OnLiveContents(lines);
        });
      }});
  live_contents_->Load(contents_home_);
}

void Product::OnLiveContents(const std::string& lines) {
  if (!live_contents_) return;
  // Not from within its own callback.
  read_contents_ = std::move(live_contents_);
  using Self = std::shared_ptr<Product*>;
  g_idle_add_full(
      G_PRIORITY_DEFAULT,
      [](gpointer data) -> gboolean {
        if (auto* product = **static_cast<Self*>(data)) {
          product->read_contents_.reset();
        }
        return G_SOURCE_REMOVE;
      },
      new Self(self_), [](gpointer data) { delete static_cast<Self*>(data); });
  const auto entries = ReadContentsLines(lines);
  if (CountLinks(entries) < kFewestLinks) return ShowTitles();
  worker_->Keep(ContentsKey(), lines);
  ShowContents(entries);
}

void Product::OnUpdated(const std::vector<SearchHit>& titles) {
  if (has_contents_ || live_contents_) return;
  titles_ = titles;
  const std::string key = ContentsKey();
  if (key.empty() || std::exchange(tried_key_, key) == key) return ShowTitles();
  ReadLiveContents();
}

void Product::ShowTitles() {
  std::vector<ContentsEntry> entries;
  for (const auto& page : titles_) {
    entries.push_back(
        {.title = page.title, .href = page.address, .children = {}});
  }
  listener_.on_contents(entries);
}

void Product::ShowContents(const std::vector<ContentsEntry>& entries) {
  if (entries.empty()) return;
  has_contents_ = true;
  listener_.on_contents(entries);
}

}  // namespace viewer
