#!/usr/bin/env bash
# Instructions that one shoe costs, counted by callgrind: the same number on any busy machine.
#
#   bench/istruzioni.sh [build folder]
set -euo pipefail
radice=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
programma=${1:-$radice/build/release}/bench/bench_taglie

conta() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$programma" --istruzioni "$1" 2>&1 |
        sed -n 's/.*Collected : \([0-9]*\).*/\1/p'
}

pochi=$(conta 100)
molti=$(conta 600)
echo "istruzioni per taglia: $(((molti - pochi) / 500))"
