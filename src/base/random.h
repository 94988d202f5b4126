#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace tarnwick {

// The random numbers the program draws (`Randomize`, `Rnd`). Injected so that
// a test can fix the sequence.
class Random {
 public:
  virtual ~Random() = default;
  // `Randomize`: seeds the generator; the program seeds from the clock's Timer.
  virtual void Randomize(double seed) = 0;
  // `Rnd`: the next number, at least 0 and below 1.
  virtual double Rnd() = 0;
};

// `Int((upper - lower + 1) * Rnd + lower)`: a whole number from lower to upper,
// as the program draws one. With upper below lower it gives lower.
std::int64_t RandomBetween(Random& random, std::int64_t lower, std::int64_t upper);

// A generator seeded from the machine's entropy source at construction.
class SystemRandom : public Random {
 public:
  SystemRandom();
  void Randomize(double seed) override;
  double Rnd() override;

 private:
  std::mt19937_64 engine_;
};

// The runtime's own 24-bit linear generator: the same seed gives the same
// sequence on every machine, so it serves tests and anything that must repeat.
class VbRandom : public Random {
 public:
  void Randomize(double seed) override;
  double Rnd() override;

 private:
  std::uint32_t state_ = 0x50000;
};

// Hands out a fixed list of numbers in turn and starts over at its end; a
// test's way of saying exactly what is drawn. Randomize starts the list over.
class ScriptedRandom : public Random {
 public:
  // Numbers outside [0, 1) are clamped into it; an empty list draws 0.
  explicit ScriptedRandom(std::vector<double> values);
  void Randomize(double seed) override;
  double Rnd() override;

 private:
  std::vector<double> values_;
  std::size_t next_ = 0;
};

}  // namespace tarnwick
