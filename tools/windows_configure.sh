#!/usr/bin/env bash
# Configures for Windows as with a Qt for it, of which there is none here: whoever has one comes as far
# as the compiler. A package of empty targets stands in for Qt.
#   tools/windows_configure.sh BUILD
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$1"
build=$(cd "$1" && pwd)
package=$build/stand_in/lib/cmake/Qt6
rm -rf "${build:?}"/*
mkdir -p "$package"
cat >"$package/Qt6Config.cmake" <<'END'
set(Qt6_VERSION 6.0.0)
set(Qt6Core_VERSION_MAJOR 6)
set(Qt6Core_VERSION_MINOR 0)
foreach(part Core Gui Widgets)
    if(NOT TARGET Qt6::${part})
        add_library(Qt6::${part} INTERFACE IMPORTED)
    endif()
endforeach()
if(NOT TARGET Qt6::moc)
    add_executable(Qt6::moc IMPORTED)
    set_target_properties(Qt6::moc PROPERTIES IMPORTED_LOCATION /bin/true)
endif()
END

configure() {
    cmake -S "$here" -B "$build/$1" -G Ninja -DRADSEL_WORKBENCH=OFF -DRADSEL_TOOLS=OFF \
        -DBUILD_TESTING=OFF -DCMAKE_TOOLCHAIN_FILE="$here/cmake/toolchains/windows-mingw.cmake" \
        "${@:2}" >"$build/configured.txt" 2>&1 || {
        cat "$build/configured.txt"
        exit 1
    }
}
configure with_windows -DCMAKE_PREFIX_PATH="$build/stand_in"
grep -q 'Qt 6.0.0 for Windows: the windows are built too' "$build/configured.txt"
configure without
grep -q 'No Qt 6 for Windows' "$build/configured.txt"
configure without -DCMAKE_PREFIX_PATH="$build/stand_in"
grep -q 'Qt 6.0.0 for Windows is left alone' "$build/configured.txt"
echo "With a Qt for Windows all of it is configured."
