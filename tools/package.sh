#!/usr/bin/env bash
# Builds the Debian packages as a distribution does: without tests and tools, hardened, for /usr. They
# lie in build-package/packages then, and lintian reads them if it is installed. With --twice they are
# built again from a copy of the sources elsewhere, and every byte has to be the same.
# Options behind it go to cmake: -DRADSEL_WORKBENCH=OFF, say.
#   tools/package.sh [--twice] [OPTION...]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

twice=
if [[ ${1-} == --twice ]]; then
    twice=yes
    shift
fi
options=("$@")

# The day of the version, unless the builder says another.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(date -d "$(sed -n '/^ -- /{s/.*>  //p;q}' "$here/packaging/changelog")" +%s)}
export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8

make_packages() { # folder of the sources
    local build=$1/build-package
    (
        cd "$1"
        eval "$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh)"
        cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr \
            -DBUILD_TESTING=OFF "${options[@]}"
    )
    cmake --build "$build"
    rm -rf "$build/packages"
    (cd "$build" && cpack -G DEB -B "$build/packages")
    rm -rf "$build/packages/_CPack_Packages"
}
sums() { (cd "$1/build-package/packages" && sha256sum ./*.deb); }

make_packages "$here"

if [[ -n $twice ]]; then
    elsewhere=$(mktemp -d)
    trap 'rm -rf "$elsewhere"' EXIT
    mkdir "$elsewhere/sources"
    git -C "$here" ls-files -z --cached --others --exclude-standard |
        tar -C "$here" --null -T - -c | tar -C "$elsewhere/sources" -x
    make_packages "$elsewhere/sources"
    sums "$here"
    diff <(sums "$here") <(sums "$elsewhere/sources")
    echo "Both builds gave the same bytes."
fi

if command -v lintian >/dev/null; then
    lintian --info --fail-on error,warning "$here"/build-package/packages/*.deb
fi
