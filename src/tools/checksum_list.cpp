// Checksum files in the form coreutils writes and verifies.
#include "tools/checksum_list.h"

#include <algorithm>
#include <optional>

namespace tarnwick {
namespace {

std::size_t DigestLength(DigestKind kind) { return kind == DigestKind::kMd5 ? 32 : 64; }

bool IsHex(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

std::string Lower(std::string_view digest) {
  std::string text(digest);
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c; });
  return text;
}

std::optional<std::string> Unescape(std::string_view path) {
  std::string text;
  for (std::size_t i = 0; i < path.size(); ++i) {
    if (path[i] != '\\') {
      text += path[i];
      continue;
    }
    if (++i == path.size()) return std::nullopt;
    if (path[i] == '\\') {
      text += '\\';
    } else if (path[i] == 'n') {
      text += '\n';
    } else if (path[i] == 'r') {
      text += '\r';
    } else {
      return std::nullopt;
    }
  }
  return text;
}

std::optional<ChecksumListEntry> ParsePlain(std::string_view line, std::size_t length) {
  if (line.size() < length + 3) return std::nullopt;
  const std::string_view digest = line.substr(0, length);
  if (!std::all_of(digest.begin(), digest.end(), IsHex)) return std::nullopt;
  if (line[length] != ' ' || (line[length + 1] != ' ' && line[length + 1] != '*')) {
    return std::nullopt;
  }
  return ChecksumListEntry{Lower(digest), std::string(line.substr(length + 2)), 0};
}

// "SHA256 (path) = digest".
std::optional<ChecksumListEntry> ParseTagged(std::string_view line, DigestKind kind,
                                             std::size_t length) {
  const std::string head = std::string(DigestName(kind)) + " (";
  if (!line.starts_with(head) || line.size() < head.size() + length + 4) return std::nullopt;
  const std::string_view digest = line.substr(line.size() - length);
  const std::string_view middle = line.substr(head.size(), line.size() - length - head.size());
  if (!middle.ends_with(") = ") || !std::all_of(digest.begin(), digest.end(), IsHex)) {
    return std::nullopt;
  }
  return ChecksumListEntry{Lower(digest), std::string(middle.substr(0, middle.size() - 4)), 0};
}

std::optional<ChecksumListEntry> ParseLine(std::string_view line, DigestKind kind) {
  const bool escaped = line.starts_with('\\');
  if (escaped) line.remove_prefix(1);
  const std::size_t length = DigestLength(kind);
  std::optional<ChecksumListEntry> entry = ParsePlain(line, length);
  if (!entry) entry = ParseTagged(line, kind, length);
  if (!entry || entry->path.empty()) return std::nullopt;
  if (!escaped) return entry;
  std::optional<std::string> path = Unescape(entry->path);
  if (!path) return std::nullopt;
  entry->path = std::move(*path);
  return entry;
}

}  // namespace

std::string CoreutilsLine(std::string_view digest, std::string_view path) {
  const bool escape = path.find_first_of("\\\n\r") != std::string_view::npos;
  std::string line = escape ? "\\" : "";
  line += digest;
  line += "  ";
  for (const char c : path) {
    if (escape && c == '\\') {
      line += "\\\\";
    } else if (c == '\n') {
      line += "\\n";
    } else if (c == '\r') {
      line += "\\r";
    } else {
      line += c;
    }
  }
  return line + "\n";
}

ChecksumList ParseChecksumList(std::string_view text, DigestKind kind) {
  ChecksumList list;
  std::size_t number = 0;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    ++number;
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line.starts_with('#')) continue;
    std::optional<ChecksumListEntry> entry = ParseLine(line, kind);
    if (!entry) {
      list.bad_lines.push_back(number);
      continue;
    }
    entry->line = number;
    list.entries.push_back(std::move(*entry));
  }
  return list;
}

}  // namespace tarnwick
