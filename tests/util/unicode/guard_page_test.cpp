// Source and target that end where the memory does: one access past either end
// is a fault, in every build.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <string>

#include "tests/support/sentence.h"
#include "tests/support/unicode_compare.h"

namespace velmohelp::testing {
namespace {

/// Room for units whose end is followed by a page that nobody may touch.
template <typename Unit>
class GuardedBuffer {
 public:
  GuardedBuffer() {
    map_ = static_cast<char*>(mmap(nullptr, 2 * page_, PROT_READ | PROT_WRITE,
                                   MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    guarded_ = map_ != MAP_FAILED && mprotect(map_ + page_, page_, 0) == 0;
  }
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;
  ~GuardedBuffer() { munmap(map_, 2 * page_); }

  bool guarded() const { return guarded_; }

  /// The last units before the guard page. They have less than a page.
  Unit* Last(std::size_t units) {
    return reinterpret_cast<Unit*>(map_ + page_) - units;
  }

 private:
  std::size_t page_ = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  char* map_;
  bool guarded_;
};

template <typename D>
void ExpectAgreementAtTheEnds(const D& direction,
                              const std::vector<typename D::Source>& text) {
  GuardedBuffer<typename D::Source> sources;
  GuardedBuffer<typename D::Target> targets;
  ASSERT_TRUE(sources.guarded() && targets.guarded());
  std::vector<typename D::Target> expected(4 * text.size());
  for (std::size_t size = 0; size <= text.size(); ++size) {
    auto* source = sources.Last(size);
    std::copy_n(text.begin(), size, source);
    for (std::size_t room = 0; room <= expected.size(); ++room) {
      auto* target = targets.Last(room);
      const Outcome outcome =
          RunReal(direction, source, size, target, room, kConversionStrict);
      const Outcome oracle =
          direction.oracle(source, size, expected.data(), room, false);
      ASSERT_EQ(outcome, oracle)
          << direction.name << " " << size << " " << room;
      ASSERT_TRUE(
          std::equal(target, target + outcome.produced, expected.begin()))
          << direction.name << " " << size << " " << room;
      if (oracle.result != kConversionTargetExhausted) break;
    }
  }
}

/// The same text in the source units of a direction.
template <typename Unit, typename D>
std::vector<Unit> From(const D& direction, const std::vector<ITEMUTF8>& text) {
  std::vector<Unit> units(text.size());
  units.resize(
      direction
          .oracle(text.data(), text.size(), units.data(), units.size(), false)
          .produced);
  return units;
}

struct Pattern {
  const char* sentence;
  std::string text;
  std::size_t times;
};

class AtTheEndOfMemory : public ::testing::TestWithParam<Pattern> {
 protected:
  static std::vector<ITEMUTF8> Text() {
    std::string text;
    for (std::size_t i = 0; i < GetParam().times; ++i) text += GetParam().text;
    return {text.begin(), text.end()};
  }
};

TEST_P(AtTheEndOfMemory, NothingPastTheEndsIsTouched) {
  const auto utf8 = Text();
  const auto utf16 = From<ITEMUTF16>(kUtf8To16, utf8);
  const auto utf32 = From<ITEMUTF32>(kUtf8To32, utf8);
  ExpectAgreementAtTheEnds(kUtf8To16, utf8);
  ExpectAgreementAtTheEnds(kUtf8To32, utf8);
  ExpectAgreementAtTheEnds(kUtf16To8, utf16);
  ExpectAgreementAtTheEnds(kUtf16To32, utf16);
  ExpectAgreementAtTheEnds(kUtf32To8, utf32);
  ExpectAgreementAtTheEnds(kUtf32To16, utf32);
}

INSTANTIATE_TEST_SUITE_P(
    Text, AtTheEndOfMemory,
    ::testing::Values(
        Pattern{.sentence = "ASCII", .text = "abcdefgh", .times = 10},
        Pattern{.sentence = "Latin with few accents",
                .text = "abcdefghijklm\xC3\xA9",
                .times = 5},
        Pattern{.sentence = "CJK", .text = "\xE4\xB8\xAD", .times = 24},
        Pattern{.sentence = "emoji", .text = "\xF0\x9F\x98\x80", .times = 18},
        Pattern{.sentence = "a mixture",
                .text = "x\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80zz",
                .times = 6}),
    SentenceOf());

}  // namespace
}  // namespace velmohelp::testing
