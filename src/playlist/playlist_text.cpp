#include "playlist/playlist_text.h"

#include "base/code_page.h"
#include "base/path_text.h"
#include "base/text.h"
#include "base/utf8.h"
#include "persist/ini_utf8.h"

namespace tarnwick {
namespace {

bool StartsWithMark(std::string_view bytes) { return bytes.starts_with(kUtf8ByteOrderMark); }

// The Windows-1252 bytes of a text, or false when a character has none.
bool EncodeWindows1252(std::string_view text, std::string* bytes) {
  const SingleByteCodePage& page = SingleByteCodePage::Windows1252();
  bytes->reserve(text.size());
  for (utf8::Char c : utf8::Chars(text)) {
    if (!c.valid) return false;
    if (c.code_point < 0x80) {
      bytes->push_back(static_cast<char>(c.code_point));
      continue;
    }
    const std::optional<unsigned char> byte = page.ByteOf(c.code_point);
    if (!byte) return false;
    bytes->push_back(static_cast<char>(*byte));
  }
  return true;
}

}  // namespace

std::string DecodePlaylistBytes(std::string_view bytes, bool utf8_only) {
  if (StartsWithMark(bytes)) return std::string(bytes.substr(kUtf8ByteOrderMark.size()));
  if (utf8_only || IsValidUtf8(bytes)) return std::string(bytes);
  const SingleByteCodePage& page = SingleByteCodePage::Windows1252();
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 4);
  for (char byte : bytes) text += page.TextOf(static_cast<unsigned char>(byte));
  return text;
}

std::string EncodePlaylistText(std::string_view text, bool utf8_only) {
  // A text that begins with the mark itself gets one more, which the reader
  // takes away.
  if (StartsWithMark(text)) return std::string(kUtf8ByteOrderMark) + std::string(text);
  if (utf8_only || utf8::IsAscii(text)) return std::string(text);
  std::string bytes;
  if (EncodeWindows1252(text, &bytes) && !IsValidUtf8(bytes) && !StartsWithMark(bytes)) {
    return bytes;
  }
  return std::string(kUtf8ByteOrderMark) + std::string(text);
}

std::vector<std::string_view> PlaylistLines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = text.find_first_of("\r\n", start);
    if (end == std::string_view::npos) {
      lines.push_back(text.substr(start));
      break;
    }
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
    if (text[end] == '\r' && start < text.size() && text[start] == '\n') ++start;
  }
  return lines;
}

bool IsUtf8PlaylistName(std::string_view file_name) {
  return EqualsText(ExtensionName(file_name), "m3u8");
}

}  // namespace tarnwick
