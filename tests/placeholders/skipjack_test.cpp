#include "placeholders/skipjack.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

constexpr SkipjackKey kNistKey = {0x00, 0x99, 0x88, 0x77, 0x66, 0x55, 0x44, 0x33, 0x22, 0x11};

TEST(SkipjackTest, PublishedTestVector) {
  const Skipjack cipher(kNistKey);
  const SkipjackBlock plain = {0x3322, 0x1100, 0xddcc, 0xbbaa};
  const SkipjackBlock expected = {0x2587, 0xcae2, 0x7a12, 0xd300};
  EXPECT_EQ(cipher.Encrypt(plain), expected);
  EXPECT_EQ(cipher.Decrypt(expected), plain);
}

TEST(SkipjackTest, DecryptInvertsEncryptForManyBlocksAndKeys) {
  std::uint16_t seed = 1;
  for (int k = 0; k < 20; ++k) {
    SkipjackKey key{};
    for (auto& byte : key) byte = static_cast<std::uint8_t>(seed = seed * 75 + 74);
    const Skipjack cipher(key);
    for (int b = 0; b < 50; ++b) {
      SkipjackBlock block{};
      for (auto& word : block) word = seed = static_cast<std::uint16_t>(seed * 75 + 74);
      const SkipjackBlock enciphered = cipher.Encrypt(block);
      EXPECT_NE(enciphered, block);
      EXPECT_EQ(cipher.Decrypt(enciphered), block);
    }
  }
}

TEST(SkipjackTest, EveryKeyByteMatters) {
  const SkipjackBlock plain = {0x4d75, 0x656c, 0x6c65, 0x0000};
  const SkipjackBlock reference = Skipjack(kNistKey).Encrypt(plain);
  for (std::size_t i = 0; i < kNistKey.size(); ++i) {
    SkipjackKey key = kNistKey;
    key[i] ^= 0x01;
    EXPECT_NE(Skipjack(key).Encrypt(plain), reference) << "key byte " << i;
  }
}

}  // namespace
}  // namespace tarnwick
