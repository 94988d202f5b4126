// cJPEG: the two passes of SaveFile over the coefficients (Huffman tables
// made for the picture, then the entropy-coded scans) and the JFIF file.
#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "base/vb_error.h"
#include "picture/jpeg_encoder.h"
#include "picture/jpeg_huffman.h"
#include "picture/jpeg_tables.h"
#include "platform/file_pieces.h"
#include "platform/files.h"

namespace tarnwick {
namespace {

constexpr const char* kCredit =
    "JPEG Encoder Class\r\n"
    "Written for Tarnwick by Oakhollow\r\n"
    "Baseline JPEG: floating-point AAN DCT, Huffman tables optimised per picture";

// The size category of a value: the bits its magnitude needs. Taken from the
// natural logarithm as the encoder always has; the constant is a hair above
// 1/ln 2, so powers of two land on their category and not below it.
int CategoryByLog(int magnitude) {
  if (magnitude == 0) return 0;
  return static_cast<int>(std::log(static_cast<double>(magnitude)) * 1.442695040889) + 1;
}

// The same for every magnitude a baseline coefficient can have, worked out
// once.
const std::array<std::uint8_t, 32768>& CategoryTable() {
  static const std::array<std::uint8_t, 32768> table = [] {
    std::array<std::uint8_t, 32768> t{};
    for (int m = 0; m < 32768; ++m)
      t[static_cast<std::size_t>(m)] = static_cast<std::uint8_t>(CategoryByLog(m));
    return t;
  }();
  return table;
}

int Category(int value) {
  const int magnitude = value < 0 ? -value : value;
  if (magnitude < 32768) return CategoryTable()[static_cast<std::size_t>(magnitude)];
  return CategoryByLog(magnitude);
}

// The low `category` bits that stand for `value` after its symbol.
std::uint32_t ValueBits(int value, int category) {
  const int bits = value < 0 ? value - 1 : value;
  return static_cast<std::uint32_t>(bits) & ((1U << category) - 1);
}

// Bytes of the file, with its markers and big-endian words.
class Segments {
 public:
  explicit Segments(std::vector<std::uint8_t>& out) : out_(out) {}
  void Byte(int value) { out_.push_back(static_cast<std::uint8_t>(value)); }
  void Word(int value) {
    Byte(value >> 8);
    Byte(value & 0xFF);
  }
  void Marker(int code) {
    Byte(0xFF);
    Byte(code);
  }
  void Bytes(std::span<const std::uint8_t> bytes) {
    out_.insert(out_.end(), bytes.begin(), bytes.end());
  }

 private:
  std::vector<std::uint8_t>& out_;
};

// Entropy-coded bits, highest first; a byte 0xFF is followed by 0x00, and the
// end of a scan fills its last byte with 1 bits.
class BitWriter {
 public:
  explicit BitWriter(std::vector<std::uint8_t>& out) : out_(out) {}
  void Bits(int count, std::uint32_t value) {
    for (int i = count - 1; i >= 0; --i) {
      if ((value >> i) & 1U) byte_ |= mask_;
      mask_ >>= 1;
      if (mask_ == 0) Flush();
    }
  }
  void Finish() {
    if (mask_ == 0x80) return;
    while (mask_ != 0) {
      byte_ |= mask_;
      mask_ >>= 1;
    }
    Flush();
  }

 private:
  void Flush() {
    out_.push_back(byte_);
    if (byte_ == 0xFF) out_.push_back(0x00);
    byte_ = 0;
    mask_ = 0x80;
  }
  std::vector<std::uint8_t>& out_;
  std::uint8_t byte_ = 0;
  std::uint8_t mask_ = 0x80;
};

// The first pass: how often each symbol of each table occurs.
struct SymbolCounter {
  std::array<std::array<std::uint64_t, 256>, 4>& frequencies;
  void Symbol(int table, int symbol) { ++frequencies[table][symbol]; }
  void Bits(int, std::uint32_t) {}
};

// The second pass: the symbols' codes and the value bits.
struct SymbolCoder {
  const std::array<HuffmanTable, 4>& tables;
  BitWriter& bits;
  void Symbol(int table, int symbol) {
    bits.Bits(tables[table].lengths[symbol], tables[table].codes[symbol]);
  }
  void Bits(int count, std::uint32_t value) { bits.Bits(count, value); }
};

// Table numbers: DC of component 0 is 0, AC of component 0 is 1, the others
// 2 and 3.
int DcTable(int component) { return component == 0 ? 0 : 2; }
int AcTable(int component) { return component == 0 ? 1 : 3; }

// One block, or a dummy block (null) that repeats the last DC and holds no
// AC, by the usual sequential procedure.
template <typename Sink>
void CodeBlock(const std::int16_t* block, int component, int& last_dc, Sink& sink) {
  const int dc = block != nullptr ? block[0] : last_dc;
  const int difference = dc - last_dc;
  last_dc = dc;
  const int dc_category = Category(difference);
  sink.Symbol(DcTable(component), dc_category);
  if (dc_category > 0) sink.Bits(dc_category, ValueBits(difference, dc_category));
  if (block == nullptr) {
    sink.Symbol(AcTable(component), 0x00);
    return;
  }
  int run = 0;
  for (int k = 1; k < 64; ++k) {
    const int value = block[k];
    if (value == 0) {
      ++run;
      continue;
    }
    for (; run > 15; run -= 16) sink.Symbol(AcTable(component), 0xF0);
    const int category = Category(value);
    sink.Symbol(AcTable(component), (run << 4) | category);
    sink.Bits(category, ValueBits(value, category));
    run = 0;
  }
  if (run > 0) sink.Symbol(AcTable(component), 0x00);
}

// The components of each scan: taken in order while their blocks per MCU add
// up to 10 or less and fewer than 3 are in it; one over 10 by itself scans
// alone.
std::vector<std::vector<int>> ScanGroups(const std::vector<int>& blocks_per_mcu) {
  std::vector<std::vector<int>> scans;
  std::vector<int> current;
  int sum = 0;
  for (int c = 0; c < static_cast<int>(blocks_per_mcu.size()); ++c) {
    const int blocks = blocks_per_mcu[static_cast<std::size_t>(c)];
    if (!current.empty() && (sum + blocks > 10 || current.size() == 3 || blocks > 10)) {
      scans.push_back(current);
      current.clear();
      sum = 0;
    }
    current.push_back(c);
    sum += blocks;
  }
  if (!current.empty()) scans.push_back(current);
  return scans;
}

}  // namespace

std::vector<std::uint8_t> cJPEG::Encode() const {
  if (components_.empty()) {
    throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  std::vector<int> blocks_per_mcu;
  for (const Component& c : components_) blocks_per_mcu.push_back(c.h * c.v);
  const std::vector<std::vector<int>> scans = ScanGroups(blocks_per_mcu);
  int h_max = 1;
  int v_max = 1;
  for (const Component& c : components_) {
    h_max = std::max(h_max, c.h);
    v_max = std::max(v_max, c.v);
  }

  // Every block of a scan in its order, with dummies in an interleaved scan
  // where an MCU reaches past a component's blocks.
  const auto for_each_block = [&](const std::vector<int>& scan, auto&& visit) {
    if (scan.size() == 1) {
      const Component& c = components_[static_cast<std::size_t>(scan[0])];
      for (int i = 0; i < c.blocks_x * c.blocks_y; ++i) visit(scan[0], c.data.data() + i * 64);
      return;
    }
    const int mcus_x = (width_ + 8 * h_max - 1) / (8 * h_max);
    const int mcus_y = (height_ + 8 * v_max - 1) / (8 * v_max);
    for (int my = 0; my < mcus_y; ++my) {
      for (int mx = 0; mx < mcus_x; ++mx) {
        for (int index : scan) {
          const Component& c = components_[static_cast<std::size_t>(index)];
          for (int v = 0; v < c.v; ++v) {
            for (int h = 0; h < c.h; ++h) {
              const int bx = mx * c.h + h;
              const int by = my * c.v + v;
              const bool real = bx < c.blocks_x && by < c.blocks_y;
              visit(index,
                    real ? c.data.data() + (static_cast<std::size_t>(by) * c.blocks_x + bx) * 64
                         : nullptr);
            }
          }
        }
      }
    }
  };

  // First pass: the tables.
  std::array<std::array<std::uint64_t, 256>, 4> frequencies{};
  SymbolCounter counter{frequencies};
  for (const std::vector<int>& scan : scans) {
    std::vector<int> last_dc(components_.size(), 0);
    for_each_block(scan, [&](int c, const std::int16_t* block) {
      CodeBlock(block, c, last_dc[static_cast<std::size_t>(c)], counter);
    });
  }
  const int table_count = components_.size() > 1 ? 4 : 2;
  std::array<HuffmanTable, 4> tables;
  for (int t = 0; t < table_count; ++t) tables[t] = OptimalHuffmanTable(frequencies[t]);

  std::vector<std::uint8_t> out;
  std::size_t coefficients = 0;
  for (const Component& c : components_) coefficients += c.data.size();
  out.reserve(coefficients / 4 + 1000 + comment_.size() + exif_.size());
  Segments file(out);
  file.Marker(0xD8);
  file.Marker(0xE0);
  file.Word(16);
  file.Bytes(std::span<const std::uint8_t>(reinterpret_cast<const std::uint8_t*>("JFIF"), 5));
  for (int b : {1, 1, 0, 0, 1, 0, 1, 0, 0}) file.Byte(b);
  if (!exif_.empty()) {
    file.Marker(0xE1);
    file.Word(static_cast<int>(exif_.size()) + 2);
    file.Bytes(exif_);
  }
  for (const std::string& text : {comment_, std::string(kCredit)}) {
    if (text.empty()) continue;  // a COM of fewer than 3 bytes is not written
    file.Marker(0xFE);
    file.Word(static_cast<int>(text.size()) + 2);
    file.Bytes(std::span<const std::uint8_t>(reinterpret_cast<const std::uint8_t*>(text.data()),
                                             text.size()));
  }
  for (int slot = 0; slot < (components_.size() > 1 ? 2 : 1); ++slot) {
    const auto& quantisers = sampled_tables_[static_cast<std::size_t>(slot)].quantisers;
    for (std::uint16_t q : quantisers) {
      if (q > 255) throw VbError(1, "Illegal precission in Quantization Table");
    }
    file.Marker(0xDB);
    file.Word(67);
    file.Byte(slot);
    for (std::uint16_t q : quantisers) file.Byte(q);
  }
  file.Marker(0xC0);
  file.Word(8 + 3 * static_cast<int>(components_.size()));
  file.Byte(8);
  file.Word(height_);
  file.Word(width_);
  file.Byte(static_cast<int>(components_.size()));
  for (const Component& c : components_) {
    file.Byte(c.id);
    file.Byte(c.h * 16 + c.v);
    file.Byte(c.table);
  }
  for (int t = 0; t < table_count; ++t) {
    const HuffmanTable& table = tables[static_cast<std::size_t>(t)];
    file.Marker(0xC4);
    file.Word(2 + 1 + 16 + static_cast<int>(table.symbols.size()));
    file.Byte((t % 2) * 16 + t / 2);  // class (0 DC, 1 AC) and number
    for (int length = 1; length <= 16; ++length) file.Byte(table.counts[length]);
    file.Bytes(table.symbols);
  }
  for (const std::vector<int>& scan : scans) {
    file.Marker(0xDA);
    file.Word(6 + 2 * static_cast<int>(scan.size()));
    file.Byte(static_cast<int>(scan.size()));
    for (int index : scan) {
      file.Byte(components_[static_cast<std::size_t>(index)].id);
      file.Byte(index == 0 ? 0x00 : 0x11);
    }
    file.Byte(0);
    file.Byte(63);
    file.Byte(0);
    BitWriter bits(out);
    SymbolCoder coder{tables, bits};
    std::vector<int> last_dc(components_.size(), 0);
    for_each_block(scan, [&](int c, const std::int16_t* block) {
      CodeBlock(block, c, last_dc[static_cast<std::size_t>(c)], coder);
    });
    bits.Finish();
  }
  file.Marker(0xD9);
  return out;
}

int cJPEG::SaveFile(const std::string& path) const {
  if (path.empty()) return 1;
  if (FileExists(path) || std::filesystem::is_symlink(std::filesystem::symlink_status(path))) {
    return 2;
  }
  const std::vector<std::uint8_t> bytes = Encode();
  StagedFile file;
  FileStatus status = file.Open(path);
  if (status.ok()) status = file.Write(bytes);
  if (status.ok()) status = file.Commit(/*replace=*/false, /*flush=*/false);
  if (status.number == vb_error::kFileAlreadyExists) return 2;
  if (!status.ok()) throw status.ToVbError();
  return 0;
}

}  // namespace tarnwick
