// The placeholder engine: the pass loop and the fixed sequence of one pass.
#include "placeholders/engine.h"

#include "placeholders/expansion_pass.h"
#include "placeholders/token_steps.h"

namespace tarnwick {
namespace {

// One pass over an expression that holds "{{".
std::string RunPass(const ExpansionContext& context, const ExpressionIndex& index,
                    std::string_view file_date, std::string_view file_path, bool* faulted) {
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
  if (faulted != nullptr) *faulted = pass.faulted();
  return std::move(pass.text());
}

std::string ConvertOnce(const ExpansionContext& context, const ExpressionIndex& index,
                        std::string_view file_date, std::string_view file_path, bool* faulted) {
  if (index.expression().empty()) return {};
  if (index.opening_count() == 0) return std::string(index.expression());
  return RunPass(context, index, file_date, file_path, faulted);
}

// Whether a pass can see what an earlier pass of the same call left behind.
// Only the letter counters read state that a pass changes; everything else
// a pass reads (options, files, the pool rebuilt in the pass itself, the
// clock) is the same for every pass of a call, so one pass gives the result
// of all. A pass that faulted is repeated anyway, so the log keeps a line
// for every pass.
bool PassesDiffer(const ExpressionIndex& index) {
  return index.Has("{{count2char}}") || index.Has("{{count2alphanumeric}}");
}

}  // namespace

std::string ConvertExpression(const ExpansionContext& context, std::string_view expression,
                              std::string_view file_date, std::string_view file_path) {
  const ExpressionIndex index(expression);
  return ConvertOnce(context, index, file_date, file_path, nullptr);
}

std::string ConvertExpressionMultiple(const ExpansionContext& context, std::string_view expression,
                                      std::string_view file_date, std::string_view file_path) {
  if (expression.empty()) return {};
  // A text without "{{" comes back after one search.
  if (expression.find("{{") == std::string_view::npos) return std::string(expression);
  try {
    const ExpressionIndex index(expression);
    const int passes = index.opening_count() + 1;
    const bool repeat = PassesDiffer(index);
    std::string result;
    for (int i = 0; i < passes; ++i) {
      bool faulted = false;
      result = ConvertOnce(context, index, file_date, file_path, &faulted);
      if (!repeat && !faulted) break;
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
