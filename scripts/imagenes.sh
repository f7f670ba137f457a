#!/usr/bin/env bash
# Pictures of every screen and of a printed form, in both languages, from sample data and without a
# display: scripts/imagenes.sh [FOLDER]. Those of the README are renewed in docs/imagenes.
set -euo pipefail
cd "$(dirname "$0")/.."
destino=${1:-build/imagenes}
cmake --build build/dev --target ostrel imagenes >/dev/null
datos=$(mktemp -d)
trap 'rm -rf "$datos"' EXIT

ostrel() { build/dev/src/ostrel --carpeta "$datos" "$@" >/dev/null; }
alta() {
    ostrel declarante alta --dni "$1" --nombre "$2" --domicilio "$3" --numero "$4" --codpos 20001 \
        --codmun "$5" --telefono 943000000
}
alta B20000006 "Aseguradora del Norte" "Plaza Nueva" 3 7
alta 12345678Z "Mutua Aldrevia" "Ribera" 21 6
alta A58818501 "Seguros del Valle" Mayor 12 1
for mes in 1 2 3 4 5 6 7 8 9 10 11 12; do
    ostrel declarar 430 --dni A58818501 --ejercicio 2025 --periodo "$mes" --base "$((90000 + 3125 * mes)),50"
done
ostrel declarar 480 --dni A58818501 --ejercicio 2025 --casilla 04=400000,00 --casilla 10=623756,00 \
    --casilla 34=300000,00 --casilla 02=50000,00 --casilla 73=1323756,00
ostrel declarar 430 --dni A58818501 --ejercicio 2026 --periodo 1 --base 125.000,50

for idioma in C E; do
    HOME=$datos QT_QPA_PLATFORM=offscreen build/dev/tests/imagenes "$datos" "$destino/$idioma" "$idioma" 2>/dev/null
    ostrel imprimir --dni A58818501 --modelo 430 --ejercicio 2026 --periodo 1 --fecha \
        "$([ $idioma = C ] && echo 20/02/2026 || echo 2026/02/20)" --copias adm --pdf "$datos/430.pdf"
    pdftoppm -r 70 -png -singlefile "$datos/430.pdf" "$destino/$idioma/impreso430"
    rm "$datos/430.pdf"
done
mkdir -p docs/imagenes
cp "$destino"/C/{FrmDecResumen,FrmDatos430,impreso430}.png docs/imagenes
echo "The pictures are in $destino; those of the README in docs/imagenes"
