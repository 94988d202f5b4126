#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tools/checksum_report.h"

namespace tarnwick {

// One line of a checksum file that `md5sum -c` / `sha256sum -c` verify:
// "digest  path" and a line feed. A path holding a backslash, a line feed or
// a carriage return is escaped (\\, \n, \r) and the line begins with "\",
// as coreutils writes it.
std::string CoreutilsLine(std::string_view digest, std::string_view path);

struct ChecksumListEntry {
  std::string digest;  // lower case
  std::string path;
  std::size_t line = 0;  // 1-based
};

// What a checksum file holds: its entries in order, and the numbers of the
// lines that are none (empty lines and "#" comments are neither).
struct ChecksumList {
  std::vector<ChecksumListEntry> entries;
  std::vector<std::size_t> bad_lines;
};

// Reads the coreutils form ("digest  path", "digest *path", escaped lines)
// and the tagged form ("SHA256 (path) = digest") of `kind`. Line ends may be
// LF or CR LF. A digest of the wrong length for `kind` makes a bad line.
ChecksumList ParseChecksumList(std::string_view text, DigestKind kind);

}  // namespace tarnwick
