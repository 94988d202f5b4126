#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

enum class CatalogueLanguage { kEnglish, kGerman };

// The local date and time the current-date rows show.
struct CatalogueMoment {
  int year = 2004;
  int month = 1;  // 1 to 12
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// A point in time as the local date and time of this machine.
CatalogueMoment LocalCatalogueMoment(std::chrono::system_clock::time_point when);

// One row of the list as the picker shows it.
struct CatalogueRow {
  std::string tag;
  std::string sample;
  std::string description;
};

// Builds the catalogue's rows in their order, with the descriptions and
// samples of the interface language and the current-date samples of `now`.
std::vector<CatalogueRow> BuildCatalogueRows(CatalogueLanguage language,
                                             const CatalogueMoment& now);

// The picker's search, case-insensitive. Without a leading "*" a row matches
// when its tag without the two braces at either end starts with the text; if
// no row does, or the text starts with "*", the text without that "*" is
// looked for anywhere in the row's tag, sample or description. An empty text
// matches the first row.
std::optional<std::size_t> FindFirstCatalogueRow(const std::vector<CatalogueRow>& rows,
                                                 std::string_view text);
// Every row the same search would match, in order.
std::vector<std::size_t> FindCatalogueRows(const std::vector<CatalogueRow>& rows,
                                           std::string_view text);

}  // namespace tarnwick
