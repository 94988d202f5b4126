#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

  // Numbers whose text is made when it is first asked for: each formatted
  // with `pending_mask`, joined by "/". Empty once `Text` is made.
  std::vector<double> pending_values;
  std::string_view pending_mask;
};

// Makes the text of an entry whose numbers are still pending.
void FinishExifEntryText(ExifEntry& entry);

}  // namespace tarnwick
