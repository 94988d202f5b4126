#include "placeholders/number_words.h"

#include <array>
#include <vector>

namespace tarnwick {
namespace {

// Up to seven groups of three digits: ones, thousands, millions, ... 10^18.
constexpr std::size_t kMaxDigits = 21;

// A number split into groups of three digits, lowest group first.
struct ParsedNumber {
  bool negative = false;
  std::vector<int> groups;
};

std::optional<ParsedNumber> Parse(std::string_view text) {
  ParsedNumber parsed;
  if (!text.empty() && text.front() == '-') {
    parsed.negative = true;
    text.remove_prefix(1);
  }
  if (text.empty()) return std::nullopt;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
  }
  while (text.size() > 1 && text.front() == '0') text.remove_prefix(1);
  if (text.size() > kMaxDigits) return std::nullopt;
  for (std::size_t end = text.size(); end > 0;) {
    const std::size_t begin = end >= 3 ? end - 3 : 0;
    int value = 0;
    for (std::size_t i = begin; i < end; ++i) value = value * 10 + (text[i] - '0');
    parsed.groups.push_back(value);
    end = begin;
  }
  if (parsed.groups.size() == 1 && parsed.groups[0] == 0) parsed.negative = false;
  return parsed;
}

std::string DigitsOf(std::int64_t number) {
  // Works on the unsigned magnitude so that the lowest value has a form too.
  const bool negative = number < 0;
  std::uint64_t magnitude =
      negative ? ~static_cast<std::uint64_t>(number) + 1 : static_cast<std::uint64_t>(number);
  std::string digits;
  do {
    digits.insert(digits.begin(), static_cast<char>('0' + magnitude % 10));
    magnitude /= 10;
  } while (magnitude != 0);
  return negative ? "-" + digits : digits;
}

// ---- German ----

constexpr std::array<std::string_view, 20> kGermanSmall = {
    "null",     "eins",     "zwei",     "drei",     "vier",     "fünf",    "sechs",
    "sieben",   "acht",     "neun",     "zehn",     "elf",      "zwölf",   "dreizehn",
    "vierzehn", "fünfzehn", "sechzehn", "siebzehn", "achtzehn", "neunzehn"};
constexpr std::array<std::string_view, 10> kGermanTens = {
    "", "", "zwanzig", "dreißig", "vierzig", "fünfzig", "sechzig", "siebzig", "achtzig", "neunzig"};

// How a group that ends in one is spelt: "eins" at the very end, "ein" inside a
// compound ("eintausend", "einundzwanzig"), "eine" before a feminine scale
// word ("eine Million").
enum class GermanOne { kEins, kEin, kEine };

std::string GermanBelowHundred(int n, GermanOne one) {
  if (n == 1) {
    if (one == GermanOne::kEins) return "eins";
    return one == GermanOne::kEin ? "ein" : "eine";
  }
  if (n < 20) return std::string(kGermanSmall[n]);
  const int unit = n % 10;
  std::string tens(kGermanTens[n / 10]);
  if (unit == 0) return tens;
  const std::string unit_word = unit == 1 ? "ein" : std::string(kGermanSmall[unit]);
  return unit_word + "und" + tens;
}

// A group of 1 to 999.
std::string GermanGroup(int n, GermanOne one) {
  std::string words;
  const int hundreds = n / 100;
  if (hundreds > 0)
    words = (hundreds == 1 ? "ein" : std::string(kGermanSmall[hundreds])) + "hundert";
  const int rest = n % 100;
  if (rest > 0) words += GermanBelowHundred(rest, one);
  return words;
}

struct GermanScale {
  std::string_view singular;
  std::string_view plural;
};

// Scale words from 10^6 upwards, by group index (2 = millions).
constexpr std::array<GermanScale, 7> kGermanScales = {{{"", ""},
                                                       {"", ""},
                                                       {"Million", "Millionen"},
                                                       {"Milliarde", "Milliarden"},
                                                       {"Billion", "Billionen"},
                                                       {"Billiarde", "Billiarden"},
                                                       {"Trillion", "Trillionen"}}};

std::string GermanWords(const ParsedNumber& number) {
  const std::vector<int>& groups = number.groups;
  if (groups.size() == 1 && groups[0] == 0) return "null";
  std::string words;
  for (std::size_t index = groups.size(); index-- > 2;) {
    const int group = groups[index];
    if (group == 0) continue;
    // A group ending in one takes the singular: "eine Million", "hunderteine Million".
    const bool singular = group % 100 == 1;
    const GermanScale& scale = kGermanScales[index];
    if (!words.empty()) words += ' ';
    words += GermanGroup(group, GermanOne::kEine);
    words += ' ';
    words += singular ? scale.singular : scale.plural;
  }
  std::string tail;
  if (groups.size() > 1 && groups[1] != 0)
    tail = GermanGroup(groups[1], GermanOne::kEin) + "tausend";
  if (groups[0] != 0) tail += GermanGroup(groups[0], GermanOne::kEins);
  if (!tail.empty()) {
    if (!words.empty()) words += ' ';
    words += tail;
  }
  return number.negative ? "minus " + words : words;
}

// ---- English ----

constexpr std::array<std::string_view, 20> kEnglishSmall = {
    "zero",     "one",     "two",     "three",     "four",     "five",    "six",
    "seven",    "eight",   "nine",    "ten",       "eleven",   "twelve",  "thirteen",
    "fourteen", "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
constexpr std::array<std::string_view, 10> kEnglishTens = {
    "", "", "twenty", "thirty", "forty", "fifty", "sixty", "seventy", "eighty", "ninety"};
constexpr std::array<std::string_view, 7> kEnglishScales = {
    "", "thousand", "million", "billion", "trillion", "quadrillion", "quintillion"};

void AppendWord(std::string& words, std::string_view word) {
  if (!words.empty()) words += ' ';
  words += word;
}

void AppendEnglishGroup(std::string& words, int n) {
  const int hundreds = n / 100;
  if (hundreds > 0) {
    AppendWord(words, kEnglishSmall[hundreds]);
    AppendWord(words, "hundred");
  }
  const int rest = n % 100;
  if (rest == 0) return;
  if (rest < 20) {
    AppendWord(words, kEnglishSmall[rest]);
    return;
  }
  AppendWord(words, kEnglishTens[rest / 10]);
  if (rest % 10 != 0) AppendWord(words, kEnglishSmall[rest % 10]);
}

std::string EnglishWords(const ParsedNumber& number) {
  const std::vector<int>& groups = number.groups;
  if (groups.size() == 1 && groups[0] == 0) return "zero";
  std::string words = number.negative ? "minus" : "";
  for (std::size_t index = groups.size(); index-- > 0;) {
    if (groups[index] == 0) continue;
    AppendEnglishGroup(words, groups[index]);
    if (index > 0) AppendWord(words, kEnglishScales[index]);
  }
  return words;
}

}  // namespace

std::optional<std::string> NumberToGermanWords(std::string_view number) {
  if (number.empty()) return std::string();
  const std::optional<ParsedNumber> parsed = Parse(number);
  if (!parsed) return std::nullopt;
  return GermanWords(*parsed);
}

std::optional<std::string> NumberToEnglishWords(std::string_view number) {
  if (number.empty()) return std::string();
  const std::optional<ParsedNumber> parsed = Parse(number);
  if (!parsed) return std::nullopt;
  return EnglishWords(*parsed);
}

std::string NumberToGermanWords(std::int64_t number) {
  return GermanWords(*Parse(DigitsOf(number)));
}

std::string NumberToEnglishWords(std::int64_t number) {
  return EnglishWords(*Parse(DigitsOf(number)));
}

}  // namespace tarnwick
