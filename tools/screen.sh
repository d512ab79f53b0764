# shellcheck shell=bash disable=SC2034,SC2154
# A screen in memory for machines without a display, and functions for windows on it; sourced by bash
# scripts. The caller has set `root` and sourced wine_env.sh; `prefix` is a prefix that exists, or the
# one that use_scratch_prefix makes.

screen_pids=()

# Makes a Wine prefix and sets `prefix` to it. It is removed, with the screen, when the script ends.
# The arguments are those of make_prefix.sh for a copy.
use_scratch_prefix() {
  mkdir -p "$TELLARY_PREFIXES"
  prefix=$(mktemp -d "$TELLARY_PREFIXES/run-$$-XXXXXX")
  trap 'drop_prefix "$prefix"; stop_screen' EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM HUP
  "$root/tools/make_prefix.sh" copy "$prefix" "$@"
}

# Starts a screen of WIDTHxHEIGHT with a window manager (without one every dialog and every
# close takes two seconds) and points DISPLAY at it.
start_screen() {
  local number_file config i
  number_file=$(mktemp)
  Xvfb -displayfd 5 -screen 0 "$1x24" -nolisten tcp 5>"$number_file" >/dev/null 2>&1 </dev/null &
  screen_pids+=($!)
  for ((i = 0; i < 100; i++)); do
    [[ ! -s $number_file ]] || break
    sleep 0.1
  done
  [[ -s $number_file ]] || { rm -f "$number_file"; return 1; }
  DISPLAY=":$(<"$number_file")"
  export DISPLAY
  rm -f "$number_file"
  # The window manager gets no keys of its own, so that Alt+Space and Alt+F4 reach the program.
  config=$(mktemp)
  sed '/<keyboard>/,/<\/keyboard>/d' /etc/xdg/openbox/rc.xml >"$config"
  openbox --config-file "$config" >/dev/null 2>&1 </dev/null &
  screen_pids+=($!)
  for ((i = 0; i < 100; i++)); do
    xdotool get_num_desktops >/dev/null 2>&1 && break
    sleep 0.1
  done
  rm -f "$config"
  [[ $i -lt 100 ]]
}

stop_screen() {
  local pid
  for pid in "${screen_pids[@]}"; do
    kill "$pid" 2>/dev/null || true
  done
  wait "${screen_pids[@]}" 2>/dev/null || true
  screen_pids=()
}

# Sets `tail_words` so that Wine hands PATH to the program as its whole command-line tail,
# without quotes. Wine puts quotes around an argument that holds a blank; the words of the
# path one by one arrive joined by single blanks. Any other white space takes the short name.
document_tail() {
  local answer path
  answer=$(mktemp)
  tail_words=()
  # Through a file: Wine's background processes would keep a pipe open.
  wine winepath.exe -w "$1" >"$answer" 2>/dev/null </dev/null || true
  path=$(tr -d '\r' <"$answer")
  if [[ $path == *"  "* || $path == *$'\t'* || $path == *" " ]]; then
    wine winepath.exe -s "$path" >"$answer" 2>/dev/null </dev/null || true
    path=$(tr -d '\r' <"$answer")
  fi
  rm -f "$answer"
  IFS=' ' read -r -a tail_words <<<"$path"
  [[ ${#tail_words[@]} -gt 0 ]]
}

# Waits up to SECONDS for a visible window of the program whose process is PID, and sets
# `window` to it.
wait_for_window() {
  local end=$((SECONDS + $1))
  while ((SECONDS < end)); do
    window=$(xdotool search --onlyvisible --class '^tellary\.exe$' 2>/dev/null | head -n 1)
    [[ -z $window ]] || return 0
    kill -0 "$2" 2>/dev/null || return 1
    sleep 0.1
  done
  return 1
}

# Saves the whole screen as FILE when it has stopped changing, after five seconds at the latest.
take_picture() {
  local before='' now i
  for ((i = 0; i < 20; i++)); do
    now=$(import -window root rgb:- 2>/dev/null | cksum)
    [[ $now != "$before" ]] || break
    before=$now
    sleep 0.25
  done
  mkdir -p "$(dirname "$1")"
  import -window root "$1"
}

# Asks the program whose process is PID to close as a user would; false when it did not.
close_program() {
  local i
  timeout 20 wine taskkill.exe /IM Tellary.exe >/dev/null 2>&1 </dev/null || true
  for ((i = 0; i < 50; i++)); do
    kill -0 "$1" 2>/dev/null || return 0
    sleep 0.1
  done
  return 1
}
