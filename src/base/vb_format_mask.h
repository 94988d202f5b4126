#pragma once

#include <string>
#include <string_view>
#include <vector>

// A number mask read into its parts. Internal to base.
namespace tarnwick::vb::detail {

enum class MaskItemKind {
  kZero,           // "0" digit place
  kHash,           // "#" digit place
  kPoint,          // the decimal sign
  kGroup,          // a "," that asks for thousands groups; shows nothing
  kScale,          // a "," that divides by 1000; shows nothing
  kPercent,        // "%"
  kExponent,       // "E+", "E-", "e+", "e-"
  kExponentDigit,  // "0" or "#" after the exponent
  kLiteral,
};

struct MaskItem {
  MaskItemKind kind;
  std::string text;  // the literal, or "E+" and the like
};

struct NumberMask {
  std::vector<MaskItem> items;
  int integer_places = 0;
  int decimal_places = 0;
  int scale_thousands = 0;
  int percents = 0;
  bool grouping = false;
  bool has_point = false;
  bool has_exponent = false;
  bool exponent_plus = false;  // "E+": the sign shows for positive exponents
  int exponent_zeros = 0;
};

// The mask's sections split at ";" outside quotes and escapes.
std::vector<std::string_view> SplitSections(std::string_view mask);

NumberMask ParseNumberMask(std::string_view section);

}  // namespace tarnwick::vb::detail
