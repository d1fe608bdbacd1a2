#!/usr/bin/env bash
# Measures the lines and branches of engine/ and pdf/ that the unit tests run, in a debug build of
# its own, and names what is left. Fails where a folder has less than the two numbers below.
#
# tools/copertura.py says what is counted.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/pacchetti.sh

albero=build/copertura

installa_pacchetti g++ cmake ninja-build zlib1g-dev libcli11-dev nlohmann-json3-dev libgtest-dev libgmock-dev \
    python3 locales fonts-liberation
cmake --preset copertura
cmake --build --preset copertura --target prove prove_guasti
find "$albero" -name '*.gcda' -delete
ctest --preset copertura --parallel "$(nproc)" -R '^(prove_[0-9]+|pdf_guasti)$'

python3 -B tools/copertura.py --righe 95 --rami 85 "$albero" engine pdf
