#include "media/exif_decode.h"

#include <cmath>
#include <string>
#include <string_view>

#include "base/text.h"
#include "base/utf8.h"
#include "base/vb_error.h"
#include "base/vb_format.h"
#include "base/vb_number.h"
#include "media/exif_tag_table.h"

namespace tarnwick {
namespace {

enum Format : std::uint32_t {
  kAscii = 2,
  kRational = 5,
  kUndefined = 7,
  kSByte = 6,
  kSShort = 8,
  kSLong = 9,
  kSRational = 10,
};

constexpr std::uint32_t kMakerNote = 37500;
constexpr std::uint32_t kExifVersion = 36864;
constexpr std::uint32_t kFlashPixVersion = 40960;
constexpr std::uint32_t kComponentsConfiguration = 37121;
constexpr std::uint32_t kFileSource = 41728;
constexpr std::uint32_t kSceneType = 41729;
constexpr std::uint32_t kShutterSpeedValue = 37377;
constexpr std::uint32_t kExposureBiasValue = 37380;
constexpr std::uint32_t kExposureTime = 33434;
constexpr std::uint32_t kApertureValue = 37378;
constexpr std::uint32_t kMaxApertureValue = 37381;

// RATIONAL tags shown as their value with one decimal.
constexpr std::uint32_t kOneDecimalTags[] = {33437, 282, 283, 37382, 37386, 41486, 41487};

// The Latin-1 view of bytes, as UTF-8.
std::string Latin1(std::string_view data) {
  std::string out;
  out.reserve(data.size());
  for (const char c : data) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      out += c;
    } else {
      utf8::AppendCodePoint(out, byte);
    }
  }
  return out;
}

struct EntryData {
  std::string_view data;
  bool intel;
  int size;
};

// `ReadRational`: the rational at element `index` as "numerator/denominator";
// `value` takes the quotient unless the denominator is 0.
std::string ReadRational(const EntryData& d, std::size_t index, bool is_signed,
                         std::optional<double>& value) {
  const std::size_t at = index * 8;
  const auto half = [&](std::size_t offset) -> std::int64_t {
    if (is_signed) return ReadSignedAt(d.data, at + offset, 4, d.intel);
    return static_cast<std::int64_t>(ReadUnsignedAt(d.data, at + offset, 4, d.intel));
  };
  const std::int64_t numerator = half(0);
  const std::int64_t denominator = half(4);
  if (denominator != 0) {
    value = static_cast<double>(numerator) / static_cast<double>(denominator);
  }
  return std::to_string(numerator) + "/" + std::to_string(denominator);
}

double ValueOrZero(const std::optional<double>& value) { return value.value_or(0.0); }

// Leaves the number's text to be made when it is asked for; a number that
// has no text (infinite, not a number) is an overflow at once.
std::string Defer(ExifEntry& e, double number, std::string_view mask) {
  if (!std::isfinite(number)) throw VbError(vb_error::kOverflow, "Overflow");
  e.pending_values.push_back(number);
  e.pending_mask = mask;
  return {};
}

std::string DecodeRational(const EntryData& d, ExifEntry& e) {
  const bool is_signed = e.Format == kSRational;
  std::optional<double>& value = e.Value;
  if (is_signed && e.Tag == kShutterSpeedValue) {
    ReadRational(d, 0, true, value);
    return Defer(e, std::pow(2.0, ValueOrZero(value)), "0");
  }
  if (is_signed && e.Tag == kExposureBiasValue) {
    ReadRational(d, 0, true, value);
    return Defer(e, ValueOrZero(value), "0.0");
  }
  if (!is_signed && e.Tag == kExposureTime) {
    ReadRational(d, 0, false, value);
    if (ValueOrZero(value) == 0.0) {
      throw VbError(vb_error::kDivisionByZero, "Division by zero");
    }
    return Defer(e, 1.0 / *value, "0");
  }
  if (!is_signed && (e.Tag == kApertureValue || e.Tag == kMaxApertureValue)) {
    ReadRational(d, 0, false, value);
    return Defer(e, std::sqrt(std::pow(2.0, ValueOrZero(value))), "0.0");
  }
  if (!is_signed) {
    for (const std::uint32_t tag : kOneDecimalTags) {
      if (e.Tag != tag) continue;
      ReadRational(d, 0, false, value);
      return Defer(e, ValueOrZero(value), "0.0");
    }
  }
  if (e.Count < 2) return ReadRational(d, 0, is_signed, value);
  for (std::uint32_t i = 0; i < e.Count; ++i) {
    ReadRational(d, i, is_signed, value);
    Defer(e, ValueOrZero(value), "0.000");
  }
  return {};
}

std::string DecodeUndefined(const EntryData& d, ExifEntry& e) {
  switch (e.Tag) {
    case kMakerNote: {
      std::string out;
      for (const char c : d.data) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 32 && byte <= 127) out += c;
      }
      return out;
    }
    case kExifVersion:
    case kFlashPixVersion: {
      const std::string text = Latin1(d.data);
      return vb::CStr(vb::Val(vb::Left(text, 2))) + "." + vb::Right(text, 2);
    }
    case kComponentsConfiguration: {
      static constexpr std::string_view kNames[] = {"", "Y", "Cb", "Cr", "R", "G", "B"};
      if (d.data.size() < 4)
        throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call");
      std::string out;
      for (std::size_t i = 0; i < 4; ++i) {
        const auto byte = static_cast<unsigned char>(d.data[i]);
        if (byte >= std::size(kNames)) {
          throw VbError(vb_error::kSubscriptOutOfRange, "Subscript out of range");
        }
        out += kNames[byte];
      }
      return out;
    }
    case kFileSource:
    case kSceneType: {
      const std::uint64_t value = ReadUnsignedAt(d.data, 0, d.size, d.intel);
      e.Value = static_cast<double>(value);
      return std::to_string(value);
    }
    default:
      return Latin1(d.data);
  }
}

std::string DecodeText(const EntryData& d, ExifEntry& e) {
  switch (e.Format) {
    case kAscii:
      return Latin1(d.data);
    case kSByte:
    case kSShort:
    case kSLong: {
      const std::int64_t value = ReadSignedAt(d.data, 0, d.size, d.intel);
      e.Value = static_cast<double>(value);
      return std::to_string(value);
    }
    case kUndefined:
      return DecodeUndefined(d, e);
    case kRational:
    case kSRational:
      return DecodeRational(d, e);
    default: {
      // BYTE, SHORT, LONG, FLOAT, DOUBLE and type 0: the raw digits, summed
      // as a floating-point number would hold them.
      const std::uint64_t value = ReadUnsignedAt(d.data, 0, d.size, d.intel);
      e.Value = static_cast<double>(value);
      if (value < (std::uint64_t{1} << 53)) return std::to_string(value);
      return vb::CStr(static_cast<double>(value));
    }
  }
}

}  // namespace

void FinishExifEntryText(ExifEntry& entry) {
  if (entry.pending_values.empty()) return;
  std::string text;
  for (std::size_t i = 0; i < entry.pending_values.size(); ++i) {
    if (i) text += "/";
    text += vb::Format(entry.pending_values[i], entry.pending_mask);
  }
  entry.Text = std::move(text);
  entry.pending_values.clear();
  entry.pending_mask = {};
}

void DecodeExifEntry(const ExifBytes& bytes, std::int64_t base, std::int64_t position,
                     ExifEntry& entry) {
  entry.Tag = static_cast<std::uint32_t>(bytes.ReadUnsigned(position, 2));
  entry.Format = static_cast<std::uint32_t>(bytes.ReadUnsigned(position + 2, 2));
  entry.Count = static_cast<std::uint32_t>(bytes.ReadUnsigned(position + 4, 4));
  const std::int64_t field = position + 8;
  const std::uint64_t offset = bytes.ReadUnsigned(field, 4);
  entry.Name = ExifTagName(entry.Tag);
  const int size = ExifFormatSize(entry.Format);
  if (size < 0) throw VbError(vb_error::kSubscriptOutOfRange, "Subscript out of range");
  const std::uint64_t total = std::uint64_t{entry.Count} * static_cast<std::uint64_t>(size);
  EntryData d{{}, bytes.intel(), size};
  if (total > 4) {
    // What lies behind the bytes read comes out short or empty.
    const std::int64_t length = static_cast<std::int64_t>(std::min<std::uint64_t>(total, 1u << 30));
    d.data = bytes.Slice(base + static_cast<std::int64_t>(offset), length);
  } else {
    d.data = bytes.Slice(field, 4);
  }
  std::string text = DecodeText(d, entry);
  std::erase(text, '\0');
  entry.Text = std::move(text);
}

}  // namespace tarnwick
