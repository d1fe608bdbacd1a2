#!/usr/bin/env bash
# Builds the command for other processors and compares what it writes: see "uso" below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/pacchetti.sh

uso() {
    cat <<'FINE'
Uso: tools/processori.sh [--nuovo] [PROCESSORE]...
Compila taglie coi compilatori incrociati di Debian per altri processori (aarch64; s390x, che scrive i
numeri al contrario; i686, a 32 bit; senza nomi tutti e tre), lo esegue con l'emulatore qemu-user e
confronta: i report piccoli con quelli dorati, e taglie mescolate, record, dati e documenti con quelli
di questo processore.

  --nuovo      ricomincia da una cartella vuota
  -h, --help   mostra questo aiuto

Installa i pacchetti che mancano (root o sudo). Tutto sta in build/processori; non fa parte della CI.
Codici di uscita: 0 tutto bene, 1 qualcosa non va, 2 uso sbagliato.
FINE
}

radice=$PWD
cartella=$radice/build/processori
dorati=$radice/tests/golden

processori=()
for argomento in "$@"; do
    case $argomento in
        --nuovo) rm -rf -- "$cartella" ;;
        -h | --help) uso; exit 0 ;;
        aarch64 | s390x | i686) processori+=("$argomento") ;;
        *) echo "processori: né opzione né processore: $argomento" >&2; uso >&2; exit 2 ;;
    esac
done
[ "${#processori[@]}" -gt 0 ] || processori=(aarch64 s390x i686)

inizio=$SECONDS
passo() { printf '\n==== %s (dopo %d s)\n' "$1" $((SECONDS - inizio)); }
fallisci() { echo "processori: $*" >&2; exit 1; }

pacchetti=(cmake ninja-build g++ libcli11-dev nlohmann-json3-dev qemu-user)
for processore in "${processori[@]}"; do pacchetti+=("g++-$processore-linux-gnu"); done
installa_pacchetti "${pacchetti[@]}"
mkdir -p -- "$cartella"
exec 9>"$cartella/blocco"
flock -n 9 || fallisci "un altro giro è in corso in $cartella"

# compila PROCESSORE [OPTION]...: "qui" is this one. Without zlib, which Debian's cross compilers do
# not bring with them: what is compared here does not need it.
compila() {
    local dove=$cartella/$1
    shift
    if ! cmake -S . -B "$dove" -G Ninja -DCMAKE_BUILD_TYPE=Release -DSCALVINO_UI=OFF \
        -DSCALVINO_TESTS=OFF -DSCALVINO_BENCH=OFF -DSCALVINO_ZLIB=OFF "$@" >"$dove.log" ||
        ! cmake --build "$dove" --target taglie >>"$dove.log"; then
        tail -n 30 "$dove.log" >&2
        fallisci "non si compila: $dove.log"
    fi
}

# At most so many seconds for one run: a loop that never ends is one of the faults looked for.
esegui() { SOURCE_DATE_EPOCH=1767323045 LC_ALL=C timeout --signal=KILL 300 "$@" </dev/null; }

# What is asked of each processor beyond the golden files, in folder $1 with the command that follows.
# The seconds that the run took are its own.
racconta() {
    local dove=$1
    shift
    mkdir -p -- "$dove"
    esegui "$@" 300 --seme 5 --dati csv --salva-mazzi "$dove/mazzi" --colpi "$dove/colpi" -q |
        grep -v '^corsa,secondi,' >"$dove/dati.csv"
    esegui "$@" 3 --seme 6 --dati json -q | grep -v '"secondi"' >"$dove/dati.json"
    for forma in txt html pdf; do esegui "$@" 40 --seme 7 -f "$forma" -q -c "$dove"; done
}

# The golden reports, in folder $1 with the command that follows. Those with the user's separators
# would need a locale for that processor.
confronta_dorati() {
    local dove=$1 file nome genere quali estensione opzioni quanti=0
    shift
    for file in "$dorati"/*.it.*.* "$dorati"/*.c.*.*; do
        IFS=. read -r nome genere quali estensione <<<"${file##*/}"
        case $quali in
            pieno) opzioni=() ;;
            statistiche) opzioni=(-s) ;;
            unici) opzioni=(--caratteri-unici) ;;
        esac
        esegui "$@" --mazzi "$dorati/$nome.mazzi" -f "${estensione/htm/html}" --numeri "$genere" \
            "${opzioni[@]}" -q -c "$dove"
        cmp -- "$file" "$dove/taglie.$estensione" || fallisci "diverso: ${file##*/}"
        quanti=$((quanti + 1))
    done
    [ "$quanti" -ge 20 ] || fallisci "file dorati trovati: $quanti"
    echo "report uguali a quelli dorati: $quanti"
}

passo "questo processore: $(uname -m)"
lavoro=$(mktemp -d)
trap 'rm -rf -- "$lavoro"' EXIT
compila qui
racconta "$lavoro/qui" "$cartella/qui/bin/taglie"

for processore in "${processori[@]}"; do
    passo "$processore"
    compila "$processore" -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR="$processore" \
        -DCMAKE_CXX_COMPILER="$processore-linux-gnu-g++"
    comando=("qemu-${processore/i686/i386}" -L "/usr/$processore-linux-gnu"
        "$cartella/$processore/bin/taglie")
    mkdir -p -- "$lavoro/dorati"
    confronta_dorati "$lavoro/dorati" "${comando[@]}"
    racconta "$lavoro/$processore" "${comando[@]}"
    diff -r -- "$lavoro/qui" "$lavoro/$processore" ||
        fallisci "$processore scrive altro che questo processore"
    echo "taglie, record, dati e documenti come qui"
done
passo "Tutto bene"
