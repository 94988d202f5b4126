#!/usr/bin/env bash
# Runs every benchmark program of a build folder and prints its figures.
set -euo pipefail
build="${1:-build/release}"
shopt -s nullglob
for bench in "$build"/bench/*_bench; do
  echo "== $(basename "$bench")"
  "$bench" --benchmark_counters_tabular=true
done
