// Arbitrary bytes as the head of a picture: the EXIF reader must not crash,
// hang or read outside the bytes, and its answers must agree with each other.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "media/exif_reader.h"
#include "media/exif_value.h"
#include "shell/message_table.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using tarnwick::ExifReader;
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  static ExifReader reader(tarnwick::MessageTable::Get(tarnwick::Language::kEnglish), {});
  reader.ParseHead(input);
  const std::string list = reader.ListInfo();
  if (reader.status() != ExifReader::Status::kParsed) {
    Check(list.find('\n') == std::string::npos);
    std::string text = "kept";
    Check(reader.MetaInfo(36867, text, false) == 0 && text == "kept");
    return 0;
  }
  Check(list.empty() == reader.entries().empty());
  for (const auto& entry : reader.entries()) {
    Check(entry.Text.find('\0') == std::string::npos);
    std::string text;
    reader.MetaInfo(entry.Tag, text, false);
  }
  std::string text;
  reader.MetaInfo(36867, text, true);
  tarnwick::ParseExifDateTime(text);
  return 0;
}
