#!/usr/bin/env bash
# Uses an installed prefix as others do: run.sh KIND SOURCE_DIR BUILD_DIR SCRATCH_DIR
# KIND "prefix" installs, moves what was installed and looks at it; the other kinds use what was moved.
set -euo pipefail

kind=$1 source=$2 build=$3 scratch=$4
prefix="$scratch/moved away"
lib=$prefix/lib
export PKG_CONFIG_PATH=$lib/pkgconfig

fail() { printf '%s\n' "$*" >&2; exit 1; }

install_and_move() {
    rm -rf "$scratch"
    cmake --install "$build" --prefix "$scratch/first" >/dev/null
    mv "$scratch/first" "$prefix"
    ! grep -rlaF "$source" "$prefix" || fail "the files above name the folder of the sources"
    local binary id
    for binary in "$prefix"/bin/* "$lib"/*.so "$lib"/tcltk/*/*.so; do
        ! readelf -SW "$binary" | grep -F .debug_info || fail "$binary is not stripped"
        id=$(readelf --notes "$binary" | sed -n 's/ *Build ID: //p')
        readelf -SW "$lib/debug/.build-id/${id:0:2}/${id:2}.debug" 2>/dev/null | grep -F .debug_info >/dev/null || fail "$binary: no debug file"
    done
    "$prefix/bin/znbrowsersh" --version
    diff <("$prefix/bin/znbrowsersh" "$prefix/share/doc/znBrowserScripting/examples/first_view.tcl") \
        "$source/tests/examples/first_view.out"
}

# check_programs FOLDER: what they print.
check_programs() {
    local out
    out=$("$1/layer")
    [[ $out == ::mine ]] || fail "layer: $out"
    out=$("$1/host")
    [[ $out == *"part (2)"*shaft*gear*box* ]] || fail "host: $out"
}

# Blanks in a prefix do not survive `$(pkg-config ...)`, but they do with eval: pkg-config escapes them.
with_pkg_config() {
    eval "g++ -std=c++17 '$source/tests/install/$1.cpp' -o '$scratch/pkg-config/$1' $(pkg-config --cflags --libs "$2" tcl)"
}

case $kind in
prefix) install_and_move ;;
cmake)
    cmake -S "$source/tests/install" -B "$scratch/cmake" -DCMAKE_PREFIX_PATH="$prefix" -G Ninja >/dev/null
    cmake --build "$scratch/cmake"
    check_programs "$scratch/cmake"
    ;;
pkg-config)
    mkdir -p "$scratch/pkg-config"
    with_pkg_config layer znBrowserScripting
    with_pkg_config host znBrowserHost
    LD_LIBRARY_PATH=$lib check_programs "$scratch/pkg-config"
    ;;
example) # a host of its own, on folders made here
    cmake -S "$source/examples/host" -B "$scratch/example" -DCMAKE_PREFIX_PATH="$prefix" -G Ninja >/dev/null
    cmake --build "$scratch/example"
    mkdir -p "$scratch/gears" "$scratch/😀"
    printf 12345 >"$scratch/gears/wheel \$x.txt"
    browse() { LC_ALL=C.UTF-8 "$scratch/example/folder_browser" "$source/examples/host/files.tcl" "$@"; }
    diff <(browse "$scratch/gears/" "$scratch/😀") - <<'END'
gears (1)
  wheel $x.txt, 5 bytes
😀 (0)

END
    ! browse "$scratch/nosuch" 2>/dev/null || fail "no folder, and no error"
    printf 'lappend auto_path {%s}\npackage require znbrowser::hostcheck\nputs [znbrowser::hostcheck::report]\n' \
        "$prefix/share/tcltk" >"$scratch/check.tcl"
    diff <("$scratch/example/folder_browser" "$scratch/check.tcl" "$scratch/gears" | sed -n '1,3s/^/    /p') \
        <(grep -A2 '^    Broken promises' "$source/doc/embedding.md")
    ;;
plain) # every header, with the prefix only, beside a toolkit that has macros of common words
    mkdir -p "$scratch/plain"
    (cd "$prefix/include" && find . -name '*.h' | sort | sed 's|./\(.*\)|#include <\1>|') >"$scratch/plain/all.cpp"
    g++ -std=c++17 -Wall -Wextra -Werror -fsyntax-only -I"$prefix/include" -Dslots= -Dsignals=public -Demit= \
        "-Dforeach(a,b)=for(a:b)" "$scratch/plain/all.cpp"
    ;;
*) fail "unknown kind $kind" ;;
esac
