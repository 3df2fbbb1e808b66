#!/usr/bin/env bash
# What is installed serves a program elsewhere: it is found, compiles, links and runs, and nothing in
# it leads back to the place where it was built.
set -euo pipefail
cmake=$1 build=$2 source=$3 compiler=$4 flags=$5 scan=$6
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

# Moved, since a package is unpacked elsewhere than it is made.
quietly "$cmake" --install "$build" --prefix "$work/made" --strip
mv "$work/made" "$work/there"
prefix=$work/there

searches() { # file, folder that it may look for libraries in
    local path
    path=$(readelf -d "$1" | sed -nE 's/.*\((RUNPATH|RPATH)\).*\[(.*)\]/\2/p')
    [[ $path == "$2" ]] || fail "$1 looks for libraries in '$path'"
}
searches "$prefix/lib/libradsel.so" ''
for library in "$prefix"/lib/radsel/reference_host/lib*.so; do
    searches "$library" '$ORIGIN'
done
searches "$prefix/bin/radsel_workbench" '$ORIGIN/../lib:$ORIGIN/../lib/radsel/reference_host'
"$prefix/bin/radsel_workbench" --help >/dev/null
"$prefix/bin/radsel_check" "$prefix/share/radsel/catalogues/Altovico" | grep -q "nessun difetto$"

# The program has a working place in its user's folder and writes nothing beside itself.
state_of() { (cd "$1" && find . -type f -exec cksum {} + | sort); }
own=$work/home/.config/radsel
list_connections() {
    env -u TGA_DATA_SINGLE -u TGA_DATA_SINGLE_S -u XDG_CONFIG_HOME HOME="$work/home" \
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
if grep -rlF "${kinds[@]}" -e "$source" -e "$build" -e "$work/made" "$prefix"; then
    fail "these name the folder of the sources, of the build or of the first installation"
fi

export CXX=$compiler include=$prefix/include/radsel
compiles_alone() {
    echo "#include \"$1\"" |
        "$CXX" -std=c++20 -Wall -Wextra -Wpedantic -Wconversion -Werror -fsyntax-only \
            -I "$include" -x c++ - || { echo "$1 does not compile alone" && false; }
}
export -f compiles_alone
(cd "$include" && find . -name '*.h' -printf '%P\0') |
    xargs -0 -n 1 -P 2 bash -c 'compiles_alone "$0"'

quietly "$cmake" -S "$here" -B "$work/consumer" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" \
    -DEXAMPLE="$prefix/share/doc/radsel/examples/bind_radsel.cpp"
grep -q "^radsel_DIR:PATH=$prefix/" "$work/consumer/CMakeCache.txt" ||
    fail "another radsel was found"
quietly "$cmake" --build "$work/consumer" --parallel 2
"$work/consumer/keep_records" || fail "records are not kept"

# Every way to bring a host of one's own: it is the one that is asked.
for way in silent_library named_library own_functions plugin; do
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

"$here/example_test.sh" "$work/consumer/bind_radsel" "$prefix/share/radsel/catalogues"
