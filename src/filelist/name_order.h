#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// Case-insensitive text order: character by character with simple case
// folding, code point order; 0 for "Readme" and "README".
int CompareText(std::string_view a, std::string_view b);

// CompareText, then the bytes, so the order is total: used where a fixed,
// locale-free order is wanted (the items of the extension box).
int CompareNames(std::string_view a, std::string_view b);

// How the user wants names ordered.
struct NameOrderChoice {
  // "file2" before "file10": runs of digits compare by their value.
  bool natural_numbers = false;
  // An ICU locale such as "de_DE" or "sv"; empty takes the user's
  // (LC_ALL, LC_COLLATE, LANG), and "C" or "POSIX" there takes the root
  // order of Unicode.
  std::string locale;
};

// The order in which the file list shows names: the collation of the user's
// locale ("Ärger" beside "Apfel", not after "Zoo"), letter case deciding only
// between names that are otherwise equal, and the bytes last, so the order
// is total and the same on every run. Names that are not valid UTF-8 are
// ordered as if each bad byte were U+FFFD.
class NameOrder {
 public:
  explicit NameOrder(const NameOrderChoice& choice = {});
  ~NameOrder();
  NameOrder(const NameOrder&) = delete;
  NameOrder& operator=(const NameOrder&) = delete;

  // Negative, zero or positive like strcmp; zero only for equal bytes.
  int Compare(std::string_view a, std::string_view b) const;

  // The positions of `names` in name order (a stable order: equal names keep
  // their places). Each name's collation key is made once.
  std::vector<std::uint32_t> Ranking(std::span<const std::string_view> names) const;

  // The locale whose order is used ("root" for Unicode's own).
  const std::string& locale() const { return locale_; }
  bool natural_numbers() const { return natural_numbers_; }

 private:
  std::string SortKey(std::string_view name) const;

  struct Collator;
  std::unique_ptr<Collator> collator_;
  std::string locale_;
  bool natural_numbers_ = false;
};

// The collation locale of the environment: LC_ALL, LC_COLLATE, then LANG,
// without the code set and modifier ("de_DE.UTF-8@euro" gives "de_DE");
// "root" for an empty, "C" or "POSIX" setting.
std::string UserCollationLocale();

}  // namespace tarnwick
