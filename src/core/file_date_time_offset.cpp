#include <array>
#include <utility>

#include "base/vb_date.h"
#include "base/vb_date_text.h"
#include "base/vb_error.h"
#include "core/file_date_time.h"

namespace tarnwick {
namespace {

using Shift = std::pair<std::string_view, int>;

// Applies each unit whose amount is above 0, in the order given.
std::optional<std::string> Shifted(bool add, std::string_view date_text,
                                   const std::array<Shift, 3>& shifts,
                                   std::string_view date_format) {
  std::optional<vb::DateTime> date = vb::ParseDateTime(date_text, date_format);
  if (!date) return std::nullopt;
  try {
    for (const auto& [interval, amount] : shifts) {
      if (amount <= 0) continue;
      *date = vb::DateAdd(interval, add ? amount : -static_cast<std::int64_t>(amount), *date);
    }
  } catch (const VbError&) {
    return std::nullopt;
  }
  return vb::FormatDateByOption(*date, date_format);
}

}  // namespace

std::optional<std::string> AddTimeOffset(bool add, std::string_view date_text, int hours,
                                         int minutes, int seconds, std::string_view date_format) {
  return Shifted(add, date_text, {{{"h", hours}, {"n", minutes}, {"s", seconds}}}, date_format);
}

std::optional<std::string> AddDateOffset(bool add, std::string_view date_text, int days, int months,
                                         int years, std::string_view date_format) {
  return Shifted(add, date_text, {{{"d", days}, {"m", months}, {"yyyy", years}}}, date_format);
}

}  // namespace tarnwick
