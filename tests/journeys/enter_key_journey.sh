#!/usr/bin/env bash
# On some desktops the toolkit takes Enter for a press of check boxes and lists. The dialogs keep the
# key on all of them. Usage: enter_key_journey.sh DIALOG_TESTS DATA_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

start_screen
for desktop in GNOME XFCE X-Cinnamon MATE Unity LXDE KDE other; do
    XDG_CURRENT_DESKTOP=$desktop "$program" \
        --gtest_filter=BrushedDialog.EnterIsTheDialogsInControlsOfEveryKind \
        >"$scratch/program.log" 2>&1 || fail "Enter on $desktop"
    grep -q 'PASSED.* 1 test' "$scratch/program.log" || fail "no test ran on $desktop"
done
