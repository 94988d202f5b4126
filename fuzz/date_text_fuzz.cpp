// Date and number texts from outside (list columns, tags, settings): reading
// them must never crash, hang or raise anything but the runtime's errors.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/vb_date_text.h"
#include "base/vb_error.h"
#include "base/vb_format.h"
#include "base/vb_number.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  using namespace tarnwick;
  for (std::string_view order : {"dd.mm.yyyy", "yyyy.mm.dd", "mm.dd.yyyy"}) {
    const auto date = vb::ParseDateTime(text, order);
    if (!date) continue;
    // A date read back from its own text is the same date.
    if (vb::ParseDateTime(vb::FormatDateByOption(*date, order), order) != date) __builtin_trap();
    vb::FormatDate(*date, text.substr(0, 64));
  }
  const bool numeric = vb::IsNumeric(text);
  try {
    vb::Val(text);
  } catch (const VbError&) {
  }
  try {
    vb::CDbl(text);
    if (!numeric) __builtin_trap();
  } catch (const VbError& e) {
    if (numeric && e.number() != vb_error::kOverflow) __builtin_trap();
  }
  const std::string formatted = vb::FormatText(text, "00000");
  if (!numeric && formatted != text) __builtin_trap();
  // The text as a mask, bounded so that a long run of places stays cheap.
  try {
    vb::Format(1234.5678, text.substr(0, 64));
    vb::Format(std::int64_t{-42}, text.substr(0, 64));
  } catch (const VbError&) {
  }
  return 0;
}
