#!/usr/bin/python3
"""Writes larghezze.json: the character widths of the reference PDF writer.

    estrai_larghezze.py [FILE]

Sources (Debian packages fonts-liberation2 and fonts-urw-base35):
- Arial: Liberation Sans, Times New Roman: Liberation Serif, which have the
  same advance widths; the glyph of a code is that of its Windows-1252
  character, and a code without a glyph takes the width of ".notdef";
- Symbol and ZapfDingbats: the AFM files of StandardSymbolsPS and D050000L,
  by their built-in codes, but for the apple that the free face puts at code
  128, where the Symbol encoding has nothing (ISO 32000-1, D.5).

Needs python3-fonttools.  Only this script needs it: the table is kept.
"""

import json
import os
import sys

from fontTools.ttLib import TTFont

LIBERATION = "/usr/share/fonts/truetype/liberation2"
URW = "/usr/share/fonts/type1/urw-base35"
STILI = ("Regular", "Bold", "Italic", "BoldItalic")

# The widths that the original faces give to the codes below the blank; no
# glyph of the free faces stands there.
CONTROLLO = {"Sans": 272, "Serif": 333}


def Millesimi(valore, unita):
    """Advance in thousandths of an em; no glyph has an exact half."""
    doppio = 2000 * valore
    assert doppio % (2 * unita) != unita, "exact half"
    return (doppio + unita) // (2 * unita)


def CarattereDi(codice):
    """Unicode code point of a Windows-1252 code; None where there is none."""
    try:
        return ord(bytes([codice]).decode("cp1252"))
    except UnicodeDecodeError:
        return None


def TrueType(famiglia, stile):
    carattere = TTFont(f"{LIBERATION}/Liberation{famiglia}-{stile}.ttf")
    unita = carattere["head"].unitsPerEm
    mappa = carattere.getBestCmap()
    avanzi = carattere["hmtx"]
    larghezze = []
    for codice in range(256):
        if codice < 32:
            larghezze.append(CONTROLLO[famiglia])
            continue
        glifo = mappa.get(CarattereDi(codice), ".notdef")
        larghezze.append(Millesimi(avanzi[glifo][0], unita))
    return larghezze


def Afm(nome):
    """Widths by built-in code; a code without a glyph takes ".notdef"."""
    codificati, senza = {}, 0
    with open(f"{URW}/{nome}.afm", encoding="ascii") as archivio:
        for riga in archivio:
            if not riga.startswith("C "):
                continue
            campi = [campo.split() for campo in riga.split(";")]
            codice, larghezza, glifo = int(campi[0][1]), int(campi[1][1]), campi[2][1]
            if glifo == ".notdef":
                senza = larghezza
            elif codice >= 0 and glifo != "apple":
                codificati[codice] = larghezza
    return [codificati.get(codice, senza) for codice in range(256)]


def Tabelle():
    tabelle = {}
    for indice, stile in enumerate(STILI):
        tabelle[f"Arial {indice}"] = TrueType("Sans", stile)
        tabelle[f"TimesNewRoman {indice}"] = TrueType("Serif", stile)
        tabelle[f"CourierNew {indice}"] = [600] * 256
        tabelle[f"Symbol {indice}"] = Afm("StandardSymbolsPS")
        tabelle[f"ZapfDingbats {indice}"] = Afm("D050000L")
    return tabelle


def Main(argv):
    predefinito = os.path.join(os.path.dirname(os.path.abspath(__file__)), "larghezze.json")
    percorso = argv[0] if argv else predefinito
    tabelle = Tabelle()
    with open(percorso, "w", encoding="ascii") as archivio:
        archivio.write("{\n")
        archivio.write(",\n".join(
            f"{json.dumps(nome)}: {json.dumps(tabelle[nome], separators=(',', ':'))}"
            for nome in sorted(tabelle)))
        archivio.write("\n}\n")
    return 0


if __name__ == "__main__":
    sys.exit(Main(sys.argv[1:]))
