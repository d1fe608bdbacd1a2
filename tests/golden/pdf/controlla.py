#!/usr/bin/env python3
"""Checks golden PDF files, byte structure first and then by foreign readers.

    controlla.py [--lettori] [FILE.pdf ...]

Without files: all scenarios, each played again (the golden must come out
byte for byte, under every reading that must not matter) and its PDF checked.
With --lettori also qpdf, mutool, pdftotext and gs must read every file.
"""

import argparse
import glob
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree
import zlib
from fractions import Fraction

import numeri
from suona import Leggi, QUI, Suona

sys.path.append(os.path.join(QUI, "..", "..", "lettori"))
import conformi  # noqa: E402

# The one complaint allowed: the size in the trailer, one short on purpose.
TAGLIA = re.compile(r"reported number of objects \(\d+\) is not one plus the highest object number")
# qpdf's copy writes the "#" of such a name without its escape.
NOME_CON_CANCELLETTO = re.compile(rb"/[!-~]*#23")
STRINGA = re.compile(rb"\((?:\\.|[^\\()])*\)", re.S)

VARIANTI = ({"argomenti"}, {"misure"}, {"argomenti", "misure"})


class Difetto(Exception):
    """Something wrong in a file."""


def Pretendi(vero, messaggio):
    if not vero:
        raise Difetto(messaggio)


def Oggetti(dati):
    """Object number -> body, by the cross-reference table."""
    fine = re.search(rb"startxref\r(\d+)\r\n%%EOF\r\r\n\Z", dati)
    Pretendi(fine, "no end of file")
    inizio = int(fine.group(1))
    testa = re.compile(rb"xref\r\n0 (\d+)\r\n0000000000 65535 f\r\n").match(dati, inizio)
    Pretendi(testa, "the cross-reference table is not where startxref says")
    quanti = int(testa.group(1))
    corpi = {}
    for numero in range(1, quanti):
        voce = dati[testa.end() + 20 * (numero - 1):testa.end() + 20 * numero]
        Pretendi(re.fullmatch(rb"\d{10} 00000 n\r\n", voce), f"entry {numero} is not 20 bytes")
        posto = int(voce[:10])
        oggetto = re.compile(rb"%d 0 obj\r\n(.*?)endobj\r\n" % numero, re.S).match(dati, posto)
        Pretendi(oggetto, f"object {numero} is not at its offset")
        corpi[numero] = oggetto.group(1)
    coda = b"trailer\r\n<< /Size %d /Info 1 0 R /Root 2 0 R >>\r\n" % (quanti - 1)
    Pretendi(dati.startswith(coda, testa.end() + 20 * (quanti - 1)), "wrong trailer")
    return corpi


def Bilancio(flusso):
    """Operators q/Q and BT/ET must balance and never go below zero."""
    parole = STRINGA.sub(b"()", flusso).split()
    for apre, chiude in ((b"q", b"Q"), (b"BT", b"ET")):
        livello = 0
        for parola in parole:
            livello += (parola == apre) - (parola == chiude)
            Pretendi(livello >= 0, f"{chiude.decode()} without {apre.decode()}")
        Pretendi(livello == 0, f"{apre.decode()} left open")


def Struttura(percorso):
    with open(percorso, "rb") as archivio:
        dati = archivio.read()
    if conformi.e_conforme(dati):
        Pretendi(not conformi.difetti(dati), "; ".join(conformi.difetti(dati)))
        return
    corpi = Oggetti(dati)
    for numero, corpo in corpi.items():
        taglio = re.search(rb"/Length (\d+) 0 R >>\r\nstream\r\n", corpo)
        if not taglio:
            continue
        flusso = corpo[taglio.end():-len(b"endstream\r\n")]
        Pretendi(corpo.endswith(b"endstream\r\n"), f"object {numero}: no endstream")
        sgonfio = b"/FlateDecode" in corpo[:taglio.start()]
        Pretendi(corpi[int(taglio.group(1))] == b"%d\r\n" % (len(flusso) - 2 * sgonfio),
                 f"object {numero}: wrong length")
        if b"/Metadata" in corpo[:taglio.start()]:
            dichiarata = int(re.search(rb"bytes='(\d+)'", flusso).group(1))
            Pretendi(len(flusso) == dichiarata + 2, "metadata: wrong length in the header")
            xml.etree.ElementTree.fromstring(flusso.decode("ascii").split("?>", 1)[1]
                                             .rsplit("<?xpacket", 1)[0])
        else:
            Bilancio(zlib.decompress(flusso[:-2]) if sgonfio else flusso)


# What was written by hand: a whole document, and a piece of one that ends in the middle.
A_MANO = {"a_mano.txt": "una_pagina.pdf", "a_mano_nomi.txt": "nomi.pdf"}
INTERI = {"una_pagina.pdf"}


def AMano(percorso):
    """The lines written by hand, each at its offset in the document."""
    nome = A_MANO[os.path.basename(percorso)]
    with open(percorso, encoding="ascii", newline="\n") as archivio:
        righe = [(int(riga[:4]), riga[5:].rstrip("\n")) for riga in archivio]
    inizio, dati = righe[0][0], bytearray()
    for posto, testo in righe:
        Pretendi(posto == inizio + len(dati), f"{posto} should be {inizio + len(dati)}")
        dati += testo.encode("ascii").decode("unicode_escape").encode("latin-1")
    with open(os.path.join(QUI, nome), "rb") as archivio:
        tutto = archivio.read()
    fine = len(tutto) if nome in INTERI else inizio + len(dati)
    Pretendi(tutto[inizio:fine] == bytes(dati), f"not what {nome} holds")


def Comando(*parole):
    esito = subprocess.run(parole, capture_output=True, text=True, errors="replace", check=False)
    return esito.returncode, esito.stdout + esito.stderr


def Lettori(percorso):
    """Four foreign readers must take the file."""
    codice, detto = Comando("qpdf", "--check", percorso)
    avvisi = [riga for riga in detto.splitlines() if "WARNING" in riga]
    Pretendi(codice == 3 and len(avvisi) == 1 and TAGLIA.search(avvisi[0]), "qpdf: " + detto)
    with open(percorso, "rb") as archivio:
        cancelletto = NOME_CON_CANCELLETTO.search(archivio.read())
    with tempfile.TemporaryDirectory() as cartella:
        copia = os.path.join(cartella, "copia.pdf")
        Comando("qpdf", percorso, copia)
        codice, detto = Comando("qpdf", "--check", copia)
        Pretendi(codice == 0 or cancelletto, "qpdf, rewritten copy: " + detto)
    codice, detto = Comando("gs", "-q", "-dNOPAUSE", "-dBATCH", "-dSAFER", "-dPDFSTOPONERROR",
                            "-sDEVICE=nullpage", percorso)
    Pretendi(codice == 0, "gs: " + detto)
    codice, detto = Comando("pdftotext", percorso, "-")
    Pretendi(codice == 0 and "Error" not in detto, "pdftotext: " + detto)
    codice, detto = Comando("mutool", "draw", "-F", "trace", "-o", os.devnull, percorso)
    Pretendi(codice == 0 and "error:" not in detto, "mutool: " + detto)


class Sensore:
    """Counts the numbers that another order of the same operations could
    round the other way: within a billionth of a half, yet no exact half."""

    def __init__(self):
        self.vecchio, self.fragili = round, []

    def __call__(self, valore, *resto):
        distanza = abs(abs(valore) % 1 - 0.5)
        if not resto and distanza < 1e-9 * max(1.0, abs(valore)):
            esatto = Fraction(valore) / 1000
            if esatto.denominator > 2 ** 20:
                self.fragili.append(valore / 1000)
        return self.vecchio(valore, *resto)


def NumeriFragili(azione):
    """What azione() rounds on the edge."""
    numeri.round = Sensore()
    try:
        azione()
        return numeri.round.fragili
    finally:
        del numeri.round


def Confronta(copione):
    """The golden comes out again; returns the readings that change it."""
    chiamate = Leggi(copione)
    nome = os.path.splitext(os.path.basename(copione))[0]
    with open(os.path.join(QUI, nome + ".pdf"), "rb") as archivio:
        atteso = archivio.read()
    Pretendi(Suona(chiamate) == atteso, "the golden is not what the scenario makes")
    diverse = []
    for insieme in VARIANTI:
        if Suona(chiamate, frozenset(insieme)) != atteso:
            diverse.append("+".join(sorted(insieme)))
    Pretendi(not diverse, "depends on the readings " + ", ".join(diverse))
    fragili = NumeriFragili(lambda: Suona(chiamate))
    Pretendi(not fragili, f"rounded on the edge: {fragili}")


def Main(argv):
    lettore = argparse.ArgumentParser(description="Checks golden PDF files.")
    lettore.add_argument("--lettori", action="store_true")
    lettore.add_argument("file", nargs="*")
    argomenti = lettore.parse_args(argv)
    copioni = [] if argomenti.file else sorted(glob.glob(os.path.join(QUI, "copioni", "*.json")))
    pdf = argomenti.file or sorted(glob.glob(os.path.join(QUI, "*.pdf")))
    difetti = 0
    azioni = [(Confronta, copioni), (Struttura, pdf)]
    if not argomenti.file:
        azioni.append((AMano, [os.path.join(QUI, nome) for nome in A_MANO]))
    if argomenti.lettori:
        azioni.append((Lettori, pdf))
    for azione, percorsi in azioni:
        for percorso in percorsi:
            try:
                azione(percorso)
            except (Difetto, OSError, xml.etree.ElementTree.ParseError) as errore:
                difetti += 1
                print(f"{os.path.basename(percorso)}: {errore}", file=sys.stderr)
    print(f"{len(copioni)} scenarios, {len(pdf)} files, {difetti} defects")
    return 1 if difetti else 0


if __name__ == "__main__":
    sys.exit(Main(sys.argv[1:]))
