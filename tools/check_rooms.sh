#!/bin/bash
# Fails where an #include goes against the direction in which the rooms may import: check_rooms.sh
#
# A room may include its own files and those of any room further right in the drawing of
# ARCHITECTURE.md, which is read here, so that drawing and code cannot part. Rooms of one step
# know nothing of each other; `values` and `document` import nothing. What is in no room (tests,
# fuzzing, benchmarks, tools) sees everything.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1

drawing=$(grep -m1 -E '^ +app -> ' ARCHITECTURE.md) || {
  echo "check_rooms: ARCHITECTURE.md has no drawing of the rooms" >&2
  exit 1
}
read -ra rooms <<<"${drawing//[->,]/ }"
grep -rE --include='*.cpp' --include='*.h' --include='*.rc' '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' "${rooms[@]}" |
  awk -v drawing="$drawing" '
    BEGIN {
      steps = split(drawing, step, /->/)
      for (i = 1; i <= steps; i++) {
        count = split(step[i], name, /[ ,]+/)
        for (j = 1; j <= count; j++) if (name[j] != "") rank[name[j]] = i
      }
    }
    {  # "room/file.cpp:#include "room/file.h""
      split($0, part, /[\/:]/)
      from = part[1]
      match($0, /"[^"]*"/)
      target = substr($0, RSTART + 1, RLENGTH - 2)
      to = target
      sub(/\/.*/, "", to)
      if (from == to || (to in rank && rank[to] > rank[from])) next
      print $0
      bad++
    }
    END {
      exit bad > 0 || NR == 0
    }' || {
  echo "check_rooms: these imports go against the drawing in ARCHITECTURE.md" >&2
  exit 1
}
