#!/usr/bin/env bash
# Runs radsel_batch for Windows under Wine over the sample building, at several heating systems, and
# the same program of this system, and compares what they show and write, byte for byte.
#   tools/windows_batch.sh PROGRAM.exe SCRATCH_FOLDER
# The environment is Wine's as tools/windows.sh sets it.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
windows=$(realpath "$1")
scratch=$2
rm -rf "$scratch"/{windows,native}
mkdir -p "$scratch"
scratch=$(realpath "$scratch")

cmake -S "$here" -B "$scratch/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
    -DRADSEL_TOOLKIT=OFF -DRADSEL_WORKBENCH=OFF >"$scratch/build.log"
cmake --build "$scratch/build" --target radsel_batch >>"$scratch/build.log"

# No settings of this user count.
export XDG_CONFIG_HOME=$scratch/config
unset TGA_DATA_SINGLE "${!RADSEL_@}"

run() { # folder of the results, heating system, command...
    mkdir -p "$scratch/$1"
    (cd "$scratch/$1" && "${@:3}" --building "$here/data/buildings/villa-dei-tigli.json" \
        --catalogues "$here/data/catalogues" --valve-catalogues "$here/data/valves" --valves \
        --system "$2" --save saved.json >text)
}

for system in 75/65 55/45 90/70; do
    run "windows/${system/\//_}" "$system" wine "$windows"
    run "native/${system/\//_}" "$system" "$scratch/build/workbench/radsel_batch"
done
diff -r "$scratch/windows" "$scratch/native"
files=$(find "$scratch/windows" -type f | wc -l)
((files == 12))
echo "Windows: radsel_batch gives the same $files files as here, byte for byte."
