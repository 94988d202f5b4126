#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "media/asf_attribute.h"

namespace tarnwick {

// `clsWMTags`: every attribute of a Windows Media file (WMA, WMV, ASF) as
// name, type and value, read from the file's ASF header with our own reader.
class WmTags {
 public:
  // A header larger than this is not read (pictures in tags included, real
  // headers stay far below).
  static constexpr std::uint64_t kMaxHeaderBytes = 64u << 20;

  // `ReadTags`: false for a file that is not ASF, cannot be read or has a
  // damaged header object; `TagCount` is 0 then. An empty path does nothing
  // and gives false.
  bool ReadTags(const std::filesystem::path& path);
  // The same for the bytes of a file held in memory.
  bool ReadTagsFromBytes(std::string_view bytes);

  int TagCount() const { return static_cast<int>(tags_.size()); }
  // Index from 0; the caller keeps it below TagCount.
  const std::string& TagName(int index) const { return tags_.at(index).name; }
  std::uint16_t TagType(int index) const { return tags_.at(index).type; }
  const std::string& TagValue(int index) const { return tags_.at(index).value; }

  const std::vector<AsfAttribute>& tags() const { return tags_; }

 private:
  std::vector<AsfAttribute> tags_;
};

}  // namespace tarnwick
