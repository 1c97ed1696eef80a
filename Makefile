# The two commands are `make run` and `make test`; each installs what is missing first.
# On Debian and Ubuntu that needs root or sudo; elsewhere scripts/setup says what to install.

JOBS ?= $(shell nproc 2>/dev/null || sysctl -n hw.ncpu 2>/dev/null || echo 2)
CTEST_ARGS ?=

.PHONY: run test build bench screenshots translations fuzz layers install clean

run: build
	@scripts/run

build:
	@scripts/setup build
	@cmake --preset release
	@cmake --build --preset release --parallel $(JOBS)

test:
	@scripts/setup build test
	@cmake --preset asan
	@cmake --build --preset asan --parallel $(JOBS)
	@ctest --preset asan $(CTEST_ARGS)

bench:
	@scripts/setup build bench
	@cmake --preset bench
	@cmake --build --preset bench --parallel $(JOBS)
	@build/release/bin/quillon-bench
	@bench/caldav.py

# Pictures of the window in both themes, sizes and several languages, into build/screenshots.
screenshots: build
	@scripts/setup build display
	@scripts/screenshots

# Brings the catalogues up to date with the source; new entries come out unfinished.
translations:
	@scripts/update-translations

fuzz:
	@scripts/setup build fuzz
	@cmake --preset fuzz
	@cmake --build --preset fuzz --parallel $(JOBS)
	@scripts/fuzz

layers:
	@scripts/setup build
	@cmake --preset layers
	@cmake --build --preset layers --parallel $(JOBS)

install: build
	@cmake --install build/release

clean:
	@rm -rf build
