# The front door. `make help` lists the targets; each one installs what it needs first.
SHELL := /bin/bash
JOBS ?= $(shell nproc)
PREFIX ?= /usr/local
DESTDIR ?=
SECONDS_OF_RUN ?= 30
FUZZ_SECONDS ?= 60
OURS = $(shell find host game_plugin apps tests bench fuzz -name '*.cpp' -o -name '*.h' 2>/dev/null)

.DEFAULT_GOAL := help
.PHONY: help setup build run test install package mutate sanitize bench fuzz format lint

help: ## List the targets
	@grep -hE '^[a-z]+:.*##' $(MAKEFILE_LIST) | sed -E 's/^([a-z]+):.*## */\1\t/' | while IFS=$$'\t' read -r name text; do \
	  printf '  make %-10s %s\n' "$$name" "$$text"; done

setup: ## Install the Debian packages of packages.txt that are missing (root or sudo)
	@tools/setup.sh packages.txt

build: setup ## Build the program, the module and the tests into build/check
	@tools/build.sh check

run: setup ## Build the program and run the example project for 30 simulated seconds
	@tools/build.sh check tidemark_program
	build/check/bin/tidemark run examples/harbour --seconds $(SECONDS_OF_RUN)

test: build ## Run every test: unit tests, then script tests
	@tools/test.sh check $(JOBS)

mutate: setup ## Let each entry of the catalogue do nothing, one by one, and list those that no script test notices (ENTRIES=...)
	@tools/build.sh check tidemark_program
	@tools/mutate.sh check $(JOBS) $(ENTRIES)

install: setup ## Build optimised and install below PREFIX=/usr/local (DESTDIR=... stages it)
	@tools/build.sh release tidemark_program
	@DESTDIR="$(DESTDIR)" cmake --install build/release --prefix "$(PREFIX)"

package: setup ## Build optimised and make a Debian package in build/release/package
	@tools/build.sh release tidemark_program
	@cpack --config build/release/CPackConfig.cmake

sanitize: setup ## Run every test under the address and undefined-behaviour sanitizers
	@tools/build.sh sanitize
	@tools/test.sh sanitize $(JOBS)

bench: setup ## Measure ticking and loading, and print the ratios to a hand-written loop
	@tools/build.sh release
	@tools/bench.sh release $(BENCH_ARGS)

fuzz: setup ## Fuzz what reads scripts for 60 seconds under sanitizers (FUZZ_SECONDS=...)
	@tools/build.sh fuzz fuzz_targets
	@tools/fuzz.sh fuzz $(FUZZ_SECONDS) $(JOBS)

format: setup ## Format all sources in place
	@clang-format -i $(OURS)

lint: setup ## Check the format, and run clang-tidy on changed files (LINT_ALL=1: on all)
	@clang-format --dry-run -Werror $(OURS)
	@tools/tidy.sh $(JOBS)
