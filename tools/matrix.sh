#!/usr/bin/env bash
# Builds and tests with every compiler, type of build and standard library that we promise to be
# clean with, one after the other, and prints a line for each. Ends with 1 if one of them has a
# warning or a test that fails. All of them take hours; names choose some.
#   tools/matrix.sh [NAME...]
# A build lies in build-matrix/NAME and is taken away if it is clean; build-matrix/NAME.log is kept.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
matrix=$here/build-matrix
# The cheap ones first.
all=(clang19-libcxx gcc12-debug clang19-debug gcc12-relwithdebinfo clang19-relwithdebinfo
    gcc12-release-lto clang19-release-lto gcc12-release)

usage() {
    echo "usage: tools/matrix.sh [NAME...], of ${all[*]}" >&2
    exit 2
}

names=("$@")
[[ $# -gt 0 ]] || names=("${all[@]}")
for name in "${names[@]}"; do
    [[ " ${all[*]} " == *" $name "* ]] || usage
done

"$here/tools/setup.sh" "$here/tools/matrix_packages.txt"

# What a programmer keeps for himself in the environment is no part of the matrix.
unset CFLAGS CXXFLAGS CPPFLAGS LDFLAGS

cpp_compiler() { # NAME
    case $1 in
    gcc12-*) echo g++-12 ;;
    clang19-*) echo clang++-19 ;;
    esac
}

c_compiler() { # NAME
    case $1 in
    gcc12-*) echo gcc-12 ;;
    clang19-*) echo clang-19 ;;
    esac
}

build_type() { # NAME
    case $1 in
    *-debug) echo Debug ;;
    *-relwithdebinfo) echo RelWithDebInfo ;;
    *) echo Release ;;
    esac
}

library() { # NAME
    case $1 in
    *-libcxx) echo libc++ ;;
    *) echo libstdc++ ;;
    esac
}

# The toolkit and the framework of the tests are installed for libstdc++. So without it there are the
# rooms that know no toolkit, and a framework of their own.
framework=$matrix/googletest
build_framework() { # OPTION...
    cmake -S /usr/src/googletest -B "$framework/build" -G Ninja "$@" -DBUILD_GMOCK=OFF \
        -DCMAKE_CXX_FLAGS=-stdlib=libc++ "-DCMAKE_INSTALL_PREFIX=$framework" &&
        cmake --build "$framework/build" --target install
}

build() { # NAME
    # As an option the compiler of C is one too many where no C is compiled, and CMake warns.
    local -x CC CXX
    CC=$(c_compiler "$1") CXX=$(cpp_compiler "$1")
    local options=("-DCMAKE_BUILD_TYPE=$(build_type "$1")")
    [[ $1 != *-lto ]] || options+=(-DCMAKE_INTERPROCEDURAL_OPTIMIZATION=ON)
    # Each source by itself is read without the optimiser, where that takes less time, with the other
    # library, and in the build that a packager makes who sets nothing but the type.
    case $1 in
    *-debug | *-libcxx | *-release) ;;
    *) options+=(-DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=6) ;;
    esac
    if [[ $1 == *-libcxx ]]; then
        build_framework "${options[@]}" || return
        options+=(-DCMAKE_CXX_FLAGS=-stdlib=libc++ -DRADSEL_TOOLKIT=OFF
            "-DCMAKE_PREFIX_PATH=$framework")
    fi
    cmake -S "$here" -B "$matrix/$1" -G Ninja "${options[@]}" &&
        cmake --build "$matrix/$1" -- -k 0
}

# A warning in a header is given for every source that reads it, and counts once.
warnings() { # LOG
    { grep -E 'warning: |CMake Warning' "$1" || true; } | sort -u | wc -l
}

count() { # FIELD REPORT
    sed -n "s/^[[:space:]]*$1=\"\([0-9]*\)\".*/\1/p" "$2" 2>/dev/null | head -n 1 | grep . || echo 0
}

run() { # NAME: prints its line, and fails if it is not clean
    local log=$matrix/$1.log report=$matrix/$1.xml started=$SECONDS
    local built='' warned tests=0 failed=0 skipped=0 result='does not build'
    rm -rf "${matrix:?}/$1" "$report"
    build "$1" >"$log" 2>&1 && built=yes
    warned=$(warnings "$log")
    if [[ -n $built ]]; then
        ctest --test-dir "$matrix/$1" --output-on-failure --no-tests=error -j2 \
            --output-junit "$report" >>"$log" 2>&1 || true
        tests=$(count tests "$report")
        failed=$(count failures "$report")
        skipped=$(($(count skipped "$report") + $(count disabled "$report")))
        result="$((tests - failed - skipped)) passed, $failed failed, $skipped not run"
    fi
    printf '%-24s %-11s %-15s %-10s %s warnings; %s; %d s\n' "$1" "$(cpp_compiler "$1")" \
        "$(build_type "$1")" "$(library "$1")" "$warned" "$result" $((SECONDS - started))
    [[ $warned -eq 0 && $tests -gt 0 && $((failed + skipped)) -eq 0 ]] || return 1
    rm -rf "${matrix:?}/$1" "$report"
}

mkdir -p "$matrix"
unclean=()
for name in "${names[@]}"; do
    run "$name" || unclean+=("$name")
done
[[ ${#unclean[@]} -eq 0 ]] || echo "Not clean, see build-matrix/NAME.log: ${unclean[*]}"
[[ ${#unclean[@]} -eq 0 ]]
