#include "placeholders/catalogue_rows.h"

#include <array>
#include <ctime>

#include "base/text.h"
#include "base/vb_date.h"
#include "base/vb_format.h"
#include "placeholders/catalogue.h"
#include "placeholders/name_cipher.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 12> kEnglishMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<std::string_view, 12> kGermanMonths = {
    "Januar", "Februar", "März",      "April",   "Mai",      "Juni",
    "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
// Monday first.
constexpr std::array<std::string_view, 7> kEnglishDays = {
    "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
constexpr std::array<std::string_view, 7> kGermanDays = {
    "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag", "Sonntag"};

std::string TwoDigits(int value) { return vb::Format(value, "00"); }

std::string Joined(int a, int b, std::string_view separator, const std::string& c) {
  return TwoDigits(a) + std::string(separator) + TwoDigits(b) + std::string(separator) + c;
}

// 0 for Monday.
int WeekdayFromMonday(const CatalogueMoment& now) {
  const vb::DateTime date{now.year, now.month, now.day};
  if (!vb::IsValidDate(date)) return 0;
  return vb::Weekday(date, vb::kMonday) - 1;
}

std::string CipherSample(const CatalogueEntry& entry) {
  const std::string hex = EncryptName(entry.sample, kCatalogueSampleKey);
  if (entry.rule == SampleRule::kEncryptedName) return std::string(entry.sample) + " -> " + hex;
  return hex + " -> " + std::string(entry.sample);
}

std::string Sample(const CatalogueEntry& entry, CatalogueLanguage language,
                   const CatalogueMoment& now) {
  const bool german = language == CatalogueLanguage::kGerman;
  const bool month_ok = now.month >= 1 && now.month <= 12;
  switch (entry.rule) {
    case SampleRule::kFixed:
      return std::string(german && !entry.german_sample.empty() ? entry.german_sample
                                                                : entry.sample);
    case SampleRule::kCurrentDate:
      return Joined(now.day, now.month, entry.sample, std::to_string(now.year));
    case SampleRule::kCurrentTime:
      return Joined(now.hour, now.minute, entry.sample, TwoDigits(now.second));
    case SampleRule::kCurrentYear:
      return std::to_string(now.year);
    case SampleRule::kCurrentMonth:
      return TwoDigits(now.month);
    case SampleRule::kCurrentDay:
      return TwoDigits(now.day);
    case SampleRule::kCurrentHour:
      return TwoDigits(now.hour);
    case SampleRule::kCurrentMinute:
      return TwoDigits(now.minute);
    case SampleRule::kCurrentSecond:
      return TwoDigits(now.second);
    case SampleRule::kCurrentQuarter:
      return month_ok ? std::to_string(vb::Quarter({now.year, now.month, 1})) : std::string();
    case SampleRule::kCurrentMonthName:
      if (!month_ok) return {};
      return std::string(german ? kGermanMonths[now.month - 1] : kEnglishMonths[now.month - 1]);
    case SampleRule::kCurrentDayName:
      return std::string(german ? kGermanDays[WeekdayFromMonday(now)]
                                : kEnglishDays[WeekdayFromMonday(now)]);
    case SampleRule::kEncryptedName:
    case SampleRule::kDecryptedName:
      return CipherSample(entry);
  }
  return {};
}

// The tag without its two opening and two closing braces.
std::string_view InnerTag(std::string_view tag) {
  if (tag.size() < 4) return {};
  return tag.substr(2, tag.size() - 4);
}

bool MatchesStart(const CatalogueRow& row, std::string_view text) {
  return StartsWithText(InnerTag(row.tag), text);
}

bool MatchesAnywhere(const CatalogueRow& row, std::string_view text) {
  return ContainsText(row.tag, text) || ContainsText(row.sample, text) ||
         ContainsText(row.description, text);
}

template <typename Match>
std::vector<std::size_t> Matching(const std::vector<CatalogueRow>& rows, Match match,
                                  bool first_only) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!match(rows[i])) continue;
    found.push_back(i);
    if (first_only) break;
  }
  return found;
}

std::vector<std::size_t> Search(const std::vector<CatalogueRow>& rows, std::string_view text,
                                bool first_only) {
  const bool anywhere_only = !text.empty() && text.front() == '*';
  if (!anywhere_only) {
    std::vector<std::size_t> found = Matching(
        rows, [&](const CatalogueRow& row) { return MatchesStart(row, text); }, first_only);
    if (!found.empty()) return found;
  }
  if (anywhere_only) text.remove_prefix(1);
  return Matching(
      rows, [&](const CatalogueRow& row) { return MatchesAnywhere(row, text); }, first_only);
}

}  // namespace

CatalogueMoment LocalCatalogueMoment(std::chrono::system_clock::time_point when) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
  std::tm local{};
  localtime_r(&seconds, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
}

std::vector<CatalogueRow> BuildCatalogueRows(CatalogueLanguage language,
                                             const CatalogueMoment& now) {
  std::vector<CatalogueRow> rows;
  rows.reserve(CatalogueEntries().size());
  for (const CatalogueEntry& entry : CatalogueEntries()) {
    rows.push_back(
        {std::string(entry.tag), Sample(entry, language, now),
         std::string(language == CatalogueLanguage::kGerman ? entry.german : entry.english)});
  }
  return rows;
}

std::optional<std::size_t> FindFirstCatalogueRow(const std::vector<CatalogueRow>& rows,
                                                 std::string_view text) {
  const std::vector<std::size_t> found = Search(rows, text, true);
  if (found.empty()) return std::nullopt;
  return found.front();
}

std::vector<std::size_t> FindCatalogueRows(const std::vector<CatalogueRow>& rows,
                                           std::string_view text) {
  return Search(rows, text, false);
}

}  // namespace tarnwick
