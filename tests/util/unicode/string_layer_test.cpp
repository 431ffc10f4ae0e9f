#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <velmohelp/unicode.h>

#include <iterator>
#include <type_traits>

namespace velmohelp {
namespace {

using ::testing::ThrowsMessage;
using Sequence = ITEMInternal::velmo::gen::illegal_utf_sequence;
using ITEMInternal::velmo::gen::convert_utf;

std::string Narrow(const std::wstring& text, bool lenient = false) {
  return convert_utf<std::string>(text, lenient);
}

std::wstring Wide(const std::string& text, bool lenient = false) {
  return convert_utf<std::wstring>(text, lenient);
}

template <typename Text>
Text Times(std::size_t count, const Text& text) {
  Text all;
  while (count-- != 0) all += text;
  return all;
}

TEST(IllegalUtfSequence, IsARuntimeErrorWithItsMessage) {
  static_assert(std::is_base_of_v<std::runtime_error, Sequence>);
  static_assert(std::is_convertible_v<Sequence*, std::runtime_error*>);
  static_assert(std::has_virtual_destructor_v<Sequence>);
  EXPECT_STREQ(Sequence("any text").what(), "any text");
}

TEST(WideToNarrow, JoinsPairs) {
  EXPECT_EQ(Narrow(L"caf\u00E9 \u20AC\xD83D\xDE00"),
            "caf\xC3\xA9 \xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(Narrow(L""), "");
}

TEST(WideToNarrow, CutsEachCharacterToSixteenBits) {
  EXPECT_EQ(Narrow(std::wstring(1, wchar_t{0x1F600})), "\xEF\x98\x80");
  EXPECT_EQ(Narrow(std::wstring(1, wchar_t{0x7FFF0041})), "A");
}

TEST(WideToNarrow, KeepsZeroCharacters) {
  EXPECT_EQ(Narrow(std::wstring(3, L'\0')), std::string(3, '\0'));
}

TEST(WideToNarrow, RefusesALoneSurrogateInStrictModeOnly) {
  const std::wstring text = {L'a', 0xDC00, L'b'};
  EXPECT_THAT([&] { Narrow(text); },
              ThrowsMessage<Sequence>("Bad UTF-16 sequence."));
  EXPECT_EQ(Narrow(text, true),
            "a\xED\xB0\x80"
            "b");
}

TEST(WideToNarrow, ConvertsAHighSurrogateAtTheEndInBothModes) {
  const std::wstring text = {L'a', 0xD800};
  EXPECT_EQ(Narrow(text), "a\xED\xA0\x80");
  EXPECT_EQ(Narrow(text, true), "a\xED\xA0\x80");
}

TEST(WideToNarrow, KeepsCharactersWholeBetweenPieces) {
  for (std::size_t before = 250; before <= 260; ++before) {
    const std::wstring head(before, L'x');
    EXPECT_EQ(
        Narrow(head + Times<std::wstring>(200, {0xD83D, 0xDE00})),
        std::string(before, 'x') + Times<std::string>(200, "\xF0\x9F\x98\x80"));
  }
}

TEST(NarrowToWide, SplitsPairs) {
  EXPECT_EQ(Wide("caf\xC3\xA9 \xE2\x82\xAC\xF0\x9F\x98\x80"),
            L"caf\u00E9 \u20AC\xD83D\xDE00");
  EXPECT_EQ(Wide(""), L"");
  EXPECT_EQ(Wide(std::string(3, '\0')), std::wstring(3, L'\0'));
}

TEST(NarrowToWide, KeepsCharactersWholeBetweenPieces) {
  for (std::size_t before = 250; before <= 260; ++before) {
    EXPECT_EQ(Wide(std::string(before, 'x') +
                   Times<std::string>(400, "\xF0\x9F\x98\x80")),
              std::wstring(before, L'x') +
                  Times<std::wstring>(400, {0xD83D, 0xDE00}));
  }
}

TEST(NarrowToWide, RefusesAnIncompleteTail) {
  for (const bool lenient : {false, true}) {
    for (const std::size_t before : {0U, 3U, 256U, 1000U}) {
      EXPECT_THAT([&] { Wide(std::string(before, 'x') + "\xE2", lenient); },
                  ThrowsMessage<Sequence>("UTF-8 seqence is not complete."));
    }
  }
}

TEST(NarrowToWide, RefusesAnIllegalSequenceInBothModes) {
  for (const bool lenient : {false, true}) {
    EXPECT_THAT([&] { Wide("\xC3\x28", lenient); },
                ThrowsMessage<Sequence>("Bad UTF-8 sequence."));
  }
}

TEST(NarrowToWide, RefusesASurrogateInStrictModeOnly) {
  EXPECT_THAT([] { Wide("\xED\xA0\x80"); },
              ThrowsMessage<Sequence>("Bad UTF-8 sequence."));
  EXPECT_EQ(Wide("\xED\xA0\x80", true), std::wstring(1, 0xD800));
}

TEST(NarrowToWide, RefusesASurrogateAtTheStartOfAPiece) {
  EXPECT_THAT([] { Wide(std::string(256, 'x') + "\xED\xA0\x80"); },
              ThrowsMessage<Sequence>("Bad UTF-8 sequence."));
}

TEST(BoundedNarrow, ReturnsBothPositions) {
  const std::wstring text = L"ab\u20AC";
  char target[4] = {'.', '.', '.', '.'};
  const auto [source, end] =
      convert_utf(text.data(), text.data() + 3, target, target + 4, false);
  EXPECT_EQ(source, text.data() + 2);
  EXPECT_EQ(end, target + 2);
  EXPECT_EQ(std::string(target, 4), "ab..");
}

TEST(BoundedNarrow, NeedsATargetOnlyForASource) {
  char target[1];
  const wchar_t text[] = L"a";
  EXPECT_EQ(convert_utf(text, text, target, target, false),
            std::make_pair(text, target));
  EXPECT_EQ(convert_utf(text, text, static_cast<char*>(nullptr), nullptr, true)
                .second,
            nullptr);
  EXPECT_THAT([&] { convert_utf(text, text + 1, target, target, true); },
              ThrowsMessage<Sequence>("Empty target buffer."));
}

TEST(BoundedNarrow, TreatsInvertedRangesAsEmpty) {
  char target[2] = {'.', '.'};
  const wchar_t text[] = L"ab";
  EXPECT_EQ(convert_utf(text + 2, text, target, target + 2, false),
            std::make_pair(text + 2, target));
  EXPECT_THAT([&] { convert_utf(text, text + 2, target + 2, target, true); },
              ThrowsMessage<Sequence>("Empty target buffer."));
}

TEST(BoundedWide, ReturnsBothPositions) {
  const std::string text = "a\xF0\x9F\x98\x80";
  wchar_t target[2] = {L'.', L'.'};
  const auto [source, end] = convert_utf(text.data(), text.data() + text.size(),
                                         target, target + 2, false);
  EXPECT_EQ(source, text.data() + 1);
  EXPECT_EQ(end, target + 1);
  EXPECT_EQ(target[0], L'a');
  EXPECT_EQ(target[1], L'.');
}

TEST(BoundedWide, StopsBeforeAnIncompleteSequence) {
  const std::string text = "ab\xE2\x82";
  wchar_t target[8];
  const auto [source, end] = convert_utf(text.data(), text.data() + 4, target,
                                         std::end(target), false);
  EXPECT_EQ(source, text.data() + 2);
  EXPECT_EQ(end, target + 2);
}

TEST(BoundedWide, StopsAtAFullTargetBeforeASurrogate) {
  const std::string text = "a\xED\xA0\x80";
  wchar_t target[2];
  const auto [source, end] =
      convert_utf(text.data(), text.data() + 4, target, target + 1, false);
  EXPECT_EQ(source, text.data() + 1);
  EXPECT_EQ(end, target + 1);
  EXPECT_THAT(
      [&] {
        convert_utf(text.data(), text.data() + 4, target, target + 2, false);
      },
      ThrowsMessage<Sequence>("Bad UTF-8 sequence."));
}

TEST(BoundedWide, NeedsATargetOnlyForASource) {
  wchar_t target[1];
  const char text[] = "a";
  EXPECT_EQ(convert_utf(text, text, target, target, false),
            std::make_pair(text, target));
  EXPECT_THAT([&] { convert_utf(text, text + 1, target, target, true); },
              ThrowsMessage<Sequence>("Empty target buffer."));
}

TEST(BoundedWide, TreatsInvertedRangesAsEmpty) {
  wchar_t target[2] = {L'.', L'.'};
  const char text[] = "ab";
  EXPECT_EQ(convert_utf(text + 2, text, target, target + 2, false),
            std::make_pair(text + 2, target));
  EXPECT_THAT([&] { convert_utf(text, text + 2, target + 2, target, true); },
              ThrowsMessage<Sequence>("Empty target buffer."));
}

}  // namespace
}  // namespace velmohelp
