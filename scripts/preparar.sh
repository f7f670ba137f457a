# Sourced by ./run, ./test and .ci/run: installs what is missing and builds. Nothing happens twice.

paquetes_construir="g++ cmake ninja-build qt6-base-dev libsqlitecpp-dev libsqlite3-dev fonts-liberation"
paquetes_probar="$paquetes_construir poppler-utils"

# instalar PACKAGE...: those that are not there yet, with sudo when not root.
instalar() {
    local falta=""
    for paquete in "$@"; do
        dpkg-query -W -f='${Status}' "$paquete" 2>/dev/null | grep -q 'install ok installed' || falta="$falta $paquete"
    done
    [ -z "$falta" ] && return 0
    local como=""
    [ "$(id -u)" -eq 0 ] || como="sudo"
    echo "Installing:$falta"
    $como apt-get update -qq
    # shellcheck disable=SC2086
    $como env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $falta >/dev/null
}

# construir PRESET [TARGET]: configures once, then lets the build tool decide.
construir() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1"
    cmake --build --preset "$1" --target "${2:-all}" -- --quiet
}
