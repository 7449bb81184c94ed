#!/usr/bin/env bash
# Holds the pages for developers against the tree: each path that they name in back quotes or as a
# link has to be there.
set -u
cd "$1" || exit 2

failed=0
for page in README.md CONTRIBUTING.md docs/*.md; do
  [ -e "$page" ] || continue
  while read -r path; do
    [ -e "$path" ] || [ -e "$(dirname "$page")/$path" ] ||
      { echo "$page names $path, which isn't there"; failed=1; }
  done < <(
    grep -oE '`(src|coder|tests|bench|docs|examples|\.ci)/[A-Za-z0-9_./-]*`' "$page" | tr -d '`'
    grep -oE '\]\([^)#:]+\)' "$page" | sed -E 's/^..(.*).$/\1/'
  )
done
exit $failed
