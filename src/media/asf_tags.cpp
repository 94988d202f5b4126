#include "media/asf_tags.h"

#include <fstream>

#include "media/asf_header.h"

namespace tarnwick {
namespace {

// The GUID of the header object as it stands in a file.
constexpr char kHeaderGuidBytes[] =
    "\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C";

}  // namespace

bool WmTags::ReadTagsFromBytes(std::string_view bytes) {
  tags_.clear();
  auto tags = ParseAsfHeader(bytes);
  if (!tags) return false;
  tags_ = std::move(*tags);
  return true;
}

bool WmTags::ReadTags(const std::filesystem::path& path) {
  if (path.empty()) return false;
  tags_.clear();
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::string head(30, '\0');
  if (!in.read(head.data(), static_cast<std::streamsize>(head.size()))) return false;
  if (head.compare(0, 16, kHeaderGuidBytes, 16) != 0) {
    return false;
  }
  std::uint64_t size = 0;
  for (int i = 7; i >= 0; --i) size = (size << 8) | static_cast<unsigned char>(head[16 + i]);
  if (size < head.size() || size > kMaxHeaderBytes) return false;
  std::string header = head;
  header.resize(static_cast<std::size_t>(size));
  in.read(header.data() + head.size(), static_cast<std::streamsize>(size - head.size()));
  if (in.gcount() != static_cast<std::streamsize>(size - head.size())) return false;
  return ReadTagsFromBytes(header);
}

}  // namespace tarnwick
