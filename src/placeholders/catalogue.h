#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// How the sample column of a catalogue row is made when the list is built.
enum class SampleRule {
  kFixed,             // the row's sample text as it stands
  kCurrentDate,       // today as day, month, year, joined by the row's separator
  kCurrentTime,       // now as hour, minute, second, joined by the row's separator
  kCurrentYear,       // four-digit year of today
  kCurrentMonth,      // two-digit month of today
  kCurrentDay,        // two-digit day of today
  kCurrentHour,       // two-digit hour of now
  kCurrentMinute,     // two-digit minute of now
  kCurrentSecond,     // two-digit second of now
  kCurrentQuarter,    // quarter of today, "1" to "4"
  kCurrentMonthName,  // name of today's month in the interface language
  kCurrentDayName,    // name of today's weekday in the interface language
  kEncryptedName,     // the sample name, "->", its cipher text
  kDecryptedName,     // the cipher text of the sample name, "->", the name
};

// One row of the catalogue as data.
struct CatalogueEntry {
  std::string_view tag;
  SampleRule rule = SampleRule::kFixed;
  // kFixed: the sample. kCurrentDate, kCurrentTime: the separator.
  // kEncryptedName, kDecryptedName: the plain name. Otherwise unused.
  std::string_view sample;
  std::string_view english;
  std::string_view german;
  // The German interface's sample where it differs from `sample`.
  std::string_view german_sample;
};

// The catalogue's rows in their fixed order. {{mm_text}} and
// {{mp3IDTagV2_language}} each stand twice, with different texts.
std::span<const CatalogueEntry> CatalogueEntries();

// The key the two cipher rows use for their samples, as the tags show it.
inline constexpr std::string_view kCatalogueSampleKey = "YourKeyHere";

}  // namespace tarnwick
