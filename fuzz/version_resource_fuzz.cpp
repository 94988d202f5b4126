// Arbitrary bytes as a program file (.exe, .dll): finding the version block
// in the PE image and reading its strings must not crash or hang.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "placeholders/byte_source.h"
#include "placeholders/version_resource_detail.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnwick;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const MemorySource source(bytes);
  if (const auto block = version_resource_detail::FindVersionBlock(source)) {
    version_resource_detail::ParseVersionBlock(*block);
  }
  // The block reader alone, on the raw bytes, reaches the string tables too.
  version_resource_detail::ParseVersionBlock(bytes);
  return 0;
}
