// Number and date formatting of the runtime, each beside the C library call
// that does the nearest thing (snprintf with "%05lld", strftime).
#include <benchmark/benchmark.h>

#include <cstdio>
#include <ctime>
#include <string>

#include "base/vb_date_text.h"
#include "base/vb_format.h"
#include "base/vb_number.h"

namespace {

void FormatZeroMask(benchmark::State& state) {
  std::int64_t value = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tarnwick::vb::Format(value++ % 100000, "00000"));
  }
  state.SetItemsProcessed(state.iterations());
}

void SnprintfZeroPadded(benchmark::State& state) {
  long long value = 0;
  for (auto _ : state) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%05lld", value++ % 100000);
    benchmark::DoNotOptimize(std::string(buffer));
  }
  state.SetItemsProcessed(state.iterations());
}

void FormatGroupedDecimals(benchmark::State& state) {
  double value = 1234.5678;
  for (auto _ : state) {
    benchmark::DoNotOptimize(tarnwick::vb::Format(value, "#,##0.00"));
    value += 1.25;
  }
  state.SetItemsProcessed(state.iterations());
}

void SnprintfDecimals(benchmark::State& state) {
  double value = 1234.5678;
  for (auto _ : state) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.2f", value);
    benchmark::DoNotOptimize(std::string(buffer));
    value += 1.25;
  }
  state.SetItemsProcessed(state.iterations());
}

void FormatTextHexadecimal(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(tarnwick::vb::FormatText("2B5", "00000"));
    benchmark::DoNotOptimize(tarnwick::vb::FormatText("377", "00000"));
  }
  state.SetItemsProcessed(state.iterations() * 2);
}

void FormatDatePattern(benchmark::State& state) {
  const tarnwick::vb::DateTime date{2004, 3, 8, 10, 15, 5};
  for (auto _ : state) {
    benchmark::DoNotOptimize(tarnwick::vb::FormatDate(date, "yyyy-mm-dd hh.mm.ss"));
  }
  state.SetItemsProcessed(state.iterations());
}

void StrftimePattern(benchmark::State& state) {
  std::tm tm{};
  tm.tm_year = 104;
  tm.tm_mon = 2;
  tm.tm_mday = 8;
  tm.tm_hour = 10;
  tm.tm_min = 15;
  tm.tm_sec = 5;
  for (auto _ : state) {
    char buffer[64];
    const std::size_t length = std::strftime(buffer, sizeof buffer, "%Y-%m-%d %H.%M.%S", &tm);
    benchmark::DoNotOptimize(std::string(buffer, length));
  }
  state.SetItemsProcessed(state.iterations());
}

void ParseDateTimeText(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(tarnwick::vb::ParseDateTime("08.03.2004 10:15:05", "dd.mm.yyyy"));
  }
  state.SetItemsProcessed(state.iterations());
}

void StrptimeText(benchmark::State& state) {
  for (auto _ : state) {
    std::tm tm{};
    benchmark::DoNotOptimize(strptime("08.03.2004 10:15:05", "%d.%m.%Y %H:%M:%S", &tm));
    benchmark::DoNotOptimize(tm);
  }
  state.SetItemsProcessed(state.iterations());
}

}  // namespace

BENCHMARK(FormatZeroMask);
BENCHMARK(SnprintfZeroPadded);
BENCHMARK(FormatGroupedDecimals);
BENCHMARK(SnprintfDecimals);
BENCHMARK(FormatTextHexadecimal);
BENCHMARK(FormatDatePattern);
BENCHMARK(StrftimePattern);
BENCHMARK(ParseDateTimeText);
BENCHMARK(StrptimeText);

BENCHMARK_MAIN();
