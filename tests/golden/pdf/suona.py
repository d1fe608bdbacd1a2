#!/usr/bin/env python3
"""Plays scenarios on the reference PDF writer.

    suona.py [--cartella DIR] COPIONE.json ...

Writes DIR/COPIONE.pdf (by default beside this script).  A scenario is one
array of calls, one call a line: ["Operation", argument, ...].  Besides the
writer's operations:

    ["Clock", "yyyymmddhhmmss", minutes east]
                                  first of all; the writer is created by it
    ["Expect", "Operation", argument, ..., result]
                                  the call must give this result; numbers
                                  within one part in ten thousand
"""

import argparse
import json
import os
import sys

from conforme import Conforme
from numeri import ErroreScrittore
from scrittore import Scrittore

QUI = os.path.dirname(os.path.abspath(__file__))

OPERAZIONI = frozenset((
    "PDFReader", "Margin", "Pages", "GetX", "GetY", "SetScale", "SetPaperSize",
    "Orientation", "SetDocProperty", "BeginDoc", "EndDoc", "BeginPage", "EndPage",
    "SetWordSpacing", "SetCharSpacing", "SetTextHorizontalScaling",
    "SetTextRenderingMode", "DrawText", "SetLineStyle", "MoveTo", "DrawLineTo",
    "DrawLine", "DrawRect", "DrawCurveA", "DrawCurveB", "DrawCurveC", "DrawCircle",
    "DrawEllipse", "DrawArc", "BeginObject", "EndObject", "PlayObject", "TextLength",
    "TextHeight", "DrawParagraph", "MakeAxisTranslation", "MakeAxisScaling",
    "MakeAxisRotation", "MakeAxisSkewing", "BeginGraphicSpace", "EndGraphicSpace",
    "BeginTable", "BeginRow", "EndRow", "BeginColumn", "EndColumn", "EndTable",
    "Version", "DrawTextBox", "SetFont", "SetFontSize", "SetColorFill",
    "SetColorLine", "ToColor", "ShareFonts", "AddBookmark", "AddNoteIcon", "AddNoteBox",
    "AddNoteStamp", "AddWebLink", "FilterDecode", "DrawImage", "AddFont", "prToASCII85",
    "DrawEAN13", "DrawCODE39", "BeginTiling", "EndTiling", "SetLinearFill", "SetRadialFill",
    "Conforming", "Compress", "SetLanguage", "BeginDocTo", "AddFontData", "DrawImageData",
))


class ErroreCopione(Exception):
    """A scenario that cannot be played, or an expected result not met."""


def Uguali(avuto, atteso):
    if isinstance(atteso, (int, float)) and not isinstance(atteso, bool):
        if isinstance(avuto, str):
            return False
        return abs(avuto - atteso) <= 1e-4 * max(abs(atteso), 1e-3)
    return avuto == atteso


def Chiama(scrittore, nome, argomenti):
    if nome not in OPERAZIONI:
        raise ErroreCopione(f"unknown operation {nome}")
    return getattr(scrittore, nome)(*argomenti)


def Suona(copione, varianti=frozenset()):
    """The bytes of the document that a list of calls makes."""
    conformi = [(argomenti + [True])[0] for nome, *argomenti in copione if nome == "Conforming"]
    scrittore, classe = None, Conforme if conformi and conformi[-1] else Scrittore
    for numero, (nome, *argomenti) in enumerate(copione, 1):
        if nome == "Clock":
            scrittore = classe(*argomenti)
            scrittore.varianti = varianti
        elif nome == "Expect":
            operazione, *argomenti, atteso = argomenti
            avuto = Chiama(scrittore, operazione, argomenti)
            if not Uguali(avuto, atteso):
                raise ErroreCopione(f"call {numero}: {operazione} gives {avuto!r}, not {atteso!r}")
        else:
            Chiama(scrittore, nome, argomenti)
    if scrittore.aperto:
        raise ErroreCopione("the document was not ended")
    return bytes(scrittore.dati)


def Leggi(percorso):
    with open(percorso, encoding="utf-8") as archivio:
        return json.load(archivio)


def Main(argv):
    lettore = argparse.ArgumentParser(description="Plays scenarios on the reference writer.")
    lettore.add_argument("--cartella", default=QUI)
    lettore.add_argument("copioni", nargs="+")
    argomenti = lettore.parse_args(argv)
    for percorso in argomenti.copioni:
        nome = os.path.splitext(os.path.basename(percorso))[0]
        try:
            dati = Suona(Leggi(percorso))
        except (ErroreCopione, ErroreScrittore, ValueError, TypeError) as errore:
            print(f"suona.py: {percorso}: {errore}", file=sys.stderr)
            return 1
        with open(os.path.join(argomenti.cartella, nome + ".pdf"), "wb") as archivio:
            archivio.write(dati)
    return 0


if __name__ == "__main__":
    sys.exit(Main(sys.argv[1:]))
