#include <gtest/gtest.h>

#include "base/text.h"
#include "base/utf8.h"
#include "base/vb_error.h"

namespace tarnwick {
namespace {

// "ä" is two bytes, "€" three, "𝄞" four; "\xff" and a lone "\xc3" are
// invalid bytes that count one character each.
constexpr std::string_view kMixed =
    "aä€𝄞\xff"
    "b";

int ErrorNumberOf(void (*call)()) {
  try {
    call();
  } catch (const VbError& e) {
    return e.number();
  }
  return 0;
}

TEST(TextLengthTest, CountsCharactersNotBytes) {
  EXPECT_EQ(vb::Len(""), 0);
  EXPECT_EQ(vb::Len("abc"), 3);
  EXPECT_EQ(vb::Len("müller"), 6);
  EXPECT_EQ(vb::Len(kMixed), 6);
  EXPECT_EQ(vb::Len("\xc3"), 1);
  EXPECT_EQ(vb::Len("\xc3(x"), 3);            // a lead byte without its continuation
  EXPECT_EQ(vb::Len("\xed\xa0\x80"), 3);      // an encoded surrogate is three bad bytes
  EXPECT_EQ(vb::Len("\xc0\xaf"), 2);          // an overlong form too
  EXPECT_EQ(vb::Len("\xf4\x90\x80\x80"), 4);  // beyond U+10FFFF
  EXPECT_EQ(vb::Len("a long ascii name with more than eight bytes.txt"), 48);
}

TEST(TextLengthTest, LeftRightAndMidCutAtCharacters) {
  EXPECT_EQ(vb::Left(kMixed, 3), "aä€");
  EXPECT_EQ(vb::Left(kMixed, 0), "");
  EXPECT_EQ(vb::Left(kMixed, 99), kMixed);
  EXPECT_EQ(vb::Right(kMixed, 2),
            "\xff"
            "b");
  EXPECT_EQ(vb::Right(kMixed, 99), kMixed);
  EXPECT_EQ(vb::Right("abc", 0), "");
  EXPECT_EQ(vb::Mid(kMixed, 2, 3), "ä€𝄞");
  EXPECT_EQ(vb::Mid(kMixed, 5),
            "\xff"
            "b");
  EXPECT_EQ(vb::Mid(kMixed, 7), "");
  EXPECT_EQ(vb::Mid("abc", 2, 0), "");
  EXPECT_EQ(vb::Mid("abc", 3, 10), "c");
}

TEST(TextLengthTest, InvalidBytesSurviveCutting) {
  const std::string name = "caf\xe9.txt";  // a Latin-1 name on a Linux disk
  EXPECT_EQ(vb::Len(name), 8);
  EXPECT_EQ(vb::Left(name, 4), "caf\xe9");
  EXPECT_EQ(vb::Mid(name, 4, 1), "\xe9");
  EXPECT_EQ(vb::Left(name, 4) + vb::Mid(name, 5), name);
}

TEST(TextLengthTest, BadArgumentsRaiseError5) {
  EXPECT_EQ(ErrorNumberOf([] { vb::Left("abc", -1); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { vb::Right("abc", -1); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { vb::Mid("abc", 0); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { vb::Mid("abc", 1, -1); }), 5);
  EXPECT_EQ(ErrorNumberOf([] { vb::Space(-2); }), 5);
  try {
    vb::Mid("abc", 0, 1);
    FAIL();
  } catch (const VbError& e) {
    EXPECT_EQ(e.description(), "Invalid procedure call or argument");
  }
}

TEST(TextLengthTest, SpaceAndReverse) {
  EXPECT_EQ(vb::Space(0), "");
  EXPECT_EQ(vb::Space(3), "   ");
  EXPECT_EQ(vb::StrReverse(""), "");
  EXPECT_EQ(vb::StrReverse("abc"), "cba");
  EXPECT_EQ(vb::StrReverse(kMixed), "b\xff𝄞€äa");
}

TEST(Utf8Test, WalksCharactersWithOffsets) {
  std::vector<std::size_t> offsets;
  std::vector<bool> valid;
  for (auto it = utf8::Chars(kMixed).begin(); it != utf8::Chars(kMixed).end(); ++it) {
    offsets.push_back(it.offset());
    valid.push_back((*it).valid);
  }
  EXPECT_EQ(offsets, (std::vector<std::size_t>{0, 1, 3, 6, 10, 11}));
  EXPECT_EQ(valid, (std::vector<bool>{true, true, true, true, false, true}));
  EXPECT_EQ(utf8::DecodeAt(kMixed, 6).code_point, U'𝄞');
  EXPECT_EQ(utf8::DecodeAt(kMixed, 10).code_point, 0xFFu);
  EXPECT_EQ(utf8::ByteOffsetOf(kMixed, 3), 6u);
  EXPECT_EQ(utf8::ByteOffsetOf(kMixed, 9), kMixed.size());
  EXPECT_EQ(utf8::SplitChars(kMixed),
            (std::vector<std::string_view>{"a", "ä", "€", "𝄞", "\xff", "b"}));
  EXPECT_TRUE(utf8::SplitChars("").empty());
}

TEST(Utf8Test, AppendsOnlyEncodableCodePoints) {
  std::string out;
  utf8::AppendCodePoint(out, U'ä');
  utf8::AppendCodePoint(out, 0xD800);
  utf8::AppendCodePoint(out, 0x110000);
  utf8::AppendCodePoint(out, U'𝄞');
  EXPECT_EQ(out, "ä𝄞");
}

}  // namespace
}  // namespace tarnwick
