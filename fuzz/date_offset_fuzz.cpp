// Arbitrary date texts and amounts for the date shifts of copy and move:
// nothing may crash, and a shift by days forward and back again gives the
// date it started from.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "core/file_date_time.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnwick;
  if (size < 7) return 0;
  std::int16_t amounts[3];
  std::memcpy(amounts, data, sizeof amounts);
  const char* formats[] = {"dd.mm.yyyy", "yyyy.mm.dd", "mm.dd.yyyy", "yyyy-mm-dd"};
  const std::string_view format = formats[data[6] % 4];
  const std::string text(reinterpret_cast<const char*>(data) + 7, size - 7);
  const int days = amounts[0], months = amounts[1], hours = amounts[2];
  AddDateOffset(true, text, days, months, 0, format);
  AddTimeOffset(false, text, hours, months, days, format);
  if (days > 0) {
    const auto forward = AddDateOffset(true, text, days, 0, 0, format);
    if (forward) {
      const auto back = AddDateOffset(false, *forward, days, 0, 0, format);
      const auto same = AddDateOffset(true, text, 0, 0, 0, format);
      if (!back || !same || *back != *same) std::abort();
    }
  }
  return 0;
}
