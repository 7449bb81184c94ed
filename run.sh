#!/usr/bin/env bash
# Installs what is missing, builds, and starts the simulated Coder and the program on a copy of the
# sample station. Without a display it shows the same windows on a virtual screen, drives them
# through a short tour and leaves a picture of each in build/tour/.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1
. .ci/setup.sh
install_packages
build_preset release corvalis corvalis-tour corvalis-coder

# A home of this demonstration's own: the sample station, and COM 1 at the simulated Coder.
home=$(mktemp -d "${TMPDIR:-/tmp}/corvalis-XXXXXX") || exit 1
coder=""
cleanup() {
  [ -n "$coder" ] && kill "$coder" 2>/dev/null && wait "$coder" 2>/dev/null
  rm -rf "$home"
}
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
export XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
mkdir -p "$XDG_CONFIG_HOME/corvalis" "$XDG_DATA_HOME/corvalis"
cp -r examples/. "$XDG_DATA_HOME/corvalis/"
cp examples/station.rds "$XDG_DATA_HOME/corvalis/corvalis.rds"

build/release/coder/corvalis-coder --open --link "$XDG_CONFIG_HOME/corvalis/com1" --print --dump \
  >"$home/coder.log" 2>&1 &
coder=$!
until grep -q '^ready ' "$home/coder.log" 2>/dev/null; do
  kill -0 "$coder" 2>/dev/null || { cat "$home/coder.log" >&2; exit 1; }
  read -rt 0.02 <> <(:) || true
done

if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  build/release/src/desktop/corvalis "$@"
else
  echo "No display: a tour on a virtual screen, pictures in build/tour/."
  rm -rf build/tour
  mkdir -p build/tour
  xvfb-run -a -s "-screen 0 1920x1200x24" \
    build/release/src/desktop/corvalis-tour build/tour "$home/coder.log" "$coder"
fi
