# Everything that this repository can do, by name: `make help`.
.DEFAULT_GOAL := help
.PHONY: help demo demo-windows build tool quick test coverage mutants abi lists documents format
.PHONY: tidy conformance fuzz bench packages clean

# Where ccache is installed, what has been compiled once is not compiled again.
export CMAKE_CXX_COMPILER_LAUNCHER ?= $(shell command -v ccache)

help: ## This list
	@awk -F ':.*## ' '/^[a-z-]+:.*## / { printf "  make %-14s %s\n", $$1, $$2 }' Makefile

demo: ## Build, then read, change, write and check the example documents
	@tools/packages.sh tool
	@cmake --preset linux-release -DTOLVA_TESTS=OFF > /dev/null
	@cmake --build --preset linux-release --target tolva_demo tolva_tool
	@build/linux-release/examples/tolva_demo examples/documents build/demo
	@echo; echo "tolva check, the command-line tool, says where the broken documents are broken:"
	@build/linux-release/cli/tolva check -r examples/documents/broken || [ $$? = 1 ]

demo-windows: ## The same with the Windows library, under Wine
	@tools/packages.sh windows
	@cmake --preset windows -DTOLVA_TESTS=OFF > /dev/null
	@cmake --build --preset windows --target tolva_demo
	@cmake --preset windows-own -DTOLVA_TESTS=OFF > /dev/null
	@cmake --build --preset windows-own --target tolva_demo
	@echo; echo "With XmlLite. Wine's does not escape what it writes: the documents that need that follow."
	@tools/run-windows.sh build/windows/examples/tolva_demo.exe examples/documents build/demo-windows \
	  active-directory broken
	@echo; echo "With the library's own XML layer:"
	@tools/run-windows.sh build/windows-own/examples/tolva_demo.exe examples/documents \
	  build/demo-windows

build: ## The library alone, optimised, in build/linux-release
	@tools/packages.sh build
	@cmake --preset linux-release -DTOLVA_TESTS=OFF > /dev/null
	@cmake --build --preset linux-release --target tolva

tool: ## The command-line tool, as build/linux-release/cli/tolva
	@tools/packages.sh tool
	@cmake --preset linux-release -DTOLVA_TESTS=OFF > /dev/null
	@cmake --build --preset linux-release --target tolva_tool

quick: ## After a change: formatting, release build, unit tests
	@tools/packages.sh test
	@tools/test.sh quick

test: ## All tests and checks, on Linux and Windows
	@tools/packages.sh test
	@tools/test.sh

coverage: ## Which lines and branches the tests reach; fails on a new gap
	@tools/packages.sh test
	@cmake --preset linux-coverage > /dev/null
	@cmake --build --preset linux-coverage
	@tools/coverage.py

mutants: ## Whether the tests notice small faults (ARGS='--count 20 ...', see tools/mutants.py)
	@tools/packages.sh mutants
	@tools/mutants.py $(ARGS)

abi: ## Compare the binary interface with the lists in abi/
	@tools/packages.sh test
	@tools/abi.sh

lists: documents ## Make the lists of the binary interface and docs/documents.md anew
	@tools/packages.sh test
	@cmake --preset linux-release > /dev/null
	@cmake --build --preset linux-release --target tolva
	@cmake --preset windows > /dev/null
	@cmake --build --preset windows --target tolva
	@tools/abi.sh --update
	@tools/abi.sh linux --update
	@tools/abi.sh windows --update

documents: ## Make docs/documents.md, and the transcripts of docs/tool.md, anew
	@tools/packages.sh tool
	@cmake --preset linux-release -DTOLVA_TESTS=OFF > /dev/null
	@cmake --build --preset linux-release --target documents
	@cp build/linux-release/cli/documents.md docs/documents.md
	@tools/transcripts.py --update docs/tool.md build/linux-release/cli/tolva

conformance: ## The W3C conformance suite against the own XML layer
	@tools/packages.sh conformance
	@tools/test.sh conformance

format: ## Format the sources
	@tools/packages.sh test
	@tools/format.sh

tidy: ## clang-tidy over the sources that have changed since they were clean
	@tools/packages.sh test
	@cmake --preset linux-clang > /dev/null
	@tools/tidy.py

fuzz: ## Run each fuzz target for a minute, after the inputs that are known
	@tools/packages.sh test
	@cmake --preset fuzz > /dev/null
	@cmake --build --preset fuzz
	@tools/fuzz.sh replay
	@tools/fuzz.sh run 60

bench: ## Build and run the benchmarks, and plot them in docs/
	@tools/packages.sh bench
	@tools/pugixml.sh
	@cmake --preset bench > /dev/null
	@cmake --build --preset bench
	@build/bench/bench/tolva_footprint
	@build/bench/bench/tolva_bench build/bench
	@gnuplot bench/plots.gp
	@bench/check.py build/bench/cli/tolva examples/documents

packages: ## Packages for Debian and an archive for Windows, in build/packages, tried where nothing else is
	@tools/packages.sh packages
	@rm -rf build/packages
	@tools/reproduce.sh build/packages all
	@tools/test-packages.sh

clean: ## Remove everything that was built
	@rm -rf build
