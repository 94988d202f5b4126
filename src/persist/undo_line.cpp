#include "persist/undo_line.h"

#include <cctype>

#include "base/utf8.h"

namespace tarnwick {
namespace {

constexpr char kQuote = '"';
constexpr std::string_view kEscapedMark = "rem tarnwick-escaped ";
constexpr char kHexDigits[] = "0123456789ABCDEF";

bool IsControl(unsigned char byte) { return byte < 32 || byte == 127; }

bool IsPlainNameByte(unsigned char byte) {
  return std::isalnum(byte) != 0 || byte == '/' || byte == '.' || byte == '_' || byte == '-';
}

std::string AsciiLower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

bool IsDelete(std::string_view command) { return AsciiLower(command) == "del"; }

std::string Quoted(std::string_view name) {
  std::string text;
  text.reserve(name.size() + 2);
  text += kQuote;
  text += name;
  text += kQuote;
  return text;
}

std::string EscapedLine(std::string_view command, std::string_view old_path,
                        std::string_view new_path) {
  std::string line(kEscapedMark);
  line += EscapeUndoName(command);
  line += ' ';
  line += EscapeUndoName(new_path);
  if (IsDelete(command)) return line;
  line += ' ';
  line += EscapeUndoName(old_path);
  return line;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// Splits "WORD REST" at the first blank.
std::pair<std::string_view, std::string_view> FirstWord(std::string_view text) {
  const std::size_t blank = text.find(' ');
  if (blank == std::string_view::npos) return {text, {}};
  return {text.substr(0, blank), text.substr(blank + 1)};
}

// Reads one quoted name at the start of `text` and moves past it.
std::optional<std::string> TakeQuoted(std::string_view& text) {
  if (text.empty() || text.front() != kQuote) return std::nullopt;
  const std::size_t end = text.find(kQuote, 1);
  if (end == std::string_view::npos) return std::nullopt;
  std::string name(text.substr(1, end - 1));
  text.remove_prefix(end + 1);
  return name;
}

std::optional<UndoLine> ParseEscaped(std::string_view rest) {
  auto [command, names] = FirstWord(rest);
  auto [first, second] = FirstWord(names);
  std::optional<std::string> verb = UnescapeUndoName(command);
  std::optional<std::string> new_path = UnescapeUndoName(first);
  if (!verb || verb->empty() || !new_path) return std::nullopt;
  UndoLine line{AsciiLower(*verb), std::move(*new_path), "", true};
  if (IsDelete(line.command)) {
    if (!second.empty()) return std::nullopt;
    return line;
  }
  std::optional<std::string> old_path = UnescapeUndoName(second);
  if (!old_path || second.find(' ') != std::string_view::npos) return std::nullopt;
  line.old_path = std::move(*old_path);
  return line;
}

std::optional<UndoLine> ParsePlain(std::string_view text) {
  auto [command, rest] = FirstWord(text);
  if (command.empty() || command.find(kQuote) != std::string_view::npos) return std::nullopt;
  std::optional<std::string> new_path = TakeQuoted(rest);
  if (!new_path) return std::nullopt;
  UndoLine line{AsciiLower(command), std::move(*new_path), "", false};
  if (IsDelete(line.command)) {
    if (!rest.empty()) return std::nullopt;
    return line;
  }
  if (rest.empty() || rest.front() != ' ') return std::nullopt;
  rest.remove_prefix(1);
  std::optional<std::string> old_path = TakeQuoted(rest);
  if (!old_path || !rest.empty()) return std::nullopt;
  line.old_path = std::move(*old_path);
  return line;
}

}  // namespace

bool IsSafeInUndoLine(std::string_view name) {
  for (std::size_t at = 0; at < name.size();) {
    const auto byte = static_cast<unsigned char>(name[at]);
    if (byte < 0x80) {
      if (byte == kQuote || IsControl(byte)) return false;
      ++at;
      continue;
    }
    const std::size_t size = utf8::ValidSequenceAt(name, at);
    if (size == 0) return false;
    at += size;
  }
  return true;
}

std::string EscapeUndoName(std::string_view name) {
  std::string escaped;
  escaped.reserve(name.size());
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsPlainNameByte(byte)) {
      escaped += c;
      continue;
    }
    escaped += '=';
    escaped += kHexDigits[byte >> 4];
    escaped += kHexDigits[byte & 0x0F];
  }
  return escaped;
}

std::optional<std::string> UnescapeUndoName(std::string_view escaped) {
  std::string name;
  name.reserve(escaped.size());
  for (std::size_t at = 0; at < escaped.size(); ++at) {
    const auto byte = static_cast<unsigned char>(escaped[at]);
    if (IsPlainNameByte(byte)) {
      name += escaped[at];
      continue;
    }
    if (byte != '=' || at + 2 >= escaped.size()) return std::nullopt;
    const int high = HexValue(escaped[at + 1]);
    const int low = HexValue(escaped[at + 2]);
    if (high < 0 || low < 0) return std::nullopt;
    name += static_cast<char>(high * 16 + low);
    at += 2;
  }
  return name;
}

std::string UndoEntryLine(std::string_view old_path, std::string_view new_path,
                          std::string_view command) {
  const std::string_view verb = command.empty() ? std::string_view("?") : command;
  const bool safe = IsSafeInUndoLine(verb) && verb.find(' ') == std::string_view::npos &&
                    IsSafeInUndoLine(new_path) && IsSafeInUndoLine(old_path);
  if (!safe) return EscapedLine(verb, old_path, new_path);
  std::string line(verb);
  line += ' ';
  line += Quoted(new_path);
  if (IsDelete(verb)) return line;
  line += ' ';
  line += Quoted(old_path);
  return line;
}

std::optional<UndoLine> ParseUndoLine(std::string_view line) {
  if (line.starts_with(kEscapedMark)) return ParseEscaped(line.substr(kEscapedMark.size()));
  return ParsePlain(line);
}

}  // namespace tarnwick
