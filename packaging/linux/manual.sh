#!/usr/bin/env bash
# A page of the manual: the template with the program's own help on every command in it.
# manual.sh PROGRAM es|eu TEMPLATE
set -euo pipefail
programa=$1 lengua=$2 plantilla=$3
carpeta=$(mktemp -d)
trap 'rm -rf "$carpeta"' EXIT
export LC_ALL=C.UTF-8
"$programa" --carpeta "$carpeta" idioma "$([ "$lengua" = eu ] && echo E || echo C)" >/dev/null

sin_ordenes() { # what roff would take for its own
    sed -e 's/\\/\\e/g' -e 's/-/\\-/g' -e "s/^[.']/\\\\\&&/"
}

declare -A _ostrel_opciones
# shellcheck disable=SC1090
. <("$programa" completado bash)
while IFS= read -r orden; do
    echo ".SS $orden"
    echo .nf
    # shellcheck disable=SC2086
    "$programa" --carpeta "$carpeta" $orden --help | sin_ordenes
    echo .fi
done < <(printf '%s\n' "${!_ostrel_opciones[@]}" | sort) >"$carpeta/ordenes"
grep -q '^\.SS' "$carpeta/ordenes"
marca='^\.\\" ORDENES$'
grep -q "$marca" "$plantilla"
sed -e "/$marca/r $carpeta/ordenes" "$plantilla"
