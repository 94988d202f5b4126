#include "persist/ini_utf8.h"

namespace tarnwick {
namespace {

struct LeadByte {
  int length;
  char32_t bits;
  char32_t smallest;
};

// What a lead byte promises; length 0 for bytes that lead nothing.
LeadByte Classify(unsigned char lead) {
  if (lead < 0x80) return {1, lead, 0};
  if (lead >= 0xC2 && lead <= 0xDF) return {2, lead & 0x1Fu, 0x80};
  if ((lead & 0xF0) == 0xE0) return {3, lead & 0x0Fu, 0x800};
  if (lead >= 0xF0 && lead <= 0xF4) return {4, lead & 0x07u, 0x10000};
  return {0, 0, 0};
}

}  // namespace

int Utf8SequenceAt(std::string_view text, std::size_t pos, char32_t* code_point) {
  const LeadByte lead = Classify(static_cast<unsigned char>(text[pos]));
  if (lead.length == 0 || text.size() - pos < static_cast<std::size_t>(lead.length)) return 0;
  char32_t value = lead.bits;
  for (int i = 1; i < lead.length; ++i) {
    const auto byte = static_cast<unsigned char>(text[pos + i]);
    if ((byte & 0xC0) != 0x80) return 0;
    value = (value << 6) | (byte & 0x3Fu);
  }
  if (value < lead.smallest || value > 0x10FFFF) return 0;
  if (value >= 0xD800 && value <= 0xDFFF) return 0;
  *code_point = value;
  return lead.length;
}

bool IsValidUtf8(std::string_view text) {
  std::size_t pos = 0;
  while (pos < text.size()) {
    if (static_cast<unsigned char>(text[pos]) < 0x80) {
      ++pos;
      continue;
    }
    char32_t ignored;
    const int length = Utf8SequenceAt(text, pos, &ignored);
    if (length == 0) return false;
    pos += length;
  }
  return true;
}

}  // namespace tarnwick
