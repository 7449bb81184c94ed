#!/usr/bin/env bash
# The Debian package of a build, unpacked into a bare root and started there on a virtual screen, on
# an account with nothing on it. What checks packages and is installed has its say too.
set -u
build=$1
for tool in cpack dpkg-deb dpkg-shlibdeps xvfb-run xwininfo; do
  command -v "$tool" >/dev/null || { echo "no $tool"; exit 77; }
done
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT

fail() { echo "$*"; exit 1; }

cpack -G DEB --config "$build/CPackConfig.cmake" -B "$folder" >"$folder/log" 2>&1 ||
  { cat "$folder/log"; exit 1; }
package=$(ls "$folder"/*.deb) || exit 1
dpkg-deb -x "$package" "$folder/root" || exit 1
share=$folder/root/usr/share

"$folder/root/usr/bin/corvalis-coder" --help | grep -q '^usage' || fail "the Coder does not start"
for name in corvalis corvalis-coder corvalis-send corvalis-radio; do
  zcat "$share/man/man1/$name.1.gz" | grep -q '^\.SH SYNOPSIS' || fail "no page for $name"
done
for name in corvalis-coder corvalis-send corvalis-radio; do
  "$folder/root/usr/bin/$name" --help | grep -oE '^  --[a-z-]+' | while read -r option; do
    zcat "$share/man/man1/$name.1.gz" | tr -d '\\' | grep -q -e "$option" ||
      fail "the page of $name lacks $option"
  done || exit 1
done
[ -f "$folder/root/usr/lib/systemd/system/corvalis-send.service" ] || fail "no unit of the service"
grep -q '^Page00=.*;/usr.*/corvalis/examples;harbour.txt;' "$share/corvalis/examples/station.rds" ||
  fail "the sample station does not know where its pages are"
[ -f "$share/corvalis/examples/harbour.txt" ] || fail "no sample page"
[ -f "$share/corvalis/guide/index.md" ] || fail "no guide"

# Waits until the menu is there, and the language file that the first start writes.
cat >"$folder/start" <<'START'
"$1" &
program=$!
for _ in $(seq 200); do
  kill -0 $program || exit 1
  xwininfo -root -tree | grep -q 'Main Menu' && [ -f "$HOME/.local/share/corvalis/Language.ini" ] &&
    { kill $program; exit 0; }
  read -rt 0.05 <> <(:)
done
kill $program
exit 1
START
mkdir "$folder/home"
env -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u WAYLAND_DISPLAY HOME="$folder/home" \
  QT_QPA_PLATFORM=xcb XDG_DATA_DIRS="$share:/usr/share" XDG_RUNTIME_DIR="$folder" \
  xvfb-run -a bash "$folder/start" "$folder/root/usr/bin/corvalis" >"$folder/log" 2>&1 ||
  { cat "$folder/log"; fail "the main menu does not come up"; }

if command -v lintian >/dev/null; then
  lintian --allow-root --fail-on error,warning "$package" || exit 1
fi
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$share/applications/"*.desktop || exit 1
fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --no-net "$share/metainfo/"*.xml || exit 1
fi
