#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The length column of a playlist row and the whole seconds the files hold.
namespace tarnwick {

// The length column of a row whose length is not known.
inline constexpr std::string_view kUnknownLength = "00:00";

// Whole seconds as the column shows them: "mm:ss" below an hour ("03:35"),
// "h:mm:ss" from an hour on ("1:02:03"). Negative seconds give "00:00".
std::string LengthText(std::int64_t seconds);

// The column text of a length read from a playlist file.
//
// Whole seconds ("215") are shown by LengthText ("03:35"), so a load and a
// save keep every length: the old reading rule turned 215 into "215:00",
// which the writer then saved as 12,900 seconds, multiplying a playlist's
// lengths by 60 at each load and save. A value with a decimal part ("3.5" or
// "3,5") keeps the old rule: formatted "00.00", the decimal sign made ":",
// the part behind it formatted "00" ("03:50"). The number stands at the
// start of the value; what follows it (the attributes some players put into
// an info line) is ignored. A negative value (the M3U mark of an unknown
// length, "-1"), a value without a number and a value beyond 2^31 - 1
// seconds give "00:00".
std::string LengthFromFile(std::string_view value);

// The whole seconds a writer stores for a column text: an empty column counts
// as "00:00"; split at ":", three parts are hours, minutes and seconds, two
// parts minutes and seconds; any other count, or a text beginning with "-",
// is 0. Each part is read like `Val`; the sum is rounded to the nearest
// (ties to even) and held to 0 .. 2^31 - 1.
std::int64_t LengthSeconds(std::string_view column);

// The sum of the columns' seconds for `lblPlayTime`.
template <typename Rows>
std::int64_t TotalSeconds(const Rows& rows) {
  std::int64_t total = 0;
  for (const auto& row : rows) total += LengthSeconds(row.length);
  return total;
}

}  // namespace tarnwick
