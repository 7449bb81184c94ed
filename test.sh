#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. An argument names the preset (release).
set -u
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
. .ci/setup.sh
install_packages
preset=${1:-release}
build_preset "$preset" all
exec ctest --test-dir "build/$preset" --output-on-failure -j 2
