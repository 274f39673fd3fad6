# The two everyday commands: `make test` and `make run`.
BUILD_DIR ?= build
ASAN_BUILD_DIR ?= build-asan
JOBS ?= $(shell nproc 2>/dev/null || sysctl -n hw.ncpu 2>/dev/null || echo 2)
CMAKE_FLAGS ?=

.PHONY: all deps configure build test run asan-test format clean

all: build

deps:
	@tools/install_dependencies.sh

configure: deps
	@cmake -S . -B $(BUILD_DIR) -DCMAKE_BUILD_TYPE=Release $(CMAKE_FLAGS) >/dev/null

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

test: build
	@cd $(BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

ifeq ($(shell uname),Darwin)
# On a Mac: the agent itself, as an app bundle, signed with the development identity when
# there is one (see tools/mac/make_dev_identity.sh) so that it keeps its Accessibility grant.
run: configure
	@cmake --build $(BUILD_DIR) --target Vistrel -j $(JOBS)
	@tools/mac/sign_app.sh $(BUILD_DIR)/Vistrel.app
	@open $(BUILD_DIR)/Vistrel.app
else
run: build
	@$(BUILD_DIR)/tools/vistrel-sim
endif

asan-test: deps
	@cmake -S . -B $(ASAN_BUILD_DIR) -DCMAKE_BUILD_TYPE=Debug -DVISTREL_SANITIZE=ON -DVISTREL_BENCHMARKS=OFF >/dev/null
	@cmake --build $(ASAN_BUILD_DIR) -j $(JOBS)
	@cd $(ASAN_BUILD_DIR) && ctest --output-on-failure -j $(JOBS)

format:
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	@rm -rf $(BUILD_DIR) $(ASAN_BUILD_DIR) out
