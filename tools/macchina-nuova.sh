#!/usr/bin/env bash
# Proves that ./run.sh and ./test.sh set up a bare machine by themselves: see "uso" below.
set -euo pipefail
umask 022

uso() {
    cat <<'FINE'
Uso: tools/macchina-nuova.sh [OPZIONE]...
Prepara un albero Debian 12 minimo e vi esegue due volte "./run.sh 5" e due volte "./test.sh" su una
copia pulita dei sorgenti. La prima volta i due comandi devono installare e compilare da soli; la
seconda non devono né installare né compilare nulla. Alla fine "./run.sh" apre la finestra su uno
schermo virtuale, anch'esso due volte.

  --albero       i sorgenti come stanno nella cartella di lavoro (normale: il commit HEAD)
  --pulito       rifà l'albero di base anche se ce n'è già uno in serbo
  --senza-prove  solo ./run.sh
  --tieni        alla fine non cancella l'albero, per guardarci dentro
  -h, --help     mostra questo aiuto

Vuole i diritti di root e le fonti di apt di una Debian 12. Tutto sta in build/macchina-nuova: fino
a 4 GB mentre lavora; dopo restano l'albero di base compresso e i registri, meno di 150 MB.
Codici di uscita: 0 tutto bene, 1 qualcosa non va, 2 uso sbagliato, 130 o 143 interrotto.
FINE
}

di() { printf '%s\n' "$*"; }
errore() { printf 'macchina-nuova: %s\n' "$*" >&2; }
fallisci() { errore "$*"; exit 1; }

radice=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
. "$radice/tools/pacchetti.sh"

edizione=bookworm
copia=/root/scalvino               # the sources, as seen inside the tree
cartella=$radice/build/macchina-nuova
albero=$cartella/albero
disco_mega=4096                    # what the usage text promises
limite=5400                        # seconds for one command: a hang must end some time
portachiavi=/usr/share/keyrings/debian-archive-keyring.gpg

sorgenti=commit pulito=no prove=si tieni=no
for opzione in "$@"; do
    case $opzione in
        --albero) sorgenti=albero ;;
        --pulito) pulito=si ;;
        --senza-prove) prove=no ;;
        --tieni) tieni=si ;;
        -h | --help) uso; exit 0 ;;
        *) errore "opzione sconosciuta: $opzione"; uso >&2; exit 2 ;;
    esac
done
[ "$(id -u)" -eq 0 ] || fallisci "servono i diritti di root (chroot, debootstrap)"
# debootstrap does not quote its target.
[[ $albero != *[[:space:]]* ]] || fallisci "il percorso $radice ha spazi: debootstrap non li regge"

# ---- Cleaning up -------------------------------------------------------------------------------

# True where something is mounted at or below the directory $1. The kernel writes a blank in a path
# as \040, which %b turns back.
montato_sotto() {
    local punto
    while read -r _ _ _ _ punto _; do
        punto=$(printf '%b' "$punto")
        if [[ $punto == "$1" || $punto == "$1"/* ]]; then return 0; fi
    done </proc/self/mountinfo
    return 1
}

# Removes a directory of ours. Commands run in mount namespaces of their own, so nothing should be
# mounted below it here; whatever is, somebody else put there, and a removal would go through it.
elimina() {
    [ -e "$1" ] || return 0
    if montato_sotto "$1"; then
        errore "non cancello $1: vi è montato qualcosa"
        return 1
    fi
    rm -rf --one-file-system -- "$1"
}

figlio=
pulisci() {
    local esito=$?
    trap - EXIT
    trap '' INT TERM HUP
    if [ -n "$figlio" ]; then
        kill -KILL -- "-$figlio" 2>/dev/null || true
        wait "$figlio" 2>/dev/null || true
    fi
    [ "$tieni" = si ] && [ -d "$albero" ] && di "L'albero resta in $albero"
    if [ "$tieni" = no ]; then
        # A namespace dies a moment after its first process and may still write meanwhile.
        elimina "$albero" 2>/dev/null || { sleep 2; elimina "$albero"; } || esito=1
    fi
    rm -f -- "$cartella"/*.parziale
    exit "$esito"
}

# ---- Running commands --------------------------------------------------------------------------

legato=(setpriv --pdeathsig KILL)  # what is run so dies with the process that started it

# Runs a command with its output in the file $1, at most "limite" seconds. In the background, since
# the shell acts on a signal while it waits for a job but not while a foreground command runs.
esegui() {
    local registro=$1 esito=0
    shift
    "${legato[@]}" timeout --signal=KILL "$limite" "$@" </dev/null >"$registro" 2>&1 &
    figlio=$!
    wait "$figlio" || esito=$?
    figlio=
    return "$esito"
}

# The command gets mounts and process numbers of its own: whatever it mounts or leaves running ends
# with it, even if this script is killed.
isola=("${legato[@]}" unshare --mount --pid --fork --kill-child)
if ! "${isola[@]}" true 2>/dev/null; then
    di "Qui non si può montare: l'albero resta senza /proc, /sys e /dev/shm"
    isola=(env SENZA_MOUNT=si)
fi

# Run by bash with the tree and the command as arguments. The tree becomes the root of the namespace:
# inside a mere chroot, programs cannot make namespaces of their own as they can on a machine.
# shellcheck disable=SC2016
entra='
    set -e
    albero=$1
    shift
    if [ -n "${SENZA_MOUNT:-}" ]; then exec chroot "$albero" /usr/bin/env -i "$@"; fi
    mount --bind "$albero" "$albero"
    cd "$albero"
    mount -t proc proc proc
    mount -t sysfs -o ro sysfs sys
    mount -t devpts -o newinstance,ptmxmode=666,gid=5,mode=620 devpts dev/pts
    mount -t tmpfs -o mode=1777 tmpfs dev/shm
    pivot_root . .
    umount -l .
    cd /
    exec /usr/bin/env -i "$@"
'

# The environment inside: nothing of this machine's but the way to the mirror.
ambiente=(PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin HOME=/root TERM=dumb)
for nome in http_proxy https_proxy no_proxy; do
    if [ -n "${!nome:-}" ]; then ambiente+=("$nome=${!nome}"); fi
done

# nell_albero LOG COMMAND...: esegui, inside the tree and in the copy of the sources.
nell_albero() {
    local registro=$1
    shift
    esegui "$registro" "${isola[@]}" bash -c "$entra" entra "$albero" \
        --chdir="$copia" "${ambiente[@]}" "$@"
}

# ---- The tree ----------------------------------------------------------------------------------

# Lines "address suite component" of this machine's own Debian 12 sources, one-line style or not.
fonti_debian() {
    # shellcheck disable=SC2016  # apt's own fields, not the shell's
    apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' |
        awk -v e="$edizione" '$2 == e || index($2, e "-") == 1' | sort -u
}

# Makes the base tree and keeps it compressed in $1. It has no addresses of this machine's in use:
# those are written anew into every tree that is unpacked from it.
prepara_base() {
    local base=$1 specchio proxy='' opzioni=() comando
    specchio=$(awk -v e="$edizione" '$2 == e && $3 == "main" { print $1; exit }' <<<"$fonti")
    if [[ $specchio == https:* ]]; then opzioni=(--include=ca-certificates); fi

    # debootstrap does not read apt's configuration, only the environment.
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    comando=("${isola[@]}")
    if [ -n "$proxy" ] && [ "$proxy" != DIRECT ]; then
        comando+=(env "http_proxy=${http_proxy:-$proxy}")
    fi

    esegui "$cartella/debootstrap.log" "${comando[@]}" debootstrap --variant=minbase \
        --keyring="$portachiavi" "${opzioni[@]}" "$edizione" "$albero" "$specchio" || return 1
    rm -f -- "$albero"/var/cache/apt/archives/*.deb
    tar -C "$albero" --one-file-system --numeric-owner -czf "$base.parziale" . || return 1
    mv -- "$base.parziale" "$base"
}

# Lets apt in the tree reach the same mirror as here: sources, proxy, names, certificates.
collega_rete() {
    local ca='' apt=$albero/etc/apt nome
    awk '{ print "deb", $1, $2, $3 }' <<<"$fonti" >"$apt/sources.list"
    # Not the files of apt.conf.d: those also call programs that the tree does not have.
    apt-config dump --no-empty | grep -v '::CAInfo ' |
        grep -E '^Acquire::(https?|Retries|ForceIPv|Languages|Check-|Max-)' \
            >"$apt/apt.conf.d/99macchina-nuova" || true
    for nome in resolv.conf hosts; do
        if [ -e "/etc/$nome" ]; then cp -L --remove-destination "/etc/$nome" "$albero/etc/"; fi
    done
    if grep -q https: "$apt/sources.list"; then
        eval "$(apt-config shell ca Acquire::https::CAInfo)"
        install -D -m 644 "${ca:-/etc/ssl/certs/ca-certificates.crt}" \
            "$albero/etc/ssl/certs/ca-certificates.crt"
    fi
}

# A tree that has these already would prove nothing.
controlla_nudo() {
    local nome presenti=()
    for nome in sudo git g++ cc cmake ninja python3 localedef pkg-config xauth chromium; do
        if chroot "$albero" /bin/sh -c "command -v $nome" >/dev/null; then presenti+=("$nome"); fi
    done
    [ "${#presenti[@]}" -eq 0 ] || di "  nell'albero ci sono già: ${presenti[*]}"
    case " ${presenti[*]} " in
        *' g++ '* | *' cmake '* | *' ninja '* | *' python3 '*)
            fallisci "l'albero non è nudo: riprovare con --pulito" ;;
    esac
}

# Writes the sources as a tar stream. The repository may belong to the user whom root stands in for.
esporta_sorgenti() {
    local git=(git -c "safe.directory=$radice" -C "$radice")
    if [ "$sorgenti" = commit ]; then
        "${git[@]}" archive --format=tar HEAD
    else
        # A file deleted but not yet committed is still listed.
        "${git[@]}" ls-files -z --cached --others --exclude-standard |
            while IFS= read -r -d '' nome; do
                if [ -e "$radice/$nome" ] || [ -L "$radice/$nome" ]; then printf '%s\0' "$nome"; fi
            done | tar -C "$radice" --null --no-recursion -cf - -T -
    fi
}

# ---- The checks --------------------------------------------------------------------------------

guasti=0
guasto() {
    di "  NON VA: $*"
    guasti=$((guasti + 1))
}

# Sets "durata" to the seconds that a command took inside the tree; false if it failed.
durata=0
misura() {
    local inizio=$SECONDS esito=0 registro=$1
    nell_albero "$@" || esito=$?
    durata=$((SECONDS - inizio))
    if [ "$esito" -eq 0 ]; then return 0; fi
    guasto "finito con il codice $esito dopo $durata s; le ultime righe di $registro:"
    tail -n 30 "$registro" | sed 's/^/  | /'
    return 1
}

# The report is finished when the general statistics are there, count the five shoes, and its last
# line is the last of theirs. Compared as bytes: the report is Windows-1252.
controlla_report() {
    local report=$albero$copia/taglie.txt
    if [ ! -s "$report" ]; then
        guasto "manca il report taglie.txt"
    elif ! LC_ALL=C awk '
            { sub(/\r$/, "") }
            /Statistiche generali/ { generali = 1 }
            generali && /^Taglie:/ && $2 == "5" { cinque = 1 }
            NF > 0 { ultima = $1 " " $2 }
            END { exit !(generali && cinque && ultima == "Vincite Rosso-Inverso:") }
        ' "$report"; then
        guasto "taglie.txt non finisce con le statistiche generali di cinque taglie"
    fi
}

# Prints what ctest summed up, and the tests skipped inside a program that passed, which only its
# own log tells.
elenca_esiti() {
    local dettagli=$albero$copia/build/release/Testing/Temporary/LastTest.log
    {
        grep -aE '% tests passed|\((Skipped|Disabled|Not Run|Failed|Timeout)\)' "$1" || true
        if [ -e "$dettagli" ]; then grep -aE "\.\.\. skipped '|^\[  SKIPPED" "$dettagli" || true; fi
    } | sed 's/^/  | /'
}

# Runs a command of the project for the first and the second time. The second is judged by what it
# did, since the tests themselves may take longer than all the rest.
due_volte() {
    local nome=$1 prima=0 volta registro
    shift
    for volta in 1 2; do
        registro=$cartella/$nome-$volta.log
        rm -f -- "$albero$copia/taglie.txt"
        if misura "$registro" "$@"; then di "  volta $volta: $durata s"; fi
        case $nome in
            run) controlla_report ;;
            test) elenca_esiti "$registro" ;;
        esac
        if [ "$volta" = 1 ]; then prima=$durata; fi
    done
    if grep -aqE 'Pacchetti: installo|\] (Building|Linking)' "$registro"; then
        guasto "$nome ha installato o compilato di nuovo la seconda volta: $registro"
    fi
    if [ "$durata" -ge "$prima" ]; then
        guasto "$nome non è più svelto la seconda volta: $prima s, poi $durata s"
    fi
}

# ./run.sh where there is a display: the window must show, and a polite request must end it with 0.
# Run by bash inside the tree. What ./test.sh has installed there shows it. Xvfb takes a free number
# and tells it once it answers; it is gone before this ends.
# shellcheck disable=SC2016
mostra_finestra='
    set -e
    canale=$(mktemp -d)/numero
    mkfifo "$canale"
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$canale" &
    schermo=$!
    trap "kill $schermo; wait $schermo || true" EXIT
    read -r numero <"$canale"
    rm -r "${canale%/*}"
    export DISPLAY=:$numero
    ./run.sh &
    avvio=$!
    until xdotool search --onlyvisible --name "^Scalvino$"; do
        kill -0 "$avvio"
        sleep 0.2
    done
    kill -TERM "$avvio"
    wait "$avvio"
'

# ---- What is done ------------------------------------------------------------------------------

installa_pacchetti debootstrap debian-archive-keyring git
mkdir -p -- "$cartella"
exec 9>"$cartella/blocco"
flock -n 9 || fallisci "un altro giro è in corso in $cartella"
trap pulisci EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

elimina "$albero"
liberi=$(df --output=avail -B 1M -- "$cartella" | tail -n 1)
[ "$liberi" -ge "$disco_mega" ] ||
    fallisci "servono $disco_mega MB liberi in $cartella, ce ne sono $((liberi))"

fonti=$(fonti_debian)
if [ -z "$fonti" ]; then
    apt-get -q update
    fonti=$(fonti_debian)
fi
grep -q " $edizione main\$" <<<"$fonti" ||
    fallisci "nelle fonti di apt di questa macchina non c'è Debian 12 ($edizione, main)"

base=$cartella/$edizione-$(dpkg --print-architecture).tar.gz
if [ "$pulito" = si ]; then rm -f -- "$base"; fi
if [ -e "$base" ]; then
    di "Albero di base: quello del $(date -r "$base" +%d/%m/%Y)"
else
    di "Albero di base: lo preparo con debootstrap"
    inizio=$SECONDS
    prepara_base "$base" || {
        tail -n 20 "$cartella/debootstrap.log" | sed 's/^/  | /'
        fallisci "debootstrap non è riuscito: $cartella/debootstrap.log"
    }
    di "  fatto in $((SECONDS - inizio)) s"
    elimina "$albero"
fi
mkdir -p -- "$albero"
tar -C "$albero" --numeric-owner -xzpf "$base"
collega_rete
controlla_nudo

di "Sorgenti: $sorgenti"
mkdir -p -- "$albero$copia"
esporta_sorgenti | tar -C "$albero$copia" --no-same-owner -xf -

di "./run.sh 5"
due_volte run ./run.sh 5
if [ "$prove" = si ]; then
    di "./test.sh"
    due_volte test ./test.sh
    di "./run.sh con uno schermo"
    due_volte finestra bash -c "$mostra_finestra"
fi

di "Occupati dall'albero: $(du -sm -- "$albero" | cut -f 1) MB"
if [ "$guasti" -gt 0 ]; then fallisci "controlli falliti: $guasti"; fi
di "Tutto bene."
