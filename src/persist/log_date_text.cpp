#include "persist/log_date_text.h"

#include "base/clock.h"
#include "base/vb_date_text.h"
#include "persist/log_options.h"

namespace tarnwick {
namespace {

std::string DateFormatOption(const OptionStore& options) {
  return ReadOption(options, "DateFormat", "dd.mm.yyyy");
}

}  // namespace

std::string PresentDateTimeText(const Clock& clock, const OptionStore& options) {
  return vb::FormatDateByOption(clock.Now(), DateFormatOption(options));
}

std::string PresentDateText(const Clock& clock, const OptionStore& options) {
  vb::DateTime today = clock.Now();
  const std::string text = vb::FormatDateByOption(today, DateFormatOption(options));
  return text.substr(0, text.find(' '));
}

}  // namespace tarnwick
