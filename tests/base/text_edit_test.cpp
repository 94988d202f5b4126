#include <gtest/gtest.h>

#include "base/text.h"
#include "base/vb_error.h"

namespace tarnwick {
namespace {

using vb::Compare;

TEST(TextReplaceTest, ReplacesAllOrCountedOccurrences) {
  EXPECT_EQ(vb::Replace("a-b-c", "-", "+"), "a+b+c");
  EXPECT_EQ(vb::Replace("a-b-c", "-", ""), "abc");
  EXPECT_EQ(vb::Replace("a-b-c", "-", "+", 1, 1), "a+b-c");
  EXPECT_EQ(vb::Replace("aaaa", "aa", "b"), "bb");
  EXPECT_EQ(vb::Replace("aaa", "a", "aa"), "aaaaaa");  // no rescanning of inserted text
  EXPECT_EQ(vb::Replace("a.b", "x", "y"), "a.b");
}

TEST(TextReplaceTest, ResultStartsAtStart) {
  EXPECT_EQ(vb::Replace("ä-b-c", "-", "+", 3), "b+c");
  EXPECT_EQ(vb::Replace("abc", "b", "x", 4), "");
  EXPECT_EQ(vb::Replace("abc", "", "x", 2), "bc");
  EXPECT_EQ(vb::Replace("abc", "b", "x", 1, 0), "abc");
  EXPECT_EQ(vb::Replace("", "a", "b"), "");
  EXPECT_THROW(vb::Replace("abc", "b", "x", 0), VbError);
  EXPECT_THROW(vb::Replace("abc", "b", "x", 1, -2), VbError);
}

TEST(TextReplaceTest, TextCompareOnNonAsciiText) {
  EXPECT_EQ(vb::Replace("ÄRGER ärger Ärger", "ärger", "x", 1, -1, Compare::kText), "x x x");
  EXPECT_EQ(vb::Replace("ÄRGER ärger", "ärger", "x"), "ÄRGER x");
  EXPECT_EQ(vb::Replace("Straße STRASSE", "straße", "-", 1, -1, Compare::kText), "- STRASSE");
  // Folding can change byte lengths ("ſ" is two bytes, "s" one); the text
  // around the match must stay whole.
  EXPECT_EQ(vb::Replace("aſb", "S", "_", 1, -1, Compare::kText), "a_b");
}

TEST(TextReplaceTest, InvalidBytesPassThrough) {
  EXPECT_EQ(vb::Replace("caf\xe9 caf\xe9", " ", "_"), "caf\xe9_caf\xe9");
  EXPECT_EQ(vb::Replace("caf\xe9", "\xe9", "é"), "café");
  EXPECT_EQ(vb::Replace("é", "\xa9", "x"), "é");
  EXPECT_EQ(vb::Replace("X\xe9Y", "xy", "-", 1, -1, Compare::kText), "X\xe9Y");
}

TEST(TextSplitTest, SplitsLikeTheRuntime) {
  using Parts = std::vector<std::string>;
  EXPECT_EQ(vb::Split("a b c"), (Parts{"a", "b", "c"}));
  EXPECT_EQ(vb::Split("1 - 2 - 3", "-"), (Parts{"1 ", " 2 ", " 3"}));
  EXPECT_EQ(vb::Split("a--b", "-"), (Parts{"a", "", "b"}));
  EXPECT_EQ(vb::Split("-a-", "-"), (Parts{"", "a", ""}));
  EXPECT_EQ(vb::Split("a-b-c", "-", 2), (Parts{"a", "b-c"}));
  EXPECT_EQ(vb::Split("a-b-c", "-", 1), (Parts{"a-b-c"}));
  EXPECT_EQ(vb::Split("a-b-c", "-", 0), Parts{});
  EXPECT_EQ(vb::Split("", "-"), Parts{});
  EXPECT_EQ(vb::Split("abc", ""), (Parts{"abc"}));
  EXPECT_EQ(vb::Split("aXbxc", "x", -1, Compare::kText), (Parts{"a", "b", "c"}));
  EXPECT_EQ(vb::Split("ä##ö", "##"), (Parts{"ä", "ö"}));
  EXPECT_THROW(vb::Split("abc", "b", -2), VbError);
}

TEST(TextSplitTest, JoinUndoesSplit) {
  for (std::string_view text : {"a-b-c", "-", "--x--", "ä-€-\xff"}) {
    EXPECT_EQ(vb::Join(vb::Split(text, "-"), "-"), text);
  }
  EXPECT_EQ(vb::Join({}, "-"), "");
  EXPECT_EQ(vb::Join({"a", "b"}), "a b");
}

TEST(TextTrimTest, TrimsBlanksOnly) {
  EXPECT_EQ(vb::Trim("  a b  "), "a b");
  EXPECT_EQ(vb::LTrim("  a b  "), "a b  ");
  EXPECT_EQ(vb::RTrim("  a b  "), "  a b");
  EXPECT_EQ(vb::Trim("   "), "");
  EXPECT_EQ(vb::LTrim(""), "");
  EXPECT_EQ(vb::Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(vb::Trim(" \xa0x\xa0 "), "\xa0x\xa0");
}

TEST(TextTrimTest, StripAtNullCutsOrTrims) {
  EXPECT_EQ(StripAtNull(std::string_view(" Title \0junk", 12)), " Title ");
  EXPECT_EQ(StripAtNull(std::string_view("\0abc", 4)), "");
  EXPECT_EQ(StripAtNull("  Artist  "), "Artist");
  EXPECT_EQ(StripAtNull(""), "");
}

TEST(TextCaseTest, MapsEachCharacterAndKeepsLength) {
  EXPECT_EQ(vb::UCase("müller"), "MÜLLER");
  EXPECT_EQ(vb::LCase("MÜLLER"), "müller");
  EXPECT_EQ(vb::UCase("straße"), "STRAßE");  // one character stays one
  EXPECT_EQ(vb::UCase("ǆemal"), "ǄEMAL");
  EXPECT_EQ(vb::LCase("ΣΟΦΙΑ"), "σοφια");
  EXPECT_EQ(vb::UCase("abc123-_"), "ABC123-_");
  for (std::string_view text : {"straße", "ıi", "ǆ", "ﬀ"}) {
    EXPECT_EQ(vb::Len(vb::UCase(text)), vb::Len(text)) << text;
  }
}

TEST(TextCaseTest, InvalidBytesKeepTheirValue) {
  EXPECT_EQ(vb::UCase("caf\xe9"), "CAF\xe9");
  EXPECT_EQ(vb::LCase("CAF\xc9"), "caf\xc9");
  EXPECT_EQ(vb::UCase("\xc3"
                      "a"),
            "\xc3"
            "A");
}

}  // namespace
}  // namespace tarnwick
