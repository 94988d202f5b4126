// Arbitrary bytes as a checksum list for "checksum --check": reading must
// not crash or hang, every entry must hold a digest of the right length in
// lower case, and an entry written again in the coreutils form must read
// back the same.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tools/checksum_list.h"

namespace {

void Check(bool condition) {
  if (!condition) std::abort();
}

void CheckKind(std::string_view text, tarnwick::DigestKind kind, std::size_t length) {
  using namespace tarnwick;
  const ChecksumList list = ParseChecksumList(text, kind);
  std::size_t previous_line = 0;
  for (const ChecksumListEntry& entry : list.entries) {
    Check(entry.digest.size() == length);
    for (const char c : entry.digest) Check((c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'));
    Check(!entry.path.empty());
    Check(entry.line > previous_line);
    previous_line = entry.line;
    const ChecksumList again = ParseChecksumList(CoreutilsLine(entry.digest, entry.path), kind);
    Check(again.entries.size() == 1 && again.bad_lines.empty());
    Check(again.entries[0].path == entry.path && again.entries[0].digest == entry.digest);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  CheckKind(text, tarnwick::DigestKind::kMd5, 32);
  CheckKind(text, tarnwick::DigestKind::kSha256, 64);
  return 0;
}
