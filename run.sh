#!/usr/bin/env bash
# Builds the programs and starts the main job.
#
#   ./run.sh ARGUMENTS   the command "taglie" with these arguments (./run.sh --help tells them)
#   ./run.sh             the window where there is a display, otherwise five shoes into a report
#
# Installs what is missing (Debian packages; root or sudo). What it does goes to standard error, so
# that standard output is the program's own.
set -euo pipefail
radice=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$radice/tools/pacchetti.sh"

# The window needs Qt, which a machine without a display is spared.
finestra_si=OFF
pacchetti=(g++ cmake ninja-build zlib1g-dev libcli11-dev nlohmann-json3-dev)
if [ $# -eq 0 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    finestra_si=ON
    pacchetti+=(qt6-base-dev qt6-svg-dev qt6-translations-l10n qt6-wayland
        fonts-liberation2 fonts-dejavu-core xdg-utils)
fi
installa_pacchetti "${pacchetti[@]}"
echo "Compilo in $radice/build/run" >&2
(
    cd "$radice"
    cmake --preset run -DSCALVINO_UI=$finestra_si
    cmake --build --preset run
) >&2

finestra=$radice/build/run/bin/scalvino
taglie=$radice/build/run/bin/taglie
if [ $# -gt 0 ]; then
    echo "Avvio: taglie $*" >&2
    exec "$taglie" "$@"
fi
if [ "$finestra_si" = ON ]; then
    echo "Avvio la finestra" >&2
    exec "$finestra"
fi
echo "Nessuno schermo: simulo 5 taglie nel report di testo" >&2
exec "$taglie" 5
