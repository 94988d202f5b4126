// Trim, LTrim, RTrim and StripAtNull.
#include "base/text.h"

namespace tarnwick {
namespace vb {

std::string LTrim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first));
}

std::string RTrim(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  if (last == std::string_view::npos) return {};
  return std::string(text.substr(0, last + 1));
}

// A blank is one byte that never occurs inside a character, so cutting at
// bytes keeps every character whole.
std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace vb

std::string StripAtNull(std::string_view text) {
  const std::size_t nul = text.find('\0');
  // Kept: a value cut at its NUL keeps its blanks; only a value without one
  // is trimmed.
  if (nul != std::string_view::npos) return std::string(text.substr(0, nul));
  return vb::Trim(text);
}

}  // namespace tarnwick
