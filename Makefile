# Tarnwick: the two commands a newcomer needs are `make run` and `make check`.
.PHONY: deps build run check bench fuzz fuzz-run format clean


deps:
	@bash scripts/install-deps.sh

build: deps
	@cmake --preset release >/dev/null
	@cmake --build --preset release

run: build
	@bash scripts/run-main.sh

check: deps
	@cmake --preset dev >/dev/null
	@cmake --build --preset dev
	@ctest --preset dev

bench: deps
	@cmake --preset release -DTW_BUILD_BENCH=ON >/dev/null
	@cmake --build --preset release
	@bash scripts/run-benchmarks.sh build/release

fuzz: deps
	@cmake --preset fuzz >/dev/null
	@cmake --build --preset fuzz

# A campaign: every target for SECONDS each (see scripts/fuzz-run.sh).
SECONDS ?= 600
fuzz-run: deps
	@bash scripts/fuzz-run.sh $(SECONDS) $(TARGETS)

format:
	@git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf build
