#include "persist/ini_text_codec.h"

#include "persist/ini_utf8.h"

namespace tarnwick {
namespace {

bool IsControl(unsigned char byte) { return byte < 0x20 || byte == 0x7F; }
bool IsBlank(char c) { return c == ' ' || c == '\t'; }

bool HasRoleConflict(std::string_view text, IniTextRole role) {
  switch (role) {
    case IniTextRole::kValue:
      return false;
    case IniTextRole::kKey:
      return text.find('=') != std::string_view::npos || text.front() == '[' ||
             text.front() == ';' || text.front() == '#';
    case IniTextRole::kSection:
      return text.find(']') != std::string_view::npos;
  }
  return true;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

void AppendHexEscape(std::string& out, unsigned char byte) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  out += "\\x";
  out += kDigits[byte >> 4];
  out += kDigits[byte & 0x0F];
}

// Appends the escape for an ASCII byte, or the byte itself.
void AppendAscii(std::string& out, unsigned char byte) {
  switch (byte) {
    case '\\':
      out += "\\\\";
      return;
    case '"':
      out += "\\\"";
      return;
    case '\n':
      out += "\\n";
      return;
    case '\r':
      out += "\\r";
      return;
    case '\t':
      out += "\\t";
      return;
  }
  if (IsControl(byte)) return AppendHexEscape(out, byte);
  out += static_cast<char>(byte);
}

// Decodes the escape after a backslash at quoted[pos]; returns the bytes used
// after the backslash, or 0 when it is no known escape.
std::size_t DecodeEscape(std::string_view quoted, std::size_t pos, std::string* decoded) {
  if (pos + 1 >= quoted.size()) return 0;
  switch (quoted[pos + 1]) {
    case '\\':
      *decoded += '\\';
      return 1;
    case '"':
      *decoded += '"';
      return 1;
    case 'n':
      *decoded += '\n';
      return 1;
    case 'r':
      *decoded += '\r';
      return 1;
    case 't':
      *decoded += '\t';
      return 1;
    case 'x':
      break;
    default:
      return 0;
  }
  if (pos + 3 >= quoted.size()) return 0;
  const int high = HexDigit(quoted[pos + 2]);
  const int low = HexDigit(quoted[pos + 3]);
  if (high < 0 || low < 0) return 0;
  *decoded += static_cast<char>(high * 16 + low);
  return 3;
}

}  // namespace

bool IsPlainIniText(std::string_view text, IniTextRole role) {
  if (text.empty()) return role == IniTextRole::kValue;
  if (IsBlank(text.front()) || IsBlank(text.back()) || text.front() == '"') return false;
  for (const char c : text) {
    if (IsControl(static_cast<unsigned char>(c))) return false;
  }
  return !HasRoleConflict(text, role) && IsValidUtf8(text);
}

std::string EncodeIniText(std::string_view text, IniTextRole role) {
  if (IsPlainIniText(text, role)) return std::string(text);
  std::string out;
  out.reserve(text.size() + 8);
  out += '"';
  std::size_t pos = 0;
  while (pos < text.size()) {
    const auto byte = static_cast<unsigned char>(text[pos]);
    if (byte < 0x80) {
      AppendAscii(out, byte);
      ++pos;
      continue;
    }
    char32_t ignored;
    const int length = Utf8SequenceAt(text, pos, &ignored);
    if (length == 0) {
      AppendHexEscape(out, byte);
      ++pos;
      continue;
    }
    out.append(text.substr(pos, length));
    pos += length;
  }
  out += '"';
  return out;
}

std::size_t DecodeQuotedIniText(std::string_view quoted, std::string* decoded) {
  decoded->clear();
  for (std::size_t pos = 1; pos < quoted.size(); ++pos) {
    const char c = quoted[pos];
    if (c == '"') return pos + 1;
    if (c != '\\') {
      *decoded += c;
      continue;
    }
    const std::size_t used = DecodeEscape(quoted, pos, decoded);
    // Kept: a backslash that starts no escape stands for itself.
    if (used == 0) *decoded += '\\';
    pos += used;
  }
  return 0;
}

}  // namespace tarnwick
