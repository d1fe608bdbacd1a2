#!/usr/bin/env bash
# Draws all pictures of the manual and of the README again and writes the sources of the examples
# into the manual. Look at the pictures before you commit them.
#
#   docs/rigenera.sh BUILD     a build folder with the window, for example build/release
set -euo pipefail
export PYTHONDONTWRITEBYTECODE=1
docs=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
costruiti=$(cd "$1" && pwd)
font=/usr/share/fonts/truetype/liberation2
lavoro=$(mktemp -d)
trap 'rm -rf "$lavoro"' EXIT
cd "$lavoro"

for esempio in "$docs"/esempi/*.cpp; do
    nome=$(basename "$esempio" .cpp)
    case $nome in
    figure) altro=("$docs/figure") ;;
    font_propri) altro=("$font/LiberationSerif-BoldItalic.ttf") ;;
    *) altro=() ;;
    esac
    # One of them shows on purpose what a missing picture gives.
    case $nome in
    risposta) "$costruiti/docs/esempi/$nome" | LC_ALL=C sed '1,/^\r$/d' >"$nome.pdf" ;;
    tubo) "$costruiti/docs/esempi/$nome" >"$nome.pdf" ;;
    *) "$costruiti/docs/esempi/$nome" "$nome.pdf" "${altro[@]}" >/dev/null ;;
    esac
done
"$costruiti/docs/gallery/galleria" galleria.pdf "$docs/figure" \
    "$font/LiberationSerif-BoldItalic.ttf" "$font/LiberationMono-Regular.ttf"
"$costruiti/bin/taglie" 1 --forma pdf --seme 1 --numeri it >/dev/null
mv taglie.pdf taglie-pdf.pdf
"$costruiti/bin/taglie" 100000 --forma pdf --statistiche --seme 1 --numeri it >/dev/null
mv taglie.pdf taglie-pdf-statistiche.pdf
"$costruiti/bin/taglie" 3 --forma html --seme 1 --numeri it >/dev/null

/usr/bin/python3 "$docs/disegna_immagini.py" "$docs/immagini" ./*.pdf
/usr/bin/python3 "$docs/disegna_schermate.py" "$docs/immagini" "$costruiti" taglie.htm
/usr/bin/python3 "$docs/blocchi.py"
