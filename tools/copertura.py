"""Counts the lines and branches of folders that the tests ran, from what gcov says of a build.

    copertura.py [--righe PERCENTO] [--rami PERCENTO] ALBERO CARTELLA...

ALBERO is a build folder whose programs have run, with --coverage; each CARTELLA is a folder of the
project. Prints for every file the lines and branches that can be run, those that were, and where
the others are; then the sums of each folder. Exit code 1 where a folder has less than asked.

What several instances of one template or one inline function make of a line counts once. A branch
that only an exception of a called function takes is left out, as others do by an option
(--exclude-throw-branches): nearly every call may throw, and these would be most of all branches.
"""

import argparse
import gzip
import json
import os
import subprocess
import sys
from collections import defaultdict
from pathlib import Path

RADICE = Path(__file__).resolve().parent.parent


def rapporti(dati):
    """What gcov says of these .gcda files, one object for each."""
    uscita = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", *dati],
                            capture_output=True, check=True, stdin=subprocess.DEVNULL).stdout
    if uscita.startswith(b"\x1f\x8b"):
        uscita = gzip.decompress(uscita)
    return [json.loads(riga) for riga in uscita.splitlines() if riga.strip()]


class File:
    """How often each line ran, and each branch of each line, over all objects that hold it."""

    def __init__(self):
        self.righe = defaultdict(int)
        self.rami = {}

    def aggiungi(self, riga):
        numero = riga["line_number"]
        self.righe[numero] += riga["count"]
        conti = [ramo["count"] for ramo in riga["branches"] if not ramo["throw"]]
        # Instances whose branches differ in number stand side by side.
        prima = self.rami.setdefault((numero, len(conti)), [0] * len(conti))
        self.rami[numero, len(conti)] = [a + b for a, b in zip(prima, conti)]

    def righe_mancate(self):
        return sorted(numero for numero, conto in self.righe.items() if conto == 0)

    def rami_mancati(self):
        """The line of each branch never taken; a line that never ran lacks all of its own."""
        return sorted(numero for (numero, _), conti in self.rami.items()
                      for conto in conti if conto == 0)

    def conti(self):
        rami = sum(len(conti) for conti in self.rami.values())
        return (len(self.righe) - len(self.righe_mancate()), len(self.righe),
                rami - len(self.rami_mancati()), rami)


def raccogli(albero):
    """The files of the project that any object of the build knows, by folder and name."""
    dati = sorted(albero.rglob("*.gcda"))
    if not dati:
        sys.exit(f"copertura: in {albero} nessuna prova ha lasciato conti")
    trovati = defaultdict(lambda: defaultdict(File))
    # A header's inline functions stand in the objects of those that include it.
    for rapporto in rapporti(dati):
        for file in rapporto["files"]:
            percorso = Path(os.path.join(rapporto["current_working_directory"], file["file"]))
            percorso = Path(os.path.normpath(percorso))
            if percorso.is_relative_to(RADICE):
                cartella = str(percorso.parent.relative_to(RADICE))
                for riga in file["lines"]:
                    trovati[cartella][percorso.name].aggiungi(riga)
    return trovati


def percento(parte, tutto):
    return 100.0 * parte / tutto if tutto else 100.0


def riga_tavola(nome, conti):
    righe, tutte, rami, tutti = conti
    return (f"{nome:32}{righe:6} di{tutte:6} righe {percento(righe, tutte):6.1f}%"
            f"{rami:7} di{tutti:6} rami {percento(rami, tutti):6.1f}%")


def elenco(numeri):
    """Line numbers, one for each thing missed; a number that stands n times is written once."""
    return " ".join(f"{n}({numeri.count(n)})" if numeri.count(n) > 1 else str(n)
                    for n in sorted(set(numeri)))


def stampa(cartella, trovati):
    """Prints the folder's table; returns its sums."""
    print(f"\n==== {cartella}/")
    for nome, file in sorted(trovati.items()):
        print(riga_tavola(nome, file.conti()))
        if file.righe_mancate():
            print(f"    righe mai eseguite: {elenco(file.righe_mancate())}")
        if file.rami_mancati():
            print(f"    rami mai presi, per riga: {elenco(file.rami_mancati())}")
    somme = [sum(conti) for conti in zip(*(file.conti() for file in trovati.values()))]
    print(riga_tavola(f"{cartella}/ in tutto", somme))
    return somme


def principale(argomenti):
    opzioni = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    opzioni.add_argument("--righe", type=float, default=0, metavar="PERCENTO")
    opzioni.add_argument("--rami", type=float, default=0, metavar="PERCENTO")
    opzioni.add_argument("albero", type=Path)
    opzioni.add_argument("cartelle", nargs="+", metavar="CARTELLA")
    scelte = opzioni.parse_args(argomenti)
    scarse = []
    trovati = raccogli(scelte.albero.resolve())
    for cartella in scelte.cartelle:
        righe, tutte, rami, tutti = stampa(cartella, trovati[cartella])
        if percento(righe, tutte) < scelte.righe or percento(rami, tutti) < scelte.rami:
            scarse.append(cartella)
    for cartella in scarse:
        print(f"copertura: {cartella}/ ha meno di {scelte.righe:g}% delle righe o di "
              f"{scelte.rami:g}% dei rami", file=sys.stderr)
    return 1 if scarse else 0


if __name__ == "__main__":
    sys.exit(principale(sys.argv[1:]))
