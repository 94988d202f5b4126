#include "base/random.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace tarnwick {
namespace {

constexpr double kTwoTo53 = 9007199254740992.0;

}  // namespace

std::int64_t RandomBetween(Random& random, std::int64_t lower, std::int64_t upper) {
  if (upper < lower) return lower;
  const double span = static_cast<double>(upper) - static_cast<double>(lower) + 1;
  const auto drawn =
      static_cast<std::int64_t>(std::floor(span * random.Rnd() + static_cast<double>(lower)));
  return std::clamp(drawn, lower, upper);
}

SystemRandom::SystemRandom() : engine_(std::random_device{}()) {}

void SystemRandom::Randomize(double seed) { engine_.seed(std::bit_cast<std::uint64_t>(seed)); }

double SystemRandom::Rnd() { return static_cast<double>(engine_() >> 11) / kTwoTo53; }

void VbRandom::Randomize(double seed) {
  // The high word of the double's bits, folded to 16 bits, becomes the middle
  // of the 24-bit state; its lowest byte stays.
  const auto high = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(seed) >> 32);
  const std::uint32_t folded = ((high & 0xFFFF) ^ (high >> 16)) << 8;
  state_ = (state_ & 0xFF) | (folded & 0xFFFF00);
}

double VbRandom::Rnd() {
  state_ = (state_ * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFF;
  return state_ / 16777216.0;
}

ScriptedRandom::ScriptedRandom(std::vector<double> values) : values_(std::move(values)) {
  for (double& value : values_) {
    value = std::isfinite(value) ? std::clamp(value, 0.0, std::nextafter(1.0, 0.0)) : 0;
  }
}

void ScriptedRandom::Randomize(double) { next_ = 0; }

double ScriptedRandom::Rnd() {
  if (values_.empty()) return 0;
  const double value = values_[next_];
  next_ = (next_ + 1) % values_.size();
  return value;
}

}  // namespace tarnwick
