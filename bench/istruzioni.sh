#!/usr/bin/env bash
# Instructions that one shoe costs, and the writing of a PDF report of 20 shoes dealt before in each of
# its forms, with its size; counted by callgrind: the same numbers on any busy machine.
#
#   bench/istruzioni.sh [build folder]
set -euo pipefail
radice=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
banchi=${1:-$radice/build/release}/bench

conta() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$@" 2>&1 |
        sed -n 's/.*Collected : \([0-9]*\).*/\1/p; s/^byte //p'
}

# What the 20-shoe report costs and takes with the argument for bench_pdf that follows.
riga_pdf() {
    local numeri
    numeri=$(conta --collect-atstart=no --toggle-collect=ScriviReportPdf \
        "$banchi/bench_pdf" --istruzioni 20 "$@")
    echo "${numeri##*$'\n'} istruzioni, ${numeri%%$'\n'*} byte"
}

pochi=$(conta "$banchi/bench_taglie" --istruzioni 100)
molti=$(conta "$banchi/bench_taglie" --istruzioni 600)
echo "istruzioni per taglia: $(((molti - pochi) / 500))"
echo "un report PDF di 20 taglie: $(riga_pdf)"
echo "  con i caratteri unici: $(riga_pdf u)"
for livello in 1 3 6 9; do
    echo "  conforme, compresso a $livello: $(riga_pdf "$livello")"
done
