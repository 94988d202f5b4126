// The running number: its text, its place, its steps and its resets.
#include "core/numbering.h"

#include <limits>

#include "base/text.h"
#include "base/vb_error.h"
#include "base/vb_format.h"
#include "base/vb_number.h"
#include "core/rename_settings.h"
#include "persist/option_store.h"
#include "placeholders/text_ops.h"
#include "shell/app_state.h"

namespace tarnwick {
namespace {

[[noreturn]] void RaiseOverflow() { throw VbError(vb_error::kOverflow, "Overflow"); }

}  // namespace

std::string NumberText(std::int32_t count, std::string_view start_number) {
  if (count == std::numeric_limits<std::int32_t>::min()) RaiseOverflow();
  const std::int32_t magnitude = count < 0 ? -count : count;
  return vb::Format(static_cast<std::int64_t>(magnitude), MakeZeroMask(start_number));
}

std::int32_t StartNumberValue(const RenameSettings& settings) {
  return vb::CLng(vb::Val(settings.txtStartNumber));
}

std::string PlaceNumberAtPrefix(int opt_number, std::string_view number, std::string_view separator,
                                std::string_view prefix, std::string_view name) {
  std::string result;
  if (opt_number == kNumberBeforePrefix) {
    result.append(number).append(separator).append(prefix);
  } else if (opt_number == kNumberAfterPrefix) {
    result.append(prefix).append(number).append(separator);
  } else {
    result.append(prefix);
  }
  return result.append(name);
}

std::string PlaceNumberAtPostfix(int opt_number, std::string_view number,
                                 std::string_view separator, std::string_view postfix,
                                 std::string_view name, std::string_view extension) {
  if (opt_number != kNumberBeforePostfix && opt_number != kNumberAfterPostfix) return {};
  std::string result = vb::Left(name, vb::Len(name) - (vb::Len(extension) + 1));
  if (opt_number == kNumberBeforePostfix) {
    result.append(separator).append(number).append(postfix);
  } else {
    result.append(postfix).append(separator).append(number);
  }
  return result.append(".").append(extension);
}

void NextNumberStep(AppState& app, const RenameSettings& settings) {
  if (app.SameNumberCount == std::numeric_limits<std::int32_t>::max()) RaiseOverflow();
  ++app.SameNumberCount;
  if (app.SameNumberCount != vb::Val(settings.txtAddCount)) return;
  app.SameNumberCount = 0;
  const double step = vb::Val(settings.txtStep);
  const double count = app.CurrentCount;
  switch (settings.optOperator) {
    case kOperatorSubtract:
      app.CurrentCount = vb::CLng(count - step);
      return;
    case kOperatorMultiply:
      app.CurrentCount = vb::CLng(count * step);
      return;
    default:
      app.CurrentCount = vb::CLng(count + step);
      return;
  }
}

bool ResetCounterForRow(AppState& app, const RenameSettings& settings, const OptionStore& options,
                        std::string_view folder, std::string_view date_text) {
  if (options.GetOption("CountDirectories", "Options", "0") != "1") return false;
  if (options.GetOption("ResetCounterByDirectory", "Options", "1") == "1") {
    if (EqualsText(folder, app.LastCounterFolder)) return false;
    app.CurrentCount = StartNumberValue(settings);
    app.LastCounterFolder = std::string(folder);
    return true;
  }
  std::string day = vb::Left(date_text, 10);
  if (day == app.LastCounterDate) return false;
  app.CurrentCount = StartNumberValue(settings);
  app.LastCounterDate = std::move(day);
  return true;
}

}  // namespace tarnwick
