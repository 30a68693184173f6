# make demo     installs what is missing, builds, runs a study from mesh to picture
# make test     builds and runs all tests
# make bench    times the kernels and a whole dam break run
.PHONY: demo test bench

JOBS ?= $(shell nproc)

demo:
	scripts/install build plot
	cmake --preset release -D RHEOMARK_TESTS=OFF
	cmake --build --preset release --parallel $(JOBS) --target setup simulation export
	scripts/demo build/release/bin build/demo

test:
	scripts/install build test formats plot
	cmake --preset release -D RHEOMARK_TESTS=ON
	cmake --build --preset release --parallel $(JOBS)
	ctest --preset release --parallel $(JOBS)

bench:
	scripts/install build bench
	cmake --preset bench
	cmake --build --preset bench --parallel $(JOBS)
	build/bench/bin/rheomark_bench
