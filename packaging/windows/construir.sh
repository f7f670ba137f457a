#!/usr/bin/env bash
# Builds the Windows program and its setup on Debian, into build/windows: packaging/windows/construir.sh
# The libraries for Windows are built once, into build/windows-terceros or the folder that OSTREL_TERCEROS names.
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/preparar.sh
. packaging/comun.sh
# shellcheck disable=SC2086
instalar $paquetes_construir g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 dpkg-dev make tcl \
    nsis fp-utils librsvg2-bin icoutils

terceros=${OSTREL_TERCEROS:-$PWD/build/windows-terceros}
obra=$PWD/build/windows
packaging/windows/terceros.sh "$terceros"

icono() { # from the picture that Debian's desktops show
    local lado ficheros=()
    for lado in 16 20 24 32 40 48 64 256; do
        rsvg-convert -w $lado -h $lado packaging/linux/ostrel.svg -o "$obra/icono-$lado.png"
        ficheros+=("$obra/icono-$lado.png")
    done
    icotool -c -o "$obra/ostrel.ico" "${ficheros[@]::7}" --raw="${ficheros[7]}"
    rm "${ficheros[@]}"
}

mkdir -p "$obra"
[ -f "$obra/ostrel.ico" ] || icono
cmake -G Ninja -S . -B "$obra" -DCMAKE_TOOLCHAIN_FILE="$terceros/qt/lib/cmake/Qt6/qt.toolchain.cmake" \
    -DQT_CHAINLOAD_TOOLCHAIN_FILE="$PWD/packaging/windows/mingw64.cmake" -DCMAKE_BUILD_TYPE=Release \
    -DQT_ADDITIONAL_PACKAGES_PREFIX_PATH="$terceros/sqlite;$terceros/sqlitecpp" -DQT_HOST_PATH=/usr \
    -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
    -DOSTREL_ICONO="$obra/ostrel.ico" >/dev/null
cmake --build "$obra" -- --quiet

packaging/windows/reunir.sh "$obra" "$terceros"
makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DREUNIDO="$obra/reunido" -DICONO="$obra/ostrel.ico" \
    -DSALIDA="$obra/ostrel-setup.exe" packaging/windows/ostrel.nsi
ls -l "$obra/ostrel-setup.exe"
