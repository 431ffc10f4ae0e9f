#include "tools/check/check_config.h"

#include <algorithm>
#include <optional>

#include "config/help_config.h"
#include "config/key_scanner.h"
#include "resolve/page_id.h"
#include "tools/check/markup.h"
#include "tools/check/rules.h"
#include "tools/files.h"
#include "tools/printable.h"
#include "util/ascii.h"
#include "util/input_file.h"
#include "util/uri.h"

namespace velmohelp::tool {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kLocaleLength = 5;
constexpr auto kCapacity = static_cast<std::size_t>(kHelpPathCapacity);
/// How many folders are looked at: beyond the client's, so that more of them
/// are noticed.
constexpr std::size_t kRows = kCapacity + 1;

std::string Join(std::initializer_list<std::string_view> pieces) {
  std::string text;
  for (const std::string_view piece : pieces) text += piece;
  return text;
}

class Check {
 public:
  Check(const ConfigFile& file, Findings& findings)
      : file_(file),
        text_(file.text),
        markup_(ReadMarkup(text_)),
        findings_(findings) {}

  void Run() {
    if (const std::size_t zero = text_.find('\0'); zero != kNone) {
      return Add(rules::kZeroByte, zero,
                 "a zero byte; the client drops up to 1022 bytes after it");
    }
    if (const auto id = RequiredValue("id")) CheckId(*id);
    RequiredValue("path");
    if (const auto url = RequiredValue("baseUrl")) CheckBaseUrl(*url);
    ValueOf("appId");
    ValueOf("pubId");
    CheckFolders();
  }

 private:
  void Add(const Rule& rule, std::size_t offset, std::string text) {
    findings_.push_back(
        {&rule, file_.path, PositionAt(text_, offset), std::move(text)});
  }

  std::size_t OffsetOf(std::string_view part) const {
    return static_cast<std::size_t>(part.data() - text_.data());
  }

  const Attribute* FindAttribute(std::string_view name) const {
    const auto found =
        std::ranges::find(markup_.attributes, name, &Attribute::name);
    return found == markup_.attributes.end() ? nullptr : &*found;
  }

  bool IsAttributeAt(std::size_t offset, std::string_view name) const {
    return std::ranges::any_of(
        markup_.attributes, [&](const Attribute& attribute) {
          return OffsetOf(attribute.name) == offset && attribute.name == name;
        });
  }

  /// Where letters are that are not the name of an attribute.
  std::string ContextOf(std::size_t offset, std::size_t size) const {
    const auto holds = [&](std::string_view part) {
      return OffsetOf(part) <= offset &&
             offset + size <= OffsetOf(part) + part.size();
    };
    if (std::ranges::any_of(markup_.comments, holds)) return "in a comment";
    for (const Attribute& attribute : markup_.attributes) {
      if (holds(attribute.value)) {
        return "in the value of " + Quoted(attribute.name);
      }
    }
    return "in " + Quoted(WordAt(offset, size));
  }

  std::string_view WordAt(std::size_t offset, std::size_t size) const {
    std::size_t end = offset + size;
    while (offset > 0 && IsAsciiAlnum(text_[offset - 1])) --offset;
    while (end < text_.size() && IsAsciiAlnum(text_[end])) ++end;
    return text_.substr(offset, end - offset);
  }

  /// True when the client finds the letters of a key where its author wrote the
  /// key. A text without attributes has no author's view.
  bool IsWhereMeant(std::string_view key, std::size_t offset) {
    if (markup_.attributes.empty() || IsAttributeAt(offset, key)) return true;
    Add(rules::kKeyElsewhere, offset,
        Join({"the client takes these letters for the key \"", key,
              "\": ", ContextOf(offset, key.size())}));
    return false;
  }

  std::optional<std::string_view> RequiredValue(std::string_view key) {
    if (LocateKey(text_, key).key == kNone) {
      Add(rules::kMissingKey, 0, Join({"there is no \"", key, "\""}));
      return std::nullopt;
    }
    const auto value = ValueOf(key);
    if (value && value->empty()) {
      Add(rules::kMissingKey, OffsetOf(*value),
          Join({"\"", key, "\" is empty"}));
      return std::nullopt;
    }
    return value;
  }

  /// The value of a key, if it is the one that its author meant.
  std::optional<std::string_view> ValueOf(std::string_view key) {
    const KeyPlace place = LocateKey(text_, key);
    if (place.key == kNone) return std::nullopt;
    const bool is_meant = IsWhereMeant(key, place.key);
    if (is_meant && HasSingleQuotes(key)) return std::nullopt;
    if (!IsClosed(key, place) || !is_meant) return std::nullopt;
    const std::string_view value =
        text_.substr(place.opening + 1, place.closing - place.opening - 1);
    CheckEntities(value);
    return value;
  }

  bool HasSingleQuotes(std::string_view key) {
    const Attribute* attribute = FindAttribute(key);
    if (attribute == nullptr || attribute->quote != '\'') return false;
    Add(rules::kSingleQuotes, OffsetOf(attribute->value) - 1,
        Join({"the value of \"", key,
              "\" is in single quotes; the client takes the next text in "
              "double quotes"}));
    return true;
  }

  bool IsClosed(std::string_view key, const KeyPlace& place) {
    if (place.opening == kNone) {
      Add(rules::kMissingKey, place.key,
          Join({"\"", key, "\" has no value in double quotes"}));
    } else if (place.closing == kNone) {
      Add(rules::kNoClosingQuote, place.opening,
          Join({"the value of \"", key, "\" has no closing quote"}));
    } else if (text_[place.closing - 1] == '\\') {
      Add(rules::kEscapedQuote, place.closing - 1,
          Join({"a backslash ends the value of \"", key,
                "\"; the client looks for its end forever, and the host "
                "hangs"}));
    } else {
      return true;
    }
    return false;
  }

  void CheckEntities(std::string_view value) {
    const std::size_t start = value.find('&');
    if (start == kNone) return;
    const std::size_t end = value.find_first_of("; &", start + 1);
    if (end == kNone || value[end] != ';' || end == start + 1) return;
    Add(rules::kEntity, OffsetOf(value) + start,
        Quoted(value.substr(start, end - start + 1)) +
            " stays as it is; the client knows no entities");
  }

  void CheckId(std::string_view id) {
    const std::string suffix = "_" + file_.product;
    const bool ends_with_product =
        file_.product.empty() || id.ends_with(suffix);
    const bool has_locale = file_.locale.empty() || id == file_.locale + suffix;
    if (!ends_with_product || !has_locale || id.size() < kLocaleLength) {
      const std::string locale =
          file_.locale.empty() ? "<locale>" : file_.locale;
      Add(rules::kIdMismatch, OffsetOf(id),
          "the id is " + Quoted(id) + "; the client expects " +
              Quoted(locale + suffix) + " in this file");
    } else if (!file_.product.empty() &&
               id.size() - suffix.size() != kLocaleLength) {
      Add(rules::kLocaleLength, OffsetOf(id),
          "the locale " + Quoted(id.substr(0, id.size() - suffix.size())) +
              " has not five characters; the client goes on with " +
              Quoted(id.substr(0, kLocaleLength)));
    }
  }

  void CheckBaseUrl(std::string_view url) {
    if (!IsUrl(url) || !IsUri(url)) {
      Add(rules::kBaseUrl, OffsetOf(url), Quoted(url) + " is not a URL");
    } else if (!url.ends_with('/')) {
      Add(rules::kBaseUrl, OffsetOf(url) + url.size(),
          "the base URL does not end with \"/\"; a folder's name follows it "
          "at once");
    }
  }

  void CheckFolders() {
    const auto folders = LocateFolders(text_, kRows);
    const auto flags = LocateFlags(text_, kRows);
    for (const FolderKey& key : folders) CheckFolderKey("path", key);
    for (const FolderKey& key : flags) CheckFlag(key);
    if (folders.empty() && flags.empty()) {
      Add(rules::kMissingKey, 0, "there is no content folder");
    } else if (flags.size() > kCapacity) {
      Add(rules::kTooManyFolders, flags[kCapacity].key,
          "the client ignores every content folder after the hundredth");
    } else if (folders.size() != flags.size()) {
      AddCountMismatch(folders, flags);
    }
  }

  void AddCountMismatch(const std::vector<FolderKey>& folders,
                        const std::vector<FolderKey>& flags) {
    const bool more_folders = folders.size() > flags.size();
    const auto& more = more_folders ? folders : flags;
    Add(rules::kFolderCount, more[std::min(folders.size(), flags.size())].key,
        more_folders ? "more content folders than \"contextSensitivity\""
                     : "more \"contextSensitivity\" than content folders");
  }

  bool CheckFolderKey(std::string_view key, const FolderKey& found) {
    if (!IsWhereMeant(key, found.key)) return false;
    const std::size_t after = found.key + key.size();
    if (text_.substr(after, 2) != "=\"") {
      Add(rules::kSpacedFolder, after,
          Join({"=\" must follow \"", key, "\" at once"}));
    } else if (text_.substr(after + 2).starts_with('"')) {
      Add(rules::kEmptyFolder, after + 2,
          Join({"\"", key,
                "\" is empty; its value runs on to the next "
                "quote"}));
    } else if (!found.value) {
      Add(rules::kNoClosingQuote, after + 1,
          Join({"the value of \"", key, "\" has no closing quote"}));
    } else if (const std::size_t escape = found.value->find("\\\"");
               escape != kNone) {
      Add(rules::kEscapedQuote, OffsetOf(*found.value) + escape,
          Join({"a backslash before a quote; the value of \"", key,
                "\" runs on to the next quote"}));
    } else {
      CheckEntities(*found.value);
      return true;
    }
    return false;
  }

  void CheckFlag(const FolderKey& flag) {
    if (!CheckFolderKey("contextSensitivity", flag)) return;
    const std::string upper = ToUpper(*flag.value);
    if (upper == "YES" || upper == "NO") return;
    Add(rules::kFlagValue, OffsetOf(*flag.value),
        Quoted(*flag.value) + " counts as no; only \"yes\" is yes");
  }

  const ConfigFile& file_;
  std::string_view text_;
  Markup markup_;
  Findings& findings_;
};

/// The name of the folder that a file is in, when that folder is in one called
/// "help": hosts keep their configurations in help/<locale>/.
std::string LocaleOf(const std::filesystem::path& path) {
  const auto folder = std::filesystem::absolute(path).parent_path();
  return folder.parent_path().filename() == "help" ? folder.filename().string()
                                                   : "";
}

}  // namespace

void CheckConfigText(const ConfigFile& file, Findings& findings) {
  Check(file, findings).Run();
}

void CheckConfig(const std::filesystem::path& path, Findings& findings) {
  std::string text;
  try {
    text = ReadWholeFile(path, kSettingsFileLimit);
  } catch (const FileError& error) {
    findings.push_back(
        {&rules::kUnreadable, path.string(), {}, Printable(error.what())});
    return;
  }
  CheckConfigText({.path = path.string(),
                   .text = text,
                   .product = path.stem().string(),
                   .locale = LocaleOf(path)},
                  findings);
}

}  // namespace velmohelp::tool
