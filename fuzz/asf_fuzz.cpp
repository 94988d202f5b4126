// Arbitrary bytes as the header of a Windows Media file: the ASF reader must
// not crash, hang or read outside the bytes; GUID texts must read back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "media/asf_attribute.h"
#include "media/asf_guid.h"
#include "media/asf_tags.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  tarnwick::WmTags tags;
  if (!tags.ReadTagsFromBytes(input)) Check(tags.TagCount() == 0);
  for (int i = 0; i < tags.TagCount(); ++i) {
    if (tags.TagType(i) == tarnwick::kAsfBinary) Check(tags.TagValue(i).empty());
  }
  for (std::uint16_t type = 0; type <= 7; ++type) tarnwick::AsfValueText(type, input);
  if (size >= 16) {
    const std::string text = tarnwick::GuidToText(tarnwick::GuidAt(input, 0));
    const auto back = tarnwick::TextToGuid(text);
    Check(back && tarnwick::GuidToText(*back) == text);
  }
  tarnwick::TextToGuid(input);
  return 0;
}
