# Sourced by the scripts that make and try the packages: the version, and words for what is done and found.

version=$(sed -n 's/^project(ostrel VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

paso() { echo "== $*"; }
al_fallar() { :; } # what else a failure does; whoever sources this may say it anew
fallo() {
    al_fallar || true
    echo "FAILED: $*" >&2
    exit 1
}
es() { # WHAT IS EXPECTED
    [ "$1" = "$2" ] || fallo "«$1» instead of «$2»"
}
