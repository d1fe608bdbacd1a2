#!/usr/bin/env bash
# Installs what the tests need, builds everything and runs all tests.
#
#   ./test.sh [arguments for ctest]
#   ./test.sh -C Lunghe     also the tests that take too long each time; CI does this
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/pacchetti.sh

installa_per_provare
echo "Compilo in $PWD/build/release"
cmake --preset release
cmake --build --preset release
echo "Eseguo le prove"
esito=0
# One more than there are processors: the tests with a display, which take turns, mostly wait.
ctest --preset release --parallel "$(($(nproc) + 1))" "$@" || esito=$?

# ctest counts programs. How many tests they hold, and which of these were skipped inside a program
# that passed, stands only in its log.
registro=build/release/Testing/Temporary/LastTest.log
awk '/^\[=+\] [0-9]+ tests? from .* ran\./ || /^Ran [0-9]+ tests? in / { n += $2 }
    END { print "Prove eseguite dentro i programmi: " n + 0 }' "$registro"
saltate=$(grep -aE "\.\.\. skipped '|^\[  SKIPPED \] .* \([0-9]+ ms\)$" "$registro" || true)
echo "Prove saltate dentro altre: $(grep -c . <<<"$saltate" || true)"
[ -z "$saltate" ] || echo "$saltate"
exit "$esito"
