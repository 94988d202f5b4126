#pragma once

#include <string>
#include <string_view>
#include <vector>

// The bytes of a playlist file and the text the readers and writers work on.
//
// Writing: a `.m3u8` file is UTF-8 without a byte-order mark. A `.m3u` or
// `.pls` file is Windows-1252 when every character of it has a byte there;
// otherwise the whole file is UTF-8 behind a byte-order mark, so no character
// is ever lost. Windows-1252 is also given up when its bytes would happen to
// form well-formed UTF-8 (such as "Ã©"), and when the text holds bytes that
// are not UTF-8 (a Linux name in another encoding), which then stand as they
// are behind the mark.
//
// Reading tells them apart like this: a byte-order mark means UTF-8; without
// one, a file that is well-formed UTF-8 is UTF-8 (pure ASCII reads the same
// either way), and any other file is Windows-1252, byte by byte. A `.m3u8`
// file is always UTF-8; bytes that are not UTF-8 pass through unchanged.
namespace tarnwick {

inline constexpr std::string_view kUtf8ByteOrderMark = "\xEF\xBB\xBF";

std::string DecodePlaylistBytes(std::string_view bytes, bool utf8_only);
std::string EncodePlaylistText(std::string_view text, bool utf8_only);

// The lines of a text; a line ends at LF, CR LF or a lone CR. A last line
// without an end counts; an empty text has no lines.
std::vector<std::string_view> PlaylistLines(std::string_view text);

// True when the file name ends in ".m3u8" (any case).
bool IsUtf8PlaylistName(std::string_view file_name);

}  // namespace tarnwick
