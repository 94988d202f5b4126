#include "tools/export_text.h"

#include "base/utf8.h"

namespace tarnwick {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

void AppendEscape(std::string& out, unsigned char byte) {
  constexpr char kHex[] = "0123456789ABCDEF";
  out += "\\x";
  out += kHex[byte >> 4];
  out += kHex[byte & 0xF];
}

bool IsControl(char32_t c) { return c < 0x20 || c == 0x7F; }
bool IsNonCharacter(char32_t c) { return c == 0xFFFE || c == 0xFFFF; }
bool IsXmlLineControl(char32_t c) { return c == '\t' || c == '\n' || c == '\r'; }

}  // namespace

std::string EscapedLineText(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const utf8::Char c = utf8::DecodeAt(text, at);
    if (!c.valid || IsControl(c.code_point)) {
      AppendEscape(out, static_cast<unsigned char>(text[at]));
    } else {
      out.append(text.substr(at, c.size));
    }
    at += c.size;
  }
  return out;
}

std::string XmlValueText(std::string_view text, bool convert) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); at += utf8::DecodeAt(text, at).size) {
    const utf8::Char c = utf8::DecodeAt(text, at);
    if (c.valid && IsNonCharacter(c.code_point)) {
      out += kReplacement;
    } else if (c.valid && !IsControl(c.code_point)) {
      out.append(text.substr(at, c.size));
    } else if (convert) {
      AppendEscape(out, static_cast<unsigned char>(text[at]));
    } else if (c.valid && (IsXmlLineControl(c.code_point) || c.code_point == 0x7F)) {
      out.append(text.substr(at, c.size));  // XML holds these
    } else {
      out += kReplacement;
    }
  }
  return out;
}

}  // namespace tarnwick
