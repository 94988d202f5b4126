#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "media/exif_entry.h"
#include "media/exif_translation.h"

namespace tarnwick {

class MessageTable;

// `clsEXIF`: reads the EXIF block of a picture into a list of entries with
// display texts. Only the first 4096 bytes of a file are read and searched
// for "Exif" and a NUL; the JPEG markers are not walked, so any file with
// that text in its head is parsed. Of the directories only the first one and
// the EXIF directory it points to are read. Never writes, never raises.
class ExifReader {
 public:
  enum class Status : std::uint8_t { kParsed = 0, kNoExif = 1, kFailed = 2 };

  static constexpr std::size_t kHeadBytes = 4096;

  // The texts of `MetaInfo` and `ListInfo` come from `messages`; `exif.ini`
  // is looked for at `translation_files`, again at a parse when the last
  // look is more than a second old, so an edit counts from the next second.
  ExifReader(const MessageTable& messages, std::vector<std::filesystem::path> translation_files);
  // The system's language and the default places of exif.ini.
  ExifReader();

  // `ImageFile` set: parses the file at once.
  void SetImageFile(const std::filesystem::path& file);
  const std::filesystem::path& ImageFile() const { return image_file_; }

  // Parses the head of a file held in memory (only its first 4096 bytes).
  void ParseHead(std::string_view head);

  bool IntelByteAlignment() const { return intel_; }
  Status status() const { return status_; }
  const std::vector<ExifEntry>& entries() const;

  // `MetaInfo`: with a parsed file, the first entry of `tag`: `text` takes its
  // text and the result is its value as a 32-bit integer. Without one, `text`
  // is "n/a" when `quiet`, else "Tag <n> not found.". Any other status leaves
  // `text` empty and gives 0.
  std::int32_t MetaInfo(std::uint32_t tag, std::string& text, bool quiet) const;

  // True when a parsed file holds an entry of `tag`.
  bool HasTag(std::uint32_t tag) const;

  // `GetTagName`.
  static std::string GetTagName(std::uint32_t tag);

  // `ListInfo`: a line "Name: Text" with CR LF for each of the first 80
  // entries, or the message for a file without EXIF data or a failed parse.
  std::string ListInfo() const;

 private:
  void Parse(std::string_view head);
  void RefreshTranslation();
  std::int64_t ReadDirectory(std::string_view head, std::int64_t base, std::int64_t offset,
                             std::uint32_t watched_tag);

  const MessageTable& messages_;
  std::vector<std::filesystem::path> translation_files_;
  ExifTranslation translation_;
  std::optional<std::chrono::steady_clock::time_point> translation_read_;
  std::filesystem::path image_file_;
  bool intel_ = false;
  Status status_ = Status::kNoExif;
  // Mutable: the texts of numbers are made on first use (see ExifEntry).
  mutable std::vector<ExifEntry> entries_;
  std::array<char, kHeadBytes> head_buffer_{};
};

// The first bytes of a file into `buffer` (as many as it holds): the count
// of bytes read, 0 for a missing, unreadable or empty file.
std::size_t ReadExifHeadInto(const std::filesystem::path& file, std::span<char> buffer);

}  // namespace tarnwick
