#!/usr/bin/env bash
# Takes the guide's pictures from the tour (./run.sh without a display leaves them in build/tour/).
# Those that the pages name and no others.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
from=../../build/tour
# The pictures of a folder's pages; a page in another language takes its own where the tour has it.
take() {
  mkdir -p "$1/pictures"
  grep -ohE 'pictures/[a-z-]+\.png' "$1"/*.md | sort -u | while read -r picture; do
    name=${picture#*/}
    [ -f "$from/${name%.png}$2.png" ] && taken=${name%.png}$2.png || taken=$name
    convert "$from/$taken" -resize '900x>' -colors 128 -strip "PNG8:$1/$picture"
  done
}
take . ""
take de -deutsch
