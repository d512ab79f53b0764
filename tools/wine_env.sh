# shellcheck shell=sh disable=SC2034,SC2154
# Shared by the scripts that run Wine; sourced, for sh and bash. The caller has set
# `root` to the top of the source tree.

# The scratch prefixes are hard-linked from the template, so all of them share a folder.
: "${TELLARY_PREFIXES:=$root/build/prefixes}"
template=$TELLARY_PREFIXES/template

# In the plain C locale Wine cannot open a file whose name has an accent.
export LC_ALL=C.UTF-8
# No offers to download parts, and no menu entries and file associations on the host.
export WINEARCH=win32 WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"

# Tests and scripts must not open windows on the user's screen by chance: a display is used only where
# TELLARY_DISPLAY names it.
if [ -n "${TELLARY_DISPLAY:-}" ]; then
  export DISPLAY="$TELLARY_DISPLAY"
else
  unset DISPLAY
fi
unset WAYLAND_DISPLAY

# Ends everything that runs in a prefix and waits until it is gone.
stop_prefix() {
  WINEPREFIX=$1 wineserver -k >/dev/null 2>&1 || true
  WINEPREFIX=$1 timeout 10 wineserver -w >/dev/null 2>&1 || true
}

# Ends and removes a scratch prefix.
drop_prefix() {
  [ -d "$1" ] || return 0
  stop_prefix "$1"
  rm -rf "$1"
}
