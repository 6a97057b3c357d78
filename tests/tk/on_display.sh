#!/usr/bin/env bash
# Runs a command on a display that nobody sees: on_display.sh COMMAND ?ARGUMENT ...?
set -euo pipefail

scratch=$(mktemp -d)
mkfifo "$scratch/display"
Xvfb -displayfd 3 -screen 0 1400x1000x24 -nolisten tcp 3>"$scratch/display" >"$scratch/log" 2>&1 &
server=$!
trap 'kill "$server"; rm -rf "$scratch"' EXIT

if ! read -r number <"$scratch/display"; then
    cat "$scratch/log" >&2
    exit 1
fi
DISPLAY=:$number "$@"
