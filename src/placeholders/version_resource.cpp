// Entry points of the version resource reader.
#include "placeholders/version_resource.h"

#include "placeholders/byte_source.h"
#include "placeholders/version_resource_detail.h"

namespace tarnwick {
namespace {

VersionStrings FromSource(const ByteSource& source) {
  const auto block = version_resource_detail::FindVersionBlock(source);
  if (!block) return {};
  return version_resource_detail::ParseVersionBlock(*block);
}

}  // namespace

VersionStrings ReadVersionStrings(const std::filesystem::path& path) {
  const FileSource file(path);
  if (!file.is_open()) return {};
  return FromSource(file);
}

VersionStrings ParseVersionStrings(std::string_view image) {
  return FromSource(MemorySource(image));
}

}  // namespace tarnwick
