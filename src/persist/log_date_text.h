#pragma once

#include <string>

namespace tarnwick {

class Clock;
class OptionStore;

// The present date and time as the log and the batch print it: the date in
// the order and separators of the option `DateFormat`, a blank and the time
// as "hh:mm:ss" ("15.11.2026 20:11:00"), the form the file list shows too.
// `DateFormat` is read with "dd.mm.yyyy", the form start-up settles on when
// the system's own fits none of the three known ones.
std::string PresentDateTimeText(const Clock& clock, const OptionStore& options);

// The present date alone, in the same form ("15.11.2026").
std::string PresentDateText(const Clock& clock, const OptionStore& options);

}  // namespace tarnwick
