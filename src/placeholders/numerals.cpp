#include "placeholders/numerals.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarnwick {
namespace {

std::string InBase(std::uint64_t value, unsigned base) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits;
  do {
    digits += kDigits[value % base];
    value /= base;
  } while (value != 0);
  std::reverse(digits.begin(), digits.end());
  return digits;
}

struct RomanStep {
  std::uint64_t value;
  std::string_view letters;
};

constexpr std::array<RomanStep, 13> kRomanSteps = {{{1000, "M"},
                                                    {900, "CM"},
                                                    {500, "D"},
                                                    {400, "CD"},
                                                    {100, "C"},
                                                    {90, "XC"},
                                                    {50, "L"},
                                                    {40, "XL"},
                                                    {10, "X"},
                                                    {9, "IX"},
                                                    {5, "V"},
                                                    {4, "IV"},
                                                    {1, "I"}}};

constexpr std::uint64_t kLargestRoman = 3999;

}  // namespace

std::string ToBinary(std::uint64_t value) { return InBase(value, 2); }
std::string ToOctal(std::uint64_t value) { return InBase(value, 8); }
std::string ToHexadecimal(std::uint64_t value) { return InBase(value, 16); }

std::optional<std::string> ToRoman(std::uint64_t value) {
  if (value > kLargestRoman) return std::nullopt;
  std::string roman;
  for (const RomanStep& step : kRomanSteps) {
    for (; value >= step.value; value -= step.value) roman += step.letters;
  }
  return roman;
}

}  // namespace tarnwick
