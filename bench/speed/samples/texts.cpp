// Keys, page ids and percent-encoding, and what these are compared with.
#include <curl/curl.h>
#include <fcntl.h>
#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>
#include <velmohelp/config.h>
#include <velmohelp/resolve.h>
#include <velmohelp/text.h>

#include <array>
#include <cstring>
#include <random>
#include <string_view>

#include "bench/speed/samples/samples.h"
#include "bench/stopwatch.h"

namespace velmohelp::bench {
namespace {

/// Draws from pieces until the text has the size, or a little less.
std::string Drawn(const std::vector<std::string>& pieces, std::size_t size) {
  std::mt19937 random(6);  // NOLINT: the same text every time
  std::string text;
  for (;;) {
    const std::string& piece = pieces[random() % pieces.size()];
    if (text.size() + piece.size() > size) return text;
    text += piece;
  }
}

std::string TextOf(const std::string& kind, std::size_t size) {
  std::vector<std::string> pieces;
  if (kind == "CJK") {
    for (const char* c : {"帮", "助", "页", "面", "检", "索", "文", "字"}) {
      pieces.emplace_back(c);
    }
    return Drawn(pieces, size);
  }
  for (char c = 'a'; c <= 'z'; ++c) pieces.emplace_back(1, c);
  // As people type them: words and spaces, sometimes punctuation.
  if (kind == "query") {
    for (const char* c : {" ", " ", " ", " ", " ", "?", "-", "é"}) {
      pieces.emplace_back(c);
    }
  }
  return Drawn(pieces, size);
}

double ByUs(const Words& words) {
  const std::string text = TextOf(words.at(0), std::stoul(words.at(1)));
  return MeanNanoseconds([&] { Use(urlencode(text).data()); });
}

double ByCurl(const Words& words) {
  const std::string text = TextOf(words.at(0), std::stoul(words.at(1)));
  CURL* handle = curl_easy_init();
  return MeanNanoseconds([&] {
    char* out =
        curl_easy_escape(handle, text.data(), static_cast<int>(text.size()));
    Use(out);
    curl_free(out);
  });
}

double ByGlib(const Words& words) {
  const std::string text = TextOf(words.at(0), std::stoul(words.at(1)));
  return MeanNanoseconds([&] {
    char* out = g_uri_escape_string(text.c_str(), nullptr, FALSE);
    Use(out);
    g_free(out);
  });
}

/// Half of the bytes may not be in a page's file name.
std::string PageId() {
  return Drawn({"a", "7", "_", " ", "/", "Z", "ä"}, 1U << 20U);
}

template <typename Normalize>
double OnFreshCopies(Normalize normalize) {
  const std::string original = PageId();
  std::vector<double> readings;
  for (int i = 0; i < 15; ++i) {
    std::string id = original;
    readings.push_back(Nanoseconds([&] { normalize(id); }));
    Use(id.data());
  }
  return Median(std::move(readings));
}

double Normalized(const Words&) { return OnFreshCopies(NormalizePageID); }

double ByTable(const Words&) {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    const char byte = static_cast<char>(i);
    const bool allowed =
        g_ascii_isalnum(byte) != 0 || byte == '_' || byte == '-' || byte == '.';
    table[i] = allowed ? byte : '_';
  }
  return OnFreshCopies([&](std::string& id) {
    for (char& byte : id) byte = table[static_cast<unsigned char>(byte)];
  });
}

double Key(const Words& words) {
  std::string value;
  const double time = Nanoseconds([&] {
    XMLParser parser;
    parser.ReadFileToBuffer(words.at(0));
    value = parser.GetKey("lastKey");
  });
  Require(value == "found", "key not found");
  return time;
}

double ByRead(const Words& words) {
  const void* found = nullptr;
  const double time = Nanoseconds([&] {
    const int file = open(words.at(0).c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status = {};
    fstat(file, &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    char* text = static_cast<char*>(std::malloc(size));
    const ssize_t got = read(file, text, size);
    close(file);
    found = memmem(text, static_cast<std::size_t>(got), "lastKey", 7);
  });
  Require(found != nullptr, "key not found");
  return time;
}

}  // namespace

Samples TextSamples() {
  return {{"urlencode", ByUs},        {"curl_easy_escape", ByCurl},
          {"g_uri_escape", ByGlib},   {"normalize", Normalized},
          {"table", ByTable},         {"key", Key},
          {"read-and-memmem", ByRead}};
}

}  // namespace velmohelp::bench
