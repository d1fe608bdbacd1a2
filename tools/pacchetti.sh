# shellcheck shell=bash
# Installs Debian packages that are missing. Sourced by the scripts that need some. What it does goes
# to standard error; it asks for no password where everything is there already. Root needs no sudo.

# installa_pacchetti NAME...
installa_pacchetti() {
    local mancanti=() nome
    for nome in "$@"; do
        dpkg-query -W -f='${Status}' "$nome" 2>/dev/null | grep -q '^install ok installed$' ||
            mancanti+=("$nome")
    done
    if [ "${#mancanti[@]}" -eq 0 ]; then
        echo "Pacchetti: ci sono tutti." >&2
        return 0
    fi
    echo "Pacchetti: installo ${mancanti[*]}" >&2
    local come_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            { echo "Servono i diritti di root (o sudo) per installare: ${mancanti[*]}" >&2; return 1; }
        come_root=(sudo)
    fi
    "${come_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get -q update >&2 &&
        "${come_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C \
            apt-get -q install -y --no-install-recommends "${mancanti[@]}" >&2
}

# All that compiling and running the tests needs.
installa_per_provare() {
    installa_pacchetti g++ cmake make ninja-build zlib1g-dev libcli11-dev nlohmann-json3-dev \
        libgtest-dev libgmock-dev libbenchmark-dev python3 locales chromium \
        qpdf poppler-utils mupdf-tools ghostscript fonts-liberation fonts-liberation2 fonts-urw-base35 \
        libtiff-dev python3-pil python3-fonttools python3-gi gir1.2-poppler-0.18 pkg-config zbar-tools \
        qt6-base-dev qt6-svg-dev qt6-translations-l10n qt6-gtk-platformtheme fonts-dejavu-core \
        xvfb openbox weston qt6-wayland xdotool wmctrl xclip imagemagick x11-utils doxygen tzdata \
        at-spi2-core dbus python3-pyatspi desktop-file-utils appstream man-db zsh fish
}
