#!/usr/bin/env bash
# Builds for Windows, with Debian's cross compiler, what needs no window, and runs its tests under
# Wine. Installs what is missing.
#   tools/windows.sh [BUILD]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=${1:-$here/build-windows}

"$here/tools/setup.sh" "$here/tools/windows_packages.txt"

# At -O3 this compiler warns of headers of its own.
cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DRADSEL_WERROR=ON \
    -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O2 -DNDEBUG" \
    -DCMAKE_TOOLCHAIN_FILE="$here/cmake/toolchains/windows-mingw.cmake"
cmake --build "$build"
build=$(cd "$build" && pwd)

# Wine keeps what it takes for the disk of a Windows machine in the build folder, and asks nobody
# about the parts that it can do without.
export WINEPREFIX=$build/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
trap 'wineserver -k 2>/dev/null || true' EXIT

# Programs find the compiler's libraries along the search path, as on a machine that has them.
compiler=x86_64-w64-mingw32-g++-posix
folders=
for library in libstdc++-6.dll libwinpthread-1.dll; do
    folder=$(dirname "$("$compiler" -print-file-name="$library")")
    folders+=Z:${folder//\//\\}';'
done
export WINEPATH=$folders

ctest --test-dir "$build" --output-on-failure

"$here/tools/windows_tests.sh" "$build"

# The program that looks through catalogues finds what it finds elsewhere.
wine "$build/bin/radsel_check.exe" "$here/data" >"$build/windows_check.txt" || [[ $? -eq 1 ]]
grep 'valvole; 22 tipi di attacco: 2 difetti$' "$build/windows_check.txt"

"$here/tools/windows_batch.sh" "$build/bin/radsel_batch.exe" "$build/batch"

"$here/tools/windows_configure.sh" "$build/with_qt"
