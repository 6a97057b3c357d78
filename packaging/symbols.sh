#!/usr/bin/env bash
# What libraries offer to be linked against, one file for each, sorted. A table of virtual functions has its size
# behind it, which grows with the class.
#   packaging/symbols.sh record FOLDER   writes packaging/symbols from the libraries in FOLDER
#   packaging/symbols.sh compare FOLDER  tells what is not as recorded, and fails then
set -euo pipefail

list() {
    nm --dynamic --defined-only --demangle --print-size "$1" |
        sed -nE 's/^[0-9a-f]+ 0*([0-9a-f]+) [A-Za-z] (vtable for .*)$/\2: 0x\1 bytes/p; t
                 s/^[0-9a-f]+ ([0-9a-f]+ )?[A-Za-z] (.*)$/\2/p' | LC_ALL=C sort -u
}

# changes RECORD LIBRARY: what is gone, or changed, and what is new.
changes() {
    LC_ALL=C comm -3 "$1" <(list "$2") | sed -E 's/^\t(.*)/  new:  \1/; t; s/^/  gone: /'
}

records=$(cd "$(dirname "$0")" && pwd)/symbols
differs=
for record in "$records"/*.txt; do
    library=$2/lib$(basename "$record" .txt).so
    if [[ $1 == record ]]; then
        list "$library" >"$record"
    elif change=$(changes "$record" "$library") && [[ $change ]]; then
        printf '%s\n%s\n' "$library:" "$change"
        differs=1
    fi
done
[[ ! $differs ]] || {
    echo "What is gone needs a new SOVERSION, a new second number of the version; then run ./dev abi."
    exit 1
}
