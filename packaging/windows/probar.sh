#!/usr/bin/env bash
# Tries the setup for Windows under wine, in a prefix of its own: installs it, compares its files, does a piece of work
# by commands, opens the window twice, updates over the data, removes it; then the tests of records and exchange.
# packaging/windows/probar.sh [FOLDER for the pictures, build/windows/prueba]
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/preparar.sh
. packaging/comun.sh
instalar wine wine64 xvfb xauth openbox xdotool imagemagick poppler-utils fonts-liberation
if [ -z "${OSTREL_PANTALLA:-}" ]; then
    OSTREL_PANTALLA=1 exec xvfb-run -a -s "-screen 0 1366x768x24" packaging/windows/probar.sh "$@"
fi

obra=$PWD/build/windows
setup=$obra/ostrel-setup.exe
terceros=${OSTREL_TERCEROS:-$PWD/build/windows-terceros}
fotos=${1:-$obra/prueba}
mkdir -p "$fotos"
fotos=$(realpath "$fotos")
lugar=$(mktemp -d)
export HOME=$lugar WINEPREFIX=$lugar/wine WINEARCH=win64 WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d" # nothing of wine's own to be asked for

limpiar() {
    wineserver -k 2>/dev/null || true
    wineserver -w 2>/dev/null || true
    rm -rf "$lugar"
}
foto() { import -window root "$fotos/$1.png"; }
al_fallar() { foto fallo; }
codigo() { # COMMAND...: prints its exit code
    local valor=0
    "$@" >/dev/null 2>&1 || valor=$?
    echo "$valor"
}
ostrel() { # as a user types it: the command interpreter finds the program for the console
    (cd "$cliente" && wine cmd /c ostrel "$@" 2>/dev/null | tr -d '\r')
}
ventana() { # TITLE: waits for it
    local i
    for i in $(seq 120); do
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && return
        sleep 0.5
    done
    fallo "no window «$1»"
}
sin_ventana() {
    local i
    for i in $(seq 60); do
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || return 0
        sleep 0.5
    done
    fallo "the window «$1» stays"
}
teclas() {
    xdotool key --delay 150 "$@"
    sleep 1
}
letra() { wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$1" /d "$2" /f >/dev/null 2>&1; }
trap limpiar EXIT

paso "a fresh Windows"
wineserver -k 2>/dev/null || true
wineboot -i >/dev/null 2>&1
letra Arial "Liberation Sans"
letra "Segoe UI" "Liberation Sans"
letra Tahoma "Liberation Sans"
letra "MS Shell Dlg 2" "Liberation Sans"
letra "Times New Roman" "Liberation Serif"
letra "Courier New" "Liberation Mono"

paso "install"
local_=$(winepath -u "$(wine cmd /c 'echo %LOCALAPPDATA%' 2>/dev/null | tr -d '\r')")
carpeta=$local_/Ostrel
cliente=$carpeta/cliente
es "$(codigo wine "$setup" /S '/D=C:\Misclientes\Ostrel')" 4 # the tables would land outside of it
[ ! -e "$WINEPREFIX/drive_c/Misclientes" ] || fallo "something was installed there"
es "$(codigo wine "$setup" /S)" 0
diff -r "$obra/reunido" "$carpeta" > "$lugar/distintos" || true
es "$(sed "s|$carpeta|X|" "$lugar/distintos" | sort)" \
    "$(printf 'Only in X/cliente: backups\nOnly in X/cliente: desinstalar.exe\nOnly in X: Tablas')"
clave='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Ostrel'
wine reg query "$clave" /v DisplayVersion 2>/dev/null | grep -qF "$version" || fallo "the uninstall entry"
accesos=$(find "$lugar" -name "Ostrel de Seguros.lnk" | wc -l)
es "$accesos" 2

paso "a piece of work by commands"
es "$(ostrel --version)" "Ostrel de Seguros $version"
ostrel declarante alta --dni A58818501 --nombre "Seguros del Valle" --domicilio Mayor --numero 12 --codpos 20001 \
    --codmun 1 --telefono 943000000 >/dev/null
es "$(ostrel declarar 430 --dni A58818501 --ejercicio 2026 --periodo 1 --base 125.000,50)" \
    "Declaración guardada: modelo 430, 2026 - ENERO, 10.000,04 euros"
es "$(cd "$cliente" && codigo wine cmd /c ostrel declarar 430 --dni A58818501 --ejercicio 2026 --periodo 13 --base 1)" 2
ostrel imprimir --dni A58818501 --modelo 430 --ejercicio 2026 --periodo 1 --pdf 'C:\430.pdf' >/dev/null
pdftotext "$WINEPREFIX/drive_c/430.pdf" - | grep -q "10.000,04" || fallo "the amount on the form"
pdftoppm -r 70 -png -singlefile "$WINEPREFIX/drive_c/430.pdf" "$fotos/impreso430"
ostrel copia >/dev/null
es "$(ls "$carpeta/Tablas" | tr '\n' ' ')" "OstrLec.mdb OstrMod.mdb "
es "$(ls "$cliente/backups")" "OstrMod_bak.mdb"

paso "the window, twice"
openbox >/dev/null 2>&1 &
(cd "$cliente" && wine ostrel.exe >/dev/null 2>&1) &
ventana "Hizkuntza"
sleep 2
foto 1-idioma
teclas alt+e # Basque
ventana "Aseguruen Ostrel"
sleep 5
foto 2-ventana
es "$(codigo wine "$setup" /S)" 3 # the program is running
wine "$setup" >/dev/null 2>&1 &
ventana "Ostrel de Seguros"
sleep 2
foto 3-setup-idioma
teclas Return
ventana "Instalaci"
foto 4-setup-abierto
teclas Escape
sin_ventana "Instalaci"
xdotool search --onlyvisible --name "Aseguruen Ostrel" windowactivate --sync
teclas ctrl+o
sleep 2
foto 5-lista
teclas F1
sleep 3
foto 6-ayuda
teclas Escape
xdotool search --onlyvisible --name "Aseguruen Ostrel" windowactivate --sync
teclas alt+F4
sin_ventana "Aseguruen Ostrel"
(cd "$cliente" && wine ostrel.exe >/dev/null 2>&1) &
ventana "Aseguruen Ostrel"
sleep 5
teclas ctrl+o
sleep 2
teclas Return
sleep 3
foto 7-declaraciones
teclas alt+F4
sin_ventana "Aseguruen Ostrel"
es "$(ostrel listar declaraciones --dni A58818501 | tail -1 | tr -s ' ')" "2026 URTARRILA 430 10.000,04"

paso "update over the data"
datos() { (cd "$carpeta" && find Tablas cliente/backups -type f -exec sha256sum {} +); }
antes=$(datos)
touch "$cliente/Qt6Vieja.dll" # of an earlier version
es "$(codigo wine "$setup" /S)" 0
es "$(datos)" "$antes"
[ ! -e "$cliente/Qt6Vieja.dll" ] || fallo "an earlier version's library stays"

paso "removal"
wine "$cliente/desinstalar.exe" /S
wineserver -w
es "$(datos)" "$antes"
es "$(cd "$carpeta" && find . -type f | sort | tr '\n' ' ')" \
    "./Tablas/OstrLec.mdb ./Tablas/OstrMod.mdb ./cliente/backups/OstrMod_bak.mdb "
es "$(find "$lugar" -name "Ostrel de Seguros.lnk" | wc -l)" 0
! wine reg query "$clave" >/dev/null 2>&1 || fallo "the uninstall entry stays"
# back over the data that were left; then away with them, by the buttons
es "$(codigo wine "$setup" /S)" 0
es "$(datos)" "$antes"
wine "$cliente/desinstalar.exe" >/dev/null 2>&1 &
ventana "Ostrel de Seguros"
sleep 2
teclas Return # language
ventana "Desinstala"
sleep 1
foto 8-desinstalar
teclas Return
sleep 4
foto 9-borrar
teclas Left Return # "No" is the default
sleep 4
foto 10-desinstalado
teclas Return
wineserver -w
[ ! -e "$carpeta" ] || fallo "the folder stays: $(find "$carpeta")"

paso "tests of records and exchange"
export WINEPATH="$(winepath -w "$terceros/qt/bin");$(winepath -w "$obra/reunido/cliente")" QT_QPA_PLATFORM=offscreen
for prueba in tst_registros tst_textos tst_servidor_datos tst_servidor_declaraciones tst_servidor_declarantes \
    tst_servidor_validacion tst_intercambio_linea tst_intercambio_importar tst_campana; do
    # to a file: on Windows they do not write to a pipe
    (cd "$obra/tests" && timeout 600 wine "$prueba.exe" -o "$(winepath -w "$fotos")\\$prueba.txt,txt") ||
        fallo "$prueba: $(grep -a -m3 'FAIL!' "$fotos/$prueba.txt")"
    grep -a "^Totals" "$fotos/$prueba.txt" | sed "s/^Totals/$prueba/"
done
paso "the setup passed: $(basename "$setup"), pictures in $fotos"
