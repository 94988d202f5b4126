#include "media/exif_reader.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/vb_error.h"
#include "base/vb_number.h"
#include "media/exif_bytes.h"
#include "media/exif_decode.h"
#include "media/exif_tag_table.h"
#include "shell/message_table.h"

namespace tarnwick {
namespace {

constexpr std::uint32_t kExifOffsetTag = 34665;
constexpr std::uint32_t kInteroperabilityOffsetTag = 40965;
constexpr std::size_t kListLines = 80;
constexpr std::string_view kSignature{"Exif\0", 5};
// The TIFF header begins this many bytes behind the signature's first byte.
constexpr std::int64_t kTiffStart = 6;

// The numeric value of a text as a directory offset; one that no file could
// hold is kept far outside the bytes, so its read fails.
std::int64_t OffsetOf(std::string_view text) {
  constexpr double kFar = 1LL << 40;
  const double value = vb::Val(text);
  if (!(value > -kFar && value < kFar)) return static_cast<std::int64_t>(kFar);
  return static_cast<std::int64_t>(value);
}

}  // namespace

std::size_t ReadExifHeadInto(const std::filesystem::path& file, std::span<char> buffer) {
  const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return 0;
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const ssize_t got = ::read(fd, buffer.data() + filled, buffer.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    filled += static_cast<std::size_t>(got);
  }
  ::close(fd);
  return filled;
}

ExifReader::ExifReader(const MessageTable& messages,
                       std::vector<std::filesystem::path> translation_files)
    : messages_(messages), translation_files_(std::move(translation_files)) {}

ExifReader::ExifReader()
    : ExifReader(MessageTable::Get(SystemLanguage()), DefaultExifTranslationFiles()) {}

void ExifReader::SetImageFile(const std::filesystem::path& file) {
  image_file_ = file;
  entries_.clear();
  intel_ = false;
  // An empty or missing file is a failed parse ("File not found.").
  const std::size_t filled = ReadExifHeadInto(file, head_buffer_);
  if (filled == 0) {
    status_ = Status::kFailed;
    return;
  }
  ParseHead(std::string_view(head_buffer_.data(), filled));
}

void ExifReader::ParseHead(std::string_view head) {
  entries_.clear();
  intel_ = false;
  RefreshTranslation();
  try {
    Parse(head.substr(0, std::min(head.size(), kHeadBytes)));
  } catch (const VbError&) {
    // The entries read so far stay.
    status_ = Status::kFailed;
  }
}

void ExifReader::RefreshTranslation() {
  const auto now = std::chrono::steady_clock::now();
  if (translation_read_ && now - *translation_read_ < std::chrono::seconds(1)) return;
  translation_ = ExifTranslation::Load(translation_files_);
  translation_read_ = now;
}

void ExifReader::Parse(std::string_view head) {
  const std::size_t match = head.find(kSignature);
  if (match == std::string_view::npos) {
    status_ = Status::kNoExif;
    return;
  }
  const std::int64_t base = static_cast<std::int64_t>(match) + kTiffStart;
  intel_ = static_cast<std::size_t>(base) <= head.size() &&
           head.substr(static_cast<std::size_t>(base)).starts_with("II");
  const ExifBytes bytes(head, intel_);
  const auto first = static_cast<std::int64_t>(bytes.ReadUnsigned(base + 4, 4));
  // Kept: without an ExifOffset entry the second read starts at offset 0,
  // the TIFF header itself, and fails.
  const std::int64_t exif = ReadDirectory(head, base, first, kExifOffsetTag);
  ReadDirectory(head, base, exif, kInteroperabilityOffsetTag);
  status_ = Status::kParsed;
}

std::int64_t ExifReader::ReadDirectory(std::string_view head, std::int64_t base,
                                       std::int64_t offset, std::uint32_t watched_tag) {
  const ExifBytes bytes(head, intel_);
  const std::int64_t start = base + offset;
  const auto count = static_cast<std::int64_t>(bytes.ReadUnsigned(start, 2));
  std::int64_t watched = 0;
  for (std::int64_t i = 0; i < count; ++i) {
    ExifEntry& entry = entries_.emplace_back();
    DecodeExifEntry(bytes, base, start + 2 + 12 * i, entry);
    // Texts of numbers are made when asked for, unless needed now.
    if (!translation_.empty() || entry.Tag == watched_tag) FinishExifEntryText(entry);
    if (!translation_.empty()) entry.Text = translation_.Apply(entry.Name, std::move(entry.Text));
    if (entry.Tag == watched_tag) watched = OffsetOf(entry.Text);
  }
  return watched;
}

std::int32_t ExifReader::MetaInfo(std::uint32_t tag, std::string& text, bool quiet) const {
  if (status_ != Status::kParsed) return 0;
  for (ExifEntry& entry : entries_) {
    if (entry.Tag != tag) continue;
    FinishExifEntryText(entry);
    text = entry.Text;
    const double value = std::nearbyint(entry.Value.value_or(0.0));
    constexpr double kLow = std::numeric_limits<std::int32_t>::min();
    constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
    if (!(value >= kLow && value <= kHigh)) return 0;
    return static_cast<std::int32_t>(value);
  }
  text = quiet ? "n/a" : "Tag " + std::to_string(tag) + " " + std::string(messages_.Text(557));
  return 0;
}

bool ExifReader::HasTag(std::uint32_t tag) const {
  if (status_ != Status::kParsed) return false;
  for (const ExifEntry& entry : entries_) {
    if (entry.Tag == tag) return true;
  }
  return false;
}

const std::vector<ExifEntry>& ExifReader::entries() const {
  for (ExifEntry& entry : entries_) FinishExifEntryText(entry);
  return entries_;
}

std::string ExifReader::GetTagName(std::uint32_t tag) { return ExifTagName(tag); }

std::string ExifReader::ListInfo() const {
  if (status_ == Status::kNoExif) return std::string(messages_.Text(558));
  if (status_ == Status::kFailed) return std::string(messages_.Text(559));
  std::string out;
  const std::size_t lines = std::min(entries_.size(), kListLines);
  for (std::size_t i = 0; i < lines; ++i) {
    FinishExifEntryText(entries_[i]);
    out += entries_[i].Name + ": " + entries_[i].Text + "\r\n";
  }
  return out;
}

}  // namespace tarnwick
