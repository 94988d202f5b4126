#include "picture/jpeg_huffman.h"

#include <algorithm>

#include "base/vb_error.h"

namespace tarnwick {
namespace {

constexpr int kSymbols = 257;       // 256 byte symbols and the reserved one
constexpr int kLongest = kSymbols;  // before the limit to 16, a length may reach this

[[noreturn]] void BadTable() { throw VbError(1, "Bad Huffman Table"); }

// The least frequency above 0 other than `other`; of equal ones the highest
// symbol. -1 when there is none.
int LeastFrequent(const std::array<std::uint64_t, kSymbols>& frequency, int other) {
  int found = -1;
  std::uint64_t least = 0;
  for (int i = 0; i < kSymbols; ++i) {
    if (i == other || frequency[i] == 0) continue;
    if (found < 0 || frequency[i] <= least) {
      least = frequency[i];
      found = i;
    }
  }
  return found;
}

// Code sizes of every symbol (Figure K.1): the two rarest trees are joined
// until one is left.
std::array<int, kSymbols> CodeSizes(std::array<std::uint64_t, kSymbols> frequency) {
  std::array<int, kSymbols> size{};
  std::array<int, kSymbols> next{};
  next.fill(-1);
  for (;;) {
    int v1 = LeastFrequent(frequency, -1);
    int v2 = LeastFrequent(frequency, v1);
    if (v2 < 0) break;
    frequency[v1] += frequency[v2];
    frequency[v2] = 0;
    ++size[v1];
    while (next[v1] >= 0) {
      v1 = next[v1];
      ++size[v1];
    }
    next[v1] = v2;
    ++size[v2];
    while (next[v2] >= 0) {
      v2 = next[v2];
      ++size[v2];
    }
  }
  return size;
}

// Counts per length (Figures K.2 and K.3), limited to 16, with the reserved
// symbol's code taken out again.
std::array<int, kLongest + 1> LimitedCounts(const std::array<int, kSymbols>& size) {
  std::array<int, kLongest + 1> bits{};
  for (int s : size) {
    if (s > 0) ++bits[s];
  }
  for (int i = kLongest; i > 16;) {
    if (bits[i] == 0) {
      --i;
      continue;
    }
    int j = i - 2;
    while (j > 0 && bits[j] == 0) --j;
    if (j <= 0) BadTable();
    bits[i] -= 2;
    bits[i - 1] += 1;
    bits[j + 1] += 2;
    bits[j] -= 1;
  }
  int i = 16;
  while (i > 0 && bits[i] == 0) --i;
  if (i > 0) --bits[i];
  return bits;
}

// Codes in order of length (Annex C), checking that each fits its length.
void AssignCodes(HuffmanTable& table) {
  std::size_t k = 0;
  std::uint32_t code = 0;
  for (int length = 1; length <= 16; ++length) {
    for (int n = 0; n < table.counts[length]; ++n, ++k) {
      if (code >= (1U << length)) BadTable();
      const std::uint8_t symbol = table.symbols[k];
      table.codes[symbol] = static_cast<std::uint16_t>(code);
      table.lengths[symbol] = static_cast<std::uint8_t>(length);
      ++code;
    }
    code <<= 1;
  }
}

}  // namespace

HuffmanTable OptimalHuffmanTable(const std::array<std::uint64_t, 256>& frequencies) {
  std::array<std::uint64_t, kSymbols> frequency{};
  std::copy(frequencies.begin(), frequencies.end(), frequency.begin());
  frequency[256] = 1;
  const std::array<int, kSymbols> size = CodeSizes(frequency);
  const std::array<int, kLongest + 1> bits = LimitedCounts(size);

  HuffmanTable table;
  int total = 0;
  for (int length = 1; length <= 16; ++length) {
    if (bits[length] > 255) BadTable();
    table.counts[length] = static_cast<std::uint8_t>(bits[length]);
    total += bits[length];
  }
  if (total > 256) BadTable();
  // Symbols by their length before the limit, then by value (Figure K.4).
  for (int length = 1; length <= kLongest; ++length) {
    for (int symbol = 0; symbol < 256; ++symbol) {
      if (size[symbol] == length) table.symbols.push_back(static_cast<std::uint8_t>(symbol));
    }
  }
  if (static_cast<int>(table.symbols.size()) != total) BadTable();
  AssignCodes(table);
  return table;
}

}  // namespace tarnwick
