// Expansions per second of the placeholder engine, each beside a plain copy
// of the same text (the floor).
#include <benchmark/benchmark.h>

#include <string>

#include "placeholders/engine.h"

namespace {

constexpr const char* kPlain = "Holiday 2004 at the lake - picture number 17";
constexpr const char* kDateCount = "{{yyyy-mm-dd}}_{{count}}";
constexpr const char* kTemplate =
    "{{uppercasing}}{{yyyy}}-{{mm}}-{{dd}}_{{hh.mm}}_{{count}}_{{countDynamic}}_name "
    "1{{cdate_yyyy}}{{quarter}}{{RegEx[([0-9]+)##<$1>]}}{{respace}}";

struct Engine {
  tarnwick::PlaceholderState state;
  tarnwick::ExpansionContext context;
  Engine() {
    context.state = &state;
    context.now = [] { return tarnwick::ClockReading{2004, 3, 8, 10, 15, 5, 36905.0}; };
    context.row = {"/tmp", "picture.jpg", "JPEG image", "tmp"};
    context.numbering = {"_", "001", "1", 250};
    context.current_count = 17;
  }
};

void Expand(benchmark::State& state, const char* expression) {
  Engine engine;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tarnwick::ConvertExpressionMultiple(
        engine.context, expression, "08.03.2004 10:15:05", "/tmp/picture.jpg"));
  }
  state.SetItemsProcessed(state.iterations());
}

void Copy(benchmark::State& state, const char* expression) {
  const std::string text(expression);
  for (auto _ : state) {
    std::string copy(text);
    benchmark::DoNotOptimize(copy);
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(Expand, no_token, kPlain);
BENCHMARK_CAPTURE(Copy, no_token, kPlain);
BENCHMARK_CAPTURE(Expand, date_and_count, kDateCount);
BENCHMARK_CAPTURE(Copy, date_and_count, kDateCount);
BENCHMARK_CAPTURE(Expand, ten_tokens, kTemplate);
BENCHMARK_CAPTURE(Copy, ten_tokens, kTemplate);

}  // namespace

BENCHMARK_MAIN();
