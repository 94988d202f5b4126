#pragma once

#include <cstdint>
#include <string>

namespace tarnwick {

// `AttributeText`: the letters of an attribute word in the list's order:
// "T" temporary, "R" read-only, "H" hidden, "S" system, "N" normal,
// "C" compressed, "A" archive. The folder bit gives no letter.
std::string AttributeText(std::uint32_t attributes);

// `RecordVisible`: whether a directory entry with this attribute word may
// become a row. The test is on exact values of the word, not on single bits:
// without `show_system` the values 38, 39, 6, 22, 21, 20 and 18 are dropped,
// without `show_hidden` the value 34. Every other word passes, so a hidden,
// read-only, archived file (35) stays visible.
bool RecordVisible(std::uint32_t attributes, bool show_system, bool show_hidden);

}  // namespace tarnwick
