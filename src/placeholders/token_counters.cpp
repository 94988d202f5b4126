// The numbering, letter counter and random number tokens, and the literals.
#include <cmath>
#include <cstdlib>

#include "base/vb_error.h"
#include "base/vb_format.h"
#include "base/vb_number.h"
#include "placeholders/date_tokens.h"
#include "placeholders/numerals.h"
#include "placeholders/text_ops.h"
#include "placeholders/token_steps.h"

namespace tarnwick::token_steps {
namespace {

// `Abs(CurrentCount)`; the smallest value has no absolute value in 32 bits.
std::uint64_t CounterValue(const ExpansionContext& context) {
  if (context.current_count == INT32_MIN) throw VbError(vb_error::kOverflow, "Overflow");
  return static_cast<std::uint64_t>(std::abs(context.current_count));
}

std::string Mask(const ExpansionContext& context) {
  return MakeZeroMask(context.numbering.start_number);
}

void LetterCounter(ExpansionPass& pass, std::string_view token, bool alphanumeric) {
  const ExpansionContext& context = pass.context();
  PlaceholderState& state = *context.state;
  if (!pass.Has(token) || state.last_char_count != context.current_count) return;
  pass.Run([&] {
    const auto step = NextCharCount(state.char_counter_text, alphanumeric, context.current_count);
    if (!step) throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
    state.char_counter_text = step->counter_text;
    ReplaceToken(pass.text(), token, step->value);
  });
}

}  // namespace

void Literals(ExpansionPass& pass) {
  pass.ValueToken("{{-}}", [] { return std::string(); });
  pass.ValueToken("{{separator}}", [&] { return pass.context().numbering.limiter; });
}

void Counters(ExpansionPass& pass) {
  if (!pass.index().HasPrefix("{{count")) return;
  const ExpansionContext& context = pass.context();
  const std::string& sep = context.numbering.limiter;
  pass.ValueToken("{{count}}", [&] {
    return vb::Format(static_cast<std::int64_t>(CounterValue(context)), Mask(context)) + sep;
  });
  pass.ValueToken("{{count2hexadecimal}}", [&] {
    return vb::FormatText(ToHexadecimal(CounterValue(context)), Mask(context)) + sep;
  });
  pass.ValueToken("{{count2octal}}", [&] {
    return vb::FormatText(ToOctal(CounterValue(context)), Mask(context)) + sep;
  });
  pass.ValueToken("{{count2binary}}", [&] {
    return vb::FormatText(ToBinary(CounterValue(context)), Mask(context)) + sep;
  });
  pass.ValueToken("{{countdynamic}}", [&] {
    return vb::Format(static_cast<std::int64_t>(CounterValue(context)),
                      DynamicZeroMask(context.numbering.selected_count)) +
           sep;
  });
  pass.ValueToken("{{count2roman}}", [&] {
    const auto roman = ToRoman(CounterValue(context));
    if (!roman)
      throw VbError(vb_error::kInvalidProcedureCall, "Invalid procedure call or argument");
    return *roman + sep;
  });
}

void LetterCounters(ExpansionPass& pass) {
  LetterCounter(pass, "{{count2char}}", false);
  LetterCounter(pass, "{{count2alphanumeric}}", true);
  PlaceholderState& state = *pass.context().state;
  if (state.last_char_count != pass.context().current_count) {
    state.last_char_count = pass.context().current_count;
  }
}

void RandomPoolStep(ExpansionPass& pass) {
  const ExpansionContext& context = pass.context();
  if (context.run_active) return;
  pass.Run([&] {
    RandomPool& pool = context.state->random_pool;
    pool.Clear();
    const double lower = vb::Val(context.numbering.start_number);
    const double upper = (static_cast<double>(context.numbering.selected_count) + lower - 1) *
                         vb::Val(context.numbering.step);
    const double seed = CurrentTimer(context);
    pool.Build(vb::CLng(lower), vb::CLng(upper), static_cast<std::uint64_t>(seed * 1000));
  });
}

void RandomNumbers(ExpansionPass& pass) {
  const ExpansionContext& context = pass.context();
  const RandomPool& pool = context.state->random_pool;
  pass.ValueToken("{{random_number_byfilecount}}", [&] {
    return vb::Format(pool.Next() - vb::Val(context.numbering.start_number),
                      DynamicZeroMask(context.numbering.selected_count));
  });
  pass.ValueToken("{{random_number_bynumbering}}", [&] {
    return vb::Format(pool.Next(), Mask(context)) + context.numbering.limiter;
  });
}

}  // namespace tarnwick::token_steps
