#include "base/random_pool.h"

#include <random>
#include <unordered_set>

#include "base/vb_error.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kMaxEntries = 1 << 24;

}  // namespace

void RandomPool::Clear() {
  entries_.clear();
  index_ = 0;
}

void RandomPool::Build(std::int64_t lower, std::int64_t upper, std::uint64_t seed) {
  Clear();
  if (last_ && last_->lower == lower && last_->upper == upper && last_->seed == seed) {
    entries_ = last_entries_;
    return;
  }
  last_.reset();
  if (upper < lower) return;
  if (lower < INT32_MIN || upper > INT32_MAX || upper - lower + 1 > kMaxEntries) {
    throw VbError(vb_error::kOutOfMemory, "Out of memory");
  }
  std::mt19937_64 generator(seed);
  std::uniform_int_distribution<std::int64_t> draw(lower, upper);
  const auto count = static_cast<std::size_t>(upper - lower + 1);
  entries_.reserve(count);
  std::unordered_set<std::int64_t> taken;
  // Redraw while the number is already in the pool, as the program always did;
  // the set only makes the test cheap.
  while (entries_.size() < count) {
    const std::int64_t value = draw(generator);
    if (taken.insert(value).second) entries_.push_back(static_cast<std::int32_t>(value));
  }
  last_entries_ = entries_;
  last_ = Drawn{lower, upper, seed};
}

std::int32_t RandomPool::Next() const {
  if (index_ < 0 || index_ >= static_cast<std::int64_t>(entries_.size())) return 0;
  return entries_[static_cast<std::size_t>(index_)];
}

void RandomPool::Advance(std::int64_t step) { index_ += step; }

}  // namespace tarnwick
