#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace tarnwick {

// `RandomPool`: distinct random integers with a read index, for the random
// placeholders and the shuffle.
class RandomPool {
 public:
  // `ClearRandomPool`: erases the pool.
  void Clear();
  // `BuildRandomPool`: upper - lower + 1 distinct numbers between lower and
  // upper, drawn from a generator seeded with `seed` (the program seeds from
  // the clock); the read index goes back to 0. A range without numbers gives
  // an empty pool. Raises VbError 7 for a range too large to hold.
  void Build(std::int64_t lower, std::int64_t upper, std::uint64_t seed);
  // `NextRandomFromPool`: the entry at the read index, 0 beyond the end.
  std::int32_t Next() const;
  // `AdvanceRandomPool`: moves the read index on by `step`.
  void Advance(std::int64_t step);

  std::size_t size() const { return entries_.size(); }

 private:
  struct Drawn {
    std::int64_t lower, upper;
    std::uint64_t seed;
  };

  std::vector<std::int32_t> entries_;
  std::int64_t index_ = 0;
  // What the entries were last drawn with: the same draw again only resets the
  // index, since the same seed gives the same numbers.
  std::vector<std::int32_t> last_entries_;
  std::optional<Drawn> last_;
};

}  // namespace tarnwick
