#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// A GUID in its 16 bytes as stored in a file: the first part (4 bytes) and
// the two groups of 2 bytes low byte first, the last 8 bytes as they stand.
using AsfGuid = std::array<std::uint8_t, 16>;

// `GuidToText`: "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" with upper-case
// hexadecimal digits.
std::string GuidToText(const AsfGuid& guid);

// `TextToGuid`: the inverse; nothing for a text not of that form.
std::optional<AsfGuid> TextToGuid(std::string_view text);

// The first 16 bytes of `bytes` as a GUID (the caller makes sure there are 16).
AsfGuid GuidAt(std::string_view bytes, std::size_t at);

}  // namespace tarnwick
