#!/usr/bin/env bash
# Holds every #include of the program against the rooms that its room may know. Fails with a line
# for each one that points the wrong way, and for each source in a room that has no line here.
set -u
cd "$1" || exit 2

# What the files of a room may include of other rooms.
declare -A may=(
  [platform]="platform"
  [screen]="screen platform"
  [config]="config platform"
  [busy]="busy config screen platform"
  [link]="link busy config screen platform"
  [station]="station link busy config screen platform"
  [programme]="programme link busy config screen platform"
  [networks]="networks programme link busy config screen platform"
  [app]="app station programme networks link busy config screen platform"
  [desktop]="desktop app station programme networks link busy config screen platform"
  [coder]="coder link/frame.h"
)

failed=0
while read -r file; do
  [[ $file == coder/* ]] && room=coder || room=$(cut -d/ -f2 <<<"$file")
  [[ -n ${may[$room]-} ]] || { echo "$file is in no room"; failed=1; }
done < <(git ls-files -co --exclude-standard 'src/*.cpp' 'src/*.h' 'coder/*.cpp' 'coder/*.h' 2>/dev/null ||
  find src coder -name '*.cpp' -o -name '*.h')

while IFS=: read -r file _ line; do
  included=$(sed -E 's/.*"([^"]+)".*/\1/' <<<"$line")
  [[ $file == coder/* ]] && room=coder || room=$(cut -d/ -f2 <<<"$file")
  ok=0
  for to in ${may[$room]-}; do
    [[ $included == "$to"/* || $included == "$to" ]] && ok=1
  done
  [[ $ok == 1 ]] || { echo "$file includes $included"; failed=1; }
done < <(grep -rnE '^#include "[a-z_]+/' src coder --include=*.cpp --include=*.h)

# Below the desktop nobody knows Qt.
if grep -rnE '^#include <Q' src --include=*.cpp --include=*.h | grep -v '^src/desktop/'; then failed=1; fi
exit $failed
