#include <gtest/gtest.h>

#include "base/text.h"
#include "base/vb_error.h"

namespace tarnwick {
namespace {

using vb::Compare;

TEST(TextSearchTest, InStrGivesOneBasedCharacterPositions) {
  EXPECT_EQ(vb::InStr("Müller.mp3", "."), 7);
  EXPECT_EQ(vb::InStr("Müller.mp3", "x"), 0);
  EXPECT_EQ(vb::InStr(3, "abcabc", "abc"), 4);
  EXPECT_EQ(vb::InStr(4, "abcabc", "abc"), 4);
  EXPECT_EQ(vb::InStr(5, "abcabc", "abc"), 0);
  EXPECT_EQ(vb::InStr("ä€ä€", "€"), 2);
  EXPECT_EQ(vb::InStr(3, "ä€ä€", "€"), 4);
}

TEST(TextSearchTest, InStrEmptyCases) {
  EXPECT_EQ(vb::InStr("", "a"), 0);
  EXPECT_EQ(vb::InStr("", ""), 0);
  EXPECT_EQ(vb::InStr("abc", ""), 1);
  EXPECT_EQ(vb::InStr(3, "abc", ""), 3);
  EXPECT_EQ(vb::InStr(4, "abc", ""), 0);
  EXPECT_THROW(vb::InStr(0, "abc", "a"), VbError);
}

TEST(TextSearchTest, TextCompareFoldsCaseOfAnyLetter) {
  EXPECT_EQ(vb::InStr("MÜLLER", "ül", Compare::kBinary), 0);
  EXPECT_EQ(vb::InStr("MÜLLER", "ül", Compare::kText), 2);
  EXPECT_EQ(vb::InStr("ΣΟΦΙΑ", "φια", Compare::kText), 3);
  EXPECT_EQ(vb::InStr("abcDEF", "cd", Compare::kText), 3);
  // The Kelvin sign folds to "k": an ASCII search must not miss it.
  EXPECT_EQ(vb::InStr("x\u212Ay", "K", Compare::kText), 2);
  EXPECT_EQ(vb::InStr("Grömitz (12).JPG", "(12).jpg", Compare::kText), 9);
}

TEST(TextSearchTest, InvalidBytesMatchOnlyWholeCharacters) {
  // "é" is C3 A9; a lone A9 or C3 is a different character.
  EXPECT_EQ(vb::InStr("é", "\xa9"), 0);
  EXPECT_EQ(vb::InStr("é", "\xc3"), 0);
  EXPECT_EQ(vb::InStr("a\xc3"
                      "b\xa9",
                      "\xa9"),
            4);
  EXPECT_EQ(vb::InStr("a\xc3"
                      "b",
                      "\xc3"
                      "b"),
            2);
  EXPECT_EQ(vb::InStr("x\xff", "\xFF", Compare::kText), 2);
}

TEST(TextSearchTest, InStrRevFindsTheLastMatchEndingBeforeStart) {
  EXPECT_EQ(vb::InStrRev("a.b.c", "."), 4);
  EXPECT_EQ(vb::InStrRev("aaa", "aa"), 2);
  EXPECT_EQ(vb::InStrRev("abcabc", "abc", 5), 1);
  EXPECT_EQ(vb::InStrRev("abcabc", "abc", 6), 4);
  EXPECT_EQ(vb::InStrRev("ä.ö.ü", ".", 3), 2);
  EXPECT_EQ(vb::InStrRev("ÄBC", "ä", -1, Compare::kText), 1);
  EXPECT_EQ(vb::InStrRev("abc", "x"), 0);
  EXPECT_EQ(vb::InStrRev("", "x"), 0);
  EXPECT_EQ(vb::InStrRev("abc", ""), 3);
  EXPECT_EQ(vb::InStrRev("abc", "", 2), 2);
  EXPECT_EQ(vb::InStrRev("abc", "a", 4), 0);
  EXPECT_THROW(vb::InStrRev("abc", "a", 0), VbError);
  EXPECT_THROW(vb::InStrRev("abc", "a", -2), VbError);
}

TEST(TextSearchTest, StrCompAndEqualsText) {
  EXPECT_EQ(vb::StrComp("a", "b"), -1);
  EXPECT_EQ(vb::StrComp("b", "a"), 1);
  EXPECT_EQ(vb::StrComp("ab", "abc"), -1);
  EXPECT_EQ(vb::StrComp("", ""), 0);
  EXPECT_EQ(vb::StrComp("Äpfel", "äpfel"), -1);
  EXPECT_EQ(vb::StrComp("Äpfel", "äPFEL", Compare::kText), 0);
  EXPECT_EQ(vb::StrComp("z", "\xff"), -1);  // an invalid byte sorts last
  EXPECT_TRUE(EqualsText("DateFormat", "dateformat"));
  EXPECT_TRUE(EqualsText("MÜLLER.MP3", "müller.mp3"));
  EXPECT_FALSE(EqualsText("müller", "mueller"));
  EXPECT_FALSE(EqualsText("abc", "abcd"));
  EXPECT_TRUE(EqualsText("\xe9", "\xe9"));
  EXPECT_FALSE(EqualsText("\xe9", "\xc9"));  // bytes have no case
}

TEST(TextSearchTest, ContainsAndStartsWithIgnoreCase) {
  EXPECT_TRUE(ContainsText("{{Uppercasing}}", "CASING"));
  EXPECT_TRUE(ContainsText("Übersicht", "ÜBER"));
  EXPECT_TRUE(ContainsText("", ""));
  EXPECT_FALSE(ContainsText("", "a"));
  EXPECT_FALSE(ContainsText("abc", "abcd"));
  EXPECT_TRUE(StartsWithText("Übersicht", "üb"));
  EXPECT_TRUE(StartsWithText("abc", ""));
  EXPECT_FALSE(StartsWithText("abc", "bc"));
  EXPECT_FALSE(StartsWithText("ab", "abc"));
}

}  // namespace
}  // namespace tarnwick
