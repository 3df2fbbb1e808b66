#!/usr/bin/env bash
# The program without windows gives the bytes of the workbench's batch run, for several heating
# systems, and refuses what it cannot do.
# Usage: same_files_test.sh BATCH WORKBENCH DATA_FOLDER
set -euo pipefail

batch=$(realpath "$1")
workbench=$(realpath "$2")
data=$(realpath "$3")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME=$scratch/config QT_QPA_PLATFORM=offscreen
building=(--building "$data/buildings/villa-dei-tigli.json" --catalogues "$data/catalogues"
    --valve-catalogues "$data/valves" --valves)

run() { # program, name of its folder, further arguments
    mkdir "$scratch/$2"
    (cd "$scratch/$2" && "$1" --batch "${building[@]}" --save saved.json "${@:3}" >text)
}

for system in 75/65 55/45 90/70; do
    rm -rf "$scratch"/{batch,workbench}
    run "$batch" batch --system "$system"
    run "$workbench" workbench --system "$system"
    for file in saved.json out/corpi-scaldanti.csv out/corpi-scaldanti.json; do
        cmp "$scratch"/{batch,workbench}/"$file"
    done
    # Only the last line, which names the files, is another.
    cmp <(head -n -1 "$scratch/batch/text") <(head -n -1 "$scratch/workbench/text")
    [[ $(tail -1 "$scratch/batch/text") == "Scritti corpi-scaldanti.csv e corpi-scaldanti.json in out" ]]
    [[ $(ls "$scratch/batch/out") == $'corpi-scaldanti.csv\ncorpi-scaldanti.json' ]]
done

refused() { # words, arguments
    local code=0
    "$batch" "${@:2}" 2>"$scratch/answer" || code=$?
    [[ $code == 2 ]] && grep -qF -e "radsel_batch: $1" "$scratch/answer" || {
        echo "${*:2}: $code"
        cat "$scratch/answer"
        exit 1
    }
}
for command in --radiator-dialog --tree-dialog --connection-dialog --valve-dialog; do
    refused "$command apre una finestra" "$command"
done
refused "argomento sconosciuto per --batch: --workplace" --workplace "$scratch"
if "$batch" --help | grep -e -dialog -e --workplace; then
    exit 1
fi
refused "--batch non ammette l'opzione --superuser" --superuser
"$batch" --version | grep -q '^radsel_batch '
