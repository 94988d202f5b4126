#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

// One row of the table of EXIF tags the reader knows by name.
struct ExifTagRow {
  std::uint16_t tag;
  std::string_view name;
};

// The 54 known tags, in the order of the reader's table.
std::span<const ExifTagRow> ExifTagRows();

// `GetTagName`: the name of a known tag, else "Tag #" and the number.
std::string ExifTagName(std::uint32_t tag);

// The size in bytes of one element of a TIFF field type (1 BYTE ... 12
// DOUBLE; 0 for type 0). -1 for a type above 12.
int ExifFormatSize(std::uint32_t format);

}  // namespace tarnwick
