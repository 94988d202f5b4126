#include "media/asf_header.h"

#include <algorithm>
#include <functional>

#include "media/asf_guid.h"

namespace tarnwick {
namespace {

constexpr std::string_view kHeaderGuid = "{75B22630-668E-11CF-A6D9-00AA0062CE6C}";
constexpr std::string_view kFilePropertiesGuid = "{8CABDCA1-A947-11CF-8EE4-00C00C205365}";
constexpr std::string_view kContentDescriptionGuid = "{75B22633-668E-11CF-A6D9-00AA0062CE6C}";
constexpr std::string_view kExtendedContentGuid = "{D2D0A440-E307-11D2-97F0-00A0C95EA850}";
constexpr std::string_view kHeaderExtensionGuid = "{5FBF03B5-A92E-11CF-8EE3-00C00C205365}";
constexpr std::string_view kMetadataGuid = "{C5F8CBEA-5BAF-4877-8467-AA8C44FA4CCA}";
constexpr std::string_view kMetadataLibraryGuid = "{44231C94-9498-49D1-A141-1D134E457054}";

constexpr std::size_t kObjectHead = 24;  // GUID and 64-bit size

// Bounded reading of one object's payload.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}
  bool Has(std::size_t n) const { return bytes_.size() - at_ >= n; }
  std::uint64_t Number(int size) {
    const std::uint64_t value = LittleEndianAt(bytes_, at_, size);
    at_ += static_cast<std::size_t>(size);
    return value;
  }
  std::string_view Take(std::size_t n) {
    const std::string_view part = bytes_.substr(at_, n);
    at_ += n;
    return part;
  }
  std::size_t at() const { return at_; }

 private:
  std::string_view bytes_;
  std::size_t at_ = 0;
};

// Calls `visit(guid text, payload)` for each object in `bytes` until one is
// cut short or damaged.
void WalkObjects(std::string_view bytes,
                 const std::function<void(std::string_view, std::string_view)>& visit) {
  std::size_t at = 0;
  while (bytes.size() - at >= kObjectHead) {
    const std::string guid = GuidToText(GuidAt(bytes, at));
    const std::uint64_t size = LittleEndianAt(bytes, at + 16, 8);
    if (size < kObjectHead || size > bytes.size() - at) return;
    visit(guid, bytes.substr(at + kObjectHead, static_cast<std::size_t>(size) - kObjectHead));
    at += static_cast<std::size_t>(size);
  }
}

// The type numbers of the header's descriptors and records (0 text, 1 bytes,
// 2 truth value, 3 double word ...) as the attribute types.
std::uint16_t AttributeType(std::uint64_t stored) {
  static constexpr std::uint16_t kTypes[] = {kAsfString, kAsfBinary, kAsfBool, kAsfDword,
                                             kAsfQword,  kAsfWord,   kAsfGuid};
  return stored < std::size(kTypes) ? kTypes[stored] : static_cast<std::uint16_t>(stored);
}

class Collector {
 public:
  void Add(std::string name, std::uint16_t type, std::string_view value, bool unique) {
    if (unique && std::any_of(list_.begin(), list_.end(),
                              [&](const AsfAttribute& a) { return a.name == name; })) {
      return;
    }
    list_.push_back({std::move(name), type, AsfValueText(type, value)});
  }
  void AddText(std::string name, std::uint16_t type, std::string value) {
    list_.push_back({std::move(name), type, std::move(value)});
  }
  std::vector<AsfAttribute> Take() { return std::move(list_); }

 private:
  std::vector<AsfAttribute> list_;
};

void ReadFileProperties(std::string_view payload, Collector& out) {
  if (payload.size() < 80) return;
  const std::uint64_t play = LittleEndianAt(payload, 40, 8);
  const std::uint64_t preroll_ms = LittleEndianAt(payload, 56, 8);
  const std::uint64_t flags = LittleEndianAt(payload, 64, 4);
  const std::uint64_t preroll = preroll_ms * 10000;
  const std::uint64_t duration = play > preroll ? play - preroll : 0;
  std::string raw(8, '\0');
  for (int i = 0; i < 8; ++i) raw[i] = static_cast<char>(duration >> (8 * i));
  out.Add("Duration", kAsfQword, raw, false);
  out.Add("FileSize", kAsfQword, payload.substr(16, 8), false);
  out.Add("Bitrate", kAsfDword, payload.substr(76, 4), false);
  out.AddText("Broadcast", kAsfBool, (flags & 1) ? "True" : "False");
  out.AddText("Seekable", kAsfBool, (flags & 2) ? "True" : "False");
}

void ReadContentDescription(std::string_view payload, Collector& out) {
  static constexpr std::string_view kNames[] = {"Title", "Author", "Copyright", "Description",
                                                "Rating"};
  Reader r(payload);
  if (!r.Has(10)) return;
  std::size_t lengths[5];
  for (std::size_t& length : lengths) length = static_cast<std::size_t>(r.Number(2));
  for (int i = 0; i < 5; ++i) {
    if (!r.Has(lengths[i])) return;
    const std::string_view text = r.Take(lengths[i]);
    if (!Utf16LeText(text).empty()) out.Add(std::string(kNames[i]), kAsfString, text, false);
  }
}

void ReadExtendedContent(std::string_view payload, Collector& out) {
  Reader r(payload);
  if (!r.Has(2)) return;
  const auto count = r.Number(2);
  for (std::uint64_t i = 0; i < count; ++i) {
    if (!r.Has(2)) return;
    const auto name_length = static_cast<std::size_t>(r.Number(2));
    if (!r.Has(name_length + 4)) return;
    std::string name = Utf16LeText(r.Take(name_length));
    const auto type = AttributeType(r.Number(2));
    const auto value_length = static_cast<std::size_t>(r.Number(2));
    if (!r.Has(value_length)) return;
    out.Add(std::move(name), type, r.Take(value_length), false);
  }
}

// The metadata and metadata library objects share one record layout.
void ReadMetadataRecords(std::string_view payload, Collector& out) {
  Reader r(payload);
  if (!r.Has(2)) return;
  const auto count = r.Number(2);
  for (std::uint64_t i = 0; i < count; ++i) {
    if (!r.Has(12)) return;
    r.Number(2);  // language list index, or reserved
    const auto stream = r.Number(2);
    const auto name_length = static_cast<std::size_t>(r.Number(2));
    const auto type = AttributeType(r.Number(2));
    const auto data_length = static_cast<std::size_t>(r.Number(4));
    if (!r.Has(name_length)) return;
    std::string name = Utf16LeText(r.Take(name_length));
    if (!r.Has(data_length)) return;
    const std::string_view data = r.Take(data_length);
    if (stream == 0) out.Add(std::move(name), type, data, true);
  }
}

void ReadHeaderExtension(std::string_view payload, Collector& out) {
  if (payload.size() < 22) return;
  const std::uint64_t size = LittleEndianAt(payload, 18, 4);
  const std::string_view inner =
      payload.substr(22, std::min<std::uint64_t>(size, payload.size() - 22));
  WalkObjects(inner, [&](std::string_view guid, std::string_view body) {
    if (guid == kMetadataGuid || guid == kMetadataLibraryGuid) ReadMetadataRecords(body, out);
  });
}

}  // namespace

std::optional<std::vector<AsfAttribute>> ParseAsfHeader(std::string_view header) {
  constexpr std::size_t kHeaderHead = 30;
  if (header.size() < kHeaderHead || GuidToText(GuidAt(header, 0)) != kHeaderGuid) {
    return std::nullopt;
  }
  const std::uint64_t size = LittleEndianAt(header, 16, 8);
  if (size < kHeaderHead || size > header.size()) return std::nullopt;
  const std::string_view objects = header.substr(kHeaderHead, size - kHeaderHead);
  // Objects of one kind are read in the order above, whatever their order in
  // the file.
  Collector out;
  const auto each = [&](std::string_view wanted, void (*read)(std::string_view, Collector&)) {
    WalkObjects(objects, [&](std::string_view guid, std::string_view body) {
      if (guid == wanted) read(body, out);
    });
  };
  each(kFilePropertiesGuid, ReadFileProperties);
  each(kContentDescriptionGuid, ReadContentDescription);
  each(kExtendedContentGuid, ReadExtendedContent);
  each(kHeaderExtensionGuid, ReadHeaderExtension);
  return out.Take();
}

}  // namespace tarnwick
