# The short way in. Each command does all of its own set-up; see scripts/ for what it is.

.PHONY: run test bench format clean

run test bench format:
	@scripts/$@ $(ARGS)

clean:
	rm -rf build
