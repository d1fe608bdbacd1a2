#!/usr/bin/env python3
"""Endurance of the writer, of the command and of the window; tools/resistenza.sh runs all of it.

    resistenza.py [OPTIONS] documenti [--quanti N] [--primo SEED] [--almeno N] [--maniera M]
    resistenza.py [OPTIONS] report [--corse N] [--seme SEED]
    resistenza.py [OPTIONS] durata [--taglie N] [--corse N] [--processi N] [--partite N] [--schermo N]
    resistenza.py [OPTIONS] perdite

documenti  random documents over all operations of the PDF writer (see documenti.cpp; --maniera as
           there: aperti, conformi), and
report     the PDF reports of random runs, before four foreign readers, of which two extract the text
durata     millions of shoes, thousands of reports and hundreds of games: memory flat, no file left
perdite    one run of each kind under valgrind

OPTIONS: --costruito FOLDER of the build, --fili N documents at a time, --sanificato for a build
with sanitizers. The numbers of durata that are not given are 0. Failing documents are kept in the build folder
(resistenza/). Exit code 0 when all is well, 1 when not.
"""

import argparse
import os
import random
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import letture
from letture import lettori

RADICE = Path(__file__).resolve().parents[2]
SEMI = RADICE / "tests/pdf/semi"
FONT = Path("/usr/share/fonts/truetype")
LIBERATION = [FONT / "liberation2/LiberationSerif-BoldItalic.ttf",
              FONT / "liberation2/LiberationMono-Regular.ttf"]

# As many documents are on the disk at the same time, and as many runs between two lines.
MANCIATA = 50

CRESCITA_MASSIMA = 1024  # KiB, more than any fluctuation
MEMORIA_MINIMA = 500     # KiB; less is a process that has not begun
POCHE_TAGLIE = 10_000

# In how many ways the same run is written as PDF.
DI_UN_REPORT = [[*statistiche, *quale] for statistiche in ([], ["-s"])
                for quale in ([], ["--caratteri-unici"], ["--compatto"])]

# What the usual documents, whose bytes stay, are made without.
SOLO_IN_ALTRE_MANIERE = {"Conforming", "Compress", "SetLanguage", "BeginDocTo", "AddFontData",
                         "DrawImageData"}

FORME = [["-f", forma, *altre] for forma, *altre in [
    ("txt",), ("html",), ("pdf",), ("pdf", "--caratteri-unici"), ("txt", "-s"), ("html", "-s"),
    ("pdf", "-s"), ("video", "-s")]]


class Guasto(Exception):
    """What is not as it must be."""


def pretendi(condizione, cosa):
    if not condizione:
        raise Guasto(cosa)


def fai(*comando, codice=0, **altro):
    esito = subprocess.run([str(parte) for parte in comando], capture_output=True, text=True,
                           check=False, **altro)
    pretendi(esito.returncode == codice, f"{comando}: {esito.returncode}: {esito.stderr[-2000:]}")
    return esito.stdout


def apritore(cartella):
    """An environment in which the desktop's handler opens nothing."""
    apri = Path(cartella) / "xdg-open"
    apri.write_text("#!/bin/sh\n")
    apri.chmod(0o755)
    return {**os.environ, "PATH": f"{cartella}:{os.environ['PATH']}"}


def racconta(cosa, inizio):
    print(f"{cosa} ({time.monotonic() - inizio:.0f} s)", flush=True)


# ---- Documents before foreign readers ------------------------------------------------------------

def operazioni():
    """The names of the public operations, from the header."""
    testata = (RADICE / "pdf/clsPDFCreator.h").read_text(encoding="utf-8")
    pubblica = re.sub(r"//.*", "", testata[testata.index("    void SetClock"):
                                           testata.index("private:")])
    return set(re.findall(r"^    (?:static )?[\w:]+ (\w+)\(", pubblica, re.MULTILINE))


def poche(conto, almeno, maniera=""):
    """The operations that were not called so often, and those that do not exist."""
    note = operazioni() - (set() if maniera else SOLO_IN_ALTRE_MANIERE)
    return sorted(n for n in note | set(conto) if n not in note or conto.get(n, 0) < almeno)


def esamina(cartella, conservati, fili):
    """Judges the folder's documents; keeps those refused. Returns how many there were and how many
    of them were refused."""
    percorsi = sorted(cartella.glob("*.pdf"))
    rifiutati = 0
    for giudizio in letture.giudica_tutti(percorsi, fili):
        if giudizio.difetti:
            rifiutati += 1
            print(lettori.riga(giudizio), flush=True)
            conservati.mkdir(parents=True, exist_ok=True)
            percorso = giudizio.documento.percorso
            (conservati / percorso.name).write_bytes(percorso.read_bytes())
    return len(percorsi), rifiutati


def documenti(scelte):
    inizio = time.monotonic()
    conto, visti, rifiutati = {}, 0, 0
    for primo in range(scelte.primo, scelte.primo + scelte.quanti, MANCIATA):
        quanti = min(MANCIATA, scelte.primo + scelte.quanti - primo)
        with tempfile.TemporaryDirectory(prefix="documenti.") as base:
            cartella = Path(base) / "pdf"
            cartella.mkdir()
            detto = fai(scelte.costruito / "tests/resistenza/documenti", cartella, primo, quanti,
                        SEMI, FONT, *scelte.maniera, env=apritore(base))
            for riga in detto.splitlines():
                nome, volte = riga.split()
                conto[nome] = conto.get(nome, 0) + int(volte)
            conformi = sum(lettori.apri(file).conforme for file in cartella.glob("*.pdf"))
            pretendi(conformi == (quanti if "conformi" in scelte.maniera else 0),
                     f"conformi: {conformi} di {quanti}")
            parte = esamina(cartella, scelte.conservati, scelte.fili)
            visti, rifiutati = visti + parte[0], rifiutati + parte[1]
    pretendi(visti == scelte.quanti, f"documenti: {visti} invece di {scelte.quanti}")
    print(" ".join(f"{nome} {volte}" for nome, volte in sorted(conto.items())))
    scarse = poche(conto, scelte.almeno, *scelte.maniera)
    racconta(f"documenti: {visti} (semi da {scelte.primo} a {scelte.primo + scelte.quanti - 1}), "
             f"rifiutati {rifiutati}; operazioni: {len(conto)}, la più rara "
             f"{min(conto.values())} volte", inizio)
    pretendi(not scarse, f"chiamate meno di {scelte.almeno} volte, o ignote: {scarse}")
    pretendi(rifiutati == 0, f"documenti rifiutati: {rifiutati}")


def report(scelte):
    inizio = time.monotonic()
    caso = random.Random(scelte.seme)
    visti, rifiutati, taglie = 0, 0, 0
    for corsa in range(scelte.corse):
        quante, seme = caso.randint(1, 20), caso.randrange(2**63)
        taglie += quante
        with tempfile.TemporaryDirectory(prefix="report.") as base:
            for altre in DI_UN_REPORT:
                fai(scelte.costruito / "bin/taglie", quante, "-f", "pdf", "-q", "--seme", seme,
                    *altre, cwd=base)
                nome = f"corsa_{corsa}_{quante}_{seme}{''.join(altre)}.pdf"
                (Path(base) / "taglie.pdf").rename(Path(base) / nome)
            parte = esamina(Path(base), scelte.conservati, scelte.fili)
            visti, rifiutati = visti + parte[0], rifiutati + parte[1]
        if (corsa + 1) % MANCIATA == 0:
            racconta(f"fin qui {corsa + 1} corse, rifiutati {rifiutati}", inizio)
    racconta(f"report: {scelte.corse} corse (seme {scelte.seme}), {taglie} taglie, PDF {visti}, "
             f"rifiutati {rifiutati}", inizio)
    pretendi(visti == len(DI_UN_REPORT) * scelte.corse, f"PDF: {visti}")
    pretendi(rifiutati == 0, f"report rifiutati: {rifiutati}")


# ---- Long runs -----------------------------------------------------------------------------------

def campo(processo, nome):
    """A figure of a living process in KiB; nothing when it has ended."""
    try:
        stato = Path(f"/proc/{processo.pid}/status").read_text(encoding="utf-8")
    except OSError:
        return None
    trovato = re.search(rf"^{nome}:\s*(\d+) kB$", stato, re.MULTILINE)
    return int(trovato[1]) if trovato else None


def picco(comando, cartella):
    """Runs it and returns the most memory that it held, as last seen, and its seconds."""
    inizio, massimo = time.monotonic(), 0
    with subprocess.Popen([str(parte) for parte in comando], cwd=cartella) as processo:
        while processo.poll() is None:
            massimo = campo(processo, "VmHWM") or massimo
            time.sleep(0.01)
    pretendi(processo.returncode == 0, f"{comando}: {processo.returncode}")
    return massimo, time.monotonic() - inizio


def taglie(scelte, cartella):
    # Not too few: the run must last until it is looked at.
    poche_taglie = max(scelte.taglie // 100, min(scelte.taglie, POCHE_TAGLIE))
    picchi = []
    for quante in poche_taglie, scelte.taglie:
        massimo, secondi = picco([scelte.costruito / "bin/taglie", quante, "-s", "-q"], cartella)
        pretendi(massimo > MEMORIA_MINIMA, "taglie è finito senza farsi vedere")
        picchi.append(massimo)
        print(f"taglie -s: {quante} taglie, {secondi:.1f} s, picco {massimo} KiB", flush=True)
    resti(cartella, ["taglie.txt"])
    if not scelte.sanificato:
        pretendi(picchi[1] - picchi[0] <= CRESCITA_MASSIMA, "taglie: la memoria cresce")


def resti(cartella, nomi):
    trovati = sorted(voce.name for voce in Path(cartella).iterdir())
    pretendi(trovati == sorted(nomi), f"nella cartella: {trovati}")
    for nome in nomi:
        (Path(cartella) / nome).unlink()


def processi(scelte, cartella):
    inizio = time.monotonic()
    for i in range(scelte.processi):
        fai(scelte.costruito / "bin/taglie", 1 + i % 3, "-q", *FORME[i % len(FORME)], cwd=cartella)
    attesi = {f"taglie.{tipo}" for tipo in ("txt", "htm", "pdf")} if scelte.processi > 2 else None
    # The statistics on the screen delete an old text report, as the next text report would.
    trovati = {voce.name for voce in Path(cartella).iterdir()}
    pretendi(attesi is None or attesi - {"taglie.txt"} <= trovati <= attesi, f"resti: {trovati}")
    resti(cartella, trovati)
    racconta(f"processi: {scelte.processi}", inizio)


def in_un_processo(scelte, nome, quanti, cartella, ambiente):
    inizio = time.monotonic()
    programma = scelte.costruito / "tests/resistenza" / nome
    print(fai(programma, cartella, quanti, env=ambiente), end="")
    resti(cartella, [])
    racconta(f"{nome}: {quanti}", inizio)


def schermo(scelte):
    """Games of the program itself on a display, by the space bar."""
    os.environ.update(SCALVINO=str(scelte.costruito / "bin/scalvino"),
                      ARTEFATTI=str(scelte.conservati), LOCPATH=str(scelte.costruito / "locale"))
    sys.path.insert(0, str(RADICE / "tests/finestra"))
    from schermo import Finestra, Schermo, aspetta  # its environment is known only now

    inizio = time.monotonic()
    video = Schermo()
    finestra = Finestra(video)
    try:
        finestra.pronta()
        aspetta(lambda: finestra.colore(230, 30) == "69E600", "il titolo")
        titolo, memoria = finestra.tavolo(), []
        finestra.clicca("cmdMescola")
        finestra.scosta()
        for _ in range(scelte.schermo):
            aspetta(lambda: finestra.tavolo() != titolo, "la nuova taglia")
            gioca(finestra, titolo, aspetta)
            memoria.append(campo(finestra.processo, "VmRSS"))
            finestra.tasti("space")
        finestra.chiudi()
        pretendi(finestra.esito() == 0, "la finestra finisce male")
        resti(finestra.cartella, [])
    finally:
        finestra.close()
        video.close()
    prima, dopo = memoria[min(1, len(memoria) - 1)], memoria[-1]
    racconta(f"partite sullo schermo: {scelte.schermo}, {prima} e {dopo} KiB", inizio)
    if not scelte.sanificato:
        pretendi(dopo - prima <= 2 * CRESCITA_MASSIMA, "sullo schermo la memoria cresce")


def gioca(finestra, titolo, aspetta):
    """Presses the space bar until the finished shoe is cancelled."""
    for _ in range(100):
        prima = finestra.tavolo()
        finestra.tasti("space")
        aspetta(lambda: finestra.tavolo() != prima, "il colpo")
        if finestra.tavolo() == titolo:
            return
    raise Guasto("la partita non finisce")


def durata(scelte):
    with tempfile.TemporaryDirectory(prefix="durata.") as base:
        cartella, temporanea, casa = (Path(base) / nome for nome in ("report", "tmp", "casa"))
        for nuova in cartella, temporanea, casa:
            nuova.mkdir(0o700)
        # Qt would make a folder for the session in the temporary one.
        ambiente = {**os.environ, "TMPDIR": str(temporanea), "XDG_RUNTIME_DIR": str(casa)}
        if scelte.taglie:
            taglie(scelte, cartella)
        if scelte.corse:
            in_un_processo(scelte, "corse", scelte.corse, cartella, ambiente)
        if scelte.processi:
            processi(scelte, cartella)
        if scelte.partite:
            in_un_processo(scelte, "partite", scelte.partite, cartella, ambiente)
        resti(temporanea, [])
    if scelte.schermo:
        schermo(scelte)


# ---- Leaks ---------------------------------------------------------------------------------------

VALGRIND = ["valgrind", "-q", "--leak-check=full", "--errors-for-leak-kinds=definite,possible",
            "--show-leak-kinds=definite,possible", "--error-exitcode=99"]


def perdite(scelte):
    with tempfile.TemporaryDirectory(prefix="perdite.") as base:
        for forma in FORME:
            inizio = time.monotonic()
            fai(*VALGRIND, scelte.costruito / "bin/taglie", 2, "-q", *forma, cwd=base)
            racconta(f"valgrind: taglie 2 {' '.join(forma)}: niente da dire", inizio)
        inizio = time.monotonic()
        galleria = scelte.costruito / "docs/gallery/galleria"
        fai(*VALGRIND, galleria, Path(base) / "galleria.pdf", RADICE / "docs/figure", *LIBERATION)
        racconta("valgrind: galleria, tutte le operazioni: niente da dire", inizio)
        inizio = time.monotonic()
        cartella = Path(base) / "pdf"
        cartella.mkdir()
        fai(*VALGRIND, "--trace-children=no", scelte.costruito / "tests/resistenza/documenti",
            cartella, 1, 10, SEMI, FONT, env=apritore(base))
        racconta("valgrind: documenti da 1 a 10: niente da dire", inizio)


# ---- The command ---------------------------------------------------------------------------------

def argomenti(testi):
    opzioni = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    opzioni.add_argument("--costruito", type=Path, default=RADICE / "build/release")
    opzioni.add_argument("--sanificato", action="store_true", help="la memoria non si misura")
    opzioni.add_argument("--fili", type=int, default=len(os.sched_getaffinity(0)),
                         help="documenti letti insieme")
    parti = opzioni.add_subparsers(required=True)

    def parte(lavoro, **numeri):
        nuova = parti.add_parser(lavoro.__name__)
        nuova.set_defaults(lavoro=lavoro)
        for nome, valore in numeri.items():
            nuova.add_argument(f"--{nome}", type=int, default=valore)
        return nuova

    documentisti = parte(documenti, quanti=1000, primo=1, almeno=1)
    documentisti.add_argument("--maniera", choices=["aperti", "conformi"], nargs=1, default=[])
    parte(report, corse=200, seme=1)
    parte(durata, taglie=0, corse=0, processi=0, partite=0, schermo=0)
    parte(perdite)
    scelte = opzioni.parse_args(testi)
    scelte.costruito = scelte.costruito.resolve()
    scelte.conservati = scelte.costruito / "resistenza"
    return scelte


def principale(testi):
    scelte = argomenti(testi)
    try:
        scelte.lavoro(scelte)
    except Guasto as guasto:
        print(f"resistenza: {guasto}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(principale(sys.argv[1:]))
