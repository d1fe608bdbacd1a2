#!/usr/bin/env python3
"""Checks that the blocks written by hand occur, byte for byte, in the reports.

A line holding only "[...]" separates two blocks of the same file; the blocks
must occur in that order.
"""

import os
import sys

CARTELLA = os.path.dirname(os.path.abspath(__file__))
SEPARATORE = b"[...]\r\n"
COPPIE = (
    ("a_mano.txt", "uno_trentuno.it.pieno.txt"),
    ("a_mano.htm", "uno_trentuno.it.pieno.htm"),
)


def Leggi(nome):
    with open(os.path.join(CARTELLA, nome), "rb") as archivio:
        return archivio.read()


def Controlla(nomeBlocchi, nomeReport):
    report = Leggi(nomeReport)
    da = 0
    for numero, blocco in enumerate(Leggi(nomeBlocchi).split(SEPARATORE), 1):
        trovato = report.find(blocco, da)
        # A block must begin at the start of a line.
        if trovato < 0 or (trovato > 0 and report[trovato - 1:trovato] != b"\n"):
            print(f"{nomeBlocchi}: blocco {numero} assente in {nomeReport}", file=sys.stderr)
            return False
        da = trovato + len(blocco)
    return True


def Main():
    esiti = [Controlla(*coppia) for coppia in COPPIE]
    return 0 if all(esiti) else 1


if __name__ == "__main__":
    sys.exit(Main())
