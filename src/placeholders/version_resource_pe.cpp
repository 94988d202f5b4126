// Finding the version block of a PE image: DOS header, PE header, section
// table, resource directory, RT_VERSION entry.
#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "placeholders/version_resource_detail.h"

namespace tarnwick::version_resource_detail {
namespace {

constexpr std::uint32_t kResourceTypeVersion = 16;
constexpr std::uint32_t kSubdirectoryBit = 0x80000000u;
constexpr std::size_t kMaxSections = 96;          // the loader's own limit
constexpr std::uint32_t kMaxBlockSize = 1 << 20;  // version blocks are a few KiB
constexpr std::uint16_t kEntriesPerLevel = 4096;  // a bound for damaged directories

struct Section {
  std::uint32_t virtual_address;
  std::uint32_t virtual_size;
  std::uint32_t raw_size;
  std::uint32_t raw_offset;
};

// What the resource walk needs of the headers.
struct PeLayout {
  std::uint32_t resource_rva = 0;
  std::vector<Section> sections;
};

template <std::size_t N>
bool ReadArray(const ByteSource& source, std::uint64_t offset, std::array<std::uint8_t, N>& out) {
  return source.Read(offset, N, out.data());
}

// The file offset of a relative virtual address.
std::optional<std::uint64_t> FileOffsetOf(const PeLayout& layout, std::uint32_t rva) {
  for (const Section& s : layout.sections) {
    const std::uint64_t span = std::max(s.virtual_size, s.raw_size);
    if (rva >= s.virtual_address && rva - s.virtual_address < span) {
      return static_cast<std::uint64_t>(s.raw_offset) + (rva - s.virtual_address);
    }
  }
  return std::nullopt;
}

std::optional<std::uint32_t> ResourceDirectoryRva(const ByteSource& source,
                                                  std::uint64_t optional_header,
                                                  std::uint16_t optional_size) {
  std::array<std::uint8_t, 2> magic;
  if (!ReadArray(source, optional_header, magic)) return std::nullopt;
  const std::uint16_t kind = LittleU16(magic.data());
  std::uint64_t count_at;
  if (kind == 0x10b) {
    count_at = 92;
  } else if (kind == 0x20b) {
    count_at = 108;
  } else {
    return std::nullopt;
  }
  // Data directory 2 (resources) follows the count: 8 bytes per entry.
  const std::uint64_t entry_at = count_at + 4 + 2 * 8;
  if (entry_at + 8 > optional_size) return std::nullopt;
  std::array<std::uint8_t, 4> count;
  std::array<std::uint8_t, 8> entry;
  if (!ReadArray(source, optional_header + count_at, count) || LittleU32(count.data()) < 3) {
    return std::nullopt;
  }
  if (!ReadArray(source, optional_header + entry_at, entry)) return std::nullopt;
  const std::uint32_t rva = LittleU32(entry.data());
  if (rva == 0) return std::nullopt;
  return rva;
}

std::optional<PeLayout> ReadLayout(const ByteSource& source) {
  std::array<std::uint8_t, 64> dos;
  if (!ReadArray(source, 0, dos) || dos[0] != 'M' || dos[1] != 'Z') return std::nullopt;
  const std::uint64_t pe = LittleU32(dos.data() + 0x3c);
  std::array<std::uint8_t, 24> header;
  if (!ReadArray(source, pe, header)) return std::nullopt;
  if (header[0] != 'P' || header[1] != 'E' || header[2] != 0 || header[3] != 0) return std::nullopt;
  const std::size_t section_count = LittleU16(header.data() + 6);
  const std::uint16_t optional_size = LittleU16(header.data() + 20);
  if (section_count > kMaxSections) return std::nullopt;
  PeLayout layout;
  const std::uint64_t optional_header = pe + 24;
  const auto rva = ResourceDirectoryRva(source, optional_header, optional_size);
  if (!rva) return std::nullopt;
  layout.resource_rva = *rva;
  const std::uint64_t table = optional_header + optional_size;
  for (std::size_t i = 0; i < section_count; ++i) {
    std::array<std::uint8_t, 40> row;
    if (!ReadArray(source, table + 40 * i, row)) return std::nullopt;
    layout.sections.push_back({LittleU32(row.data() + 12), LittleU32(row.data() + 8),
                               LittleU32(row.data() + 16), LittleU32(row.data() + 20)});
  }
  return layout;
}

// The entry of a resource directory level: with `id` the entry of that
// numeric id, otherwise the first entry. Offsets are from the resource root.
std::optional<std::uint32_t> EntryOf(const ByteSource& source, std::uint64_t root,
                                     std::uint32_t directory, std::optional<std::uint32_t> id) {
  std::array<std::uint8_t, 16> head;
  if (!ReadArray(source, root + directory, head)) return std::nullopt;
  const std::uint32_t named = LittleU16(head.data() + 12);
  const std::uint32_t total =
      std::min<std::uint32_t>(named + LittleU16(head.data() + 14), kEntriesPerLevel);
  for (std::uint32_t i = 0; i < total; ++i) {
    std::array<std::uint8_t, 8> entry;
    if (!ReadArray(source, root + directory + 16 + 8ull * i, entry)) return std::nullopt;
    const std::uint32_t name = LittleU32(entry.data());
    const bool is_id = (name & kSubdirectoryBit) == 0;
    if (!id || (is_id && name == *id)) return LittleU32(entry.data() + 4);
  }
  return std::nullopt;
}

std::optional<std::uint32_t> Subdirectory(std::optional<std::uint32_t> entry) {
  if (!entry || (*entry & kSubdirectoryBit) == 0) return std::nullopt;
  return *entry & ~kSubdirectoryBit;
}

}  // namespace

std::optional<std::string> FindVersionBlock(const ByteSource& source) {
  const auto layout = ReadLayout(source);
  if (!layout) return std::nullopt;
  const auto root = FileOffsetOf(*layout, layout->resource_rva);
  if (!root) return std::nullopt;
  const auto names = Subdirectory(EntryOf(source, *root, 0, kResourceTypeVersion));
  if (!names) return std::nullopt;
  const auto languages = Subdirectory(EntryOf(source, *root, *names, std::nullopt));
  if (!languages) return std::nullopt;
  const auto data_entry = EntryOf(source, *root, *languages, std::nullopt);
  if (!data_entry || (*data_entry & kSubdirectoryBit) != 0) return std::nullopt;
  std::array<std::uint8_t, 16> data;
  if (!ReadArray(source, *root + *data_entry, data)) return std::nullopt;
  const std::uint32_t size = LittleU32(data.data() + 4);
  const auto at = FileOffsetOf(*layout, LittleU32(data.data()));
  if (!at || size == 0 || size > kMaxBlockSize) return std::nullopt;
  std::string block(size, '\0');
  if (!source.Read(*at, size, block.data())) return std::nullopt;
  return block;
}

}  // namespace tarnwick::version_resource_detail
