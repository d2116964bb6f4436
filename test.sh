#!/bin/bash
# ./test.sh [arguments for ctest]: installs what is needed, builds everything with sanitizers and runs all tests.
set -u
. "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"
. "$root/scripts/suites.sh"

install_packages "${build_packages[@]}" "${test_packages[@]}"
fetch_suites
build dev
exec ctest --test-dir "$root/build/dev" --output-on-failure --parallel "$(nproc)" "$@"
