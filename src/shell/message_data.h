#pragma once

#include <span>

#include "shell/message_entry.h"

// The texts of the message table, one list per subsystem. Each list lives in
// its own file (message_data_<subsystem>.cpp); MessageTable joins them.
namespace tarnwick::message_data {

std::span<const MessageEntry> RenameEngine();  // renaming, run, numbering, sample, order, manual
std::span<const MessageEntry> Placeholders();  // tokens, catalogue
std::span<const MessageEntry> Media();         // tags, stream facts, EXIF, tag editor, reports
std::span<const MessageEntry> Persistence();   // options, settings files, XML, log and undo
std::span<const MessageEntry> FileList();      // list loading and exports
std::span<const MessageEntry> FileTools();     // copy/move, rename from text, split/merge, ...
std::span<const MessageEntry> PictureTools();  // encoder, image buffer, batch jobs
std::span<const MessageEntry> Playlist();      // playlist formats and operations
std::span<const MessageEntry> Shell();         // start-up, command line, closing, main window

}  // namespace tarnwick::message_data
