#!/bin/bash
# Installs the packages that are missing from Debian 12. Needs no network when none is missing.
#
#   setup.sh run     what building and running the program needs
#   setup.sh test    the same, and what the tests and checks need (the default)
#   setup.sh render  only what rendering the pictures needs
set -euo pipefail

run_packages=(
  cmake ninja-build g++-mingw-w64-i686-posix  # the program is cross-compiled
  wine wine32:i386                            # and runs here under Wine
  fonts-wine fonts-liberation fonts-dejavu-core
  xvfb openbox xdotool imagemagick            # a screen and a picture where there is no display
)
test_packages=(
  g++ googletest libgtest-dev libgmock-dev       # native tests; GoogleTest's source for Windows
  clang-14 libclang-rt-14-dev                    # fuzzing
  clang-format-14 clang-tidy-14                  # checks
  ghostscript poppler-utils                      # reading what was printed
)
render_packages=(librsvg2-bin imagemagick icoutils pngquant perl)

say() { echo "setup: $*"; }
fail() {
  echo "setup: $*" >&2
  exit 1
}

case ${1:-test} in
  run) packages=("${run_packages[@]}") ;;
  test) packages=("${run_packages[@]}" "${test_packages[@]}") ;;
  render) packages=("${render_packages[@]}") ;;
  *) fail "unknown set '$1' (run, test or render)" ;;
esac

installed() {
  dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# Prints the packages that are not installed.
missing_packages() {
  local package
  for package in "${packages[@]}"; do
    installed "$package" || echo "$package"
  done
}

command -v dpkg-query >/dev/null || fail "this needs Debian 12; elsewhere install: ${packages[*]}"
mapfile -t missing < <(missing_packages)
if [[ ${#missing[@]} -eq 0 ]]; then
  say "everything needed is installed"
  exit 0
fi

as_root=()
if [[ $(id -u) -ne 0 ]]; then
  command -v sudo >/dev/null || fail "run this once as root; to be installed: ${missing[*]}"
  as_root=(sudo)
fi
apt() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q -o Acquire::Retries=3 -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

log=$(mktemp)
trap 'rm -f "$log"' EXIT

say "installing from Debian: ${missing[*]}"
if [[ " ${missing[*]} " == *":i386 "* ]] && ! dpkg --print-foreign-architectures | grep -qx i386; then
  say "allowing 32-bit packages, which Wine needs"
  "${as_root[@]}" dpkg --add-architecture i386
fi

# Naming the release keeps the 64- and 32-bit libraries at one version; the second form is for machines
# that already have newer ones. It is no error if the package lists cannot be updated, as long as the
# installation succeeds.
update() { apt update >>"$log" 2>&1 || say "some package lists could not be refreshed; going on"; }
install() { apt install -y --no-install-recommends "$@" "${missing[@]}" >>"$log" 2>&1; }
update
if ! install -t bookworm && ! install; then
  say "trying once more"
  sleep 5
  update
  install -t bookworm || install || true
fi

mapfile -t missing < <(missing_packages)
if [[ ${#missing[@]} -gt 0 ]]; then
  tail -n 40 "$log" >&2
  fail "could not be installed: ${missing[*]}"
fi
say "done"
