#include "media/id3_v2_read.h"

#include <string_view>

#include "base/text.h"
#include "base/vb_number.h"
#include "media/id3_fields.h"
#include "media/id3_genres.h"
#include "media/id3_size.h"
#include "media/id3_text.h"
#include "media/id3_v2_frames.h"

namespace tarnwick {
namespace {

// The body of one tag and what its header says.
struct TagBody {
  std::int64_t position = 0;
  int version = 0;
  bool unsynchronised = false;
  std::int64_t footer = 0;
  std::vector<std::uint8_t> bytes;
  std::int64_t size = 0;

  std::uint8_t At(std::int64_t i) const {
    return i >= 0 && i < static_cast<std::int64_t>(bytes.size()) ? bytes[i] : 0;
  }
  std::array<std::uint8_t, 4> Four(std::int64_t i) const {
    return {At(i), At(i + 1), At(i + 2), At(i + 3)};
  }
};

bool IsIdByte(std::uint8_t b) { return (b >= 'A' && b <= 'Z') || (b >= '0' && b <= '9') || b == 0; }

// Where the walk is and what it collects.
struct FrameWalk {
  TagBody& body;
  ID3v2Tag& tag;
  std::vector<RawFrame>* raw_frames;
  std::int64_t next = -1;

  // Stores or collects one frame; `data` is behind the extra bytes.
  void Take(const std::string& raw_id, std::vector<std::uint8_t> data) {
    const std::string id = MapFrameId(raw_id);
    if (raw_frames == nullptr || id == "SEEK") {
      Store(id, DecodeFrameValue(data, id));
      return;
    }
    if (data.empty()) return;
    RawFrame frame{raw_id, static_cast<std::uint32_t>(data.size()), std::move(data)};
    ConvertRawFrame(frame);
    raw_frames->push_back(std::move(frame));
  }

  void Store(const std::string& id, const std::string& value) {
    if (id == "SEEK") {
      if (vb::IsNumeric(value)) next = body.position + 10 + body.size + std::stoll(value);
      return;
    }
    if (id == "TDRC") {
      if (vb::Trim(tag.year).empty()) tag.year = vb::Left(value, 4);
      return;
    }
    if (id == "TDRL") {
      tag.releaseYear = vb::Left(value, 4);
      return;
    }
    std::string ID3v2Tag::*field = FieldOfFrame(id);
    if (field == nullptr) return;
    tag.*field = id == "TCON" ? ParseGenreField(value) : value;
  }

  void WalkV34(std::int64_t pos) {
    const bool syncsafe = body.version == 4;
    while (pos >= 0 && pos <= body.size - body.footer - 10) {
      const std::int64_t header = pos;
      pos += 10;
      const auto id_bytes = body.Four(header);
      if (id_bytes == std::array<std::uint8_t, 4>{0, 0, 0, 0}) return;
      const auto size_bytes = body.Four(header + 4);
      std::int64_t size = ReadSize(size_bytes, syncsafe);
      if (pos + size > body.size) return;
      if (pos + size + 4 <= body.size) {
        const auto next_id = body.Four(pos + size);
        if (!IsIdByte(next_id[0]) || !IsIdByte(next_id[1]) || !IsIdByte(next_id[2]) ||
            !IsIdByte(next_id[3])) {
          size = ReadSize(size_bytes, false);
          if (pos + size > body.size) return;
        }
      }
      const std::string id(id_bytes.begin(), id_bytes.end());
      Frame(id, body.At(header + 9), pos, size);
      pos += size;
    }
  }

  void Frame(const std::string& id, std::uint8_t flags, std::int64_t pos, std::int64_t size) {
    bool skipped = false;
    std::int64_t skip = 0;
    bool unsync = false;
    if (body.version == 3) {
      skipped = (flags & 0xC0) != 0;
      if (flags & 0x20) skip += 1;
    } else {
      if (flags & 0x40) skip += 1;
      skipped = (flags & 0x0C) != 0;
      unsync = (flags & 0x02) != 0 || body.unsynchronised;
      if (flags & 0x01) skip += 4;
    }
    if (skipped) {
      if (raw_frames == nullptr) Store(MapFrameId(id), std::string());
      return;
    }
    std::vector<std::uint8_t> data(body.bytes.begin() + pos, body.bytes.begin() + pos + size);
    if (unsync) RemoveUnsynchronisation(data);
    if (skip >= static_cast<std::int64_t>(data.size())) {
      data.clear();
    } else {
      data.erase(data.begin(), data.begin() + skip);
    }
    Take(id, std::move(data));
  }

  void WalkV2(std::int64_t pos) {
    while (pos >= 0 && pos <= body.size - 6) {
      const std::string id{static_cast<char>(body.At(pos)), static_cast<char>(body.At(pos + 1)),
                           static_cast<char>(body.At(pos + 2))};
      const std::int64_t size = body.At(pos + 3) << 16 | body.At(pos + 4) << 8 | body.At(pos + 5);
      pos += 6;
      if (id == std::string(3, '\0')) return;
      if (pos + size > body.size) return;
      if (raw_frames != nullptr && (id == "CRM" || size < 1)) {
        pos += size;
        continue;
      }
      Take(id,
           std::vector<std::uint8_t>(body.bytes.begin() + pos, body.bytes.begin() + pos + size));
      pos += size;
    }
  }
};

}  // namespace

std::int64_t ParseID3v2Tag(const MediaFile& file, std::int64_t position, ID3v2Tag& tag,
                           std::vector<RawFrame>* raw_frames) {
  TagBody body;
  body.position = position;
  // Kept: every tag of a chain is read with the size of the tag at the start.
  body.size = ID3v2TagSize(file, 0, true);
  const auto header = file.ReadAt(position, 10);
  body.version = header[3];
  if (body.version < 2 || body.version > 4) return -1;
  const std::uint8_t flags = header[5];
  body.unsynchronised = (flags & 0x80) != 0;
  const bool extended = body.version >= 3 && (flags & 0x40) != 0;
  if (body.version == 4 && (flags & 0x10) != 0) {
    body.size += 10;
    body.footer = 10;
  }
  body.bytes = file.ReadAt(position + 10, static_cast<std::size_t>(body.size));
  if (body.version <= 3 && body.unsynchronised) {
    body.size -= static_cast<std::int64_t>(RemoveUnsynchronisation(body.bytes));
  }
  std::int64_t start = 0;
  bool update = false;
  if (extended && body.version == 3)
    start = static_cast<std::int64_t>(ReadSize(body.Four(0), false)) + 4;
  if (extended && body.version == 4) {
    start = ReadSize(body.Four(0), true);
    update = (body.At(5) & 0x40) != 0;
  }
  if (!update) tag = {};
  FrameWalk walk{body, tag, raw_frames};
  if (body.version == 2) {
    walk.WalkV2(start);
  } else {
    walk.WalkV34(start);
  }
  return walk.next;
}

bool ParseID3v2Chain(const MediaFile& file, ID3v2Tag& tag, std::vector<RawFrame>* raw_frames) {
  bool found = false;
  std::int64_t position = 0;
  const std::int64_t size = file.Size();
  while (position >= 0 && position < size) {
    const auto magic = file.ReadAt(position, 3);
    if (magic[0] != 'I' || magic[1] != 'D' || magic[2] != '3') break;
    found = true;
    position = ParseID3v2Tag(file, position, tag, raw_frames);
  }
  return found;
}

bool ReadID3v2(const std::filesystem::path& path, ID3v2Tag& tag) {
  const MediaFile file(path, MediaFile::Mode::kRead);
  return ReadID3v2(file, tag);
}

bool ReadID3v2(const MediaFile& file, ID3v2Tag& tag) {
  if (!file.is_open()) return false;
  if (ParseID3v2Chain(file, tag, nullptr)) return true;
  std::int64_t end = file.Size();
  if (end >= 128) {
    const auto v1 = file.ReadAt(end - 128, 3);
    if (v1[0] == 'T' && v1[1] == 'A' && v1[2] == 'G') end -= 128;
  }
  const std::int64_t at = std::max<std::int64_t>(end - 10, 0);
  const auto footer = file.ReadAt(at, 10);
  if (footer[0] != '3' || footer[1] != 'D' || footer[2] != 'I') return false;
  const std::int64_t start =
      at - static_cast<std::int64_t>(ReadSize(std::span(footer).subspan(6, 4), true)) - 10;
  if (start < 0) return false;
  ParseID3v2Tag(file, start, tag, nullptr);
  return true;
}

}  // namespace tarnwick
