#!/usr/bin/env bash
# Includes point downwards only, and no toolkit header stands outside uikit/ and the workbench.
set -euo pipefail
cd "$1"

fail=0
forbid() { # folders, pattern, why
    local hits
    hits=$(grep -rnE "$2" $1 2>/dev/null || true)
    if [ -n "$hits" ]; then
        echo "$3:"
        echo "$hits"
        fail=1
    fi
}

logic='platform common host frame radiator valve connection selection dialogs'
forbid "$logic" '#include *[<"]Q[A-Za-z]' 'toolkit header outside uikit/ and workbench/'
forbid 'platform' '#include "(common|frame|host|radiator|valve|connection|selection|dialogs|uikit|workbench)/' \
    'platform/ includes a folder above it'
forbid 'common' '#include "(frame|radiator|valve|connection|selection|dialogs|uikit|workbench)/' \
    'common/ includes a folder above it'
forbid "$logic uikit" '#include "workbench/' 'the module includes the reference host'
forbid 'radiator' '#include "(valve|connection|selection|dialogs|uikit)/' 'radiator/ reaches sideways or up'
forbid 'uikit' '#include "(frame|host|radiator|valve|connection|selection|dialogs)/' 'uikit/ knows the module'
forbid 'dialogs' '#include "(radiator|valve|connection|selection|frame)/' 'dialogs/ reaches up'
hits=$(grep -nE '#include *<Q|\bQ[A-Z][a-z]+' uikit/*.h || true)
if [ -n "$hits" ]; then
    echo 'a header of uikit/ shows the toolkit:'
    echo "$hits"
    fail=1
fi
exit $fail
