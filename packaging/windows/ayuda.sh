#!/usr/bin/env bash
# The help for the system's viewer, out of the same topics: packaging/windows/ayuda.sh FOLDER leaves there Ayuda.chm
# (Castilian) and Laguntza.chm (Basque). Contents are those of the contents page, the index the topics' key words.
set -euo pipefail
temas=$(cd "$(dirname "$0")/../../src/resources/ayuda" && pwd)
mkdir -p "$1"
destino=$(cd "$1" && pwd)
obra=$(mktemp -d)
trap 'rm -rf "$obra"' EXIT

# the viewer takes everything in the code page of the language
de_windows() { iconv -f UTF-8 -t WINDOWS-1252; }

sitemap() { # stdin: lines "text TAB topic" (a line without a topic opens a chapter)
    echo '<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN"><HTML><HEAD></HEAD><BODY><UL>'
    awk -F'\t' '
        $2 == "" { if (abierto) print "</UL>"; print "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" $1 "\"></OBJECT><UL>"; abierto = 1; next }
        { print "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" $1 "\"><param name=\"Local\" value=\"" $2 "\"></OBJECT>" }
        END { if (abierto) print "</UL>" }'
    echo '</UL></BODY></HTML>'
}

titulo() { sed -n 's:.*<title>\(.*\)</title>.*:\1:p' "$1"; }

contenido() { # contents page
    printf '%s\t%s\n' "$(titulo "$1")" "$1"
    sed -n -e 's:.*<h2>\(.*\)</h2>.*:\1\t:p' -e 's:.*<li><a href="\([^"]*\)">\(.*\)</a></li>.*:\2\t\1:p' "$1"
}

indice() {
    local tema
    for tema in *.htm; do
        sed -n 's:.*name="keywords" content="\([^"]*\)".*:\1:p' "$tema" | sed 's/; /\n/g' | sed "s/\$/\t$tema/"
    done | LC_ALL=C.UTF-8 sort -f
}

compilar() { # folder of the topics, contents page, language number, file
    local carpeta=$obra/$1 tema
    mkdir "$carpeta"
    cd "$temas/$1"
    contenido "$2" | sitemap | de_windows > "$carpeta/contenido.hhc"
    indice | sitemap | de_windows > "$carpeta/indice.hhk"
    for tema in *.htm; do
        sed 's/<meta charset="utf-8">/<meta charset="windows-1252">/' "$tema" | de_windows > "$carpeta/$tema"
    done
    {
        printf '[OPTIONS]\nCompiled file=%s\nContents file=contenido.hhc\nIndex file=indice.hhk\n' "$4"
        printf 'Default topic=%s\nTitle=%s\nLanguage=%s\nFull-text search=Yes\n[FILES]\n' "$2" "$(titulo "$2")" "$3"
        ls -- *.htm
    } | de_windows > "$carpeta/proyecto.hhp"
    cd "$carpeta"
    chmcmd --no-html-scan proyecto.hhp > compilar.log 2>&1 || { cat compilar.log >&2; exit 1; }
    mv "$4" "$destino"
}

compilar c cap.htm 0x0c0a Ayuda.chm
compilar e kap.htm 0x042d Laguntza.chm
