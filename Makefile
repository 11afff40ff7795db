# The commands a user needs: `make run` and `make test`. `make bench` for speed figures.
BUILD ?= build
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo
# Our own builds treat warnings as errors; a packager's build does not.
DEV_FLAGS = -DTAVOK_WERROR=ON

.PHONY: all run test test-build test-sanitize fuzz soak bench package format clean

all: run

# The game says itself, in one line, when there is no display (exit code 3). Playing
# needs only the compiler, CMake, Qt and the fonts.
run:
	@tools/install-deps.sh play
	@cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS) $(DEV_FLAGS) -DBUILD_TESTING=OFF -DTAVOK_BENCH=OFF >/dev/null
	@cmake --build $(BUILD)
	@$(BUILD)/app/tavok; status=$$?; [ $$status -eq 3 ] || exit $$status

# The benchmarks are built with the tests, so that they keep compiling.
test-build:
	@tools/install-deps.sh test
	@cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS) $(DEV_FLAGS) -DBUILD_TESTING=ON -DTAVOK_BENCH=ON >/dev/null
	@cmake --build $(BUILD)

test: test-build
	@cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure

# The whole suite under AddressSanitizer and UBSan, in a build folder of its own.
SANITIZE_BUILD ?= build-sanitize
test-sanitize:
	@tools/install-deps.sh test
	@cmake -S . -B $(SANITIZE_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug $(DEV_FLAGS) -DTAVOK_SANITIZE=ON >/dev/null
	@cmake --build $(SANITIZE_BUILD)
	@cd $(SANITIZE_BUILD) && QT_QPA_PLATFORM=offscreen \
		ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
		LSAN_OPTIONS=suppressions=$(CURDIR)/tests/sanitize.supp:print_suppressions=0 \
		UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
		ctest --output-on-failure

# Each fuzz target for FUZZ_SECONDS, built with clang's libFuzzer in a folder of its own.
FUZZ_BUILD ?= build-fuzz
FUZZ_SECONDS ?= 60
fuzz:
	@tools/install-deps.sh test
	@cmake -S . -B $(FUZZ_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo $(DEV_FLAGS) \
		-DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DTAVOK_FUZZ=ON >/dev/null
	@cmake --build $(FUZZ_BUILD) --target fuzz_targets
	@tests/fuzz/run.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)

# Ten thousand whole games through the real window, offscreen, watching memory.
SOAK_GAMES ?= 10000
soak: test-build
	@QT_QPA_PLATFORM=offscreen $(BUILD)/tests/soak/tavok-soak $(SOAK_GAMES)

bench: test-build
	@$(BUILD)/bench/tavok-bench

# The Debian package of the game, built by dpkg-buildpackage from a copy of the sources:
# $(BUILD)/tavok_<version>_<arch>.deb, with its debug symbols beside it.
package:
	@tools/install-deps.sh package
	@packaging/build-package.sh $(BUILD)

format:
	@git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	@rm -rf $(BUILD)
