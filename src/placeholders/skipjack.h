#pragma once

#include <array>
#include <cstdint>

namespace tarnwick {

// The 80-bit key of the block cipher: ten bytes, first byte first.
using SkipjackKey = std::array<std::uint8_t, 10>;

// One 64-bit block as four 16-bit words w1..w4, most significant byte of each
// word first when the block is written out.
using SkipjackBlock = std::array<std::uint16_t, 4>;

// The Skipjack block cipher as published by NIST: 32 rounds of the stepping
// rules A and B over four 16-bit words, with the keyed G permutation built on
// the published 256-entry F table.
class Skipjack {
 public:
  explicit Skipjack(const SkipjackKey& key);

  SkipjackBlock Encrypt(SkipjackBlock block) const;
  SkipjackBlock Decrypt(SkipjackBlock block) const;

 private:
  std::uint16_t G(int round, std::uint16_t word) const;
  std::uint16_t GInverse(int round, std::uint16_t word) const;

  // Key byte for every step of G: entry i is key byte i mod 10, so round k
  // (counted from 0) uses entries 4k to 4k+3.
  std::array<std::uint8_t, 132> schedule_{};
};

}  // namespace tarnwick
