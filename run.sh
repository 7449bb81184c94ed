#!/usr/bin/env bash
# Installs what is missing, builds, and starts the simulated Coder, the program and the radio on a copy
# of the sample station. The copy stays, with what was saved in it, until --fresh makes it new. Without
# a display it shows the same windows on a virtual screen, drives them through a short tour and leaves
# a picture of each in build/tour/; then it tells what a radio made of what was sent.
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
build_preset release corvalis corvalis-tour corvalis-coder corvalis-radio

coder=""
radio=""
passing=""
cleanup() {
  [ -n "$radio" ] && kill "$radio" 2>/dev/null && wait "$radio" 2>/dev/null
  end_coder
  [ -n "$passing" ] && rm -rf "$passing"
}
end_coder() {
  [ -n "$coder" ] && kill "$coder" 2>/dev/null && wait "$coder" 2>/dev/null
  coder=""
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

# What a radio makes of ten minutes of what the Coder held in the end: pictures, and the report.
show_radio() {
  local station=$XDG_DATA_HOME/corvalis/$1 air=$passing/air.txt memory=$passing/memory.txt
  end_coder  # it prints what it holds
  tac "$log" | sed '/^memory$/q' | tac >"$memory"
  build/release/coder/corvalis-coder --count "$counts" --memory "$memory" --air "$air" --air-speed 0 \
    --air-groups 6840 >/dev/null </dev/null || return
  xvfb-run -a -s "-screen 0 1920x1200x24" \
    build/release/src/desktop/corvalis-tour --radio build/tour "$station" "$air" || return
  echo "What a radio makes of ten minutes of it:"
  build/release/src/desktop/corvalis-radio --compare "$station" --report "$air"
  [ $? -lt 3 ]  # that the two differ is told, and no fault
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
  air=$home/air
  rm -f "$air" && mkfifo "$air" || fail "The FIFO $air can't be made."
  start_coder --air "$air"
  build/release/src/desktop/corvalis-radio --compare "$XDG_DATA_HOME/corvalis/corvalis.rds" "$air" 9>&- &
  radio=$!
  build/release/src/desktop/corvalis 9>&-
else
  [ -n "$fresh" ] && echo "The tour always begins with the sample station; --fresh changes nothing."
  echo "No display: a tour on a virtual screen, pictures in build/tour/."
  passing=$(mktemp -d "${TMPDIR:-/tmp}/corvalis-XXXXXX") || fail "No folder for the tour can be made."
  log=$passing/coder.log
  prepare "$passing"
  # Short lists where the program has to wait after each item.
  counts=plan=5,rt=10,af=10
  start_coder --count "$counts"
  rm -rf build/tour
  mkdir -p build/tour
  xvfb-run -a -s "-screen 0 1920x1200x24" \
    build/release/src/desktop/corvalis-tour build/tour "$log" "$coder"
  result=$?
  show_radio tour.rds || result=1
  exit $result
fi
