// Which decoder reads a file: told by its first bytes.
#include "picture/picture_file.h"

#include <cstring>
#include <fstream>

namespace tarnwick {
namespace {

bool StartsWith(std::span<const std::uint8_t> bytes, std::initializer_list<std::uint8_t> magic) {
  return bytes.size() >= magic.size() && std::equal(magic.begin(), magic.end(), bytes.begin());
}

LoadedPicture Refused(std::string why) {
  LoadedPicture result;
  result.error = std::move(why);
  return result;
}

}  // namespace

std::string CheckPictureSize(std::int64_t width, std::int64_t height, std::int64_t max_pixels) {
  if (width <= 0 || height <= 0) return "the picture has no size";
  if (width * height > max_pixels) {
    return "the picture is too large (" + std::to_string(width) + " x " + std::to_string(height) +
           " pixels; at most " + std::to_string(max_pixels) + " are read)";
  }
  return {};
}

LoadedPicture DecodePicture(std::span<const std::uint8_t> bytes, std::int64_t max_pixels) {
  if (StartsWith(bytes, {0xFF, 0xD8})) return DecodeJpeg(bytes, max_pixels);
  if (StartsWith(bytes, {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A}))
    return DecodePng(bytes, max_pixels);
  if (StartsWith(bytes, {'G', 'I', 'F', '8'})) return DecodeGif(bytes, max_pixels);
  if (StartsWith(bytes, {'I', 'I', 42, 0}) || StartsWith(bytes, {'M', 'M', 0, 42})) {
    return DecodeTiff(bytes, max_pixels);
  }
  if (StartsWith(bytes, {'B', 'M'})) return DecodeBmp(bytes, max_pixels);
  if (StartsWith(bytes, {0xD7, 0xCD, 0xC6, 0x9A}) || StartsWith(bytes, {0x01, 0x00, 0x09, 0x00})) {
    return Refused("Windows metafiles (WMF) cannot be read");
  }
  if (bytes.empty()) return Refused("the file is empty");
  return Refused("this is not a picture Tarnwick can read (JPEG, PNG, GIF, TIFF or BMP)");
}

LoadedPicture LoadPicture(const std::string& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  if (!file)
    return Refused("the file cannot be opened (" + std::string(std::strerror(errno)) + ")");
  const std::streamoff size = file.tellg();
  if (size < 0) return Refused("the file cannot be read");
  if (static_cast<std::uint64_t>(size) > kMaxPictureFileBytes) {
    return Refused("the file is too large for a picture (over 512 MB)");
  }
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
  file.seekg(0);
  if (!file.read(reinterpret_cast<char*>(bytes.data()), size)) {
    return Refused("the file cannot be read (" + std::string(std::strerror(errno)) + ")");
  }
  return DecodePicture(bytes);
}

}  // namespace tarnwick
