#!/usr/bin/env bash
# Builds all that needs no Qt for Windows and runs its tests there, under Wine: see "uso" below.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/pacchetti.sh

uso() {
    cat <<'FINE'
Uso: tools/windows.sh [--nuovo]
Compila per Windows a 64 bit, con il mingw-w64 di Debian, tutto ciò che non usa Qt (base, platform,
engine, pdf, reports, il comando taglie) e le sue prove; le esegue con il wine64 di Debian; prova il
comando, i suoi report e le risorse della finestra.

  --nuovo      ricomincia da una cartella vuota
  -h, --help   mostra questo aiuto

Installa i pacchetti che mancano (oltre un gigabyte; root o sudo). Tutto sta in build/windows.
Codici di uscita: 0 tutto bene, 1 qualcosa non va, 2 uso sbagliato.
FINE
}

radice=$PWD
cartella=$radice/build/windows
altrui=$cartella/altrui          # other people's libraries, for Windows
costruita=$cartella/scalvino
lavoro=$cartella/lavoro          # what the checks below write
strumenti=x86_64-w64-mingw32

case ${1-} in
    '') ;;
    --nuovo) rm -rf -- "$cartella" ;;
    -h | --help) uso; exit 0 ;;
    *) echo "windows: opzione sconosciuta: $1" >&2; uso >&2; exit 2 ;;
esac

inizio=$SECONDS
passo() { printf '\n==== %s (dopo %d s)\n' "$1" $((SECONDS - inizio)); }
fallisci() { echo "windows: $*" >&2; exit 1; }

# ---- Packages and libraries --------------------------------------------------------------------

installa_pacchetti cmake ninja-build g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine wine64 \
    googletest libcli11-dev nlohmann-json3-dev icoutils qpdf
mkdir -p -- "$cartella"
exec 9>"$cartella/blocco"
flock -n 9 || fallisci "un altro giro è in corso in $cartella"

configura() {
    cmake -S "$1" -B "$2" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$radice/cmake/mingw-w64.cmake" -DSCALVINO_ALTRUI="$altrui" "${@:3}"
}

# Made again when one of the packages they come from has changed.
versioni=$(dpkg-query -W g++-mingw-w64-x86-64-posix googletest libcli11-dev nlohmann-json3-dev)
if [ "$(cat "$altrui/versioni" 2>/dev/null)" != "$versioni" ]; then
    passo "le librerie altrui"
    rm -rf -- "$altrui" "$cartella/googletest"
    mkdir -p -- "$altrui/include" "$altrui/share/cmake"
    cp -R /usr/include/CLI /usr/include/nlohmann "$altrui/include/"
    cp -R /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$altrui/share/cmake/"
    configura /usr/src/googletest "$cartella/googletest" -DCMAKE_INSTALL_PREFIX="$altrui"
    cmake --build "$cartella/googletest"
    cmake --install "$cartella/googletest" >/dev/null
    printf '%s\n' "$versioni" >"$altrui/versioni"
fi

passo "compilo in $costruita"
configura . "$costruita" -DSCALVINO_UI=OFF -DSCALVINO_BENCH=OFF
cmake --build "$costruita"
taglie=$costruita/bin/taglie.exe

# The loader of a bare Windows must find all that they need.
for programma in "$taglie" "$costruita/tests/prove.exe"; do
    if "$strumenti-objdump" -p "$programma" | grep -iE 'DLL Name: (lib|zlib|.*pthread)'; then
        fallisci "$programma non è collegato staticamente"
    fi
done

# ---- Wine --------------------------------------------------------------------------------------

# A system of its own in the build folder: no display, no menu entries, none of the user's files.
unset DISPLAY WAYLAND_DISPLAY
export WINEPREFIX=$cartella/wine WINEDEBUG=-all HOME=$cartella/casa
export WINEDLLOVERRIDES='winemenubuilder.exe,mscoree,mshtml='
mkdir -p -- "$HOME" "$lavoro"
trap 'wineserver -k 2>/dev/null || true' EXIT
# At most so many seconds for one program.
con_wine() { timeout --signal=KILL 900 wine "$@" </dev/null; }

if [ ! -e "$WINEPREFIX/system.reg" ]; then
    passo "preparo wine"
    con_wine wineboot --init >/dev/null 2>&1
    wineserver -w
fi
versione=$(con_wine cmd /c ver | tr -d '\r\n')
echo "Wine risponde: $versione"

# ---- The tests ---------------------------------------------------------------------------------

# Tests in some sources. One that takes parameters counts once.
conta_prove() { cat -- "$@" | grep -cE '^TEST(_F|_P)?\(' || true; }

cartelle_prove=(base platform engine pdf reports cli)
sorgenti_prove=()
esclusi=()
for stanza in "${cartelle_prove[@]}"; do
    for sorgente in tests/"$stanza"/prova_*.cpp; do
        case $sorgente in
            *_posix.cpp) esclusi+=("$sorgente") ;;
            *) sorgenti_prove+=("$sorgente") ;;
        esac
    done
done

passate=0
# Runs one test program and adds what passed to "passate".
esegui_prove() {
    local registro=$lavoro/$1.log quante
    (cd "$lavoro" && con_wine "$costruita/tests/$2/$1.exe") >"$registro" 2>&1 || {
        grep -aE 'Failure|^\[  FAILED' -A 8 "$registro" | head -n 100 >&2 || tail -n 30 "$registro" >&2
        fallisci "$1: prove fallite, tutto in $registro"
    }
    quante=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) tests*\..*/\1/p' "$registro" | tr -d '\r')
    [ "${quante:-0}" -gt 0 ] || fallisci "$1: nessuna prova eseguita"
    if grep -a '^\[  SKIPPED \]' "$registro" | sort -u; then echo "(saltate, qui sopra)"; fi
    echo "$1: $quante prove passate"
    passate=$((passate + quante))
}

passo "le prove sotto wine"
esegui_prove prove .
esegui_prove prove_statistiche statistica
echo "Sorgenti delle prove di unità: $(conta_prove "${sorgenti_prove[@]}") prove eseguite di" \
    "$(conta_prove "${sorgenti_prove[@]}" "${esclusi[@]}"); solo per POSIX, non compilate:"
for sorgente in "${esclusi[@]}"; do
    printf '  %3d in %s\n' "$(conta_prove "$sorgente")" "$sorgente"
done

# ---- The command -------------------------------------------------------------------------------

# The path of a file of that system in this one's words.
percorso_qui() { con_wine winepath -u "$1" | tr -d '\r'; }
# shellcheck disable=SC2016  # the other system's variable
temp=$(con_wine cmd /c 'echo %TEMP%' | tr -d '\r')
temp_qui=$(percorso_qui "$temp")
# taglie.exe started in the temporary folder there; prints what it prints.
taglie_in_temp() { (cd "$temp_qui" && con_wine "$taglie" "$@" | tr -d '\r'); }

passo "taglie.exe"
report=$(taglie_in_temp 3)
qui=$(percorso_qui "$report")
echo "taglie 3: $report"
[ "$report" = "$temp\\taglie.txt" ] || fallisci "il report non è nella cartella temporanea $temp"
# The general statistics stand at the end and count three shoes.
LC_ALL=C grep -aq 'Statistiche generali' "$qui" || fallisci "$qui: mancano le statistiche"
[ "$(LC_ALL=C grep -ac 'Taglia [123]' "$qui")" -eq 3 ] || fallisci "$qui: non ha tre taglie"

pdf=$(taglie_in_temp 3 -f pdf)
echo "taglie 3 -f pdf: $pdf"
# Of all its documents qpdf says one thing, that Size counts one object too few: the writer's own rule.
qpdf --check "$(percorso_qui "$pdf")" >"$lavoro/qpdf.log" 2>&1 || [ $? -eq 3 ]
if grep '^WARNING' "$lavoro/qpdf.log" | grep -v 'is not one plus the highest object number'; then
    fallisci "$pdf: avvertimenti di qpdf, tutto in $lavoro/qpdf.log"
fi
qpdf "$(percorso_qui "$pdf")" "$lavoro/riscritto.pdf" 2>/dev/null || [ $? -eq 3 ]
qpdf --check "$lavoro/riscritto.pdf" | tail -n 1

# The kept reports, through the whole command: known shoes, names with accents and blanks.
strana="$lavoro/Niccolò e l'Été"
mkdir -p -- "$strana"
con_wine "$taglie" -q --mazzi tests/golden/dodici.mazzi --numeri it -c "$strana"
cmp "$strana/taglie.txt" tests/golden/dodici.it.pieno.txt
con_wine "$taglie" -q --mazzi tests/golden/dodici.mazzi --numeri it -s -f html -c "$strana"
cmp "$strana/taglie.htm" tests/golden/dodici.it.statistiche.htm
echo "I report conservati sono uguali byte a byte, anche in \"$strana\""

# ---- The resources of the window ---------------------------------------------------------------

passo "le risorse della finestra"
finestra=$costruita/tests/risorse_finestra.exe
con_wine "$finestra" resources/scalvino.htm
# Read back by a tool that is not ours.
for risorsa in "$finestra 23 101 1040 resources/scalvino.htm" \
    "$finestra 24 1 1040 resources/scalvino.manifest" "$taglie 24 1 1040 resources/taglie.manifest"; do
    read -r programma tipo nome lingua originale <<<"$risorsa"
    wrestool --extract --raw --type="$tipo" --name="$nome" --language="$lingua" \
        --output="$lavoro/risorsa" "$programma"
    cmp "$lavoro/risorsa" "$originale"
    echo "tipo $tipo, numero $nome, lingua $lingua: $(stat -c %s "$lavoro/risorsa") byte, $originale"
    rm -- "$lavoro/risorsa"
done
[ "$(stat -c %s resources/scalvino.htm)" -eq 12936 ] || fallisci "la guida non ha 12936 byte"
# An icon file is its picture after 22 bytes that the resource keeps elsewhere.
wrestool --extract --raw --type=3 --name=1 "$finestra" | cmp - <(tail -c +23 resources/scalvino.ico)

passo "fatto"
echo "$passate passed, 0 failed"
