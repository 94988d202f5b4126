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
  *faulted = pass.faulted();
  return std::move(pass.text());
}

std::string ConvertOnce(const ExpansionContext& context, const ExpressionIndex& index,
                        std::string_view file_date, std::string_view file_path, bool* faulted) {
  if (index.expression().empty()) return {};
  if (index.opening_count() == 0) return std::string(index.expression());
  return RunPass(context, index, file_date, file_path, faulted);
}

// Whether the passes before the last one leave anything behind. Only the
// last pass's text is kept, so an earlier pass matters only through what it
// changes: the letter counters step from pass to pass (and act only from the
// second one), and the random tokens draw from the pool, which a run does not
// refill. Clock and unique-id tokens take fresh values in every pass but
// leave nothing behind, so the last pass alone gives what all of them would.
// Without such tokens every pass reads the same options, files and state and
// writes the same attributes, and the repetition is skipped. A pass that
// faulted is repeated all the same, so the log keeps its line per pass.
bool EarlierPassesLeaveEffects(const ExpressionIndex& index) {
  return index.Has("{{count2char}}") || index.Has("{{count2alphanumeric}}") ||
         index.HasPrefix("{{random_number");
}

}  // namespace

std::string ConvertExpression(const ExpansionContext& context, std::string_view expression,
                              std::string_view file_date, std::string_view file_path) {
  const ExpressionIndex index(expression);
  bool faulted = false;
  return ConvertOnce(context, index, file_date, file_path, &faulted);
}

std::string ConvertExpressionMultiple(const ExpansionContext& context, std::string_view expression,
                                      std::string_view file_date, std::string_view file_path) {
  if (expression.empty()) return {};
  // A text without "{{" comes back after one search.
  if (expression.find("{{") == std::string_view::npos) return std::string(expression);
  try {
    const ExpressionIndex index(expression);
    // One pass per "{{" and one more, each from the unchanged expression; the
    // last pass decides.
    const int passes = index.opening_count() + 1;
    const bool repeat = EarlierPassesLeaveEffects(index);
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
