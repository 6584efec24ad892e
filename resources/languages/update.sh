#!/usr/bin/env bash
# update.sh FOLDER: brings the translations in the folder up to date with the texts of the sources.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

lupdate=$(command -v lupdate6 || echo /usr/lib/qt6/bin/lupdate)
for language in de fr es zh_CN; do
    "$lupdate" -silent -no-obsolete -locations none -extensions cpp,h \
        -tr-function-alias tr+=Later,tr+=Count -source-language en -target-language "$language" \
        src -ts "$1/kirto_$language.ts" 2>/dev/null
done
