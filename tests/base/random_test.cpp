#include "base/random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>

#include "base/random_pool.h"
#include "base/vb_error.h"

namespace tarnwick {
namespace {

std::vector<double> Draw(Random& random, int count) {
  std::vector<double> out;
  for (int i = 0; i < count; ++i) out.push_back(random.Rnd());
  return out;
}

TEST(VbRandomTest, GivesTheRuntimesSequence) {
  VbRandom random;
  const std::vector<double> first = Draw(random, 3);
  EXPECT_NEAR(first[0], 0.7055475, 1e-7);
  EXPECT_NEAR(first[1], 0.5334240, 1e-7);
  EXPECT_NEAR(first[2], 0.5795186, 1e-7);
}

TEST(VbRandomTest, SameSeedSameSequenceOtherSeedOtherSequence) {
  VbRandom a, b, c;
  a.Randomize(36905.25);
  b.Randomize(36905.25);
  c.Randomize(12.5);
  const std::vector<double> from_a = Draw(a, 50);
  EXPECT_EQ(from_a, Draw(b, 50));
  EXPECT_NE(from_a, Draw(c, 50));
  for (double value : from_a) {
    EXPECT_GE(value, 0);
    EXPECT_LT(value, 1);
  }
}

TEST(SystemRandomTest, StaysInRangeAndRepeatsAfterTheSameSeed) {
  SystemRandom a, b;
  a.Randomize(7.5);
  b.Randomize(7.5);
  const std::vector<double> from_a = Draw(a, 1000);
  EXPECT_EQ(from_a, Draw(b, 1000));
  EXPECT_TRUE(std::all_of(from_a.begin(), from_a.end(), [](double v) { return v >= 0 && v < 1; }));
  EXPECT_GT(std::set<double>(from_a.begin(), from_a.end()).size(), 990u);
}

TEST(ScriptedRandomTest, HandsOutItsListInTurn) {
  ScriptedRandom random({0.25, 1.5, -1});
  EXPECT_EQ(random.Rnd(), 0.25);
  EXPECT_LT(random.Rnd(), 1);
  EXPECT_EQ(random.Rnd(), 0);
  EXPECT_EQ(random.Rnd(), 0.25);
  random.Rnd();
  random.Randomize(3);
  EXPECT_EQ(random.Rnd(), 0.25);
  ScriptedRandom empty({});
  EXPECT_EQ(empty.Rnd(), 0);
}

TEST(RandomBetweenTest, MapsTheDrawOntoTheWholeRange) {
  ScriptedRandom random({0, 0.5, 0.999999, 1.0});
  EXPECT_EQ(RandomBetween(random, 1, 10), 1);
  EXPECT_EQ(RandomBetween(random, 1, 10), 6);
  EXPECT_EQ(RandomBetween(random, 1, 10), 10);
  EXPECT_EQ(RandomBetween(random, 1, 10), 10);
  EXPECT_EQ(RandomBetween(random, 5, 4), 5);
  ScriptedRandom low({0.5});
  EXPECT_EQ(RandomBetween(low, -10, -1), -5);
}

TEST(RandomPoolTest, HoldsEveryNumberOfTheRangeOnce) {
  RandomPool pool;
  pool.Build(-3, 6, 42);
  ASSERT_EQ(pool.size(), 10u);
  std::vector<int> seen;
  for (int i = 0; i < 10; ++i, pool.Advance(1)) seen.push_back(pool.Next());
  EXPECT_EQ(pool.Next(), 0);  // beyond the end
  std::sort(seen.begin(), seen.end());
  std::vector<int> expected(10);
  std::iota(expected.begin(), expected.end(), -3);
  EXPECT_EQ(seen, expected);
}

TEST(RandomPoolTest, SameSeedSameOrderAndResetIndex) {
  RandomPool a, b;
  a.Build(1, 50, 7);
  b.Build(1, 50, 7);
  std::vector<int> from_a, from_b;
  for (int i = 0; i < 50; ++i, a.Advance(1), b.Advance(1)) {
    from_a.push_back(a.Next());
    from_b.push_back(b.Next());
  }
  EXPECT_EQ(from_a, from_b);
  a.Build(1, 50, 7);
  EXPECT_EQ(a.Next(), from_a[0]);
  a.Build(1, 50, 8);
  std::vector<int> other;
  for (int i = 0; i < 50; ++i, a.Advance(1)) other.push_back(a.Next());
  EXPECT_NE(other, from_a);
}

TEST(RandomPoolTest, EmptyRangesClearsAndTooLargeRanges) {
  RandomPool pool;
  pool.Build(5, 4, 1);
  EXPECT_EQ(pool.size(), 0u);
  EXPECT_EQ(pool.Next(), 0);
  pool.Build(1, 3, 1);
  pool.Advance(-1);
  EXPECT_EQ(pool.Next(), 0);
  pool.Clear();
  EXPECT_EQ(pool.size(), 0u);
  try {
    pool.Build(0, std::int64_t{1} << 30, 1);
    FAIL() << "no error";
  } catch (const VbError& e) {
    EXPECT_EQ(e.number(), 7);
  }
}

}  // namespace
}  // namespace tarnwick
