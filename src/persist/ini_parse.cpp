// Reading the options file: one line at a time into IniDocument's blocks.
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "persist/ini_document.h"
#include "persist/ini_text_codec.h"

namespace tarnwick {
namespace {

std::string_view TrimLeft(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

std::string_view Trim(std::string_view text) {
  text = TrimLeft(text);
  const std::size_t last = text.find_last_not_of(" \t");
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

// A quoted name at the start of `text` followed (after blanks) by `closer`;
// `rest` receives what follows the closer.
std::optional<std::string> QuotedNameBefore(std::string_view text, char closer,
                                            std::string_view* rest) {
  if (text.empty() || text.front() != '"') return std::nullopt;
  std::string name;
  const std::size_t used = DecodeQuotedIniText(text, &name);
  if (used == 0) return std::nullopt;
  const std::string_view after = TrimLeft(text.substr(used));
  if (after.empty() || after.front() != closer) return std::nullopt;
  *rest = after.substr(1);
  return name;
}

// The section name of a line that starts with "[", or nothing when the line
// has no closing bracket.
std::optional<std::string> ParseHeader(std::string_view body) {
  const std::string_view inner = TrimLeft(body.substr(1));
  std::string_view ignored;
  if (auto quoted = QuotedNameBefore(inner, ']', &ignored)) return quoted;
  const std::size_t close = body.find(']');
  if (close == std::string_view::npos) return std::nullopt;
  return std::string(Trim(body.substr(1, close - 1)));
}

std::string ParseValue(std::string_view text) {
  text = Trim(text);
  if (text.empty() || text.front() != '"') return std::string(text);
  std::string value;
  if (DecodeQuotedIniText(text, &value) == text.size()) return value;
  return std::string(text);  // unbalanced quotes: taken literally
}

// Key and value of a `key=value` line, or nothing when it is none.
std::optional<std::pair<std::string, std::string>> ParseEntry(std::string_view body) {
  std::string_view rest;
  std::optional<std::string> key = QuotedNameBefore(body, '=', &rest);
  if (!key) {
    const std::size_t equals = body.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    key = std::string(Trim(body.substr(0, equals)));
    rest = body.substr(equals + 1);
  }
  if (key->empty()) return std::nullopt;
  return std::make_pair(std::move(*key), ParseValue(rest));
}

}  // namespace

IniDocument IniDocument::Parse(std::string_view text) {
  IniDocument document;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    document.AddLine(text.substr(start, end - start));
    start = end + 1;
  }
  document.Reindex();
  return document;
}

void IniDocument::AddLine(std::string_view raw) {
  std::string_view body = raw;
  if (!body.empty() && body.back() == '\r') body.remove_suffix(1);
  body = TrimLeft(body);
  Line line;
  line.raw = raw;
  const bool comment = body.empty() || body.front() == ';' || body.front() == '#';
  if (!comment && body.front() == '[') {
    if (std::optional<std::string> name = ParseHeader(body)) {
      Block block;
      block.header = raw;
      block.live = !name->empty();
      block.name = std::move(*name);
      blocks_.push_back(std::move(block));
      return;
    }
  } else if (!comment && blocks_.back().live) {
    if (auto entry = ParseEntry(body)) {
      line.key = std::move(entry->first);
      line.value = std::move(entry->second);
      line.entry = true;
    }
  }
  blocks_.back().lines.push_back(std::move(line));
}

}  // namespace tarnwick
