#include "platform/posix/dos_attrib_record.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace tarnwick::posix {
namespace {

constexpr std::uint32_t kAttributesValid = 0x1;

struct Layout {
  size_t text_end = 0;    // offset of the NUL that ends the hexadecimal text
  size_t version_at = 0;  // offset of the version, when there is a binary record
  size_t body_at = 0;     // offset of the versioned record
  std::uint16_t version = 0;
  bool binary = false;
};

std::uint32_t Read32(const std::string& data, size_t at) {
  std::uint32_t value = 0;
  for (int i = 3; i >= 0; --i) value = (value << 8) | static_cast<std::uint8_t>(data[at + i]);
  return value;
}

void Write32(std::string& data, size_t at, std::uint32_t value) {
  for (int i = 0; i < 4; ++i) data[at + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

std::optional<Layout> Parse(const std::string& record) {
  Layout layout;
  layout.text_end = record.find('\0');
  if (layout.text_end == std::string::npos) return std::nullopt;
  layout.version_at = (layout.text_end + 2) & ~size_t{1};
  if (record.size() < layout.version_at + 4) return layout;
  layout.binary = true;
  layout.version =
      static_cast<std::uint16_t>(static_cast<std::uint8_t>(record[layout.version_at]) |
                                 static_cast<std::uint8_t>(record[layout.version_at + 1]) << 8);
  layout.body_at = (layout.version_at + 4 + 3) & ~size_t{3};
  return layout;
}

// Offset of the attribute word in the record of a version, or 0 when unknown.
size_t WordOffset(const Layout& layout, const std::string& record) {
  if (layout.version < 1 || layout.version > 5) return 0;
  const size_t at = layout.body_at + (layout.version == 1 ? 0 : 4);
  return record.size() >= at + 4 ? at : 0;
}

bool HasValidFlags(const Layout& layout) { return layout.version >= 3 && layout.version <= 5; }

std::optional<int> ReadText(const std::string& record, size_t end) {
  const std::string text = record.substr(0, end);
  if (text.size() < 3 || text[0] != '0' || (text[1] != 'x' && text[1] != 'X')) return std::nullopt;
  char* stop = nullptr;
  const unsigned long value = std::strtoul(text.c_str() + 2, &stop, 16);
  if (stop == text.c_str() + 2 || *stop != '\0') return std::nullopt;
  return static_cast<int>(value & 0xFFFFFFFFul);
}

std::string HexText(int attributes) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%x", static_cast<unsigned>(attributes));
  return std::string(text) + '\0';
}

}  // namespace

std::optional<int> ReadDosAttributes(const std::string& record) {
  const std::optional<Layout> layout = Parse(record);
  if (!layout) return std::nullopt;
  if (!layout->binary) return ReadText(record, layout->text_end);
  const size_t at = WordOffset(*layout, record);
  if (at == 0) return ReadText(record, layout->text_end);
  if (HasValidFlags(*layout) && (Read32(record, layout->body_at) & kAttributesValid) == 0) {
    return std::nullopt;
  }
  return static_cast<int>(Read32(record, at));
}

std::string WriteDosAttributes(const std::string& record, int attributes) {
  const std::optional<Layout> layout = Parse(record);
  if (!layout || !layout->binary || WordOffset(*layout, record) == 0) return HexText(attributes);
  // New text in front, then version and level and the versioned record at
  // their alignments again, with the word put in.
  std::string updated = HexText(attributes);
  updated.resize((updated.size() + 1) & ~size_t{1}, '\0');
  updated += record.substr(layout->version_at, 4);
  updated.resize((updated.size() + 3) & ~size_t{3}, '\0');
  const size_t body_at = updated.size();
  updated += record.substr(layout->body_at);
  const size_t word_at = body_at + (layout->version == 1 ? 0 : 4);
  Write32(updated, word_at, static_cast<std::uint32_t>(attributes));
  if (HasValidFlags(*layout))
    Write32(updated, body_at, Read32(updated, body_at) | kAttributesValid);
  return updated;
}

}  // namespace tarnwick::posix
