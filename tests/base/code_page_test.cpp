#include "base/code_page.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace tarnwick {
namespace {

const SingleByteCodePage& Ansi() { return SingleByteCodePage::Windows1252(); }
const SingleByteCodePage& Oem() { return SingleByteCodePage::Oem850(); }

TEST(CodePageTest, KnowsTheBytesOfBothCodePages) {
  EXPECT_EQ(Ansi().ByteOf(U'ö'), 0xF6);
  EXPECT_EQ(Ansi().ByteOf(U'€'), 0x80);
  EXPECT_EQ(Ansi().ByteOf(U'A'), 0x41);
  EXPECT_EQ(Ansi().ByteOf(U'╔'), std::nullopt);
  EXPECT_EQ(Oem().ByteOf(U'ö'), 0x94);
  EXPECT_EQ(Oem().ByteOf(U'╔'), 0xC9);
  EXPECT_EQ(Oem().ByteOf(U'€'), std::nullopt);
  EXPECT_EQ(Ansi().TextOf(0xE9), "é");
  EXPECT_EQ(Oem().TextOf(0x81), "ü");
  // Undefined in Windows-1252: the C1 control of the same value.
  EXPECT_EQ(Ansi().TextOf(0x81), "\u0081");
  // ASCII controls stay themselves in 850 too.
  EXPECT_EQ(Oem().ByteOf(0x7F), 0x7F);
  EXPECT_EQ(Oem().TextOf(0x1A), "\x1a");
}

TEST(CodePageTest, EveryByteReadsBackAsItself) {
  for (const SingleByteCodePage* page : {&Ansi(), &Oem()}) {
    for (int b = 0; b < 256; ++b) {
      const std::string& text = page->TextOf(static_cast<unsigned char>(b));
      ASSERT_FALSE(text.empty()) << b;
      EXPECT_EQ(vb::Len(text), 1) << b;
      EXPECT_EQ(page->Encode(text), std::string(1, static_cast<char>(b))) << b;
    }
  }
}

TEST(CodePageTest, EncodesOneBytePerCharacterInsideTheCodePage) {
  EXPECT_EQ(Ansi().Encode("Müller €5.txt"),
            "M\xfcller \x80"
            "5.txt");
  EXPECT_EQ(Oem().Encode("Müller"), "M\x81ller");
  EXPECT_EQ(Ansi().Decode("M\xfcller \x80"
                          "5.txt"),
            "Müller €5.txt");
  EXPECT_EQ(Oem().Decode("M\x81ller"), "Müller");
}

TEST(CodePageTest, KeepsCharactersOutsideTheCodePageAsUtf8) {
  EXPECT_EQ(Ansi().Encode("Ω-ö"), "Ω-\xf6");
  EXPECT_EQ(Ansi().Decode("Ω-\xf6"), "Ω-ö");
  for (std::string_view text :
       {"日本語.txt", "Ωmega ö €", "𝄞 music", "Ä ß Ø ñ", "é", "plain", "", "Łódź"}) {
    EXPECT_EQ(Ansi().Decode(Ansi().Encode(text)), text) << text;
    EXPECT_EQ(Oem().Decode(Oem().Encode(text)), text) << text;
  }
}

TEST(CodePageTest, ReadsUtf8OfACodePageCharacterAsCodePageBytes) {
  // "é" written by a writer would be the byte E9; its UTF-8 form C3 A9 can
  // only mean the two characters of those bytes.
  EXPECT_EQ(Ansi().Decode("\xc3\xa9"), "Ã©");
  EXPECT_EQ(Oem().Decode("\xc3\xa9"), "├®");
}

TEST(CodePageTest, PairsThatSpellUtf8OfAForeignCharacterAreTheLimit) {
  EXPECT_EQ(Ansi().Decode(Ansi().Encode("Ã©")), "Ã©");
  EXPECT_EQ(Ansi().Encode("É’"), Ansi().Encode("\u0252"));
  EXPECT_EQ(Ansi().Decode(Ansi().Encode("É’")), "\u0252");
  EXPECT_EQ(Oem().Decode(Oem().Encode("Ã©")), "Ǹ");
}

TEST(CodePageTest, InvalidBytesAreWrittenAsTheyStand) {
  EXPECT_EQ(Ansi().Encode("caf\xe9"), "caf\xe9");
  EXPECT_EQ(Ansi().Decode(Ansi().Encode("caf\xe9")), "café");
}

TEST(AnsiOemTest, ShowsTheOemByteAsAnsiCharacter) {
  EXPECT_EQ(AnsiToOem("Köln"), "K”ln");
  EXPECT_EQ(OemToAnsi("K”ln"), "Köln");
  EXPECT_EQ(AnsiToOem("abc-123.txt"), "abc-123.txt");
  EXPECT_EQ(OemToAnsi("abc-123.txt"), "abc-123.txt");
}

TEST(AnsiOemTest, KeepsWhatCannotBeConverted) {
  // Outside Windows-1252: stays, though 850 has "╔".
  EXPECT_EQ(AnsiToOem("╔Ω"), "╔Ω");
  // "€" is ANSI but has no OEM byte.
  EXPECT_EQ(AnsiToOem("€"), "€");
  EXPECT_EQ(OemToAnsi("Ω"), "Ω");
  EXPECT_EQ(AnsiToOem("\xff"), "\xff");
  EXPECT_EQ(OemToAnsi("\xff"), "\xff");
}

TEST(AnsiOemTest, GermanLettersRoundTrip) {
  const std::string text = "Äpfel Übermaß Öl äöüß";
  EXPECT_EQ(OemToAnsi(AnsiToOem(text)), text);
  EXPECT_NE(AnsiToOem(text), text);
}

}  // namespace
}  // namespace tarnwick
