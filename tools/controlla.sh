#!/usr/bin/env bash
# Static checks: see "uso" below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

uso() {
    cat <<'FINE'
Uso: tools/controlla.sh [formato | lint [FILE]...]
Controlla i sorgenti senza eseguire nulla; senza argomenti fa tutto.

  formato  clang-format su tutti i sorgenti, shellcheck (se c'è) su tutti gli script: pochi secondi
  lint     clang-tidy sui FILE, o su tutto il codice del prodotto: minuti

clang-tidy legge da build/release come si compila: se manca, questo script la configura.
FINE
}

# With the suffix where there is one: a bare system has nothing else.
scegli() { command -v "$1-14" || command -v "$1"; }

formato() {
    echo "clang-format"
    git ls-files '*.cpp' '*.h' | xargs "$(scegli clang-format)" --dry-run --Werror
    if command -v shellcheck >/dev/null; then
        echo "shellcheck"
        git ls-files '*.sh' .ci/run | xargs shellcheck -x -e SC1091
    fi
}

# What is built for Windows alone has no compile commands here.
file_del_prodotto() {
    git ls-files {base,platform,engine,pdf,reports,cli,ui}/'*.cpp' | grep -v '_windows\.cpp$'
}

lint() {
    echo "clang-tidy"
    [ -e build/release/compile_commands.json ] || cmake --preset release
    # Without what only g++ knows.
    local comandi=build/lint
    mkdir -p "$comandi"
    sed 's/ -fno-gnu-unique//' build/release/compile_commands.json >"$comandi/compile_commands.json"
    if [ $# -gt 0 ]; then printf '%s\n' "$@"; else file_del_prodotto; fi |
        xargs -P "$(nproc)" -n 4 "$(scegli clang-tidy)" -p "$comandi" --quiet \
            --extra-arg=-Wno-unknown-warning-option
}

case ${1:-} in
    '') formato; lint ;;
    formato) formato ;;
    lint) shift; lint "$@" ;;
    -h | --help) uso ;;
    *) echo "controlla: non è un controllo: $1" >&2; uso >&2; exit 2 ;;
esac
