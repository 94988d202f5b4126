// Arbitrary bytes as the EXIF translation file exif.ini, and as the tag name
// and text it translates: nothing may crash or hang.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "media/exif_translation.h"
#include "persist/ini_document.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnwick;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  // The first line names the tag and its text ("Flash=16"), the rest is the file.
  const std::size_t end = bytes.find('\n');
  const std::string_view first = bytes.substr(0, end);
  const std::string_view file = end == std::string_view::npos ? "" : bytes.substr(end + 1);
  const std::size_t equals = first.find('=');
  const std::string_view name = first.substr(0, equals);
  const std::string_view text = equals == std::string_view::npos ? "" : first.substr(equals + 1);
  const ExifTranslation translation(IniDocument::Parse(file));
  translation.Apply(name, std::string(text));
  return 0;
}
