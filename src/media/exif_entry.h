#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick {

// `EXIFTag`: one entry found in a directory, with its display text.
struct ExifEntry {
  std::uint32_t Tag = 0;
  std::string Name;
  std::uint32_t Format = 0;
  std::uint32_t Count = 0;
  // The numeric value of the last decoded element; empty for texts and for
  // rationals whose denominator is 0.
  std::optional<double> Value;
  std::string Text;
};

}  // namespace tarnwick
