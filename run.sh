#!/usr/bin/env bash
# Installs what is missing, builds, and starts the simulated Coder and the program on a copy of the
# sample station. The copy stays, with what was saved in it, until --fresh makes it new. Without a
# display it shows the same windows on a virtual screen, drives them through a short tour and leaves
# a picture of each in build/tour/.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1

fail() {
  echo "$1" >&2
  exit 1
}

fresh=""
for word in "$@"; do
  case $word in
    --fresh) fresh=yes ;;
    -h | --help) echo "usage: ./run.sh [--fresh]    --fresh: start again from the sample station"; exit 0 ;;
    *) echo "./run.sh does not know \"$word\"; it takes --fresh alone." >&2; exit 2 ;;
  esac
done

. .ci/setup.sh
install_packages
build_preset release corvalis corvalis-tour corvalis-coder

coder=""
passing=""
cleanup() {
  [ -n "$coder" ] && kill "$coder" 2>/dev/null && wait "$coder" 2>/dev/null
  [ -n "$passing" ] && rm -rf "$passing"
}
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# The folders that the program is to use, below $1, with the files of the sample that are missing.
prepare() {
  local home=$1 file
  export XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
  mkdir -p "$XDG_CONFIG_HOME/corvalis" "$XDG_DATA_HOME/corvalis" && [ -w "$home" ] ||
    fail "The folder $home can't be made or written in."
  for file in examples/*; do
    copy "$file" "${file##*/}"
  done
  copy examples/station.rds corvalis.rds
}

# The sample names the folder of its in-house pages, "examples"; a copy names its own.
copy() {
  local folder=$XDG_DATA_HOME/corvalis text
  local to=$folder/$2
  [ -e "$to" ] && return
  text=$(<"$1") && printf '%s\n' "${text//;examples;/";$folder;"}" >"$to" ||
    fail "The file $to can't be made."
}

# The simulated Coder at COM 1, with these options more.
start_coder() {
  local link=$XDG_CONFIG_HOME/corvalis/com1
  [ -L "$link" ] && rm -f "$link"
  build/release/coder/corvalis-coder --link "$link" --print --dump "$@" \
    >"$log" 2>&1 9>&- &
  coder=$!
  until grep -q '^ready ' "$log" 2>/dev/null; do
    kill -0 "$coder" 2>/dev/null || fail "The simulated Coder did not start: $(cat "$log")"
    read -rt 0.02 <> <(:) || true
  done
}

if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  home=${XDG_DATA_HOME:-~/.local/share}/corvalis-demonstration
  mkdir -p "$home" || fail "The folder $home can't be made."
  exec 9>"$home/lock" || fail "The folder $home can't be written in."
  flock -n 9 || fail "The demonstration in $home is running already."
  if [ -n "$fresh" ]; then
    rm -rf "$home/config" "$home/data" || fail "The folder $home can't be made new."
  fi
  log=$home/coder.log
  prepare "$home"
  echo "The demonstration lives in $home; what you save there stays (--fresh: start again)."
  start_coder
  build/release/src/desktop/corvalis 9>&-
else
  [ -n "$fresh" ] && echo "The tour always begins with the sample station; --fresh changes nothing."
  echo "No display: a tour on a virtual screen, pictures in build/tour/."
  passing=$(mktemp -d "${TMPDIR:-/tmp}/corvalis-XXXXXX") || fail "No folder for the tour can be made."
  log=$passing/coder.log
  prepare "$passing"
  # Short lists where the program has to wait after each item.
  start_coder --count plan=5,rt=10,af=10
  rm -rf build/tour
  mkdir -p build/tour
  xvfb-run -a -s "-screen 0 1920x1200x24" \
    build/release/src/desktop/corvalis-tour build/tour "$log" "$coder"
fi
