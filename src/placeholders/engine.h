#pragma once

#include <string>
#include <string_view>

#include "placeholders/expansion_context.h"

namespace tarnwick {

// The placeholder engine: `{{...}}` tokens in `expression` expanded for one
// file. `file_date` is the row's date text, `file_path` the file's full path.
//
// One pass per "{{" in the expression plus one (none for an empty text); each
// pass starts from the unchanged expression, runs the fixed sequence of token
// tests, and the last pass decides. A token is acted on only if it stands in
// the expression (case-insensitive); tokens the sequence does not know stay as
// typed. A failing token stays in the text and the failure goes to the log;
// nothing is thrown.
std::string ConvertExpressionMultiple(const ExpansionContext& context, std::string_view expression,
                                      std::string_view file_date, std::string_view file_path);

// One pass. Only ConvertExpressionMultiple calls it; public for tests.
std::string ConvertExpression(const ExpansionContext& context, std::string_view expression,
                              std::string_view file_date, std::string_view file_path);

}  // namespace tarnwick
