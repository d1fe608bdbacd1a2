# shellcheck shell=bash
# Installs Debian packages that are missing. Sourced by the scripts that need some.
#
# installa_pacchetti NAME...: prints what it does on standard error; asks for no password where
# everything is there already. Root needs no sudo.
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
