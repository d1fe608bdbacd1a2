#!/usr/bin/env bash
# Endurance at full size: 1,000 random documents, 1,000 conforming and 200 compressed or streamed
# ones, and the PDF reports of 200 random runs before four foreign readers, 10 million shoes, 1,000
# reports of each form, 200 games in the window, one run of each kind under valgrind, 200 hits of each
# signal and form, and every request for memory failing in every form. Takes an hour on two idle
# cores, most of it for the reports, whose many fonts keep the readers busy; a part of it by its name.
#
#   tools/resistenza.sh [documenti|conformi|aperti|report|durata|perdite|segnali|memoria]...
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/pacchetti.sh

installa_pacchetti valgrind qpdf mupdf-tools poppler-utils ghostscript fonts-liberation2 \
    fonts-dejavu-core xvfb openbox xdotool wmctrl imagemagick x11-utils
cmake --preset release
cmake --build --preset release --target taglie scalvino documenti corse partite galleria \
    locali memoria_finita

esegui() {
    printf '\n==== %s\n' "$*"
    PYTHONDONTWRITEBYTECODE=1 python3 tests/resistenza/resistenza.py "$@"
}
[ $# -gt 0 ] || set -- documenti conformi aperti report durata perdite segnali memoria
for parte in "$@"; do
    case $parte in
        documenti) esegui documenti --quanti 1000 --almeno 200 ;;
        conformi) esegui documenti --quanti 1000 --almeno 200 --maniera conformi ;;
        aperti) esegui documenti --quanti 200 --almeno 30 --maniera aperti ;;
        report) esegui report --corse 200 ;;
        durata) esegui durata --taglie 10000000 --corse 1000 --processi 1000 --partite 200 --schermo 10 ;;
        perdite) esegui perdite ;;
        segnali) COLPI=200 ctest --preset release -V -R '^comando_segnali$' ;;
        memoria) TUTTE=1 ctest --preset release -V -R '^comando_memoria_finita$' ;;
        *) echo "tools/resistenza.sh: parte ignota: $parte" >&2; exit 2 ;;
    esac
done
