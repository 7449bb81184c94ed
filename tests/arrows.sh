#!/usr/bin/env bash
# Holds every #include of the program against the rooms that its room may know. Fails with a line
# for each one that points the wrong way.
set -u
cd "$1" || exit 2

# What the files of a room may include of other rooms.
declare -A may=(
  [platform]="platform"
  [screen]="screen platform"
  [config]="config platform"
  [link]="link config screen platform app/busy"
  [station]="station link config screen platform app/busy"
  [app]="app station link config screen platform"
  [desktop]="desktop app station link config screen platform coder"
  [coder]="coder link/frame.h"
)
# The busy screens and the transfer bracket, which every form may include ...
busy=" app/brand_marks.h app/wait_form.h app/serial_communication_form.h app/transfer_bracket.h "
# ... and which themselves know these rooms alone.
busy_may="app/busy screen config platform"

failed=0
while IFS=: read -r file _ line; do
  included=$(sed -E 's/.*"([^"]+)".*/\1/' <<<"$line")
  to=${included%%/*}
  [[ $file == coder/* ]] && from=coder || from=$(cut -d/ -f2 <<<"$file")
  allowed=${may[$from]-}
  [[ $busy == *" ${file#src/} "* || $busy == *" $(sed 's/\.cpp$/.h/' <<<"${file#src/}") "* ]] &&
    allowed=$busy_may
  ok=0
  for room in $allowed; do
    [[ $to == "$room" || $included == "$room" ]] && ok=1
    [[ $room == app/busy && $busy == *" $included "* ]] && ok=1
  done
  [[ $ok == 1 ]] || { echo "$file includes $included"; failed=1; }
done < <(grep -rnE '^#include "[a-z_]+/' src coder --include=*.cpp --include=*.h)

# Below the desktop nobody knows Qt.
if grep -rnE '^#include <Q' src --include=*.cpp --include=*.h | grep -v '^src/desktop/'; then failed=1; fi
exit $failed
