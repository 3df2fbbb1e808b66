#!/usr/bin/env bash
# The samples of the repository are what their generator makes, and nothing else lies beside them.
# same_as_made.sh GENERATOR FOLDER
set -euo pipefail

made=$(mktemp -d)
trap 'rm -r "$made"' EXIT
"$1" "$made"
diff -r --exclude=.gitattributes "$made" "$2"
