#!/usr/bin/env bash
# Static checks: layout of the sources (clang-format) and clang-tidy over the product code.
# Needs the build folder build/release for its compile commands.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# With the suffix where there is one: a bare system has nothing else.
scegli() { command -v "$1-14" || command -v "$1"; }
formato=$(scegli clang-format)
lint=$(scegli clang-tidy)

echo "clang-format"
git ls-files '*.cpp' '*.h' | xargs "$formato" --dry-run --Werror

echo "clang-tidy"
git ls-files 'base/*.cpp' 'platform/*.cpp' 'engine/*.cpp' 'pdf/*.cpp' 'reports/*.cpp' 'cli/*.cpp' 'ui/*.cpp' |
    grep -v '_windows\.cpp$' |
    xargs -P "$(nproc)" -n 4 "$lint" -p build/release --quiet --extra-arg=-Wno-unknown-warning-option

if command -v shellcheck >/dev/null; then
    echo "shellcheck"
    git ls-files '*.sh' .ci/run | xargs shellcheck -x -e SC1091
fi
