#!/usr/bin/env bash
# Installs what is missing and builds the Debian package, in build/package.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
. .ci/setup.sh
install_packages
build_preset package corvalis corvalis-coder corvalis-send
(cd build/package && cpack -G DEB >cpack.log) || { cat build/package/cpack.log >&2; exit 1; }
ls build/package/*.deb
