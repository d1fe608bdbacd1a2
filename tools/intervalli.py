"""Measures how often the intervals of "taglie --dati" hold the true rate, as docs/dati.md tells it.

    intervalli.py TAGLIE [RUNS]

TAGLIE is the program; each number of shoes is run RUNS times (normally 4000), with the seeds from 1
on. The true rates are those of one run of two million shoes. Prints, for each number of shoes, the
share of the intervals that hold the rate, in percent, and the share of the runs that gave none: for
the eight outcomes that a win decides (their mean), for ties and for ties at 31.
"""

import csv
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

NUMERI = [2, 3, 5, 10, 20, 100, 1000]
TUTTE = 2_000_000
RARI = ["Pari", "TrentunoApres"]


def esiti(taglie, *argomenti):
    """Rate, lower and upper limit of every outcome of one run; empty limits are None."""
    testo = subprocess.run([taglie, *map(str, argomenti), "--dati", "csv"], capture_output=True,
                           check=True, text=True, stdin=subprocess.DEVNULL).stdout
    numero = lambda cella: float(cella) if cella else None
    return {riga["voce"]: (float(riga["tasso"]), numero(riga["minimo95"]), numero(riga["massimo95"]))
            for riga in csv.DictReader(testo.splitlines()) if riga["sezione"] == "esiti"}


def riga(veri, corse, nomi):
    """"held (none)" of these outcomes over all runs."""
    dati = [(veri[nome], *corsa[nome][1:]) for corsa in corse for nome in nomi]
    presenti = [(vero, da, a) for vero, da, a in dati if da is not None]
    tengono = sum(da <= vero <= a for vero, da, a in presenti)
    quota = f"{100 * tengono / len(presenti):.1f}" if presenti else "-"
    return f"{quota:>6} ({100 * (1 - len(presenti) / len(dati)):.1f})"


def main():
    taglie = os.path.abspath(sys.argv[1])
    ripetizioni = int(sys.argv[2]) if len(sys.argv) > 2 else 4000
    veri = {nome: e[0] for nome, e in esiti(taglie, TUTTE, "--seme", 0, "-j", 0).items()}
    vincite = [nome for nome in veri if nome not in RARI]
    print(f"{'taglie':>6} {'vincite':>15} {'Pari':>15} {'TrentunoApres':>15}")
    with ThreadPoolExecutor() as insieme:
        for n in NUMERI:
            corse = list(insieme.map(lambda seme: esiti(taglie, n, "--seme", seme),
                                     range(1, ripetizioni + 1)))
            celle = [riga(veri, corse, nomi) for nomi in (vincite, ["Pari"], ["TrentunoApres"])]
            print(f"{n:6}" + "".join(f" {cella:>15}" for cella in celle), flush=True)


if __name__ == "__main__":
    main()
