#!/usr/bin/env bash
# Checks the format of the C++ sources and lints the QML, whose warnings are errors here.
#   comprobar_estilo.sh BUILD_FOLDER
set -eu
construccion=$(realpath "$1")
cd "$(dirname "$0")/.."
git ls-files -z --cached --others --exclude-standard -- '*.cpp' '*.h' |
    while IFS= read -r -d '' archivo; do [ -e "$archivo" ] && printf '%s\0' "$archivo"; done |
    xargs -0 clang-format-19 --dry-run -Werror
salida=$(/usr/lib/qt6/bin/qmllint -I "$construccion/qml" -I /usr/lib/x86_64-linux-gnu/qt6/qml \
    ui/*.qml ui/componentes/*.qml 2>&1) || { echo "$salida"; exit 1; }
[ -z "$salida" ] || { echo "$salida"; exit 1; }
