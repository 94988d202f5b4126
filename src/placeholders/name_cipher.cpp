#include "placeholders/name_cipher.h"

#include <optional>
#include <vector>

#include "base/text.h"
#include "base/utf8.h"
#include "placeholders/name_cipher_bytes.h"

namespace tarnwick {
namespace {

constexpr std::size_t kBytesPerBlock = 6;
constexpr std::size_t kDigitsPerBlock = 16;

std::optional<int> HexValue(std::string_view c) {
  if (c.size() != 1) return std::nullopt;
  const char d = c[0];
  if (d >= '0' && d <= '9') return d - '0';
  if (d >= 'A' && d <= 'F') return d - 'A' + 10;
  if (d >= 'a' && d <= 'f') return d - 'a' + 10;
  return std::nullopt;
}

void AppendWord(std::string& out, std::uint16_t word) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (int shift = 12; shift >= 0; shift -= 4) out += kDigits[(word >> shift) & 0xf];
}

std::uint16_t WordOf(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint16_t>((static_cast<unsigned char>(bytes[at]) << 8) |
                                    static_cast<unsigned char>(bytes[at + 1]));
}

// Sixteen characters as four words, or std::nullopt if one is not a digit.
std::optional<SkipjackBlock> ParseBlock(const std::vector<std::string_view>& chars,
                                        std::size_t at) {
  SkipjackBlock block{};
  for (std::size_t i = 0; i < kDigitsPerBlock; ++i) {
    const std::optional<int> digit = HexValue(chars[at + i]);
    if (!digit) return std::nullopt;
    block[i / 4] = static_cast<std::uint16_t>((block[i / 4] << 4) | *digit);
  }
  return block;
}

}  // namespace

SkipjackKey NameCipherKey(std::string_view key) {
  const std::vector<std::string_view> chars = utf8::SplitChars(key);
  SkipjackKey bytes{};
  for (std::size_t i = 0; i < bytes.size() && 2 * i < chars.size(); ++i) {
    const std::optional<int> high = HexValue(chars[2 * i]);
    if (2 * i + 1 == chars.size()) {
      bytes[i] = static_cast<std::uint8_t>(high.value_or(0));
      continue;
    }
    const std::optional<int> low = HexValue(chars[2 * i + 1]);
    if (high && low) bytes[i] = static_cast<std::uint8_t>(*high * 16 + *low);
  }
  return bytes;
}

std::string EncryptName(std::string_view text, std::string_view key) {
  if (text.empty()) return {};
  const Skipjack cipher(NameCipherKey(key));
  std::string bytes = NameToCipherBytes(text);
  bytes.resize((bytes.size() + kBytesPerBlock - 1) / kBytesPerBlock * kBytesPerBlock, ' ');
  std::string hex;
  for (std::size_t at = 0; at < bytes.size(); at += kBytesPerBlock) {
    const SkipjackBlock plain = {WordOf(bytes, at), WordOf(bytes, at + 2), WordOf(bytes, at + 4),
                                 0};
    for (std::uint16_t word : cipher.Encrypt(plain)) AppendWord(hex, word);
  }
  return hex;
}

std::string DecryptName(std::string_view hex, std::string_view key) {
  const Skipjack cipher(NameCipherKey(key));
  const std::vector<std::string_view> chars = utf8::SplitChars(hex);
  std::string bytes;
  for (std::size_t at = 0; at + kDigitsPerBlock <= chars.size(); at += kDigitsPerBlock) {
    const std::optional<SkipjackBlock> block = ParseBlock(chars, at);
    if (!block) break;
    const SkipjackBlock plain = cipher.Decrypt(*block);
    for (std::size_t w = 0; w < 3; ++w) {
      bytes += static_cast<char>(plain[w] >> 8);
      bytes += static_cast<char>(plain[w] & 0xff);
    }
  }
  return vb::Trim(CipherBytesToName(bytes));
}

}  // namespace tarnwick
