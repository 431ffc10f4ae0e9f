#include "bench/unicode/tasks.h"

#include <cstdlib>

#include "bench/unicode/peers.h"

namespace velmohelp::bench {
namespace {

using Output = std::shared_ptr<std::vector<char>>;

/// One text in every form that a candidate reads, and room for every output.
struct Forms {
  explicit Forms(const std::string& text)
      : utf8(text.begin(), text.end()),
        utf16(text.size()),
        utf32(text.size()),
        output(std::make_shared<std::vector<char>>(8 * text.size() + 64)) {
    utf16.resize(IcuUtf8To16(utf8, utf16.data(), utf16.size()));
    utf32.resize(IcuUtf8To32(utf8, utf32.data()));
    ucs4.assign(utf32.begin(), utf32.end());
  }

  template <typename Unit>
  Unit* To() const {
    return reinterpret_cast<Unit*>(output->data());
  }

  std::vector<ITEMUTF8> utf8;
  std::vector<ITEMUTF16> utf16;
  std::vector<ITEMUTF32> utf32;
  std::vector<std::uint32_t> ucs4;
  Output output;
};

using Shared = std::shared_ptr<const Forms>;

template <typename From, typename To>
std::size_t Ours(ITEMConversionResult (*convert)(const From**, const From*,
                                                 To**, To*, int),
                 const std::vector<From>& from, To* to, std::size_t room) {
  const From* source = from.data();
  To* target = to;
  const auto result =
      convert(&source, source + from.size(), &target, to + room, 0);
  return result == kConversionComplete ? static_cast<std::size_t>(target - to)
                                       : 0;
}

template <typename From>
std::size_t Bytes(const std::vector<From>& units) {
  return units.size() * sizeof(From);
}

Candidate ByIconv(const char* to, const char* from,
                  std::function<std::size_t(const Iconv&)> run) {
  auto converter = std::make_shared<Iconv>(to, from);
  return {kIconv, [converter, run] { return run(*converter); }};
}

Task Utf8To16(const Shared& f, const std::string& corpus) {
  auto* to = f->To<ITEMUTF16>();
  const std::size_t room = f->utf8.size();
  return {"UTF-8 to UTF-16",
          corpus,
          Bytes(f->utf8),
          f->output,
          Bytes(f->utf16),
          {{"ours",
            [=] { return Ours(ITEMConvertUTF8toUTF16, f->utf8, to, room); }},
           {kIcu, [=] { return IcuUtf8To16(f->utf8, to, room); }},
           ByIconv("UTF-16LE", "UTF-8",
                   [=](auto& i) { return i(Utf8(f->utf8), to, room); }),
           {kGlib, [=] { return GlibUtf8To16(f->utf8); }},
           {kUtf8cpp, [=] { return CppUtf8To16(f->utf8, to); }}}};
}

Task Utf16To8(const Shared& f, const std::string& corpus) {
  auto* to = f->To<ITEMUTF8>();
  const std::size_t room = 3 * f->utf16.size();
  return {"UTF-16 to UTF-8",
          corpus,
          Bytes(f->utf16),
          f->output,
          Bytes(f->utf8),
          {{"ours",
            [=] { return Ours(ITEMConvertUTF16toUTF8, f->utf16, to, room); }},
           {kIcu, [=] { return IcuUtf16To8(f->utf16, to, room); }},
           ByIconv("UTF-8", "UTF-16LE",
                   [=](auto& i) { return i(Utf16(f->utf16), to, room); }),
           {kGlib, [=] { return GlibUtf16To8(f->utf16); }},
           {kUtf8cpp, [=] { return CppUtf16To8(f->utf16, to); }}}};
}

Task Utf8To32(const Shared& f, const std::string& corpus) {
  auto* to = f->To<ITEMUTF32>();
  auto* narrow = f->To<std::uint32_t>();
  const std::size_t room = f->utf8.size();
  return {"UTF-8 to UTF-32",
          corpus,
          Bytes(f->utf8),
          f->output,
          Bytes(f->utf32),
          {{"ours",
            [=] { return Ours(ITEMConvertUTF8toUTF32, f->utf8, to, room); }},
           {kIcu, [=] { return IcuUtf8To32(f->utf8, to); }},
           ByIconv("UTF-32LE", "UTF-8",
                   [=](auto& i) { return i(Utf8(f->utf8), narrow, room); }),
           {kGlib, [=] { return GlibUtf8To32(f->utf8); }},
           {kUtf8cpp, [=] { return CppUtf8To32(f->utf8, to); }}}};
}

Task Utf32To8(const Shared& f, const std::string& corpus) {
  auto* to = f->To<ITEMUTF8>();
  const std::size_t room = 4 * f->utf32.size();
  return {"UTF-32 to UTF-8",
          corpus,
          Bytes(f->utf32),
          f->output,
          Bytes(f->utf8),
          {{"ours",
            [=] { return Ours(ITEMConvertUTF32toUTF8, f->utf32, to, room); }},
           {kIcu, [=] { return IcuUtf32To8(f->utf32, to, room); }},
           ByIconv("UTF-8", "UTF-32LE",
                   [=](auto& i) { return i(Ucs4(f->ucs4), to, room); }),
           {kGlib, [=] { return GlibUtf32To8(f->ucs4); }},
           {kUtf8cpp, [=] { return CppUtf32To8(f->utf32, to); }}}};
}

Task Utf16To32(const Shared& f, const std::string& corpus) {
  auto* to = f->To<ITEMUTF32>();
  auto* narrow = f->To<std::uint32_t>();
  const std::size_t room = f->utf16.size();
  return {"UTF-16 to UTF-32",
          corpus,
          Bytes(f->utf16),
          f->output,
          Bytes(f->utf32),
          {{"ours",
            [=] { return Ours(ITEMConvertUTF16toUTF32, f->utf16, to, room); }},
           {kIcu, [=] { return IcuUtf16To32(f->utf16, narrow, room); }},
           ByIconv("UTF-32LE", "UTF-16LE",
                   [=](auto& i) { return i(Utf16(f->utf16), narrow, room); }),
           {kGlib, [=] { return GlibUtf16To32(f->utf16); }}}};
}

Task Utf32To16(const Shared& f, const std::string& corpus) {
  auto* to = f->To<ITEMUTF16>();
  const std::size_t room = 2 * f->utf32.size();
  return {"UTF-32 to UTF-16",
          corpus,
          Bytes(f->utf32),
          f->output,
          Bytes(f->utf16),
          {{"ours",
            [=] { return Ours(ITEMConvertUTF32toUTF16, f->utf32, to, room); }},
           {kIcu, [=] { return IcuUtf32To16(f->ucs4, to, room); }},
           ByIconv("UTF-16LE", "UTF-32LE",
                   [=](auto& i) { return i(Ucs4(f->ucs4), to, room); }),
           {kGlib, [=] { return GlibUtf32To16(f->ucs4); }}}};
}

std::size_t OursIsLegal(Utf8 text) {
  return ITEMisLegalUTF8String(text.data(), text.data() + text.size()) ? 1 : 0;
}

/// One call per sequence, like a caller that looks for where an error is.
std::size_t OursWalk(Utf8 text) {
  const ITEMUTF8* at = text.data();
  const ITEMUTF8* const end = at + text.size();
  while (at < end) {
    if (!ITEMisLegalUTF8Sequence(at, end)) return 0;
    at += U8_COUNT_TRAIL_BYTES_UNSAFE(*at) + 1;
  }
  return 1;
}

Task IsLegalString(const Shared& f, const std::string& corpus) {
  return {"legality, text",
          corpus,
          Bytes(f->utf8),
          f->output,
          0,
          {{"ours", [=] { return OursIsLegal(f->utf8); }},
           {kIcu, [=] { return IcuIsLegal(f->utf8); }},
           {kGlib, [=] { return GlibIsLegal(f->utf8); }},
           {kUtf8cpp, [=] { return CppIsLegal(f->utf8); }}}};
}

Task IsLegalSequence(const Shared& f, const std::string& corpus) {
  return {"legality, sequence",
          corpus,
          Bytes(f->utf8),
          f->output,
          0,
          {{"ours", [=] { return OursWalk(f->utf8); }},
           {kIcu, [=] { return IcuIsLegal(f->utf8); }},
           {kGlib, [=] { return GlibWalk(f->utf8); }},
           {kUtf8cpp, [=] { return CppWalk(f->utf8); }}}};
}

}  // namespace

std::vector<Task> MakeTasks(const Corpus& corpus) {
  const auto forms = std::make_shared<const Forms>(corpus.utf8);
  std::vector<Task> tasks;
  for (const auto make : {Utf8To16, Utf16To8, Utf8To32, Utf32To8, Utf16To32,
                          Utf32To16, IsLegalString, IsLegalSequence}) {
    tasks.push_back(make(forms, corpus.name));
  }
  return tasks;
}

}  // namespace velmohelp::bench
