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
  [coder]="air coder link/frame.h"
)

failed=0
while read -r file; do
  [[ $file == src/* ]] && room=$(cut -d/ -f2 <<<"$file") || room=$(cut -d/ -f1 <<<"$file")
  [[ -n ${may[$room]-} ]] || { echo "$file is in no room"; failed=1; }
done < <(git ls-files -co --exclude-standard 'src/*.cpp' 'src/*.h' 'coder/*.cpp' 'coder/*.h' \
  'air/*.cpp' 'air/*.h' 2>/dev/null ||
  find src coder air -name '*.cpp' -o -name '*.h')

while IFS=: read -r file _ line; do
  included=$(sed -E 's/.*"([^"]+)".*/\1/' <<<"$line")
  [[ $file == src/* ]] && room=$(cut -d/ -f2 <<<"$file") || room=$(cut -d/ -f1 <<<"$file")
  ok=0
  for to in ${may[$room]-}; do
    [[ $included == "$to"/* || $included == "$to" ]] && ok=1
  done
  [[ $ok == 1 ]] || { echo "$file includes $included"; failed=1; }
done < <(grep -rnE '^#include "[a-z_]+/' src coder air --include=*.cpp --include=*.h)

# Qt is known in three rooms. What machine/ and send/ may use of it, their build lists say: its core
# and its port, no windows.
if grep -rnE '^#include <Q' src coder air --include=*.cpp --include=*.h |
  grep -vE '^src/(desktop|machine|send)/'; then failed=1; fi
exit $failed
