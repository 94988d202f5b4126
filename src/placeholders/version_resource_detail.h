#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "placeholders/byte_source.h"
#include "placeholders/version_resource.h"

// The two halves of the version resource reader: finding the version block in
// a PE image, and reading the strings out of that block.
namespace tarnwick::version_resource_detail {

// The bytes of the first RT_VERSION resource (first name, first language), or
// nothing when the image holds none.
std::optional<std::string> FindVersionBlock(const ByteSource& source);

// The four strings of a VS_VERSIONINFO block; empty strings where absent.
VersionStrings ParseVersionBlock(std::string_view block);

}  // namespace tarnwick::version_resource_detail
