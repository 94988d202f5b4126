#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

struct AppState;
struct RenameSettings;
class OptionStore;

// The running number of the name pipeline. The number is placed by the
// prefix and postfix actions; the counter lives in AppState::CurrentCount.
// Functions that "raise" throw VbError 6 "Overflow" when the counter leaves
// the 32-bit range; the run's error handler reports it.

// The number as names show it: the absolute value of `count`, padded with
// zeros to the length of `start_number` (the text of `txtStartNumber`, so
// "007" gives three digits); wider numbers keep all their digits. Raises for
// the lowest 32-bit value, whose absolute value does not fit.
std::string NumberText(std::int32_t count, std::string_view start_number);

// The value of `txtStartNumber`, to which the counter is set at the start
// and end of a run, at a reset, and for the sample. Raises beyond 32 bits.
std::int32_t StartNumberValue(const RenameSettings& settings);

// The prefix with the number, by `optNumber`: 0 gives number + separator +
// prefix + name, 1 gives prefix + number + separator + name. Other places
// give prefix + name.
std::string PlaceNumberAtPrefix(int opt_number, std::string_view number, std::string_view separator,
                                std::string_view prefix, std::string_view name);

// The postfix with the number, by `optNumber`: 2 gives left part + separator +
// number + postfix + "." + extension, 3 gives left part + postfix + separator
// + number + "." + extension. The left part is always `name` less
// Len(extension) + 1 characters; for a name without extension that cuts its
// last character and leaves a final dot. Kept: the plain postfix handles that
// case, this one does not. Raises VbError 5 when the name is shorter than
// that. Other places give nothing (the caller adds a plain postfix).
std::string PlaceNumberAtPostfix(int opt_number, std::string_view number,
                                 std::string_view separator, std::string_view postfix,
                                 std::string_view name, std::string_view extension);

// `NextNumberStep`, at the end of each file that was not stopped by the
// short-name check: one more file on the present number; when `txtAddCount`
// files have shared it, the count starts again and the operator of
// `optOperator` applies the value of `txtStep` to the counter (0 add,
// 1 subtract, 2 multiply), rounded to a whole number. Raises on overflow.
void NextNumberStep(AppState& app, const RenameSettings& settings);

// The reset before each file of a run, when the option `CountDirectories` is
// "1": with `ResetCounterByDirectory` "1" (the default) when `folder` differs
// from the last folder (without regard to case), otherwise when the first 10
// characters of `date_text` (the row's date column) differ from the last day.
// The counter goes back to the start number and the folder or day is kept.
// `SameNumberCount` is not touched. Returns whether the counter was reset.
// Raises when the start number does not fit.
bool ResetCounterForRow(AppState& app, const RenameSettings& settings, const OptionStore& options,
                        std::string_view folder, std::string_view date_text);

}  // namespace tarnwick
