#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// Text operations of the text and casing placeholders. Each is a pure function
// of its arguments: the engine removes the token, works out base and
// extension, and hands the scratch text in. Characters are code points; a byte
// that is not valid UTF-8 counts as one character and passes through.

// As many characters "0" as the text is long: the mask of the counter tokens.
std::string MakeZeroMask(std::string_view text);

// As many characters "0" as the number of selected rows has digits: the mask
// of {{countDynamic}} and {{random_number_byFilecount}}. The caller passes the
// list's selected-row count.
std::string DynamicZeroMask(std::size_t selected_count);

// {{firstcharuppercasing}}, {{firstcharlowercasing}}: the first character's
// case changed, the rest unchanged.
std::string FirstCharUpper(std::string_view text);
std::string FirstCharLower(std::string_view text);

// {{swapCasing}}: a character equal to its own lower case form (binary
// compare) gets its upper case form, any other its lower case form.
std::string SwapCasing(std::string_view text);

// {{remove_numbers}}: the characters 0 to 9 removed.
std::string RemoveNumbers(std::string_view text);

// {{remove_chars}}: the letters A to Z removed in both cases; other letters,
// umlauts for example, stay.
std::string RemoveChars(std::string_view text);

// {{remove_repeatedChars}} passes false. Every character that already stands
// in the result (case-insensitive) is dropped, not only neighbours; with
// `to_upper` each character is upper-cased first. `yield`, if given, runs
// after every character, so the window system can breathe on long texts.
std::string RemoveRepeatedChars(std::string_view text, bool to_upper,
                                const std::function<void()>& yield = nullptr);

// {{remove_brackets}}: the characters ( ) [ ] { } removed.
std::string RemoveBrackets(std::string_view text);

// {{convertANSI-ASCII}} and {{convertASCII-ANSI}}: byte for byte through the
// system's single-byte code page (Windows-1252) and the OEM code page (850),
// read back through the single-byte code page. A character outside
// Windows-1252 passes through unchanged.
std::string ConvertAnsiToOem(std::string_view text);
std::string ConvertOemToAnsi(std::string_view text);

// {{convertUmlauts}}: seven case-sensitive replacements, in this order:
// ä ae, ö oe, ü ue, ß ss, Ä Ae, Ö Oe, Ü Ue.
std::string ConvertUmlauts(std::string_view text);

// The characters in reverse order.
std::string ReverseText(std::string_view text);

// {{propercase}}: every word with a capital first letter and the rest lower
// case. A word starts at a letter that follows neither a letter, a digit nor
// an apostrophe: "this is crap" -> "This Is Crap", "o'neil 2nd" -> "O'neil 2nd".
std::string ProperCase(std::string_view text);

// {{respace}}: runs of blanks cut down to one blank.
std::string RemoveDoubleBlanks(std::string_view text);

// {{camelcasing}}: letters alternate lower and upper case, starting lower:
// "camelcasing" -> "cAmElCaSiNg". Characters without case keep their form and
// do not count in the alternation.
std::string CamelCase(std::string_view text);

// The first run of digits 0 to 9 at or after the 1-based character position
// `start`; the empty text if there is none.
std::string FirstNumber(std::string_view text, std::size_t start = 1);

// The three tokens that act on the base and keep the extension `ext` (as the
// engine's extension step gives it: ".txt", or empty). `scratch` is the
// running text with the token removed.
//
// {{trim_right}}: with ext empty, scratch unchanged (trailing blanks stay).
// Otherwise RTrim(Left(scratch, Len(Trim(scratch)) - Len(ext))) + ext, so
// leading blanks of scratch cost characters of the base.
std::string TrimRightKeepingExtension(std::string_view scratch, std::string_view ext);
// {{remove_dots}}: every point of the base removed, ext kept.
std::string RemoveDotsKeepingExtension(std::string_view scratch, std::string_view ext);
// {{reverse}}: the base reversed, ext kept; with no ext all of scratch.
std::string ReverseKeepingExtension(std::string_view scratch, std::string_view ext);

enum class NumberLanguage { kGerman, kEnglish };

// {{numberToString_german}}, {{numberToString_english}}: the first number of
// the base (scratch without its last Len(ext) characters) becomes words, and
// every occurrence of that digit string in scratch is replaced with them. A
// text without digits comes back unchanged. std::nullopt for a number too
// large for words: the token then stays, as for any fault.
std::optional<std::string> ReplaceFirstNumberWithWords(std::string_view scratch,
                                                       std::string_view ext,
                                                       NumberLanguage language);

// One step of the letter counter of {{count2char}} (alphanumeric false) and
// {{count2alphanumeric}} (true).
struct CharCountStep {
  std::string counter_text;  // the new `CharCounterText`
  std::string value;         // what the token becomes
};
// `counter_text` is `CharCounterText` before the step and `current_count` the
// numbering counter. The state "-1" yields the empty text and stays "-1". A
// counter below 2 restarts at "A" or "A0". std::nullopt when the step faults
// (an empty counter text): the state stays and the token stays in the text.
std::optional<CharCountStep> NextCharCount(std::string_view counter_text, bool alphanumeric,
                                           std::int32_t current_count);

}  // namespace tarnwick
