#!/usr/bin/env bash
# Makes the Debian packages scalvino, taglie, libclspdfcreator-dev and scalvino-doc of this tree, in
# build/pacchetti, and names them. Installs what it needs to build them, but none of them.
#
#   tools/pacchetti-debian.sh
#
# DEBFULLNAME and DEBEMAIL, where both are set, name who makes the packages.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/pacchetti.sh

installa_pacchetti g++ cmake ninja-build zlib1g-dev libcli11-dev nlohmann-json3-dev \
    qt6-base-dev qt6-svg-dev dpkg-dev file
opzioni=()
if [ -n "${DEBFULLNAME:-}" ] && [ -n "${DEBEMAIL:-}" ]; then
    opzioni=("-DSCALVINO_MANUTENTORE=$DEBFULLNAME <$DEBEMAIL>")
fi
echo "Compilo in $PWD/build/run" >&2
cmake --preset pacchetti "${opzioni[@]}" >&2
cmake --build --preset pacchetti >&2

# The files get the time of the release, so that packages of the same sources are the same.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(dpkg-parsechangelog -l packaging/debian/changelog -S Timestamp)}
export SOURCE_DATE_EPOCH
umask 022
rm -rf build/pacchetti
cpack --config build/run/CPackConfig.cmake -B "$PWD/build/pacchetti" >&2
rm -rf build/pacchetti/_CPack_Packages
ls build/pacchetti/*.deb
