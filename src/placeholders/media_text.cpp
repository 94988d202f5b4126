#include "placeholders/media_text.h"

#include "placeholders/text_ops_chars.h"

namespace tarnwick {

std::string StripAtNull(std::string_view text) {
  const std::size_t nul = text.find('\0');
  if (nul != std::string_view::npos) return std::string(text.substr(0, nul));
  return text_ops_detail::TrimBlanks(text);
}

std::string MinutesAndSeconds(std::int64_t seconds) {
  if (seconds < 0) seconds = 0;
  std::string minutes = std::to_string(seconds / 60);
  std::string rest = std::to_string(seconds % 60);
  if (minutes.size() < 2) minutes.insert(0, "0");
  if (rest.size() < 2) rest.insert(0, "0");
  return minutes + ":" + rest;
}

}  // namespace tarnwick
