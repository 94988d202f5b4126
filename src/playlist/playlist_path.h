#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The path of a row from an entry of a playlist file, `folder` being the
// playlist's own folder:
//   - "/music/a.mp3" stays as it is.
//   - "file:///music/a%20b.mp3" (also "file://localhost/...", "file:/...")
//     is the local path, its %XX escapes decoded.
//   - A URL of any other kind ("http://...", "file://otherhost/...") and a
//     Windows path ("C:\Music\a.mp3", "\\server\share\a.mp3") stay as they
//     stand; they name no file here, so a check reports them missing.
//   - Anything else is relative to the playlist's folder. In a relative
//     entry "\" separates folders, as the playlists of Windows players write
//     them ("Album\01.mp3").
std::string ResolvePlaylistEntry(std::string_view entry, std::string_view folder);

// The title of an entry that has none: its file name without the extension.
std::string TitleFromPath(std::string_view path);

}  // namespace tarnwick
