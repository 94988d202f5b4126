// {{convertANSI-ASCII}} and {{convertASCII-ANSI}}.
#include "base/code_page.h"
#include "placeholders/text_ops.h"

namespace tarnwick {

std::string ConvertAnsiToOem(std::string_view text) { return AnsiToOem(text); }

std::string ConvertOemToAnsi(std::string_view text) { return OemToAnsi(text); }

}  // namespace tarnwick
