// The placeholder engine: the pass loop and the fixed sequence of one pass.
#include "placeholders/engine.h"

#include "placeholders/expansion_pass.h"
#include "placeholders/token_steps.h"

namespace tarnwick {
namespace {

// One pass over an expression that holds "{{".
std::string RunPass(const ExpansionContext& context, const ExpressionIndex& index,
                    std::string_view file_date, std::string_view file_path) {
  using namespace token_steps;
  ExpansionPass pass(context, index, file_date, file_path);
  Literals(pass);
  Dates(pass);
  Counters(pass);
  PathAndMediaInfo(pass);
  FileAttributes(pass);
  Casing(pass);
  Mp3Tags(pass);
  Mpeg(pass);
  FileAndDrive(pass);
  Cleaning(pass);
  PictureAndSystem(pass);
  NumberWordsAndCasing(pass);
  LetterCounters(pass);
  Exif(pass);
  MarkerAndReverse(pass);
  Parameterised(pass);
  LateText(pass);
  RandomPoolStep(pass);
  RandomNumbers(pass);
  return std::move(pass.text());
}

std::string ConvertOnce(const ExpansionContext& context, const ExpressionIndex& index,
                        std::string_view file_date, std::string_view file_path) {
  if (index.expression().empty()) return {};
  if (index.opening_count() == 0) return std::string(index.expression());
  return RunPass(context, index, file_date, file_path);
}

}  // namespace

std::string ConvertExpression(const ExpansionContext& context, std::string_view expression,
                              std::string_view file_date, std::string_view file_path) {
  const ExpressionIndex index(expression);
  return ConvertOnce(context, index, file_date, file_path);
}

std::string ConvertExpressionMultiple(const ExpansionContext& context, std::string_view expression,
                                      std::string_view file_date, std::string_view file_path) {
  if (expression.empty()) return {};
  // A text without "{{" comes back after one search.
  if (expression.find("{{") == std::string_view::npos) return std::string(expression);
  try {
    const ExpressionIndex index(expression);
    // One pass per "{{" and one more, each from the unchanged expression; the
    // last pass decides. The passes are never merged: the letter counters need
    // the second pass, and every pass takes fresh clock, id and random values
    // and runs its side effects again.
    const int passes = index.opening_count() + 1;
    std::string result;
    for (int i = 0; i < passes; ++i) {
      result = ConvertOnce(context, index, file_date, file_path);
    }
    return result;
  } catch (...) {
    if (context.log != nullptr) {
      context.log->WriteLogFileTool("ConvertExpressionMultiple", "!7: Out of memory");
    }
    return {};
  }
}

}  // namespace tarnwick
