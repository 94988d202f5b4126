#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick::testing {

// Builds the head of a JPEG file with an EXIF block: SOI, an APP1 segment
// with "Exif\0\0" and a TIFF block of two directories (the first with a link
// to the second through tag 34665), in either byte order. Values longer than
// 4 bytes go to a data area behind the directories.
class ExifBlockBuilder {
 public:
  explicit ExifBlockBuilder(bool intel) : intel_(intel) {}

  struct Entry {
    std::uint16_t tag;
    std::uint16_t format;
    std::uint32_t count;
    std::string data;  // the value bytes in the block's byte order
  };

  ExifBlockBuilder& First(std::uint16_t tag, std::uint16_t format, std::uint32_t count,
                          std::string data) {
    first_.push_back({tag, format, count, std::move(data)});
    return *this;
  }
  ExifBlockBuilder& Exif(std::uint16_t tag, std::uint16_t format, std::uint32_t count,
                         std::string data) {
    exif_.push_back({tag, format, count, std::move(data)});
    return *this;
  }
  // Convenience values in the block's byte order.
  std::string U16(std::uint32_t v) const { return Number(v, 2); }
  std::string U32(std::uint32_t v) const { return Number(v, 4); }
  std::string Rational(std::uint32_t numerator, std::uint32_t denominator) const {
    return U32(numerator) + U32(denominator);
  }
  ExifBlockBuilder& Ascii(std::uint16_t tag, const std::string& text, bool in_exif = true) {
    return in_exif ? Exif(tag, 2, std::uint32_t(text.size() + 1), text + '\0')
                   : First(tag, 2, std::uint32_t(text.size() + 1), text + '\0');
  }

  // The bytes of the file: SOI, then `padding` bytes of a comment segment,
  // then the APP1 segment.
  std::string Build(std::size_t padding = 0) const;

 private:
  std::string Number(std::uint64_t v, int size) const {
    std::string out(size, '\0');
    for (int i = 0; i < size; ++i) {
      const int shift = 8 * (intel_ ? i : size - 1 - i);
      out[i] = static_cast<char>((v >> shift) & 0xFF);
    }
    return out;
  }
  std::string Directory(const std::vector<Entry>& entries, std::uint32_t at, std::string& data_area,
                        std::uint32_t data_at) const;

  bool intel_;
  std::vector<Entry> first_;
  std::vector<Entry> exif_;
};

inline std::string ExifBlockBuilder::Directory(const std::vector<Entry>& entries, std::uint32_t,
                                               std::string& data_area,
                                               std::uint32_t data_at) const {
  std::string out = U16(static_cast<std::uint32_t>(entries.size()));
  for (const Entry& e : entries) {
    out += U16(e.tag) + U16(e.format) + U32(e.count);
    if (e.data.size() <= 4) {
      out += e.data + std::string(4 - e.data.size(), '\0');
    } else {
      out += U32(data_at + static_cast<std::uint32_t>(data_area.size()));
      data_area += e.data;
    }
  }
  return out + U32(0);
}

inline std::string ExifBlockBuilder::Build(std::size_t padding) const {
  // Layout of the TIFF block: header (8), first directory, EXIF directory,
  // data area.
  const auto size_of = [](const std::vector<Entry>& e) {
    return static_cast<std::uint32_t>(2 + 12 * e.size() + 4);
  };
  std::vector<Entry> first = first_;
  first.push_back({34665, 4, 1, ""});  // patched below
  const std::uint32_t first_at = 8;
  const std::uint32_t exif_at = first_at + size_of(first);
  const std::uint32_t data_at = exif_at + size_of(exif_);
  first.back().data = U32(exif_at);
  std::string data_area;
  std::string tiff = (intel_ ? std::string("II") : std::string("MM")) + U16(42) + U32(first_at);
  tiff += Directory(first, first_at, data_area, data_at);
  tiff += Directory(exif_, exif_at, data_area, data_at);
  tiff += data_area;
  std::string file = "\xFF\xD8";
  if (padding) {
    file += "\xFF\xFE";
    const std::size_t length = padding + 2;
    file += static_cast<char>(length >> 8);
    file += static_cast<char>(length & 0xFF);
    file += std::string(padding, 'x');
  }
  const std::string app1 = std::string("Exif\0\0", 6) + tiff;
  file += "\xFF\xE1";
  file += static_cast<char>((app1.size() + 2) >> 8);
  file += static_cast<char>((app1.size() + 2) & 0xFF);
  return file + app1 + "\xFF\xD9";
}

}  // namespace tarnwick::testing
