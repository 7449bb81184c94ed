#!/usr/bin/env bash
# Takes the guide's pictures from the tour (./run.sh without a display leaves them in build/tour/).
# Those that the pages name and no others.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
from=../../build/tour
# How the tour names its pictures of the pages in the other language.
declare -A of=(
  [ta-pty-ms-ta-on]=TaPtyMsForm-0 [groups]=EditGroupsForm-0 [connection]=ConnectionForm-0
  [psn]=PsnRtPinAfForm-0 [psn-plan]=PsnRtPinAfForm-1 [rt]=PsnRtPinAfForm-2 [pin]=PsnRtPinAfForm-3
  [af-a]=PsnRtPinAfForm-4 [ptyn]=PsnRtPinAfForm-6
  [ct]=CtTpDiPiForm-0 [tp-di]=CtTpDiPiForm-1 [pi-ecc-lic]=CtTpDiPiForm-2
  [eon]=EonLiForm-0 [li]=EonLiForm-1 [ta-eon]=EonLiForm-2
  [tdc]=TdcIhForm-0 [ih-page]=TdcIhForm-1 [tmc-system]=TdcIhForm-2 [tmc]=TdcIhForm-3)
# The pictures of a folder's pages; those in another language are its own where the tour has them.
take() {
  mkdir -p "$1/pictures"
  grep -ohE 'pictures/[a-z-]+\.png' "$1"/*.md | sort -u | while read -r picture; do
    name=$(basename "$picture" .png)
    other=${of[$name]-$name}$2
    [ -n "$2" ] && [ -f "$from/$other.png" ] && name=$other
    convert "$from/$name.png" -resize '900x>' -colors 128 -strip "PNG8:$1/$picture"
  done
}
take . ""
take de -deutsch
