#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "media/asf_attribute.h"

namespace tarnwick {

// The attributes of the whole file that an ASF header object holds, in this
// order: the file properties (Duration, FileSize, Bitrate, Broadcast,
// Seekable), the content description (Title, Author, Copyright, Description,
// Rating, those not empty), the extended content description, then the
// records of stream 0 of the metadata and metadata library objects inside
// the header extension (a name already listed is not repeated).
// `header` starts with the header object; nothing when it does not, or when
// the object is cut short. A damaged inner object ends the walk there.
std::optional<std::vector<AsfAttribute>> ParseAsfHeader(std::string_view header);

}  // namespace tarnwick
