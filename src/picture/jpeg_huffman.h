#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace tarnwick {

// A Huffman table as a DHT segment carries it, and the codes it gives.
struct HuffmanTable {
  // counts[l]: how many codes of length l (1 to 16); counts[0] unused.
  std::array<std::uint8_t, 17> counts{};
  // The symbols in order of their codes.
  std::vector<std::uint8_t> symbols;
  // Code and length of each symbol; length 0 for a symbol without a code.
  std::array<std::uint16_t, 256> codes{};
  std::array<std::uint8_t, 256> lengths{};
};

// The optimal table for the symbol frequencies (256 symbols), by the
// procedure of ISO/IEC 10918-1 Annex K.2: a reserved symbol 256 of
// frequency 1 keeps any code from being all ones, ties between equal
// frequencies go to the higher symbol, and lengths are limited to 16.
// Raises VbError 1 "Bad Huffman Table" when the counts cannot form a code.
HuffmanTable OptimalHuffmanTable(const std::array<std::uint64_t, 256>& frequencies);

}  // namespace tarnwick
