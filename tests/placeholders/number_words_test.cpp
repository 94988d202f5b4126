#include "placeholders/number_words.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace tarnwick {
namespace {

std::string German(std::string_view digits) {
  return NumberToGermanWords(digits).value_or("<none>");
}
std::string English(std::string_view digits) {
  return NumberToEnglishWords(digits).value_or("<none>");
}

TEST(NumberWordsTest, CatalogueSamples) {
  EXPECT_EQ(German("54"), "vierundfünfzig");
  EXPECT_EQ(English("54"), "fifty four");
}

TEST(NumberWordsTest, GermanSmallNumbersAndCompounds) {
  EXPECT_EQ(German("0"), "null");
  EXPECT_EQ(German("1"), "eins");
  EXPECT_EQ(German("12"), "zwölf");
  EXPECT_EQ(German("17"), "siebzehn");
  EXPECT_EQ(German("20"), "zwanzig");
  EXPECT_EQ(German("21"), "einundzwanzig");
  EXPECT_EQ(German("30"), "dreißig");
  EXPECT_EQ(German("66"), "sechsundsechzig");
  EXPECT_EQ(German("77"), "siebenundsiebzig");
  EXPECT_EQ(German("100"), "einhundert");
  EXPECT_EQ(German("101"), "einhunderteins");
  EXPECT_EQ(German("111"), "einhundertelf");
  EXPECT_EQ(German("999"), "neunhundertneunundneunzig");
}

TEST(NumberWordsTest, GermanThousandsAndScales) {
  EXPECT_EQ(German("1000"), "eintausend");
  EXPECT_EQ(German("1001"), "eintausendeins");
  EXPECT_EQ(German("2100"), "zweitausendeinhundert");
  EXPECT_EQ(German("21000"), "einundzwanzigtausend");
  EXPECT_EQ(German("101000"), "einhunderteintausend");
  EXPECT_EQ(German("1000000"), "eine Million");
  EXPECT_EQ(German("1000001"), "eine Million eins");
  EXPECT_EQ(German("2000000"), "zwei Millionen");
  EXPECT_EQ(German("1200000"), "eine Million zweihunderttausend");
  EXPECT_EQ(German("21000000"), "einundzwanzig Millionen");
  EXPECT_EQ(German("101000000"), "einhunderteine Million");
  EXPECT_EQ(German("1000000000"), "eine Milliarde");
  EXPECT_EQ(German("3000000000000"), "drei Billionen");
  EXPECT_EQ(German("1000000000000000"), "eine Billiarde");
  EXPECT_EQ(German("5000000000000000000"), "fünf Trillionen");
}

TEST(NumberWordsTest, EnglishGroupsAndScales) {
  EXPECT_EQ(English("0"), "zero");
  EXPECT_EQ(English("13"), "thirteen");
  EXPECT_EQ(English("40"), "forty");
  EXPECT_EQ(English("123"), "one hundred twenty three");
  EXPECT_EQ(English("1005"), "one thousand five");
  EXPECT_EQ(English("2300000"), "two million three hundred thousand");
  EXPECT_EQ(English("1000000000"), "one billion");
  EXPECT_EQ(English("999999999999999999999"),
            "nine hundred ninety nine quintillion nine hundred ninety nine quadrillion nine "
            "hundred ninety nine trillion nine hundred ninety nine billion nine hundred ninety "
            "nine million nine hundred ninety nine thousand nine hundred ninety nine");
}

TEST(NumberWordsTest, LeadingZerosAndSigns) {
  EXPECT_EQ(German("007"), "sieben");
  EXPECT_EQ(English("000"), "zero");
  EXPECT_EQ(English("-5"), "minus five");
  EXPECT_EQ(German("-21"), "minus einundzwanzig");
  EXPECT_EQ(German("-0"), "null");
  EXPECT_EQ(English("0000000000000000000000000042"), "forty two");
}

TEST(NumberWordsTest, EmptyNonNumberAndTooLarge) {
  EXPECT_EQ(German(""), "");
  EXPECT_EQ(English(""), "");
  EXPECT_FALSE(NumberToGermanWords("12a").has_value());
  EXPECT_FALSE(NumberToEnglishWords("-").has_value());
  EXPECT_FALSE(NumberToEnglishWords(" 1").has_value());
  EXPECT_FALSE(NumberToGermanWords("1000000000000000000000").has_value());
}

TEST(NumberWordsTest, WholeSigned64BitRange) {
  constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();
  constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
  EXPECT_EQ(NumberToEnglishWords(kMax),
            "nine quintillion two hundred twenty three quadrillion three hundred seventy two "
            "trillion thirty six billion eight hundred fifty four million seven hundred seventy "
            "five thousand eight hundred seven");
  EXPECT_EQ(NumberToEnglishWords(kMin), "minus " + English("9223372036854775808"));
  EXPECT_EQ(NumberToGermanWords(kMax).substr(0, 22), "neun Trillionen zweihu");
  EXPECT_EQ(NumberToGermanWords(std::int64_t{54}), "vierundfünfzig");
}

}  // namespace
}  // namespace tarnwick
