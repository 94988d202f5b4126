#include "filelist/name_order.h"

#include <unicode/ucol.h>
#include <unicode/uiter.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <numeric>

#include "base/text.h"

namespace tarnwick {
namespace {

char FoldAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

std::string LocaleOfSetting(std::string_view setting) {
  const std::size_t end = setting.find_first_of(".@");
  std::string locale(setting.substr(0, end));
  if (locale.empty() || locale == "C" || locale == "POSIX") return "root";
  return locale;
}

}  // namespace

int CompareText(std::string_view a, std::string_view b) {
  // Plain ASCII runs are compared here; the rest goes to the full folding.
  const std::size_t common = a.size() < b.size() ? a.size() : b.size();
  for (std::size_t i = 0; i < common; ++i) {
    const unsigned char x = static_cast<unsigned char>(a[i]);
    const unsigned char y = static_cast<unsigned char>(b[i]);
    if (x >= 0x80 || y >= 0x80) return vb::StrComp(a.substr(i), b.substr(i), vb::Compare::kText);
    const char fx = FoldAscii(static_cast<char>(x));
    const char fy = FoldAscii(static_cast<char>(y));
    if (fx != fy) return fx < fy ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

int CompareNames(std::string_view a, std::string_view b) {
  const int text = CompareText(a, b);
  if (text != 0) return text;
  return a.compare(b);
}

std::string UserCollationLocale() {
  for (const char* variable : {"LC_ALL", "LC_COLLATE", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return LocaleOfSetting(value);
  }
  return "root";
}

struct NameOrder::Collator {
  UCollator* handle = nullptr;
  ~Collator() {
    if (handle != nullptr) ucol_close(handle);
  }
};

NameOrder::NameOrder(const NameOrderChoice& choice)
    : collator_(std::make_unique<Collator>()),
      locale_(choice.locale.empty() ? UserCollationLocale() : LocaleOfSetting(choice.locale)),
      natural_numbers_(choice.natural_numbers) {
  UErrorCode status = U_ZERO_ERROR;
  collator_->handle = ucol_open(locale_ == "root" ? "" : locale_.c_str(), &status);
  if (U_FAILURE(status)) {
    // A locale ICU does not know falls back inside ICU; only a broken data
    // set gets here, and then the locale-free order is used.
    collator_->handle = nullptr;
    locale_ = "root";
    return;
  }
  ucol_setStrength(collator_->handle, UCOL_TERTIARY);
  ucol_setAttribute(collator_->handle, UCOL_NUMERIC_COLLATION,
                    natural_numbers_ ? UCOL_ON : UCOL_OFF, &status);
}

NameOrder::~NameOrder() = default;

std::string NameOrder::SortKey(std::string_view name) const {
  std::string key;
  if (collator_->handle == nullptr) return key;
  UCharIterator iterator;
  uiter_setUTF8(&iterator, name.data(), static_cast<std::int32_t>(name.size()));
  std::uint32_t state[2] = {0, 0};
  // The key comes in parts, so a long name needs no guess of its length.
  char part[256];
  for (;;) {
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t written =
        ucol_nextSortKeyPart(collator_->handle, &iterator, state,
                             reinterpret_cast<std::uint8_t*>(part), sizeof part, &status);
    if (U_FAILURE(status) || written <= 0) break;
    key.append(part, static_cast<std::size_t>(written));
    if (written < static_cast<std::int32_t>(sizeof part)) break;
  }
  return key;
}

int NameOrder::Compare(std::string_view a, std::string_view b) const {
  if (collator_->handle != nullptr) {
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result =
        ucol_strcollUTF8(collator_->handle, a.data(), static_cast<std::int32_t>(a.size()), b.data(),
                         static_cast<std::int32_t>(b.size()), &status);
    if (U_SUCCESS(status) && result != UCOL_EQUAL) return result == UCOL_LESS ? -1 : 1;
  }
  return CompareNames(a, b);
}

std::vector<std::uint32_t> NameOrder::Ranking(std::span<const std::string_view> names) const {
  std::vector<std::string> keys;
  keys.reserve(names.size());
  for (std::string_view name : names) keys.push_back(SortKey(name));
  std::vector<std::uint32_t> order(names.size());
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(), [&](std::uint32_t x, std::uint32_t y) {
    const int by_key = keys[x].compare(keys[y]);
    if (by_key != 0) return by_key < 0;
    return CompareNames(names[x], names[y]) < 0;
  });
  return order;
}

}  // namespace tarnwick
