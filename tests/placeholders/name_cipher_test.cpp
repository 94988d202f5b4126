#include "placeholders/name_cipher.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace tarnwick {
namespace {

std::string Hex(const SkipjackBlock& block) {
  std::string out;
  char digits[5];
  for (std::uint16_t word : block) {
    std::snprintf(digits, sizeof digits, "%04X", word);
    out += digits;
  }
  return out;
}

TEST(NameCipherTest, KeyIsReadAsHexadecimalPairs) {
  EXPECT_EQ(NameCipherKey("00998877665544332211"),
            (SkipjackKey{0x00, 0x99, 0x88, 0x77, 0x66, 0x55, 0x44, 0x33, 0x22, 0x11}));
  // Pairs that are not hexadecimal count as 0, a lone last digit as its value.
  EXPECT_EQ(NameCipherKey("YourKeyHere"), (SkipjackKey{0, 0, 0, 0, 0, 0x0e, 0, 0, 0, 0}));
  EXPECT_EQ(NameCipherKey("ab1"), (SkipjackKey{0xab, 0x01, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(NameCipherKey("äa12"), (SkipjackKey{0x00, 0x12, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(NameCipherKey(""), SkipjackKey{});
  // Characters beyond the twentieth are ignored.
  EXPECT_EQ(NameCipherKey("0099887766554433221100FF"), NameCipherKey("00998877665544332211"));
}

TEST(NameCipherTest, SixCharactersFillThreeWordsAndTheFourthIsZero) {
  const std::string key = "00998877665544332211";
  const Skipjack cipher(NameCipherKey(key));
  EXPECT_EQ(EncryptName("ABCDEF", key), Hex(cipher.Encrypt({0x4142, 0x4344, 0x4546, 0})));
  // The last piece is filled up with blanks; "ö" is its Windows-1252 byte.
  EXPECT_EQ(EncryptName("ö", key), Hex(cipher.Encrypt({0xf620, 0x2020, 0x2020, 0})));
}

TEST(NameCipherTest, LengthOfTheCipherText) {
  EXPECT_EQ(EncryptName("", "k"), "");
  EXPECT_EQ(EncryptName("Muelle", "1234").size(), 16u);
  EXPECT_EQ(EncryptName("Mueller", "1234").size(), 32u);
  EXPECT_EQ(EncryptName("abcdefghijkl", "1234").size(), 32u);
  const std::string hex = EncryptName("Mueller", "1234");
  EXPECT_EQ(hex.find_first_not_of("0123456789ABCDEF"), std::string::npos);
}

TEST(NameCipherTest, RoundTripRestoresNamesWithoutOuterBlanks) {
  for (const std::string name : {"Mueller", "a", "Holiday 2004 - Beach (1).jpg", "Grüße aus Köln €",
                                 "exactly6", "123456789012345678", "Ünïcödé … ‰"}) {
    for (const std::string key : {"", "YourKeyHere", "00998877665544332211", "deadbeef"}) {
      EXPECT_EQ(DecryptName(EncryptName(name, key), key), name) << name << " / " << key;
    }
  }
  EXPECT_EQ(DecryptName(EncryptName("  padded  ", "ab"), "ab"), "padded");
  EXPECT_EQ(DecryptName(EncryptName("      ", "ab"), "ab"), "");
}

TEST(NameCipherTest, CharactersOutsideTheCodePageSurvive) {
  for (const std::string name : {"日本語のファイル", "Ā", "emoji 😀 name", "mixed ä日ö",
                                 "\xc2\x81"
                                 "control",
                                 "raw\x81"
                                 "byte"}) {
    EXPECT_EQ(DecryptName(EncryptName(name, "beef"), "beef"), name) << name;
  }
  // A byte that is not UTF-8 comes back as its Windows-1252 character.
  EXPECT_EQ(DecryptName(EncryptName("caf\xe9", "1"), "1"), "café");
}

TEST(NameCipherTest, HexadecimalInputIsCaseInsensitive) {
  std::string hex = EncryptName("Mueller", "77");
  for (char& c : hex) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  EXPECT_EQ(DecryptName(hex, "77"), "Mueller");
}

TEST(NameCipherTest, WrongKeyGarblesWithoutError) {
  const std::string hex = EncryptName("Mueller", "1111");
  const std::string garbled = DecryptName(hex, "2222");
  EXPECT_NE(garbled, "Mueller");
  EXPECT_NE(EncryptName("Mueller", "1111"), EncryptName("Mueller", "2222"));
}

TEST(NameCipherTest, BadCipherTextGivesEmptyOrPartialResult) {
  const std::string hex = EncryptName("abcdefghijkl", "9");
  ASSERT_EQ(hex.size(), 32u);
  // A rest shorter than a block is dropped.
  EXPECT_EQ(DecryptName(hex.substr(0, 16) + "ABC", "9"), "abcdef");
  EXPECT_EQ(DecryptName(hex.substr(0, 15), "9"), "");
  // A block with a character that is not a digit ends the reading.
  std::string broken = hex;
  broken[20] = 'G';
  EXPECT_EQ(DecryptName(broken, "9"), "abcdef");
  broken[3] = 'x';
  EXPECT_EQ(DecryptName(broken, "9"), "");
  EXPECT_EQ(DecryptName("Mueller.txt", "9"), "");
  EXPECT_EQ(DecryptName("", "9"), "");
  // Multi-byte characters count as one character of a block.
  EXPECT_EQ(DecryptName("ääääääääääääääää", "9"), "");
}

}  // namespace
}  // namespace tarnwick
