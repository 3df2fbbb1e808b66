#!/usr/bin/env bash
# What is installed serves a program elsewhere: it is found, compiles, links and runs, and nothing in
# it leads back to the place where it was built.
set -euo pipefail
cmake=$1 cpack=$2 build=$3 source=$4 compiler=$5 flags=$6 scan=$7
ccompiler=$8 instruments=$9
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "$1"
    exit 1
}
quietly() {
    "$@" >"$work/log" 2>&1 || {
        cat "$work/log"
        fail "failed: $*"
    }
}

# As everybody gets it: all packages unpacked, which is elsewhere than they are made.
mkdir "$work/there"
# What they depend on, and how small they are, does not matter here and takes time.
(cd "$build" && quietly env LC_ALL=C.UTF-8 "$cpack" -G DEB -B "$work/packages" \
    -D CPACK_DEBIAN_COMPRESSION_TYPE=none -D CPACK_DEBIAN_PACKAGE_SHLIBDEPS=OFF \
    -D CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS=OFF)
for package in "$work"/packages/*.deb; do
    dpkg-deb --extract "$package" "$work/there"
done
prefix=$work/there/usr
libraries=$(dirname "$(find "$prefix" -name libradsel.so)")

searches() { # file, folder that it may look for libraries in
    local path
    path=$(readelf -d "$1" | sed -nE 's/.*\((RUNPATH|RPATH)\).*\[(.*)\]/\2/p')
    [[ $path == "$2" ]] || fail "$1 looks for libraries in '$path'"
}
searches "$libraries/libradsel.so" ''
for library in "$libraries"/radsel/reference_host/lib*.so; do
    searches "$library" '$ORIGIN'
done
to_lib='$ORIGIN/..'${libraries#"$prefix"}
for program in "$prefix"/bin/*; do
    searches "$program" "$to_lib:$to_lib/radsel/reference_host"
    manual=$(zcat "$prefix/share/man/man1/$(basename "$program").1.gz" | sed 's/\\-/-/g')
    for option in $("$program" --help | grep -oE -- '--[a-z-]+' | sort -u); do
        grep -q -e "$option\b" <<<"$manual" || fail "not in the manual of $program: $option"
    done
done
"$prefix/bin/radsel_check" "$prefix/share/radsel/catalogues/Altovico" | grep -q "nessun difetto$"

# The program has a working place in its user's folder and writes nothing beside itself.
state_of() { (cd "$1" && find . -type f -exec cksum {} + | sort); }
own=$work/josé/.config/radsel
list_connections() {
    env -u TGA_DATA_SINGLE -u TGA_DATA_SINGLE_S -u XDG_CONFIG_HOME HOME="$work/josé" \
        "$prefix/bin/radsel_workbench" --list-connections
}
installed=$(state_of "$prefix")
chmod -R a-w "$prefix"
list_connections | grep -q '^Tipi di attacco: ' || fail "the installed program has no connection types"
cmp "$own/winsett.txt" "$prefix/share/radsel/workplace/winsett.txt" || fail "F1 is not switched on"
printf '[Proprio]\r\nV0;0;0;0;0;0;0;0\r\nR0;0;0;0;0;0;0;0\r\n' >"$own/HEIZUNG/Vent.txt"
list_connections | grep -q '^Proprio$' || fail "the user's own list is not read, or was replaced"
chmod -R u+w "$prefix"
[[ $(state_of "$prefix") == "$installed" ]] || fail "the program writes where it is installed"

kinds=()
[[ $scan == binary ]] || kinds=(-I)
if grep -rlF "${kinds[@]}" -e "$source" -e "$build" -e "$work/packages" "$prefix"; then
    fail "these name the folder of the sources, of the build or of the packages"
fi

export CXX=$compiler include=$prefix/include/radsel
compiles_alone() {
    echo "#include \"$1\"" |
        "$CXX" -std=c++17 -Wall -Wextra -Wpedantic -Wconversion -Wshadow ${RADSEL_WERROR-} -fsyntax-only \
            -I "$include" -x c++ - || { echo "$1 does not compile alone" && false; }
}
export -f compiles_alone
(cd "$include" && find . -name '*.h' -printf '%P\0') |
    xargs -0 -n 1 -P 2 bash -c 'compiles_alone "$0"'

if echo '#include "platform/array.h"' |
    "$CXX" -std=c++17 -D_GLIBCXX_DEBUG -fsyntax-only -I "$include" -x c++ - 2>"$work/log" ||
    ! grep -q 'compile without _GLIBCXX_DEBUG' "$work/log"; then
    fail "a build with containers for debugging is not refused: $(<"$work/log")"
fi

"$here/docs_test.py" "$prefix"

quietly "$cmake" -S "$here" -B "$work/consumer" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" \
    -DEXAMPLE="$prefix/share/doc/radsel/examples/bind_radsel.cpp"
grep -q "^radsel_DIR:PATH=$prefix/" "$work/consumer/CMakeCache.txt" ||
    fail "another radsel was found"
quietly "$cmake" --build "$work/consumer" --parallel 2
"$work/consumer/keep_records" || fail "records are not kept"

"$work/consumer/with_own_names" || fail "names of the program and of the module are mixed up"

# Every way to bring a host of one's own: it is the one that is asked.
for way in silent_library named_library own_functions plugin \
    default_library default_functions default_plugin; do
    answer=$("$work/consumer/with_$way") || fail "with_$way: $answer"
    [[ $answer == "0 T1" ]] || fail "with_$way: $answer"
done

# Every wrong way ends in one message that names what does not fit, and in no radiator.
refused() { # program, pattern...
    local program=$1
    shift
    ! "$work/consumer/$program" >"$work/answer" 2>"$work/message" || fail "$program: not refused"
    [[ $(<"$work/answer") == "-1 " ]] || fail "$program: $(<"$work/answer")"
    local pattern
    for pattern in "$@"; do
        grep -q -- "$pattern" "$work/message" || fail "$program: $(<"$work/message")"
    done
}
refused with_mixed_hosts 'programmi diversi' 'ReadHKDaten: senza nome, .*libpart_of_a_host.so' \
    '"radsel reference host", .*libHost'
refused with_mixed_names 'ReadHKDaten: "a CAD", .*libnamed_part.so' '"radsel reference host"'
refused with_old_host 'interfaccia 0 invece di' '"a CAD", .*libold_host.so'
! "$cmake" --build "$work/consumer" --target without_host >"$work/log" 2>&1 ||
    fail "a program without a host is linked"
grep -q 'undefined.*HK_DATEN_VDI3805' "$work/log" || fail "$(<"$work/log")"

! "$cmake" -DCOMPONENTS=nonsense "$work/consumer" >"$work/log" 2>&1 ||
    fail "a component that nobody knows is found"
grep -q 'radsel has no component "nonsense"' "$work/log" || fail "$(<"$work/log")"

# Without CMake. The program knows the folder of the reference host, where no loader looks.
example=$prefix/share/doc/radsel/examples/bind_radsel.cpp
export PKG_CONFIG_PATH=$libraries/pkgconfig
read -ra linked <<<"$flags $(pkg-config --cflags --libs radsel radsel-reference-host)"
quietly "$CXX" -std=c++17 "$example" -o "$work/by_pkg_config" "${linked[@]}"
LD_LIBRARY_PATH=$libraries \
    "$here/example_test.sh" "$work/by_pkg_config" "$prefix/share/radsel/catalogues"

"$here/example_test.sh" "$work/consumer/bind_radsel" "$prefix/share/radsel/catalogues"

# The Python package; an interpreter that is not instrumented does not take a library that is.
sized() {
    env -u RADSEL_LIBRARY -u RADSEL_WORKBENCH PYTHONPATH="$prefix/lib/python3/dist-packages" \
        PYTHONDONTWRITEBYTECODE=1 HOME="$work/josé" python3 \
        "$prefix/share/doc/radsel/examples/python/size_villa.py" "$prefix/share/radsel" "$work/villa.svg"
}
[[ -n $instruments ]] || sized >"$work/log" 2>&1 || fail "$(<"$work/log")"
[[ -n $instruments ]] || grep -q '55/45 °C: C 22/600x1100 gives 925 W' "$work/log" || fail "$(<"$work/log")"

# What the page for programmers of hosts shows in Python, as it is printed.
bound() {
    sed -n '/^folder of the reference host, in which no loader/,/^More than this/s/^    //p' \
        "$prefix/share/doc/radsel/host-programmer.md" >"$work/bound.py"
    LD_LIBRARY_PATH=$libraries:$libraries/radsel/reference_host python3 "$work/bound.py"
}
[[ -n $instruments ]] || quietly bound
[[ -n $instruments ]] || grep -q _Z9DummyCallv "$work/bound.py" || fail "the page has no example"

# The skeleton, as somebody copies it.
cp -r "$prefix/share/doc/radsel/examples/host" "$work/copied"
quietly "$cmake" -S "$work/copied" -B "$work/skeleton" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags -Wall -Wextra -Wpedantic -Wconversion -Wshadow ${RADSEL_WERROR-}"
quietly "$cmake" --build "$work/skeleton"
"$here/skeleton_test.sh" "$work/skeleton/cad" "$prefix/share/radsel" \
    "$work/consumer/libconfirm_dialogs.so"

"$here/../c_interface/c_host_test.sh" "$prefix" "$ccompiler" "$instruments" \
    "$work/consumer/libconfirm_dialogs.so"
