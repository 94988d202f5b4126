#include "playlist/m3u.h"

#include <optional>

#include "base/text.h"
#include "playlist/playlist_length.h"
#include "playlist/playlist_path.h"
#include "playlist/playlist_text.h"

namespace tarnwick {
namespace {

constexpr std::string_view kHead = "#EXTM3U";
constexpr std::string_view kInfo = "#EXTINF:";

bool IsBlankLine(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos;
}

struct Info {
  std::string length;
  std::string title;
};

}  // namespace

std::vector<PlaylistRow> ReadM3u(std::string_view text, std::string_view folder) {
  std::vector<PlaylistRow> rows;
  std::optional<Info> info;
  for (std::string_view line : PlaylistLines(text)) {
    if (IsBlankLine(line) || line == kHead) continue;
    if (StartsWithText(line, kInfo)) {
      const std::string_view rest = line.substr(kInfo.size());
      const std::size_t comma = rest.find(',');
      info = Info{LengthFromFile(rest.substr(0, comma)),
                  comma == std::string_view::npos ? std::string() : std::string(rest.substr(comma + 1))};
      continue;
    }
    if (line.front() == '#') continue;
    PlaylistRow row;
    row.path = ResolvePlaylistEntry(line, folder);
    row.length = info ? info->length : std::string(kUnknownLength);
    row.title = info && !info->title.empty() ? info->title : TitleFromPath(row.path);
    rows.push_back(std::move(row));
    info.reset();
  }
  return rows;
}

std::string OneLine(std::string_view text) {
  std::string line(text);
  for (char& c : line) {
    if (c == '\r' || c == '\n') c = ' ';
  }
  return line;
}

std::string WriteM3u(const std::vector<PlaylistRow>& rows) {
  std::string text(kHead);
  text += '\n';
  for (const PlaylistRow& row : rows) {
    text += kInfo;
    text += std::to_string(LengthSeconds(row.length));
    text += ',';
    text += OneLine(row.title);
    text += '\n';
    text += row.path;
    text += '\n';
  }
  return text;
}

long FirstUnstorableRow(const std::vector<PlaylistRow>& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].path.find_first_of("\r\n") != std::string::npos) return static_cast<long>(i);
  }
  return -1;
}

}  // namespace tarnwick
