#!/usr/bin/env python3
"""Times of the window on a display of its own (Xvfb, openbox), as its user feels them.

    bench/finestra.py [BUILD FOLDER]        normally build/release

Prints the seconds until the window is visible, those of 10,000 statistics-only shoes in it and by
the command "taglie", and those from the close button to the window's end in the middle of a run.
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

RADICE = Path(__file__).resolve().parent.parent
COSTRUITO = Path(sys.argv[1] if len(sys.argv) > 1 else RADICE / "build/release").resolve()
os.environ.setdefault("SCALVINO", str(COSTRUITO / "bin/scalvino"))
os.environ.setdefault("ARTEFATTI", tempfile.gettempdir())
os.environ.setdefault("LOCPATH", str(COSTRUITO / "locale"))
sys.path.insert(0, str(RADICE / "tests/finestra"))

from schermo import Finestra, Schermo, aspetta  # noqa: E402 (its folder is known only now)

VOLTE = 5


def misura(azione):
    inizio = time.monotonic()
    azione()
    return time.monotonic() - inizio


def racconta(cosa, tempi, limite):
    print(f"{cosa}: {statistics.median(tempi):.3f} s (da {min(tempi):.3f} a {max(tempi):.3f}; "
          f"chiesti {limite})")


def avvio(schermo):
    inizio = time.monotonic()
    finestra = Finestra(schermo)
    aspetta(finestra.finestre, "la finestra", passo=0.002)
    durata = time.monotonic() - inizio
    finestra.close()
    return durata


def prepara(schermo, quante):
    finestra = Finestra(schermo).pronta()
    finestra.clicca("chkStat")
    finestra.clicca("optStampa2")
    finestra.scrivi(quante)
    time.sleep(0.2)
    return finestra


def corsa(schermo):
    finestra = prepara(schermo, "10000")
    finestra.schermo.fa("xdotool", "mousemove", "--window", finestra.id, "120", "241")
    durata = misura(lambda: (finestra.schermo.fa("xdotool", "click", "1"),
                             aspetta(finestra.aperti, "il report", passo=0.002)))
    finestra.close()
    return durata


def nudo():
    with tempfile.TemporaryDirectory() as cartella:
        return misura(lambda: subprocess.run([COSTRUITO / "bin/taglie", "10000", "-s", "-q"],
                                             cwd=cartella, check=True))


def chiusura(schermo):
    finestra = prepara(schermo, "90000000")
    finestra.clicca("cmdTaglie")
    aspetta(lambda: len(finestra.finestre()) == 2, "la domanda")
    time.sleep(0.2)
    finestra.tasti("Return")
    time.sleep(0.5)
    durata = misura(lambda: (finestra.chiudi(), finestra.processo.wait()))
    finestra.close()
    return durata


def main():
    schermo = Schermo()
    try:
        racconta("finestra visibile", [avvio(schermo) for _ in range(VOLTE)], "0,6")
        finestre = [corsa(schermo) for _ in range(VOLTE)]
        comandi = [nudo() for _ in range(VOLTE)]
        racconta("10.000 taglie in finestra", finestre, "3 volte il comando")
        racconta("10.000 taglie dal comando", comandi, "-")
        print(f"rapporto: {statistics.median(finestre) / statistics.median(comandi):.2f}")
        racconta("dal pulsante di chiusura alla fine, a metà corsa",
                 [chiusura(schermo) for _ in range(VOLTE)], "0,1")
    finally:
        schermo.close()


if __name__ == "__main__":
    main()
