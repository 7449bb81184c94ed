# Sourced by run.sh and test.sh, in the project's folder: installs what is missing, says so, and
# leaves everything alone when nothing is missing.

missing_packages() {
  local wanted
  wanted=$(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' packages.txt)
  # shellcheck disable=SC2086
  comm -23 <(printf '%s\n' $wanted | sort) \
    <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' $wanted 2>/dev/null |
      sed -n 's/^installed //p' | sort)
}

install_packages() {
  local missing as_root=""
  missing=$(missing_packages)
  [ -z "$missing" ] && return
  echo "Installing what is missing: $(tr '\n' ' ' <<<"$missing")"
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || { echo "Run this as root, or install sudo." >&2; exit 1; }
    as_root=sudo
  fi
  export DEBIAN_FRONTEND=noninteractive
  # shellcheck disable=SC2086
  $as_root apt-get update -q >/dev/null &&
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing ||
    { echo "The packages could not be installed." >&2; exit 1; }
}

# Configures and builds a preset; quiet unless something happens.
build_preset() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"build-$preset.log" 2>&1 ||
    { cat "build-$preset.log" >&2; exit 1; }
  rm -f "build-$preset.log"
  cmake --build "build/$preset" --target "$@" || exit 1
}
