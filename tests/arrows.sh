#!/usr/bin/env bash
# Holds every #include of the program against the rooms that its room may know. Fails with a line
# for each one that points the wrong way, and for each source in a room that has no line here.
set -u
cd "$1" || exit 2

# What the files of a room may include of other rooms.
declare -A may=(
  [air]="air"
  [platform]="platform"
  [screen]="screen platform"
  [config]="air config platform"
  [busy]="busy config screen platform"
  [link]="air link busy config screen platform"
  [station]="air station link busy config screen platform"
  [programme]="air programme link busy config screen platform"
  [networks]="air networks link busy config screen platform"
  [app]="air app station programme networks link busy config screen platform"
  [desktop]="air desktop radio machine app station programme networks link busy config screen platform"
  [radio]="air radio station programme networks link busy config screen platform"
  [machine]="machine config platform"
  [send]="air send machine app station programme networks link busy config screen platform"
  [coder]="air coder link/frame.h platform/pseudo_terminal.h"
)

failed=0
for room in "${!may[@]}"; do echo "$room ${may[$room]}"; done |
  awk -v FS='[ :"]' '
    function room(file,  parts) {
      split(file, parts, "/")
      return parts[1] == "src" ? parts[2] : parts[1]
    }
    FILENAME == "-" { for (i = 2; i <= NF; ++i) may[$1, $i]; known[$1]; next }
    !(room($1) in known) { print $1 " is in no room"; bad = 1 }
    NF > 1 {
      included = $4
      split(included, parts, "/")
      if (!((room($1), parts[1]) in may) && !((room($1), included) in may)) {
        print $1 " includes " included
        bad = 1
      }
    }
    END { exit bad }' - <(find src coder air -name '*.cpp' -o -name '*.h') \
    <(grep -rE '^#include "[a-z_]+/' src coder air --include=*.cpp --include=*.h) || failed=1

# Qt is known in three rooms. What machine/ and send/ may use of it, their build lists say: its core
# and its port, no windows.
if grep -rnE '^#include <Q' src coder air --include=*.cpp --include=*.h |
  grep -vE '^src/(desktop|machine|send)/'; then failed=1; fi
exit $failed
