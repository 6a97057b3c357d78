#!/usr/bin/env bash
# Runs a command on a display that nobody sees: on_display.sh COMMAND ?ARGUMENT ...?
# Its screen has ZN_DPI dots an inch, or 96.
set -euo pipefail

scratch=$(mktemp -d)
mkfifo "$scratch/display"
dpi=${ZN_DPI:-96}
Xvfb -displayfd 3 -screen 0 $((1400 * dpi / 96))x$((1000 * dpi / 96))x24 -dpi "$dpi" -nolisten tcp 3>"$scratch/display" >"$scratch/log" 2>&1 &
server=$!
trap 'kill "$server"; rm -rf "$scratch"' EXIT

if ! read -r number <"$scratch/display"; then
    cat "$scratch/log" >&2
    exit 1
fi
DISPLAY=:$number "$@"
