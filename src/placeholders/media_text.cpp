#include "placeholders/media_text.h"

namespace tarnwick {

std::string MinutesAndSeconds(std::int64_t seconds) {
  if (seconds < 0) seconds = 0;
  std::string minutes = std::to_string(seconds / 60);
  std::string rest = std::to_string(seconds % 60);
  if (minutes.size() < 2) minutes.insert(0, "0");
  if (rest.size() < 2) rest.insert(0, "0");
  return minutes + ":" + rest;
}

}  // namespace tarnwick
