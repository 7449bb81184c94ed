#!/usr/bin/env bash
# Takes the guide's pictures from the tour (./run.sh without a display leaves them in build/tour/).
# Those that the guide names and no others.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
from=../../build/tour
mkdir -p pictures
grep -ohE 'pictures/[a-z-]+\.png' ./*.md | sort -u | while read -r picture; do
  convert "$from/${picture#*/}" -resize '900x>' -colors 128 -strip "PNG8:$picture"
done
