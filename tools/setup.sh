#!/usr/bin/env bash
# Installs what packages.txt lists and the machine lacks. Says nothing if nothing is missing.
#   tools/setup.sh [LIST...]   also what these lists name, of the form of packages.txt
#   tools/setup.sh --run       without what that list marks as for tests, measurements and packages
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '%s\n' "$*" >&2; }

marked='# (tests|./test|measurements|packages)'
[[ ${1-} == --run ]] && shift || marked='^$'
mapfile -t wanted < <(sed -E -e "\\@$marked@d" -e 's/#.*//' -e 's/[[:space:]]*$//' -e '/^$/d' \
    "$here/packages.txt" "$@")

if ! command -v dpkg-query >/dev/null; then
    say "No Debian packages here; the build needs the counterparts of: ${wanted[*]}"
    exit 0
fi

missing=()
for package in "${wanted[@]}"; do
    state=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
    [[ $state == 'install ok installed' ]] || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

# Without a terminal nobody can type a password, so sudo must not ask for one.
as_root=()
if [[ $EUID -ne 0 ]]; then
    as_root=(sudo)
    [[ -t 0 ]] || as_root+=(-n)
fi

install() {
    "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

say "Installing ${#missing[@]} packages, which takes a minute or two: ${missing[*]}"
if ! install >&2; then
    say "Could not install. Please run:"
    say "apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
    exit 1
fi
say "Installed in $SECONDS s."
