#include "playlist/pls.h"

#include <map>
#include <optional>

#include "base/text.h"
#include "playlist/m3u.h"
#include "playlist/playlist_length.h"
#include "playlist/playlist_path.h"
#include "playlist/playlist_text.h"

namespace tarnwick {
namespace {

struct Entry {
  std::optional<std::string> file;
  std::optional<std::string> title;
  std::optional<std::string> length;
};

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  const std::size_t last = text.find_last_not_of(" \t");
  return text.substr(first, last - first + 1);
}

// The number behind a key's name: "File12" with name "file" gives 12; -1
// when the key is another, or the number has a leading zero or too many
// digits to be a row.
std::int64_t KeyNumber(std::string_view key, std::string_view name) {
  if (key.size() <= name.size() || key.size() > name.size() + 12) return -1;
  if (!EqualsText(key.substr(0, name.size()), name)) return -1;
  const std::string_view digits = key.substr(name.size());
  if (digits.front() == '0') return -1;
  std::int64_t number = 0;
  for (char c : digits) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

// Walks the `key=value` lines of the `[playlist]` sections.
template <typename Visit>
bool ForEachPlaylistKey(std::string_view text, Visit visit) {
  bool found = false;
  bool inside = false;
  for (std::string_view line : PlaylistLines(text)) {
    const std::string_view trimmed = TrimBlanks(line);
    if (trimmed.starts_with("[")) {
      const std::size_t close = trimmed.find(']');
      inside = close != std::string_view::npos &&
               EqualsText(TrimBlanks(trimmed.substr(1, close - 1)), "playlist");
      found = found || inside;
      continue;
    }
    if (!inside || trimmed.starts_with(";")) continue;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = TrimBlanks(line.substr(0, equals));
    if (!key.empty()) visit(key, line.substr(equals + 1));
  }
  return found;
}

std::int64_t EntryCount(std::string_view value) {
  const std::string_view digits = TrimBlanks(value);
  if (digits.empty() || digits.size() > 12) return 0;
  std::int64_t number = 0;
  for (char c : digits) {
    if (c < '0' || c > '9') return 0;
    number = number * 10 + (c - '0');
  }
  return number;
}

void KeepFirst(std::optional<std::string>& slot, std::string_view value) {
  if (!slot) slot.emplace(value);
}

}  // namespace

PlsSection ScanPls(std::string_view text) {
  PlsSection section;
  bool counted = false;
  section.found = ForEachPlaylistKey(text, [&](std::string_view key, std::string_view value) {
    if (!counted && EqualsText(key, "NumberOfEntries")) {
      counted = true;
      section.number_of_entries = EntryCount(value);
    } else if (KeyNumber(key, "file") > 0) {
      section.has_files = true;
    }
  });
  return section;
}

std::vector<PlaylistRow> ReadPls(std::string_view text, std::string_view folder) {
  std::map<std::int64_t, Entry> entries;
  std::optional<std::int64_t> count;
  ForEachPlaylistKey(text, [&](std::string_view key, std::string_view value) {
    if (EqualsText(key, "NumberOfEntries")) {
      if (!count) count = EntryCount(value);
      return;
    }
    if (const std::int64_t n = KeyNumber(key, "file"); n > 0) {
      KeepFirst(entries[n].file, TrimBlanks(value));
    } else if (const std::int64_t n = KeyNumber(key, "title"); n > 0) {
      KeepFirst(entries[n].title, value);
    } else if (const std::int64_t n = KeyNumber(key, "length"); n > 0) {
      KeepFirst(entries[n].length, TrimBlanks(value));
    }
  });
  std::vector<PlaylistRow> rows;
  for (const auto& [number, entry] : entries) {
    if (count && *count > 0 && number > *count) break;
    if (!entry.file || TrimBlanks(*entry.file).empty()) continue;
    PlaylistRow row;
    row.path = ResolvePlaylistEntry(*entry.file, folder);
    row.title = entry.title && !entry.title->empty() ? *entry.title : TitleFromPath(row.path);
    row.length = LengthFromFile(entry.length.value_or(""));
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string WritePls(const std::vector<PlaylistRow>& rows) {
  std::string text = "[playlist]\n";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::string n = std::to_string(i + 1);
    text += "File" + n + "=" + rows[i].path + "\n";
    text += "Title" + n + "=" + OneLine(rows[i].title) + "\n";
    text += "Length" + n + "=" + std::to_string(LengthSeconds(rows[i].length)) + "\n";
  }
  text += "NumberOfEntries=" + std::to_string(rows.size()) + "\n";
  text += "Version=2\n";
  return text;
}

}  // namespace tarnwick
