#include "placeholders/media_provider.h"

namespace tarnwick {

std::string TagBlock::Field(std::string_view word) const {
  const auto hit = fields.find(std::string(word));
  return hit == fields.end() ? std::string() : hit->second;
}

const MediaInfoProvider& MediaInfoProvider::None() {
  static const MediaInfoProvider none;
  return none;
}

}  // namespace tarnwick
