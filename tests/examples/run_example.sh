#!/usr/bin/env bash
# Runs one example in a scratch copy of the examples, models included, and compares what it prints. Windows that
# it leaves open are drawn as text: there is no display.
#   run_example.sh SHELL EXAMPLES NAME EXPECTED
set -euo pipefail
shell=$1 examples=$2 name=$3 expected=$4

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp -R "$examples/." "$scratch"
cd "$scratch"
env -u DISPLAY "$shell" --tk "$name.tcl" >"$scratch/$name.printed" </dev/null
diff -u "$expected" "$scratch/$name.printed"
