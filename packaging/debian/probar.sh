#!/usr/bin/env bash
# Tries the Debian package on this machine, as root: lintian, installs it, works with it as an unprivileged user
# in a fresh home, updates it over that user's data, removes it: packaging/debian/probar.sh [FILE.deb]
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/preparar.sh
. packaging/comun.sh
instalar lintian desktop-file-utils appstream bash-completion poppler-utils man-db file passwd dpkg-dev
paquete=$(realpath "${1:-$(ls build/release/paquetes/ostrel_*.deb)}")
export DEBIAN_FRONTEND=noninteractive
usuario=ostrel-prueba
lugar=$(mktemp -d)
chmod 755 "$lugar"

limpiar() {
    dpkg --purge ostrel >/dev/null 2>&1 || true
    userdel "$usuario" 2>/dev/null || true
    rm -rf "$lugar"
}
como_usuario() { # in a home of its own, without a display
    (cd "$casa" && setpriv --reuid "$usuario" --regid "$usuario" --clear-groups \
        env -i HOME="$casa" PATH=/usr/bin:/bin LANG=C.UTF-8 "$@")
}

! dpkg-query -W ostrel >/dev/null 2>&1 || fallo "ostrel is installed already"
! id "$usuario" >/dev/null 2>&1 || fallo "there is a user $usuario"
trap limpiar EXIT
# a path in which the word stands that moves the tables of an unpacked program
casa=$lugar/cliente
useradd --home-dir "$casa" --create-home "$usuario"

paso "lintian"
lintian --allow-root --fail-on error,warning "$paquete"

paso "install"
apt-get install -y -qq --no-install-recommends "$paquete" >/dev/null
es "$(dpkg-query -W -f='${Version}' ostrel)" "$version-1"
for fichero in bin/ostrel share/applications/ostrel.desktop share/metainfo/example.varlenda.ostrel.metainfo.xml \
    share/icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256}/apps/ostrel.png \
    share/icons/hicolor/scalable/apps/ostrel.svg share/bash-completion/completions/ostrel share/man/man1/ostrel.1.gz \
    share/man/eu/man1/ostrel.1.gz share/doc/ostrel/{copyright,changelog.gz,changelog.Debian.gz} \
    share/doc/ostrel/licencias/{libqt6core6,libsqlite3-0,libsqlitecpp-dev,fonts-liberation}.txt; do
    dpkg-query -L ostrel | grep -qx "/usr/$fichero" || fallo "/usr/$fichero is not in the package"
done
for lado in 16 22 24 32 48 64 128 256; do
    file -b "/usr/share/icons/hicolor/${lado}x$lado/apps/ostrel.png" | grep -q "$lado x $lado" ||
        fallo "the picture of $lado pixels"
done
desktop-file-validate /usr/share/applications/ostrel.desktop
appstreamcli validate --no-net --explain /usr/share/metainfo/example.varlenda.ostrel.metainfo.xml
! ldd /usr/bin/ostrel | grep "not found" || fallo "a library is missing"

paso "version, manual, completion"
es "$(como_usuario ostrel --version)" "Ostrel de Seguros $version"
[ ! -e "$casa/.local" ] || fallo "asking for the version left something in the home"
for manual in man1 eu/man1; do
    como_usuario env MANWIDTH=100 man -l "/usr/share/man/$manual/ostrel.1.gz" >"$lugar/manual"
    grep -q "$version" "$lugar/manual" || fallo "the manual's version"
    for palabras in "ostrel pendientes" "ostrel completado" --base-rectificacion --desde; do
        grep -qF -e "$palabras" "$lugar/manual" || fallo "$palabras is not in the manual"
    done
done
es "$(bash -c '. /usr/share/bash-completion/bash_completion; _completion_loader ostrel
    COMP_WORDS=(ostrel listar "") COMP_CWORD=2; _ostrel; echo ${COMPREPLY[*]}')" \
    "--carpeta --help --version declaraciones declarantes"

paso "a piece of work"
datos=$casa/.local/share/ostrel
como_usuario ostrel declarante alta --dni A58818501 --nombre "Seguros del Valle" --domicilio Mayor --numero 12 \
    --codpos 20001 --codmun 1 --telefono 943000000
como_usuario ostrel declarar 430 --dni A58818501 --ejercicio 2026 --periodo 1 --base 125.000,50
como_usuario ostrel imprimir --dni A58818501 --modelo 430 --ejercicio 2026 --periodo 1 --pdf "$casa/430.pdf"
como_usuario ostrel copia
pdftotext "$casa/430.pdf" - | grep -q "10.000,04" || fallo "the amount on the form"
pdffonts "$casa/430.pdf" | grep -q Liberation || fallo "the faces of the form"
es "$(stat -c '%a %U' "$datos")" "700 $usuario"
es "$(cd "$datos" && ls Tablas backups | tr '\n' ' ')" "Tablas: OstrLec.mdb OstrMod.mdb  backups: OstrMod_bak.mdb "
lista="2026       ENERO    430     10.000,04"
es "$(como_usuario ostrel listar declaraciones --dni A58818501 | tail -1)" "$lista"
# the folder that the user names wins, and so does the one of the desktop
mkdir "$lugar/otra"
chown "$usuario" "$lugar/otra"
es "$(como_usuario ostrel listar declarantes --carpeta "$lugar/otra")" "No hay declarantes."
es "$(como_usuario env XDG_DATA_HOME="$casa/xdg/a" ostrel listar declarantes)" "No hay declarantes."
es "$(como_usuario env XDG_DATA_HOME=xdg ostrel listar declarantes | wc -l)" 2 # relative: as if it were not set
[ -f "$casa/xdg/a/ostrel/Tablas/OstrMod.mdb" ] || fallo "XDG_DATA_HOME"
# not beside the program either for one who may write there
es "$(HOME=$lugar/root ostrel listar declarantes)" "No hay declarantes."
[ -f "$lugar/root/.local/share/ostrel/Tablas/OstrMod.mdb" ] && [ ! -e /usr/bin/Tablas ] || fallo "root's folder"

paso "update over the user's data"
suma=$(sha256sum "$datos/Tablas/OstrMod.mdb")
dpkg-deb -R "$paquete" "$lugar/siguiente"
sed -i "s/^Version: .*/Version: $version-2/" "$lugar/siguiente/DEBIAN/control"
dpkg-deb --root-owner-group -b "$lugar/siguiente" "$lugar/siguiente.deb" >/dev/null
apt-get install -y -qq --no-install-recommends "$lugar/siguiente.deb" >/dev/null
es "$(dpkg-query -W -f='${Version}' ostrel)" "$version-2"
es "$(sha256sum "$datos/Tablas/OstrMod.mdb")" "$suma"
es "$(como_usuario ostrel listar declaraciones --dni A58818501 | tail -1)" "$lista"

paso "removal"
instalados=$(dpkg-query -L ostrel | while read -r f; do [ -d "$f" ] || echo "$f"; done)
apt-get purge -y -qq ostrel >/dev/null
for fichero in $instalados; do
    [ ! -e "$fichero" ] || fallo "$fichero was left behind"
done
es "$(sha256sum "$datos/Tablas/OstrMod.mdb")" "$suma"
paso "the package passed: $(basename "$paquete")"
