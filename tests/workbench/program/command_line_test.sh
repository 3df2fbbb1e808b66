#!/usr/bin/env bash
# What the program answers to its command line, told by exit code and words. There is no screen, so
# a window that opens although it should not shows as exit code 7.
# Usage: command_line_test.sh PROGRAM DATA_FOLDER
set -euo pipefail

program=$(realpath "$1")
data=$(realpath "$2")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM XDG_RUNTIME_DIR
export XDG_CONFIG_HOME=$scratch TGA_DATA_SINGLE=$data/root
cd "$data"

# What a starter puts in front of the user's arguments.
defaults=(--sample buildings/villa-dei-tigli.json --output "$scratch/out" --workplace workplace)
catalogues=(--catalogues catalogues)
failures=0

answers() { # exit code, words in the answer, arguments
    local expected=$1 words=$2 code=0
    shift 2
    "$program" "${defaults[@]}" "$@" >"$scratch/answer" 2>&1 || code=$?
    if ((code != expected)) || ! grep -qF -e "$words" "$scratch/answer"; then
        printf '%s\n  exit code %d instead of %d, or no "%s" in:\n' "$*" "$code" "$expected" "$words"
        head -3 "$scratch/answer"
        failures=$((failures + 1))
    fi
}

dialogs=(--radiator-dialog --tree-dialog --connection-dialog --valve-dialog)
for command in --batch "${dialogs[@]}" --list-connections; do
    answers 0 'Codici di uscita:' "$command" --help
    answers 0 'Codici di uscita:' --help "$command"
    answers 2 "argomento sconosciuto per $command: --nonsense" "$command" --nonsense
done
for command in "${dialogs[@]}" --list-connections; do
    answers 2 "$command non ammette l'opzione --save" "$command" --save casa.json
done
answers 2 'ritorno non supera' --batch "${catalogues[@]}" --system 30/10
answers 2 'ritorno non supera' --radiator-dialog "${catalogues[@]}" --system 30/10
answers 2 'ritorno non supera' --tree-dialog "${catalogues[@]}" --system 30/10

answers 7 'nessuno schermo' --radiator-dialog "${catalogues[@]}" --system 40/30
answers 7 'nessuno schermo' --tree-dialog "${catalogues[@]}"
answers 7 'nessuno schermo' --connection-dialog --superuser
answers 7 'nessuno schermo' --valve-dialog --valve-catalogues valves
answers 0 'Tipi di attacco: ' --list-connections
answers 4 'manca.txt' --list-connections manca.txt
answers 0 'radsel_workbench ' --version
[[ ! -e $scratch/out ]] || {
    echo "a refused run or a dialog has written results"
    failures=$((failures + 1))
}
answers 0 'corpi-scaldanti.csv' "${catalogues[@]}" --valve-catalogues valves
! grep -F XDG_RUNTIME_DIR "$scratch/answer" || failures=$((failures + 1))
exit $((failures > 0))
