#!/usr/bin/env python3
"""How much processor time foreign readers take for the first and the last page of a PDF report of 20 shoes: the
small one (--compatto) against the one with shared fonts (--caratteri-unici).

    bench/lettori.py [build folder]

Needs poppler-utils and mupdf-tools. Both files are read in turn, so that a slower moment of the
machine hits both; the least of all times counts, because whatever disturbs only adds to it."""

import pathlib
import resource
import subprocess
import sys
import tempfile

RADICE = pathlib.Path(__file__).resolve().parent.parent
VOLTE = 25
TAGLIE = 20
PAGINE = (1, TAGLIE + 1)


def report(taglie, cartella, opzione):
    subprocess.run([taglie, str(TAGLIE), "--seme", "1", "-q", "-f", "pdf", opzione, "-c", cartella],
                   check=True)
    return pathlib.Path(cartella) / "taglie.pdf"


def letture(file, pagina, uscita):
    return {
        "pdftoppm": ["pdftoppm", "-f", str(pagina), "-l", str(pagina), "-r", "72", file, uscita],
        "mutool": ["mutool", "draw", "-N", "-q", "-r", "72", "-o", uscita + ".png", file, str(pagina)],
    }


def secondi(comando):
    prima = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(comando, check=True, stderr=subprocess.PIPE)
    dopo = resource.getrusage(resource.RUSAGE_CHILDREN)
    return dopo.ru_utime + dopo.ru_stime - prima.ru_utime - prima.ru_stime


def confronta(unici, compatto, uscita):
    for lettore in letture(unici, 1, uscita):
        for pagina in PAGINE:
            tempi = {unici: [], compatto: []}
            for _ in range(VOLTE):
                for file, avuti in tempi.items():
                    avuti.append(secondi(letture(file, pagina, uscita)[lettore]))
            prima, dopo = min(tempi[unici]), min(tempi[compatto])
            print(f"{lettore}, pagina {pagina}: {1000 * prima:.1f} ms, compatto {1000 * dopo:.1f} ms "
                  f"({dopo / prima:.2f})", flush=True)


def main():
    costruita = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else RADICE / "build/release")
    taglie = costruita.resolve() / "bin/taglie"
    with tempfile.TemporaryDirectory() as uno, tempfile.TemporaryDirectory() as due:
        unici = report(taglie, uno, "--caratteri-unici")
        compatto = report(taglie, due, "--compatto")
        print(f"{unici.stat().st_size} byte, compatto {compatto.stat().st_size}", flush=True)
        confronta(unici, compatto, uno + "/pagina")


if __name__ == "__main__":
    main()
