#include "placeholders/regex_token.h"

#include <gtest/gtest.h>

#include "base/vb_error.h"

namespace tarnwick {
namespace {

TEST(RegExReplaceTest, ReplacesEveryMatchWithScriptStyleReferences) {
  EXPECT_EQ(RegExReplace("a1b22c333", "[0-9]+", "#", false), "a#b#c#");
  EXPECT_EQ(RegExReplace("John Smith", "(\\w+) (\\w+)", "$2, $1", false), "Smith, John");
  EXPECT_EQ(RegExReplace("abc", "b", "[$&]", false), "a[b]c");
  EXPECT_EQ(RegExReplace("abc", "b", "$`|$'", false), "aa|cc");
  EXPECT_EQ(RegExReplace("abc", "b", "$$", false), "a$c");
  EXPECT_EQ(RegExReplace("abc", "b", "$", false), "a$c");
  // A group the pattern lacks stands as typed; $12 falls back to $1 and "2".
  EXPECT_EQ(RegExReplace("abc", "(b)", "$3$0$12", false), "a$3$0b2c");
  EXPECT_EQ(RegExReplace("abc", "(x)?b", "<$1>", false), "a<>c");
  EXPECT_EQ(RegExReplace("abcdefghijkl", "(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)(k)", "$11$10", false),
            "kjl");
}

TEST(RegExReplaceTest, EmptyMatchesMoveOnByOneCharacter) {
  EXPECT_EQ(RegExReplace("abc", "x*", "-", false), "-a-b-c-");
  EXPECT_EQ(RegExReplace("abc", "b*", "-", false), "-a--c-");
  EXPECT_EQ(RegExReplace("\xC3\xA4\xC3\xB6", "", "|", false), "|\xC3\xA4|\xC3\xB6|");
  EXPECT_EQ(RegExReplace("", "", "x", false), "x");
}

TEST(RegExReplaceTest, CasingFollowsTheFlagIncludingUmlauts) {
  EXPECT_EQ(RegExReplace("ABC abc", "abc", "x", false), "ABC x");
  EXPECT_EQ(RegExReplace("ABC abc", "abc", "x", true), "x x");
  EXPECT_EQ(RegExReplace("M\xC3\x9C"
                         "LLER",
                         "\xC3\xBC", "ue", true),
            "MueLLER");
}

TEST(RegExReplaceTest, BytesThatAreNotUtf8PassThrough) {
  EXPECT_EQ(RegExReplace("a\xFF"
                         "b",
                         "b", "c", false),
            "a\xFF"
            "c");
  EXPECT_EQ(RegExReplace("\xFF\xFE", ".", "x", false), "\xFF\xFE");
  EXPECT_EQ(RegExReplace("\xFF", "", "-", false), "-\xFF-");
}

TEST(RegExReplaceTest, BadPatternsAndRunawayPatternsRaise) {
  try {
    RegExReplace("abc", "(a", "x", false);
    FAIL() << "no error";
  } catch (const VbError& error) {
    EXPECT_EQ(error.number(), 5017);
  }
  const std::string subject(5000, 'a');
  try {
    RegExReplace(subject + "b", "(a|aa)+$", "x", false);
    FAIL() << "no error";
  } catch (const VbError& error) {
    EXPECT_EQ(error.number(), 28);
  }
  // The cache keeps a compiled pattern per flag: both flags still work.
  EXPECT_EQ(RegExReplace("Aa", "a", "x", true), "xx");
  EXPECT_EQ(RegExReplace("Aa", "a", "x", false), "Ax");
}

}  // namespace
}  // namespace tarnwick
