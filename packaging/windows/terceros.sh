#!/usr/bin/env bash
# Builds for Windows, once, what the program links: Qt, SQLite and SQLiteCpp, each from the source of Debian's own
# package of the version that the Linux build uses. packaging/windows/terceros.sh FOLDER
set -euo pipefail
aqui=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$1"
cd "$1"
raiz=$PWD

# The machine's own sources of packages, same mirror and same key, asked for sources instead: in a file of ours,
# so that nothing of the machine's set-up changes.
preparar_fuentes() {
    [ -f apt/listo ] && return
    rm -rf apt
    mkdir -p apt/partes apt/listas/partial
    local fichero
    for fichero in /etc/apt/sources.list.d/*.sources; do
        [ -f "$fichero" ] && sed 's/^Types:.*/Types: deb-src/' "$fichero" > "apt/partes/$(basename "$fichero")"
    done
    for fichero in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -f "$fichero" ] && sed -n 's/^deb /deb-src /p' "$fichero" > "apt/partes/$(basename "$fichero" .list).list"
    done
    apt_propio update -qq
    touch apt/listo
}

apt_propio() {
    apt-get -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$raiz/apt/partes" \
        -o Dir::State::Lists="$raiz/apt/listas" -o Dir::Cache::srcpkgcache="" -o Dir::Cache::pkgcache="" "$@"
}

# fuente PACKAGE FOLDER: the source that the installed PACKAGE was built from, Debian's patches applied
fuente() {
    [ -f "$2/.listo" ] && return
    preparar_fuentes
    rm -rf "$2" "descarga-$2"
    mkdir "descarga-$2"
    # shellcheck disable=SC2016
    local pedida
    pedida=$(dpkg-query -W -f='${source:Package}=${source:Version}' "$1")
    (cd "descarga-$2" && apt_propio source -qq "$pedida" > ../fuente.log 2>&1) || { cat fuente.log >&2; exit 1; }
    mv "descarga-$2"/*/ "$2"
    rm -rf "descarga-$2"
    touch "$2/.listo"
}

hacer_qt() {
    [ -f qt/.listo ] && return
    fuente qt6-base-dev fuente-qt
    local modulos=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake
    # direct2d stays on: without it the font database does not link
    cmake -G Ninja -S fuente-qt -B obra-qt -DCMAKE_TOOLCHAIN_FILE="$aqui/mingw64.cmake" \
        -DCMAKE_INSTALL_PREFIX="$raiz/qt" -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$modulos" -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DFEATURE_pkg_config=OFF \
        -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_dbus=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF \
        -DFEATURE_tabletevent=OFF -DFEATURE_zstd=OFF -DFEATURE_brotli=OFF -DFEATURE_gssapi=OFF \
        -DFEATURE_libproxy=OFF -DFEATURE_openssl=OFF -DFEATURE_schannel=ON \
        -DFEATURE_system_zlib=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF \
        -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_pcre2=OFF \
        -DFEATURE_system_doubleconversion=OFF -DFEATURE_sql=OFF > qt.log
    cmake --build obra-qt >> qt.log
    cmake --install obra-qt >> qt.log
    cp -r fuente-qt/LICENSES qt/
    touch qt/.listo
    rm -rf obra-qt fuente-qt
}

# Debian's source has SQLite's parts; put together into one file they are what every program compiles in.
hacer_sqlite() {
    [ -f sqlite/.listo ] && return
    fuente libsqlite3-dev fuente-sqlite
    rm -rf obra-sqlite sqlite
    mkdir -p obra-sqlite sqlite/include sqlite/lib
    (cd obra-sqlite && ../fuente-sqlite/configure --disable-tcl && make sqlite3.c) > sqlite.log 2>&1
    x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA \
        -c obra-sqlite/sqlite3.c -o obra-sqlite/sqlite3.o
    x86_64-w64-mingw32-ar rcs sqlite/lib/libsqlite3.a obra-sqlite/sqlite3.o
    cp obra-sqlite/sqlite3.h sqlite/include/
    cp fuente-sqlite/LICENSE.md sqlite/
    touch sqlite/.listo
    rm -rf obra-sqlite fuente-sqlite
}

hacer_sqlitecpp() {
    [ -f sqlitecpp/.listo ] && return
    fuente libsqlitecpp-dev fuente-sqlitecpp
    cmake -G Ninja -S fuente-sqlitecpp -B obra-sqlitecpp -DCMAKE_TOOLCHAIN_FILE="$aqui/mingw64.cmake" \
        -DCMAKE_INSTALL_PREFIX="$raiz/sqlitecpp" -DCMAKE_BUILD_TYPE=Release -DSQLITECPP_INTERNAL_SQLITE=OFF \
        -DSQLITECPP_RUN_CPPLINT=OFF -DSQLITECPP_RUN_CPPCHECK=OFF \
        -DSQLite3_INCLUDE_DIR="$raiz/sqlite/include" -DSQLite3_LIBRARY="$raiz/sqlite/lib/libsqlite3.a" > sqlitecpp.log
    cmake --build obra-sqlitecpp >> sqlitecpp.log
    cmake --install obra-sqlitecpp >> sqlitecpp.log
    cp fuente-sqlitecpp/LICENSE.txt sqlitecpp/
    touch sqlitecpp/.listo
    rm -rf obra-sqlitecpp fuente-sqlitecpp
}

hacer_qt
hacer_sqlite
hacer_sqlitecpp
