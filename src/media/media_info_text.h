#pragma once

#include <string>

namespace tarnwick {

class MessageTable;

// The text of the viewer `frmMP3Info` for one file, lines ended by "\n":
// for an MP3 file the stream's technical facts, "MP3 ID TAG v2
// information:" with a labelled line for each field of the version 2 tag
// that is not empty, then the version 1 tag's fields; for a Windows Media
// file "WMA TAG information:" with each attribute's name and value. A file
// with none of these says "No MP3 information found in file".
std::string MediaInfoText(const std::string& path, const MessageTable& messages);

}  // namespace tarnwick
