#!/usr/bin/env bash
# Installs what the tests need, builds everything and runs all tests.
#
#   ./test.sh [arguments for ctest]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/pacchetti.sh

installa_pacchetti g++ cmake ninja-build libcli11-dev nlohmann-json3-dev \
    libgtest-dev libgmock-dev libbenchmark-dev python3 locales chromium
echo "Compilo in $PWD/build/release"
cmake --preset release
cmake --build --preset release
echo "Eseguo le prove"
ctest --preset release --parallel "$(nproc)" "$@"
