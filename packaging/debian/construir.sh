#!/usr/bin/env bash
# Builds the Debian package into build/release/paquetes: packaging/debian/construir.sh
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/preparar.sh
# shellcheck disable=SC2086
instalar $paquetes_construir dpkg-dev

# the same commit gives the same dates
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
umask 022
cmake --preset release >/dev/null
cmake --build --preset release --target ostrel alrededor -- --quiet
rm -rf build/release/paquetes
# packs what was built; the tests were not
cpack --config build/release/CPackConfig.cmake -B build/release/paquetes
rm -rf build/release/paquetes/_CPack_Packages
ls build/release/paquetes/*.deb
