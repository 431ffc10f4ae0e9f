#include "tools/explain/trail_observer.h"

#include <algorithm>

#include "config/key_scanner.h"
#include "resolve/help_map/entry_parser.h"
#include "resolve/help_map/help_map.h"
#include "tools/explain/file_facts.h"
#include "tools/explain/near_ids.h"
#include "util/ascii.h"

namespace velmohelp::tool {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// The letters at a place are a part of another word, or no value follows.
bool IsElsewhere(std::string_view text, std::string_view key,
                 const KeyPlace& place) {
  if (place.key == kNone) return false;
  if (place.key > 0 && IsAsciiAlnum(text[place.key - 1])) return true;
  std::string_view rest = text.substr(place.key + key.size());
  rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r\n"), rest.size()));
  return !rest.starts_with('=');
}

void SetPlace(std::string_view text, std::size_t at, Step& step) {
  const std::string_view before = text.substr(0, at);
  step.line = 1 + static_cast<std::size_t>(std::ranges::count(before, '\n'));
  step.column = at - (before.rfind('\n') + 1) + 1;
}

bool IsEndless(std::string_view text, const KeyPlace& place) {
  return place.closing != kNone && text[place.closing - 1] == '\\';
}

Step ValueStep(std::string_view text, std::string_view key,
               const KeyPlace& place) {
  Step step = {.kind = Step::Kind::kValue, .name = std::string(key)};
  if (place.key != kNone) SetPlace(text, place.key, step);
  step.elsewhere = IsElsewhere(text, key, place);
  step.ok = place.closing != kNone;
  if (!step.ok) return step;
  step.answer =
      text.substr(place.opening + 1, place.closing - place.opening - 1);
  return step;
}

MapFacts FactsOf(std::string_view text, const std::string& key) {
  MapFacts facts;
  HelpMapParser parser(text);
  for (HelpMapEntry entry; parser.Next(entry);) ++facts.entries;
  facts.has_home = FindEntry(text, kHomePageKey).has_value();
  const auto page = FindEntry(text, key);
  facts.has_key = page.has_value();
  if (page) facts.page = *page;
  if (!page) facts.near = NearKeys(text, key);
  return facts;
}

}  // namespace

void TrailObserver::OnKeyFile(const std::string& path,
                              const std::string* text) {
  file_ = path;
  Step step = {
      .kind = Step::Kind::kKeyFile, .subject = {path}, .ok = text != nullptr};
  if (text != nullptr) {
    step.answer = std::to_string(text->size()) + " bytes";
  } else {
    step.reason = WhyNotRead(path);
  }
  trail_.push_back(step);
}

void TrailObserver::BeforeScan(std::string_view text, std::string_view key) {
  const KeyPlace place = LocateKey(text, key);
  Step step = ValueStep(text, key, place);
  step.subject = {file_};
  endless_ = IsEndless(text, place);
  if (endless_) SetPlace(text, place.closing - 1, step);
  trail_.push_back(step);
  if (endless_) throw EndlessScan(file_ + ": an escaped quote");
}

void TrailObserver::OnLookUp(const std::string& page, std::string_view key) {
  key_ = key;
  trail_.push_back(
      {.kind = Step::Kind::kLookUp, .subject = {page, key_}, .ok = true});
}

void TrailObserver::OnHelpMap(const std::string& path,
                              const std::string_view* text) {
  Step step = {
      .kind = Step::Kind::kHelpMap, .subject = {path}, .ok = text != nullptr};
  if (text != nullptr) step.map = FactsOf(*text, key_);
  if (text == nullptr) step.reason = WhyNotRead(path);
  trail_.push_back(step);
}

void TrailObserver::OnContentFolder(const std::string& path, bool accepted,
                                    const std::string& target) {
  trail_.push_back({.kind = Step::Kind::kContentFolder,
                    .subject = {path},
                    .ok = accepted,
                    .answer = target});
}

}  // namespace velmohelp::tool
