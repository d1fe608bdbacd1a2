#!/usr/bin/env bash
# Instructions that one shoe costs, and the writing of a PDF report of 20 shoes dealt before, counted
# by callgrind: the same numbers on any busy machine.
#
#   bench/istruzioni.sh [build folder]
set -euo pipefail
radice=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
banchi=${1:-$radice/build/release}/bench

conta() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$@" 2>&1 |
        sed -n 's/.*Collected : \([0-9]*\).*/\1/p'
}

conta_pdf() {
    conta --collect-atstart=no --toggle-collect=ScriviReportPdf "$banchi/bench_pdf" --istruzioni "$@"
}

pochi=$(conta "$banchi/bench_taglie" --istruzioni 100)
molti=$(conta "$banchi/bench_taglie" --istruzioni 600)
echo "istruzioni per taglia: $(((molti - pochi) / 500))"
echo "istruzioni per un report PDF di 20 taglie: $(conta_pdf 20)"
echo "  con i caratteri unici: $(conta_pdf 20 u)"
