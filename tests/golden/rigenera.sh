#!/usr/bin/env bash
# Rebuilds every golden file of this folder: the shoe files, the records and
# the reports, and those of the PDF writer in pdf/.  Then checks the blocks
# written by hand against the reports.
set -eu

cartella=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
cd -- "$cartella"

python="${PYTHON:-python3}"
export PYTHONDONTWRITEBYTECODE=1

# separatori KIND: sets the decimal and the thousands mark
separatori() {
    case "$1" in
        it)   decimali=','; migliaia='.' ;;
        c)    decimali='.'; migliaia='' ;;
        nbsp) decimali=','; migliaia='nbsp' ;;
        *)    echo "rigenera.sh: tipo sconosciuto: $1" >&2; exit 1 ;;
    esac
}

# report SHOES KIND FORM EXTENT: one report file
report() {
    local nome=$1 tipo=$2 forma=$3 parte=$4 estensione=$3
    local opzioni=()
    separatori "$tipo"
    if [ "$forma" = html ]; then estensione=htm; fi
    if [ "$parte" = statistiche ]; then opzioni=(--statistiche); fi
    "$python" riferimento.py --mazzi "$nome.mazzi" --forma "$forma" \
        ${opzioni[@]+"${opzioni[@]}"} \
        --decimali "$decimali" --migliaia "$migliaia" \
        --uscita "$nome.$tipo.$parte.$estensione"
}

# tutti SHOES KIND: the four reports
tutti() {
    report "$1" "$2" txt pieno
    report "$1" "$2" txt statistiche
    report "$1" "$2" html pieno
    report "$1" "$2" html statistiche
}

# report_pdf SHOES KIND PART: one PDF report
report_pdf() {
    local nome=$1 tipo=$2 parte=$3
    local opzioni=()
    separatori "$tipo"
    case "$parte" in
        statistiche) opzioni=(--statistiche) ;;
        unici)       opzioni=(--caratteri-unici) ;;
    esac
    "$python" riferimento_pdf.py --mazzi "$nome.mazzi" \
        ${opzioni[@]+"${opzioni[@]}"} \
        --decimali "$decimali" --migliaia "$migliaia" \
        --uscita "$nome.$tipo.$parte.pdf"
}

"$python" costruisci_mazzi.py "$cartella"

for nome in uno_trentuno uno_liscio tre otto dodici; do
    "$python" riferimento.py --mazzi "$nome.mazzi" --forma colpi --uscita "$nome.colpi"
done

tutti uno_trentuno it
tutti uno_liscio c
tutti tre nbsp
tutti otto it
tutti dodici it
for tipo in c nbsp; do
    report dodici "$tipo" txt pieno
    report dodici "$tipo" txt statistiche
    report dodici "$tipo" html statistiche
done

# Full PDF reports only of few shoes: one of twelve is 2.5 MB.
report_pdf uno_trentuno it pieno
report_pdf uno_trentuno it unici
report_pdf uno_liscio c pieno
report_pdf uno_liscio c statistiche
report_pdf tre nbsp pieno
report_pdf tre nbsp statistiche
report_pdf dodici it statistiche
report_pdf dodici nbsp statistiche

"$python" controlla_a_mano.py
./pdf/rigenera.sh
"$python" pdf/controlla.py ./*.pdf
