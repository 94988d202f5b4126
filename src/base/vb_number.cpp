#include "base/vb_number.h"

#include <cmath>

#include "base/vb_error.h"
#include "base/vb_number_scan.h"

namespace tarnwick::vb {
namespace {

[[noreturn]] void RaiseOverflow() { throw VbError(vb_error::kOverflow, "Overflow"); }

// Rounds half to even and checks the range of the target type.
template <typename Integer>
Integer RoundInto(double value) {
  const double rounded = RoundHalfEven(value);
  if (!std::isfinite(rounded) ||
      rounded < static_cast<double>(std::numeric_limits<Integer>::min()) ||
      rounded > static_cast<double>(std::numeric_limits<Integer>::max())) {
    RaiseOverflow();
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

bool IsNumeric(std::string_view text) {
  return detail::ScanNumericText(text).status == detail::ScanStatus::kNumber;
}

double CDbl(std::string_view text) {
  const detail::ScannedNumber scanned = detail::ScanNumericText(text);
  if (scanned.status == detail::ScanStatus::kOverflow) RaiseOverflow();
  if (scanned.status != detail::ScanStatus::kNumber) {
    throw VbError(vb_error::kTypeMismatch, "Type mismatch");
  }
  return detail::ToDouble(scanned.value);
}

double RoundHalfEven(double value) {
  if (!std::isfinite(value)) return value;
  const double nearest = std::round(value);  // ties away from zero
  if (std::fabs(value - std::trunc(value)) != 0.5) return nearest;
  return 2 * std::round(value / 2);
}

std::int16_t CInt(double value) { return RoundInto<std::int16_t>(value); }
std::int16_t CInt(std::string_view text) { return CInt(CDbl(text)); }
std::int32_t CLng(double value) { return RoundInto<std::int32_t>(value); }
std::int32_t CLng(std::string_view text) { return CLng(CDbl(text)); }

}  // namespace tarnwick::vb
