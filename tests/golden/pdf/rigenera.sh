#!/usr/bin/env bash
# Rebuilds the golden files of the PDF writer from the scenarios and checks
# them. With --larghezze the width tables too; that needs python3-fonttools and
# the packages fonts-liberation2 and fonts-urw-base35.
set -eu

cartella=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
cd -- "$cartella"

python="${PYTHON:-python3}"
export PYTHONDONTWRITEBYTECODE=1

if [ "${1:-}" = --larghezze ]; then
    "$python" estrai_larghezze.py
fi
"$python" suona.py copioni/*.json
"$python" controlla.py
