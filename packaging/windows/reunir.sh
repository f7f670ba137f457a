#!/usr/bin/env bash
# Puts together what the setup installs, in BUILD/reunido: packaging/windows/reunir.sh BUILD LIBRARIES
set -euo pipefail
cd "$(dirname "$0")/../.."
obra=$1 qt=$2/qt terceros=$2
cliente=$obra/reunido/cliente
rm -rf "$obra/reunido"
mkdir -p "$cliente"/{Ayuda,Licencias,platforms,styles,imageformats,tls}

cp "$obra/src/ostrel.exe" "$obra/src/ostrel.com" "$cliente"
cp "$qt"/bin/Qt6{Core,Gui,Widgets,PrintSupport,Network}.dll "$cliente"
cp "$qt/plugins/platforms"/qwindows.dll "$cliente/platforms"
cp "$qt/plugins/styles"/*.dll "$cliente/styles"
cp "$qt/plugins/imageformats/qico.dll" "$cliente/imageformats"
cp "$qt/plugins/tls/qschannelbackend.dll" "$cliente/tls"
for biblioteca in libgcc_s_seh-1.dll libstdc++-6.dll; do
    cp "$(x86_64-w64-mingw32-g++-posix -print-file-name=$biblioteca)" "$cliente"
done
cp /usr/x86_64-w64-mingw32/lib/libwinpthread-1.dll "$cliente"
find "$cliente" \( -name '*.dll' -o -name '*.exe' -o -name '*.com' \) -exec x86_64-w64-mingw32-strip --strip-unneeded {} +

packaging/windows/ayuda.sh "$cliente/Ayuda"

cp LICENSE "$cliente/Licencias/Ostrel.txt"
mkdir "$cliente/Licencias/Qt"
cp "$qt"/LICENSES/{LGPL-3.0-only,GPL-3.0-only,GPL-2.0-only,BSD-3-Clause,MIT,Apache-2.0,BSL-1.0}.txt "$cliente/Licencias/Qt"
cp "$terceros/sqlite/LICENSE.md" "$cliente/Licencias/SQLite.md"
cp "$terceros/sqlitecpp/LICENSE.txt" "$cliente/Licencias/SQLiteCpp.txt"
for paquete in fonts-liberation gcc-mingw-w64-base mingw-w64-x86-64-dev; do
    cp "/usr/share/doc/$paquete/copyright" "$cliente/Licencias/$paquete.txt"
done
cp packaging/windows/Licencias.txt "$cliente/Licencias/LEEME.txt"

# whatever a program or library of ours asks for and Windows does not bring must be there
faltan=$(find "$cliente" \( -name '*.dll' -o -name '*.exe' -o -name '*.com' \) \
    -exec x86_64-w64-mingw32-objdump -p {} + | sed -n 's/.*DLL Name: //p' | sort -fu |
    while read -r dll; do
        case $dll in api-ms-win-*) continue ;; esac
        [ -f "$cliente/$dll" ] || find /usr/x86_64-w64-mingw32/lib -iname "lib${dll%.*}.a" | grep -q . || echo "$dll"
    done)
[ -z "$faltan" ] || { echo "not in the setup: $faltan" >&2; exit 1; }
