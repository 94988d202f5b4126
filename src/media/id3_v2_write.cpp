#include "media/id3_v2_write.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string>

#include "base/text.h"
#include "media/id3_fields.h"
#include "media/id3_genres.h"
#include "media/id3_size.h"
#include "media/id3_text.h"
#include "media/id3_v2_read.h"
#include "media/media_file.h"

namespace tarnwick {
namespace {

bool IsPlainLink(std::string_view id) { return id.starts_with("W") && id != "WXXX"; }
bool IsComment(std::string_view id) { return id == "COMM" || id == "USLT"; }

// The frame's content; for TXXX, COMM, USLT and WXXX in unicode the declared
// size is 2 bytes larger, and those bytes stay zero.
std::vector<std::uint8_t> FrameContent(std::string_view id, std::string_view value, bool unicode) {
  std::vector<std::uint8_t> out;
  const auto append = [&out](const std::vector<std::uint8_t>& bytes) {
    out.insert(out.end(), bytes.begin(), bytes.end());
  };
  const auto nul = [&out](bool twice) {
    out.push_back(0);
    if (twice) out.push_back(0);
  };
  if (IsPlainLink(id)) {
    append(TextToBytes(value, 0, false, true));
    return out;
  }
  out.push_back(unicode ? 1 : 0);
  if (id == "WXXX") {
    nul(unicode);
    append(TextToBytes(value, 0, false, true));
    return out;
  }
  if (IsComment(id)) out.insert(out.end(), {'e', 'n', 'g'});
  if (id == "TXXX" || IsComment(id)) nul(unicode);
  append(TextToBytes(value, 0, unicode, true));
  return out;
}

std::string ValueOf(const ID3v2Tag& tag, std::string_view id) {
  std::string ID3v2Tag::*field = FieldOfFrame(id);
  return field == nullptr ? std::string() : tag.*field;
}

bool SkippedFor(std::string_view id, int target_version) {
  return (id == "TDRC" && target_version == kID3v23) || (id == "TYER" && target_version == kID3v24);
}

}  // namespace

std::uint32_t FrameSize(std::string_view id, std::string_view value, bool unicode,
                        bool with_header) {
  if (vb::Trim(value).empty()) return 0;
  const std::uint32_t n = static_cast<std::uint32_t>(TagTextLength(value));
  std::uint32_t size = 0;
  if (IsPlainLink(id)) {
    size = n + 1;
  } else if (id == "WXXX") {
    size = unicode ? n + 6 : n + 3;
  } else if (id == "TXXX") {
    size = unicode ? 2 * n + 9 : n + 3;
  } else if (IsComment(id)) {
    size = unicode ? 2 * n + 12 : n + 6;
  } else {
    size = unicode ? 2 * n + 5 : n + 2;
  }
  return with_header ? size + 10 : size;
}

std::int64_t NewTagTotal(std::int64_t needed, std::int64_t old_total) {
  if (needed <= old_total) return old_total;
  const std::int64_t base = needed / 2048 * 2048;
  return (needed % 2048 < 1024 ? base + 2048 : base + 4096) + 10;
}

std::vector<std::uint8_t> BuildID3v2Tag(const ID3v2Tag& tag, int target_version,
                                        const std::vector<RawFrame>& other_frames,
                                        std::int64_t old_total, bool unicode) {
  ID3v2Tag copy = tag;
  copy.genre = FormatGenreField(tag.genre);
  std::int64_t needed = 10;
  std::set<std::string, std::less<>> written;
  for (std::string_view id : ID3v2FrameList()) {
    const std::string value = ValueOf(copy, id);
    if (!SkippedFor(id, target_version)) needed += FrameSize(id, value, unicode, true);
    if (!vb::Trim(value).empty()) written.emplace(id);
  }
  for (const RawFrame& f : other_frames) {
    if (!written.contains(f.id)) needed += static_cast<std::int64_t>(f.size) + 10;
  }
  const std::int64_t total = NewTagTotal(needed, old_total);
  std::vector<std::uint8_t> out(static_cast<std::size_t>(total), 0);
  std::memcpy(out.data(), "ID3", 3);
  out[3] = target_version == kID3v24 ? 4 : 3;
  WriteSize(static_cast<std::uint32_t>(total - 10), true, &out[6]);
  const bool syncsafe = target_version == kID3v24;
  std::size_t at = 10;
  const auto put_header = [&](std::string_view id, std::uint32_t size) {
    std::memcpy(&out[at], id.data(), 4);
    WriteSize(size, syncsafe, &out[at + 4]);
    at += 10;
  };
  for (std::string_view id : ID3v2FrameList()) {
    if (SkippedFor(id, target_version)) continue;
    const std::string value = ValueOf(copy, id);
    const std::uint32_t size = FrameSize(id, value, unicode, false);
    if (size == 0) continue;
    const auto content = FrameContent(id, value, unicode);
    put_header(id, size);
    std::copy_n(content.begin(), std::min<std::size_t>(content.size(), size), out.begin() + at);
    at += size;
  }
  for (const RawFrame& f : other_frames) {
    if (written.contains(f.id)) continue;
    std::string id = f.id;
    if (target_version == kID3v24 && id == "TORY") id = "TDOR";
    if (target_version == kID3v24 && id == "IPLS") id = "TIPL";
    id.resize(4, ' ');
    put_header(id, f.size);
    std::copy_n(f.data.begin(), std::min<std::size_t>(f.data.size(), f.size), out.begin() + at);
    at += f.size;
  }
  return out;
}

bool WriteID3v2(const std::filesystem::path& path, const ID3v2Tag& tag, int target_version,
                bool discard_other_frames, bool unicode, bool clear_read_only) {
  if (clear_read_only) ClearReadOnly(path);
  std::vector<std::uint8_t> bytes;
  std::int64_t old_total = 0;
  {
    MediaFile file(path, MediaFile::Mode::kReadWrite);
    if (!file.is_open()) return false;
    old_total = std::min(ID3v2TagSize(file, 0, false), file.Size());
    std::vector<RawFrame> other_frames;
    if (!discard_other_frames && old_total != 0) {
      ID3v2Tag scratch;
      ParseID3v2Chain(file, scratch, &other_frames);
    }
    bytes = BuildID3v2Tag(tag, target_version, other_frames, old_total, unicode);
    if (static_cast<std::int64_t>(bytes.size()) <= old_total) {
      return file.WriteAt(0, bytes.data(), bytes.size());
    }
  }
  // A grown tag moves the audio: the new file is made beside the old one.
  return ReplaceWithHeadAndTail(path, bytes, old_total);
}

bool RemoveID3v2(const std::filesystem::path& path, bool clear_read_only) {
  if (clear_read_only) ClearReadOnly(path);
  std::int64_t old_total = 0;
  {
    const MediaFile file(path, MediaFile::Mode::kReadWrite);
    if (!file.is_open()) return false;
    old_total = std::min(ID3v2TagSize(file, 0, false), file.Size());
  }
  // The new file beside the old one can fail where cutting in place could not:
  // that is reported, and the old file stays whole.
  return old_total == 0 || ReplaceWithHeadAndTail(path, {}, old_total);
}

}  // namespace tarnwick
