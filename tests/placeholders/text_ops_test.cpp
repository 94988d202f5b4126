#include "placeholders/text_ops.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "placeholders/numerals.h"

namespace tarnwick {
namespace {

TEST(TextOpsTest, CasingOfFirstCharacter) {
  EXPECT_EQ(FirstCharUpper("mypicture.jpg"), "Mypicture.jpg");
  EXPECT_EQ(FirstCharLower("MyPicture.jpg"), "myPicture.jpg");
  EXPECT_EQ(FirstCharUpper("über"), "Über");
  // A leading blank has no upper case: nothing visible changes.
  EXPECT_EQ(FirstCharUpper(" müller"), " müller");
  EXPECT_EQ(FirstCharUpper(""), "");
}

TEST(TextOpsTest, SwapCasingKeepsCaselessCharacters) {
  EXPECT_EQ(SwapCasing("fRANZ mÜllER"), "Franz MüLLer");
  EXPECT_EQ(SwapCasing("a1-B_ß"), "A1-b_ß");
  EXPECT_EQ(SwapCasing("x\xff"
                       "Y"),
            "X\xff"
            "y");
}

TEST(TextOpsTest, RemovingNumbersLettersAndBrackets) {
  EXPECT_EQ(RemoveNumbers("12 Oakhollow"), " Oakhollow");
  EXPECT_EQ(RemoveNumbers("a1b2c3.mp3"), "abc.mp");
  // A blank behind digits stays, and letters outside A to Z stay.
  EXPECT_EQ(RemoveChars("12 Oakhollow"), "12 ");
  EXPECT_EQ(RemoveChars("Müller 7.JPG"), "ü 7.");
  EXPECT_EQ(RemoveBrackets("(a)[b]{c}"), "abc");
  EXPECT_EQ(RemoveBrackets("{{get_jpg_exif_Flash}}"), "get_jpg_exif_Flash");
}

TEST(TextOpsTest, RemoveRepeatedCharsDropsEveryRepetition) {
  EXPECT_EQ(RemoveRepeatedChars("Hello World", false), "Helo Wrd");
  EXPECT_EQ(RemoveRepeatedChars("AABBCC", false), "ABC");
  EXPECT_EQ(RemoveRepeatedChars("abcabc", false), "abc");
  EXPECT_EQ(RemoveRepeatedChars("aA", false), "a");
  EXPECT_EQ(RemoveRepeatedChars("äÄö", false), "äö");
  EXPECT_EQ(RemoveRepeatedChars("abcAbC", true), "ABC");
  EXPECT_EQ(RemoveRepeatedChars("", false), "");
  int yields = 0;
  EXPECT_EQ(RemoveRepeatedChars("xäx", false, [&] { ++yields; }), "xä");
  EXPECT_EQ(yields, 3);
}

TEST(TextOpsTest, AnsiAndOemConversionsGoThroughTheBytes) {
  // "ö" is 0xF6 in Windows-1252 and 0x94 in code page 850; 0x94 reads back
  // as a closing quotation mark in Windows-1252.
  EXPECT_EQ(ConvertAnsiToOem("Schröder"), "Schr\u201dder");
  EXPECT_EQ(ConvertOemToAnsi("Schr\u201dder"), "Schröder");
  EXPECT_EQ(ConvertOemToAnsi(ConvertAnsiToOem("Müller Äpfel ß")), "Müller Äpfel ß");
  EXPECT_EQ(ConvertAnsiToOem("plain ASCII 123"), "plain ASCII 123");
  // Characters outside the code page are kept as they are.
  EXPECT_EQ(ConvertAnsiToOem("日本"), "日本");
  EXPECT_EQ(ConvertOemToAnsi("Ā"), "Ā");
}

TEST(TextOpsTest, OemToAnsiReadsEveryAnsiByte) {
  // 0x81 is undefined in Windows-1252 and stands for U+0081; as an OEM byte it
  // is "ü", as OemToChar gives it.
  EXPECT_EQ(ConvertOemToAnsi("\u0081"), "ü");
  EXPECT_EQ(ConvertAnsiToOem("\u0081"), "\u0081");
}

TEST(TextOpsTest, LatinOneBytesSurviveTheTextOperations) {
  // A name from a Latin-1 disk: "\xe9" is not UTF-8 and is one character.
  const std::string name = "caf\xe9 12.txt";
  EXPECT_EQ(MakeZeroMask(name), "00000000000");
  EXPECT_EQ(ReverseKeepingExtension(name, ".txt"),
            "21 \xe9"
            "fac.txt");
  EXPECT_EQ(RemoveDotsKeepingExtension(name, ".txt"), name);
  EXPECT_EQ(TrimRightKeepingExtension("caf\xe9  .txt", ".txt"), "caf\xe9.txt");
  EXPECT_EQ(FirstNumber(name), "12");
  EXPECT_EQ(FirstNumber(name, 7), "2");
  EXPECT_EQ(ProperCase(name), "Caf\xe9 12.Txt");
  EXPECT_EQ(ConvertUmlauts("M\xfcller ä"), "M\xfcller ae");
  EXPECT_EQ(ConvertAnsiToOem(name), name);
  EXPECT_EQ(RemoveRepeatedChars("\xe9\xe9\xc9", false), "\xe9\xc9");
}

TEST(TextOpsTest, UmlautsAreSpelledOutCaseSensitively) {
  EXPECT_EQ(ConvertUmlauts("Ä"), "Ae");
  EXPECT_EQ(ConvertUmlauts("ÄÖ"), "AeOe");
  EXPECT_EQ(ConvertUmlauts("MÜLLER"), "MUeLLER");
  EXPECT_EQ(ConvertUmlauts("Größe über"), "Groesse ueber");
  EXPECT_EQ(ConvertUmlauts("é"), "é");
}

TEST(TextOpsTest, ReverseProperCaseRespaceAndCamelCase) {
  EXPECT_EQ(ReverseText("abc"), "cba");
  EXPECT_EQ(ReverseText("äbc"), "cbä");
  EXPECT_EQ(ProperCase("this is crap"), "This Is Crap");
  EXPECT_EQ(ProperCase("hELLO-wORLD_foo"), "Hello-World_Foo");
  EXPECT_EQ(ProperCase("o'neil 2nd ärger"), "O'neil 2nd Ärger");
  EXPECT_EQ(RemoveDoubleBlanks("Too   much"), "Too much");
  EXPECT_EQ(RemoveDoubleBlanks("  a  b "), " a b ");
  EXPECT_EQ(CamelCase("camelcasing"), "cAmElCaSiNg");
  EXPECT_EQ(CamelCase("CAMEL casing"), "cAmEl CaSiNg");
}

TEST(TextOpsTest, FirstNumber) {
  EXPECT_EQ(FirstNumber("Track 54 of 99"), "54");
  EXPECT_EQ(FirstNumber("no digits"), "");
  EXPECT_EQ(FirstNumber("a12b34", 4), "34");
  EXPECT_EQ(FirstNumber("ä1"), "1");
  EXPECT_EQ(FirstNumber("007 Bond"), "007");
}

TEST(TextOpsTest, ZeroMaskCountsCharacters) {
  EXPECT_EQ(MakeZeroMask("001"), "000");
  EXPECT_EQ(MakeZeroMask("äöü"), "000");
  EXPECT_EQ(MakeZeroMask(""), "");
  EXPECT_EQ(DynamicZeroMask(1500), "0000");
  EXPECT_EQ(DynamicZeroMask(3), "0");
  EXPECT_EQ(DynamicZeroMask(0), "0");
}

TEST(TextOpsTest, TrimRightKeepsTheExtension) {
  EXPECT_EQ(TrimRightKeepingExtension("abc  .txt", ".txt"), "abc.txt");
  // Kept: without an extension the trailing blanks stay.
  EXPECT_EQ(TrimRightKeepingExtension("abc  ", ""), "abc  ");
  // Kept: leading blanks shorten the count and cut into the base.
  EXPECT_EQ(TrimRightKeepingExtension("  abc.txt", ".txt"), "  a.txt");
  EXPECT_EQ(TrimRightKeepingExtension("  abc  .txt", ".txt"), "  abc.txt");
}

TEST(TextOpsTest, RemoveDotsAndReverseKeepTheExtension) {
  EXPECT_EQ(RemoveDotsKeepingExtension("a.b.c", ".c"), "ab.c");
  EXPECT_EQ(RemoveDotsKeepingExtension("a.b.", ""), "ab");
  EXPECT_EQ(ReverseKeepingExtension("abc.txt", ".txt"), "cba.txt");
  EXPECT_EQ(ReverseKeepingExtension("abc", ""), "cba");
}

TEST(TextOpsTest, NumberWordsReplaceTheFirstNumberOfTheBase) {
  EXPECT_EQ(ReplaceFirstNumberWithWords("54", "", NumberLanguage::kGerman), "vierundfünfzig");
  EXPECT_EQ(ReplaceFirstNumberWithWords("Track 54.mp3", ".mp3", NumberLanguage::kEnglish),
            "Track fifty four.mp3");
  // Every occurrence of the digit string is replaced, also inside other numbers.
  EXPECT_EQ(ReplaceFirstNumberWithWords("5 x 15.txt", ".txt", NumberLanguage::kEnglish),
            "five x 1five.txt");
  // The extension's digits are not the base's number.
  EXPECT_EQ(ReplaceFirstNumberWithWords("song.mp3", ".mp3", NumberLanguage::kEnglish), "song.mp3");
  EXPECT_EQ(ReplaceFirstNumberWithWords("", "", NumberLanguage::kGerman), "");
  EXPECT_FALSE(ReplaceFirstNumberWithWords("1234567890123456789012", "", NumberLanguage::kGerman)
                   .has_value());
}

TEST(NumeralsTest, CounterNumberSystems) {
  EXPECT_EQ(ToHexadecimal(693), "2B5");
  EXPECT_EQ(ToOctal(255), "377");
  EXPECT_EQ(ToBinary(121), "1111001");
  EXPECT_EQ(ToBinary(0), "0");
  EXPECT_EQ(ToHexadecimal(2147483648u), "80000000");
  EXPECT_EQ(ToRoman(15), "XV");
  EXPECT_EQ(ToRoman(1994), "MCMXCIV");
  EXPECT_EQ(ToRoman(3999), "MMMCMXCIX");
  EXPECT_EQ(ToRoman(0), "");
  EXPECT_FALSE(ToRoman(4000).has_value());
}

// Steps the counter `steps` times from `start` with a counter of 2 or more.
std::vector<std::string> Steps(std::string start, bool alphanumeric, int steps) {
  std::vector<std::string> values;
  for (int i = 0; i < steps; ++i) {
    const std::optional<CharCountStep> step = NextCharCount(start, alphanumeric, 5);
    if (!step) break;
    start = step->counter_text;
    values.push_back(step->value);
  }
  return values;
}

TEST(CharCountTest, StartValueBelowTwo) {
  EXPECT_EQ(NextCharCount("Q", false, 1)->value, "A");
  EXPECT_EQ(NextCharCount("", true, 0)->counter_text, "A0");
  EXPECT_EQ(NextCharCount("", false, -7)->value, "A");
}

TEST(CharCountTest, OneLetterCounterWrapsAndNeverGrows) {
  EXPECT_EQ(Steps("A", false, 3), (std::vector<std::string>{"B", "C", "D"}));
  EXPECT_EQ(Steps("Y", false, 3), (std::vector<std::string>{"Z", "A", "B"}));
}

TEST(CharCountTest, TwoLetterSequences) {
  EXPECT_EQ(Steps("AZ", false, 2), (std::vector<std::string>{"BA", "BB"}));
  EXPECT_EQ(Steps("ZZ", false, 1), (std::vector<std::string>{"AAA"}));
  EXPECT_EQ(Steps("A0", true, 1), (std::vector<std::string>{"A1"}));
  EXPECT_EQ(Steps("A9", true, 2), (std::vector<std::string>{"AA", "AB"}));
  EXPECT_EQ(Steps("AZ", true, 1), (std::vector<std::string>{"B0"}));
  EXPECT_EQ(Steps("ZZ", true, 2), (std::vector<std::string>{"100", "101"}));
  EXPECT_EQ(Steps("az", false, 1), (std::vector<std::string>{"BA"}));
}

TEST(CharCountTest, LongerCountersKeepTheirOddCarry) {
  // Kept: a step that settles below the last position drops what follows.
  EXPECT_EQ(Steps("10Z", true, 1), (std::vector<std::string>{"11"}));
  EXPECT_EQ(Steps("AZZ", false, 1), (std::vector<std::string>{"BAA"}));
  EXPECT_EQ(Steps(" B ", false, 1), (std::vector<std::string>{"C"}));
}

TEST(CharCountTest, SpecialStates) {
  const std::optional<CharCountStep> stopped = NextCharCount("-1", false, 5);
  ASSERT_TRUE(stopped.has_value());
  EXPECT_EQ(stopped->value, "");
  EXPECT_EQ(stopped->counter_text, "-1");
  // Kept: a run that starts at 2 or more has an empty counter, which faults.
  EXPECT_FALSE(NextCharCount("", false, 2).has_value());
  EXPECT_FALSE(NextCharCount("   ", true, 9).has_value());
}

}  // namespace
}  // namespace tarnwick
