#include "media/tag_editor_model.h"

#include <fstream>
#include <optional>

#include "base/path_text.h"
#include "base/text.h"
#include "base/utf8.h"
#include "base/vb_error.h"
#include "base/vb_number.h"
#include "media/id3_fields.h"
#include "media/id3_size.h"
#include "media/id3_v1.h"
#include "media/id3_v2_read.h"
#include "media/id3_v2_write.h"
#include "platform/files.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

using V1 = ID3v1Tag;
using V2 = ID3v2Tag;

constexpr TagBox kV1Boxes[] = {
    {"v1Artist", "tag_editor.artist", &V1::artist},   {"v1Album", "tag_editor.album", &V1::album},
    {"v1Title", "tag_editor.title", &V1::title},      {"v1TNR", "tag_editor.track", &V1::track},
    {"v1Year", "tag_editor.year", &V1::year},         {"v1Genre", "tag_editor.genre", &V1::genre},
    {"v1Comment", "tag_editor.comment", &V1::comment},
};

constexpr TagBox kV2Boxes[] = {
    {"v2Artist", "tag_editor.artist", nullptr, &V2::artist},
    {"v2Album", "tag_editor.album", nullptr, &V2::album},
    {"v2Title", "tag_editor.title", nullptr, &V2::title},
    {"v2TNR", "tag_editor.track", nullptr, &V2::track},
    {"v2Year", "tag_editor.year", nullptr, &V2::year},
    {"v2Genre", "tag_editor.genre", nullptr, &V2::genre},
    {"v2Comment", "tag_editor.comment", nullptr, &V2::comment},
    {"v2Composer", "tag_editor.composer", nullptr, &V2::composer},
    {"v2OrigArtist", "tag_editor.original_artist", nullptr, &V2::originalartist},
    {"v2Copyright", "tag_editor.copyright", nullptr, &V2::copyright},
    {"v2LinkTo", "tag_editor.link_to", nullptr, &V2::linkTo},
    {"v2Encoder", "tag_editor.encoder", nullptr, &V2::encoder},
};

std::string Text(const MessageTable& messages, std::string_view key) {
  return std::string(messages.Text(key));
}

std::string YesNo(bool yes, const MessageTable& messages) {
  return Text(messages, yes ? "media.yes" : "media.no");
}

// A version 2 tag whose header promises more than the file holds, or whose
// size bytes are no synchsafe number, is damaged: the reader took what it
// could.
bool V2HeaderDamaged(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  unsigned char head[10] = {};
  if (!in.read(reinterpret_cast<char*>(head), sizeof head)) return false;
  if (head[0] != 'I' || head[1] != 'D' || head[2] != '3') return false;
  if (head[3] > 4 || head[3] < 2) return true;
  std::uint32_t size = 0;
  for (int i = 6; i < 10; ++i) {
    if (head[i] & 0x80) return true;
    size = (size << 7) | head[i];
  }
  const auto file_size = FileSize64(path);
  return file_size.ok() && 10u + size > file_size.value();
}

// The first character above U+00FF, or nothing.
std::optional<std::string> NonLatin1(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const utf8::Char c = utf8::DecodeAt(text, at);
    if (!c.valid || c.code_point > 0xFF) return std::string(text.substr(at, c.size));
    at += c.size;
  }
  return std::nullopt;
}

std::optional<TagUpdateResult> FindNonLatin1(const TagEditorUpdate& update) {
  const auto check = [](std::string_view box, const std::string& value)
      -> std::optional<TagUpdateResult> {
    if (auto c = NonLatin1(value)) return TagUpdateResult{TagUpdateOutcome::kNotLatin1,
                                                          std::string(box), *c};
    return std::nullopt;
  };
  if (update.v1_on) {
    for (const TagBox& box : kV1Boxes) {
      if (auto found = check(box.name, update.v1.*box.v1)) return found;
    }
  }
  if (update.v2_on) {
    for (const TagBox& box : kV2Boxes) {
      if (auto found = check(box.name, update.v2.*box.v2)) return found;
    }
  }
  return std::nullopt;
}

TagUpdateResult Failed(std::string_view step) {
  return {TagUpdateOutcome::kWriteFailed, std::string(step), {}};
}

}  // namespace

std::span<const TagBox> V1Boxes() { return kV1Boxes; }
std::span<const TagBox> V2Boxes() { return kV2Boxes; }

TagEditorFile LoadTagEditorFile(const std::string& path, const MessageTable& messages) {
  TagEditorFile file;
  file.path = path;
  file.is_mp3 = vb::LCase(ExtensionName(path)) == "mp3";
  if (!file.is_mp3) return file;
  try {
    file.has_v1 = ReadID3v1(path, file.v1);
    for (const TagBox& box : kV1Boxes) file.v1.*box.v1 = StripAtNull(file.v1.*box.v1);
  } catch (const VbError&) {
    file.damage = Text(messages, "tag_editor.damaged_v1");
  }
  try {
    ID3v2Tag read;
    file.has_v2 = ReadID3v2(path, read);
    for (const ID3v2Field& f : ID3v2Fields()) file.v2.*f.member = StripAtNull(read.*f.member);
  } catch (const VbError&) {
    file.has_v2 = true;
    file.damage = Text(messages, "tag_editor.damaged_v2");
  }
  if (file.damage.empty() && V2HeaderDamaged(path)) {
    file.damage = Text(messages, "tag_editor.damaged_v2");
  }
  try {
    file.mpeg_found = ReadMPEGInfo(path, file.mpeg);
  } catch (const VbError&) {
    file.mpeg_found = false;
    if (file.damage.empty()) file.damage = Text(messages, "tag_editor.damaged_stream");
  }
  return file;
}

std::array<std::string, 10> MpegLabelTexts(const TagEditorFile& file,
                                           const MessageTable& messages) {
  const MPEGInfo& m = file.mpeg;
  const auto version = [&](std::string_view key, std::string_view prefix_key, int number) {
    return Text(messages, key) +
           (number >= 0 ? Text(messages, prefix_key) + std::to_string(number)
                        : Text(messages, "tag_editor.none"));
  };
  return {
      m.mpegVersion,
      Text(messages, "tag_editor.length") + FormatSeconds(m.length),
      Text(messages, "tag_editor.bitrate") + std::to_string(m.bitrate) +
          Text(messages, "tag_editor.kbit_per_sec") +
          Text(messages, m.hasVBR ? "tag_editor.variable_bit_rate"
                                  : "tag_editor.constant_bit_rate"),
      Text(messages, "tag_editor.frequency") + std::to_string(m.frequency) +
          Text(messages, "tag_editor.hz") + m.channelMode,
      Text(messages, "tag_editor.copyrighted") + YesNo(m.isCopyrighted, messages),
      Text(messages, "tag_editor.original") + YesNo(m.isOriginal, messages),
      Text(messages, "tag_editor.uses_checksums") + YesNo(m.hasCRC, messages),
      Text(messages, "tag_editor.uses_emphasis") + YesNo(m.hasEmphasis, messages),
      version("tag_editor.id3v1_tag", "tag_editor.version_1", m.ID3v1Version),
      version("tag_editor.id3v2_tag", "tag_editor.version_2", m.ID3v2Version),
  };
}

TagUpdateResult UpdateTags(const std::string& path, const TagEditorUpdate& update) {
  if (update.v1_on && !vb::IsNumeric(update.v1.track)) {
    return {TagUpdateOutcome::kV1TrackNotNumeric, "v1TNR", {}};
  }
  if (update.v2_on && !vb::IsNumeric(update.v2.track)) {
    return {TagUpdateOutcome::kV2TrackNotNumeric, "v2TNR", {}};
  }
  if (auto found = FindNonLatin1(update)) return *found;
  try {
    if (update.v1_on ? !WriteID3v1(path, update.v1, true) : !RemoveID3v1(path, true)) {
      return Failed(update.v1_on ? "v1" : "v1-remove");
    }
    const bool v2_done =
        update.v2_on ? WriteID3v2(path, update.v2, update.version_row == 1 ? kID3v24 : kID3v23,
                                  update.clear, false, true)
                     : RemoveID3v2(path, true);
    if (!v2_done) return Failed(update.v2_on ? "v2" : "v2-remove");
  } catch (const VbError& error) {
    return {TagUpdateOutcome::kWriteFailed, "v2", error.description()};
  }
  return {};
}

std::string TagUpdateMessage(const TagUpdateResult& result, const std::string& path,
                             const MessageTable& messages) {
  switch (result.outcome) {
    case TagUpdateOutcome::kWritten:
      return {};
    case TagUpdateOutcome::kV1TrackNotNumeric:
      return std::string(messages.Text(1102));
    case TagUpdateOutcome::kV2TrackNotNumeric:
      return std::string(messages.Text(1103));
    case TagUpdateOutcome::kNotLatin1: {
      std::string label;
      for (const auto boxes : {V1Boxes(), V2Boxes()}) {
        for (const TagBox& box : boxes) {
          if (box.name == result.box) label = Text(messages, box.label_key);
        }
      }
      if (label.ends_with(':')) label.pop_back();
      const std::string frame =
          Text(messages, result.box.starts_with("v1") ? "tag_editor.frame_v1" : "tag_editor.frame_v2");
      return FillMessage(messages.Text("tag_editor.not_latin1"), {result.detail, label, frame});
    }
    case TagUpdateOutcome::kWriteFailed:
      return FillMessage(messages.Text("tag_editor.write_failed"), {path, result.detail});
  }
  return {};
}

}  // namespace tarnwick
