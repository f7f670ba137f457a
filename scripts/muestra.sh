#!/usr/bin/env bash
# A sample piece of work through the command line, for machines without a display:
# scripts/muestra.sh PROGRAM [FOLDER]
set -euo pipefail
ostrel=$1
carpeta=${2:-$(mktemp -d "${TMPDIR:-/tmp}/ostrel-muestra-XXXXXX")}

mkdir -p "$carpeta"

orden() {
    local mostrada="\$ ostrel"
    for parte in "$@"; do
        case $parte in *" "*) mostrada="$mostrada \"$parte\"" ;; *) mostrada="$mostrada $parte" ;; esac
    done
    echo "$mostrada"
    "$ostrel" --carpeta "$carpeta" "$@"
}

echo "There is no display: a sample of the work, by the command line."
orden declarante alta --dni A58818501 --nombre "Seguros del Valle" --domicilio Mayor --numero 12 \
    --codpos 20001 --codmun 1 --telefono 943000000
orden declarar 430 --dni A58818501 --ejercicio 2026 --periodo 1 --base 125.000,50
orden listar declarantes
orden listar declaraciones --dni A58818501
orden imprimir --dni A58818501 --modelo 430 --ejercicio 2026 --periodo 1 \
    --pdf "$carpeta/430_2026-01_A58818501_AD-IT.pdf"
echo "The files are in $carpeta"
