#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "media/id3_tags.h"
#include "media/mpeg_info.h"

namespace tarnwick {

class MessageTable;

// What the tag editor `frmMP3Tagger` shows of one file and hands to the
// writers; the dialogue only draws it.
struct TagEditorFile {
  std::string path;
  bool is_mp3 = false;  // by the extension "mp3", in any case
  bool has_v1 = false;
  bool has_v2 = false;
  ID3v1Tag v1;
  // All 57 fields as read (cut at a closing NUL), so that the fields the
  // dialogue has no box for are written back unchanged.
  ID3v2Tag v2;
  MPEGInfo mpeg;
  bool mpeg_found = false;
  // Why a tag could be read only in part (a damaged or cut-off version 2
  // tag, a stream header that makes no sense); empty when all was well.
  std::string damage;
};

// Reads both tags and the stream facts. Never throws: a damaged tag gives
// what could be read and says so in `damage`.
TagEditorFile LoadTagEditorFile(const std::string& path, const MessageTable& messages);

// The texts of the labels `lblMPEG` ... `lblv2Vers`, in that order, each
// with its words before the value.
std::array<std::string, 10> MpegLabelTexts(const TagEditorFile& file,
                                           const MessageTable& messages);

// What `cmdUpdate` takes from the dialogue.
struct TagEditorUpdate {
  bool v1_on = false;
  bool v2_on = false;
  int version_row = 0;  // `cmbVersion`: 0 writes 2.3, 1 writes 2.4
  bool clear = false;   // `chkClear`: discard what the tag holds beyond the record
  ID3v1Tag v1;
  ID3v2Tag v2;
};

// A box of the dialogue: its control name and the field of the record.
struct TagBox {
  std::string_view name;
  std::string_view label_key;
  std::string ID3v1Tag::*v1 = nullptr;
  std::string ID3v2Tag::*v2 = nullptr;
};
std::span<const TagBox> V1Boxes();
std::span<const TagBox> V2Boxes();

enum class TagUpdateOutcome {
  kWritten,
  kV1TrackNotNumeric,  // message 1102, nothing written
  kV2TrackNotNumeric,  // message 1103, nothing written
  kNotLatin1,          // a character a tag cannot hold, nothing written
  kWriteFailed,        // a writer could not open or replace the file
};

struct TagUpdateResult {
  TagUpdateOutcome outcome = TagUpdateOutcome::kWritten;
  // The box holding the character (kNotLatin1), e.g. "v2Artist", and the
  // character; or the step that failed (kWriteFailed).
  std::string box;
  std::string detail;
};

// `cmdUpdate` in its order: the two track checks, then version 1 written or
// removed, then version 2 written (Latin-1 only) or removed. Before anything
// is written every box of a ticked version is checked for characters above
// U+00FF: the Part's run-time overflow would stop the update half done. A
// read-only file is made writable first, as the writers do; a file that
// cannot be written at all gives kWriteFailed with the step that failed.
TagUpdateResult UpdateTags(const std::string& path, const TagEditorUpdate& update);

// The message a result stands for, in the user's language (empty for
// kWritten), and its title.
std::string TagUpdateMessage(const TagUpdateResult& result, const std::string& path,
                             const MessageTable& messages);

}  // namespace tarnwick
