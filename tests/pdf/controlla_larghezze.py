#!/usr/bin/env python3
"""Compares every code of every width table with the fonts that the tables were taken from.

    controlla_larghezze.py pdf/FontWidths.cpp

Needs the packages fonts-liberation2 and fonts-urw-base35, and nothing but Python's own library.
A missing font is a failure: a comparison that did not happen proves nothing.
"""

import pathlib
import re
import struct
import sys
import unittest

# Where the font packages put version 2 of the Liberation fonts; version 1 has other widths.
LIBERATION = (
    pathlib.Path("/usr/share/fonts/truetype/liberation2"),
    pathlib.Path("/usr/share/fonts/truetype/liberation"),
)
URW = pathlib.Path("/usr/share/fonts/type1/urw-base35")

# Table in the source, width of the control codes, font file. Arial's slanted faces share tables.
FACCE_DI_TESTO = (
    ("ArialUpright", 272, "LiberationSans-Regular.ttf"),
    ("ArialUpright", 272, "LiberationSans-Italic.ttf"),
    ("ArialBold", 272, "LiberationSans-Bold.ttf"),
    ("ArialBold", 272, "LiberationSans-BoldItalic.ttf"),
    ("TimesRegular", 333, "LiberationSerif-Regular.ttf"),
    ("TimesBold", 333, "LiberationSerif-Bold.ttf"),
    ("TimesItalic", 333, "LiberationSerif-Italic.ttf"),
    ("TimesBoldItalic", 333, "LiberationSerif-BoldItalic.ttf"),
)
FACCE_DI_SIMBOLI = (
    ("Symbol", "StandardSymbolsPS.afm"),
    ("ZapfDingbats", "D050000L.afm"),
)
DISCESE = (
    ("ArialDescent", "LiberationSans-Regular.ttf"),
    ("TimesDescent", "LiberationSerif-Regular.ttf"),
    ("CourierDescent", "LiberationMono-Regular.ttf"),
)
# The face has it, the Symbol encoding does not (ISO 32000-1, D.5).
FUORI_CODIFICA = {("Symbol", 128)}

SORGENTE = ""


class TrueType:
    """The few tables that tell how wide the glyph of a character is (OpenType: cmap, hmtx)."""

    def __init__(self, percorso):
        self.dati = percorso.read_bytes()
        self.tabelle = {}
        for indice in range(self.intero("H", 4)):
            voce = 12 + 16 * indice
            self.tabelle[self.dati[voce:voce + 4]] = self.intero("I", voce + 8)
        self.versione = self.intero("i", self.tabelle[b"head"] + 4) / 65536
        self.unita = self.intero("H", self.tabelle[b"head"] + 18)
        self.discesa = self.intero("h", self.tabelle[b"hhea"] + 6)
        self.larghi = self.intero("H", self.tabelle[b"hhea"] + 34)
        self.mappa = self.sottotabella()

    def intero(self, forma, posto):
        return struct.unpack_from(">" + forma, self.dati, posto)[0]

    def sottotabella(self):
        """Start of the map of Unicode's first 65536 characters: platform 3, encoding 1."""
        inizio = self.tabelle[b"cmap"]
        for indice in range(self.intero("H", inizio + 2)):
            voce = inizio + 4 + 8 * indice
            posto = inizio + self.intero("I", voce + 4)
            if self.dati[voce:voce + 4] == b"\0\3\0\1" and self.intero("H", posto) == 4:
                return posto
        raise ValueError("no Unicode map of format 4")

    def glifo(self, carattere):
        """Number of the character's glyph, 0 when it has none."""
        doppi = self.intero("H", self.mappa + 6)
        fini = self.mappa + 14
        for posto in range(fini, fini + doppi, 2):
            if carattere <= self.intero("H", posto):
                return self.glifo_del_tratto(carattere, posto + 2, doppi)
        return 0

    def glifo_del_tratto(self, carattere, posto, doppi):
        inizio = self.intero("H", posto + doppi)
        delta = self.intero("H", posto + 2 * doppi)
        posto_scarto = posto + 3 * doppi
        scarto = self.intero("H", posto_scarto)
        if carattere < inizio:
            return 0
        if scarto == 0:
            return (carattere + delta) % 65536
        glifo = self.intero("H", posto_scarto + scarto + 2 * (carattere - inizio))
        return (glifo + delta) % 65536 if glifo else 0

    def in_millesimi(self, valore):
        return (2000 * valore + self.unita) // (2 * self.unita)

    def larghezza(self, glifo):
        """Advance width in thousandths of the em; the last one counts for all glyphs after it."""
        indice = min(glifo, self.larghi - 1)
        return self.in_millesimi(self.intero("H", self.tabelle[b"hmtx"] + 4 * indice))


def carattere_windows(codice):
    """The character of a Windows-1252 code, None for the codes that have none."""
    if codice == 127:
        return None
    try:
        return ord(bytes([codice]).decode("cp1252"))
    except UnicodeDecodeError:
        return None


def liberation(nome):
    for cartella in LIBERATION:
        if (cartella / nome).exists():
            fonte = TrueType(cartella / nome)
            if fonte.versione >= 2:
                return fonte
    raise FileNotFoundError(f"{nome}, version 2: package fonts-liberation2 is missing")


def metriche_afm(nome):
    """Widths by code, -1 for the glyph of a missing character."""
    larghezze = {}
    for riga in (URW / nome).read_text(encoding="latin-1").splitlines():
        trovato = re.match(r"C (-?\d+) ; WX (\d+) ; N (\S+) ;", riga)
        if trovato and (trovato[1] != "-1" or trovato[3] == ".notdef"):
            larghezze[int(trovato[1])] = int(trovato[2])
    return larghezze


def tabella(nome):
    """A table of the source: its 256 numbers, after each row was found where its comment says."""
    trovata = re.search(rf"\bconstexpr Table {nome} = {{\n(.*?)}};", SORGENTE, re.DOTALL)
    if trovata is None:
        raise LookupError(f"no table {nome}")
    numeri = []
    for riga in trovata[1].splitlines():
        valori, _, codice = riga.partition("//")
        if int(codice, 16) != len(numeri):
            raise ValueError(f"{nome}: row {codice.strip()} begins at {len(numeri):02X}")
        numeri += [int(numero) for numero in valori.replace(",", " ").split()]
    return numeri


class Larghezze(unittest.TestCase):
    def confronta(self, nome, attese):
        numeri = tabella(nome)
        self.assertEqual(len(numeri), 256, nome)
        diversi = [f"{codice}: {numeri[codice]}, font {attese[codice]}"
                   for codice in range(256) if numeri[codice] != attese[codice]]
        self.assertEqual(diversi, [], nome)

    def test_testo_come_liberation(self):
        for nome, controllo, archivio in FACCE_DI_TESTO:
            with self.subTest(archivio):
                fonte = liberation(archivio)
                attese = [controllo] * 32
                for codice in range(32, 256):
                    carattere = carattere_windows(codice)
                    glifo = 0 if carattere is None else fonte.glifo(carattere)
                    # Only a code without a character may lack a glyph.
                    self.assertEqual(glifo == 0, carattere is None, codice)
                    attese.append(fonte.larghezza(glifo))
                self.confronta(nome, attese)

    def test_simboli_come_metriche_pubblicate(self):
        for nome, archivio in FACCE_DI_SIMBOLI:
            with self.subTest(archivio):
                metriche = metriche_afm(archivio)
                self.assertGreater(len(metriche), 190)
                mancante = metriche[-1]
                self.confronta(nome, [
                    mancante if (nome, codice) in FUORI_CODIFICA
                    else metriche.get(codice, mancante) for codice in range(256)])

    def test_courier_largo_seicento_in_ogni_faccia(self):
        self.assertIn("constexpr Table Courier = AllOfWidth(600);", SORGENTE)
        for stile in ("Regular", "Bold", "Italic", "BoldItalic"):
            fonte = liberation(f"LiberationMono-{stile}.ttf")
            for codice in range(32, 256):
                carattere = carattere_windows(codice)
                if carattere is not None:
                    self.assertEqual(fonte.larghezza(fonte.glifo(carattere)), 600, codice)

    def test_discese_come_liberation(self):
        for nome, archivio in DISCESE:
            fonte = liberation(archivio)
            scritta = f"constexpr std::int16_t {nome} = {fonte.in_millesimi(fonte.discesa)};"
            self.assertIn(scritta, SORGENTE)


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    SORGENTE = pathlib.Path(sys.argv.pop(1)).read_text(encoding="utf-8")
    unittest.main()
