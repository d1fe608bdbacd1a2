#!/usr/bin/env bash
# The quick check before a commit: see "uso" below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

uso() {
    cat <<'FINE'
Uso: tools/prova-svelta.sh
Compila ciò che è cambiato in build/release, poi controlla il formato dei sorgenti, la struttura della
casa e le prove unitarie, con quelle della finestra: dopo una compilazione, meno di due minuti su due
processori. Serve che ./test.sh sia già stato eseguito una volta; per il formato, clang-format-14.
FINE
}

case ${1:-} in
    '') ;;
    -h | --help) uso; exit 0 ;;
    *) echo "prova-svelta: non prende argomenti: $1" >&2; uso >&2; exit 2 ;;
esac

tools/controlla.sh formato
cmake --build --preset release --target prove prove_finestra taglie
ctest --preset release --parallel "$(nproc)" -R '^(struttura|sorgenti|prove_[0-9]+|finestra_C)$'
