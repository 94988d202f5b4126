#include "filelist/file_size_text.h"

#include <array>
#include <string_view>

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 6> kUnits = {"KB", "MB", "GB", "TB", "PB", "EB"};

// The value in hundredths of `unit` (1024^(index+1)), cut towards zero.
std::uint64_t Hundredths(std::uint64_t bytes, std::size_t unit) {
  const unsigned __int128 scaled = static_cast<unsigned __int128>(bytes) * 100;
  return static_cast<std::uint64_t>(scaled >> (10 * (unit + 1)));
}

// Three significant digits of a value given in hundredths.
std::string ThreeDigits(std::uint64_t hundredths, char mark) {
  const std::uint64_t whole = hundredths / 100;
  const std::uint64_t fraction = hundredths % 100;
  if (whole >= 100) return std::to_string(whole);
  if (whole >= 10) return std::to_string(whole) + mark + std::to_string(fraction / 10);
  const char digits[] = {static_cast<char>('0' + fraction / 10),
                         static_cast<char>('0' + fraction % 10), '\0'};
  return std::to_string(whole) + mark + digits;
}

}  // namespace

std::string FormatFileSize(std::uint64_t bytes, Language language) {
  const bool german = language == Language::kGerman;
  if (bytes < 1024) return std::to_string(bytes) + (german ? " Bytes" : " bytes");
  std::size_t unit = 0;
  while (unit + 1 < kUnits.size() && Hundredths(bytes, unit) >= 100000) ++unit;
  return ThreeDigits(Hundredths(bytes, unit), german ? ',' : '.') + " " + std::string(kUnits[unit]);
}

}  // namespace tarnwick
