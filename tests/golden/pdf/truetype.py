"""TrueType files for the reference PDF writer: what a font descriptor needs."""

import struct
from collections import namedtuple

from numeri import INDEFINITI, CodiceUnicode, Numero

Font = namedtuple("Font", "nome discesa incorporabile descrittore larghezze dati")

VIETATI_NEI_NOMI = " ()<>[]{}/%#"
# Classes of families that have serifs (OpenType, OS/2, sFamilyClass).
GRAZIE = (1, 2, 3, 4, 5, 7)


def LeggiFont(percorso):
    with open(percorso, "rb") as archivio:
        return Lettura(archivio.read()).Font()


class Lettura:
    def __init__(self, byte):
        self.byte = byte
        quante = struct.unpack_from(">H", byte, 4)[0]
        voci = [struct.unpack_from(">4sIII", byte, 12 + 16 * i) for i in range(quante)]
        self.tabelle = {tag: byte[posto:posto + lunga] for tag, _, posto, lunga in voci}
        self.unita = self.Numeri(b"head", ">H", 18)[0]
        self.mappa, self.simboli = self.MappaMigliore()

    def Numeri(self, tabella, formato, posto):
        return struct.unpack_from(formato, self.tabelle[tabella], posto)

    def Mille(self, valore):
        """Font units as thousandths of an em, to the nearest."""
        return (2 * valore * 1000 + self.unita) // (2 * self.unita)

    # -- character map -----------------------------------------------------

    def MappaMigliore(self):
        """Character to glyph, and whether it is a map of symbols."""
        cmap = self.tabelle[b"cmap"]
        quante = struct.unpack_from(">H", cmap, 2)[0]
        mappe = {}
        for i in range(quante):
            piattaforma, codifica, posto = struct.unpack_from(">HHI", cmap, 4 + 8 * i)
            mappe[piattaforma, codifica] = cmap[posto:]
        if (3, 0) in mappe:
            return Mappa4(mappe[3, 0]), True
        return Mappa4(mappe[3, 1]), False

    def Glifo(self, codice):
        if self.simboli:
            return self.mappa.get(0xF000 + codice, 0)
        if codice < 32:
            return 0
        # Readers show a bullet for the codes without a character.
        unicode = 0x2022 if codice == 0x7F or codice in INDEFINITI else CodiceUnicode(chr(codice))
        riserva = {0xA0: 0x20, 0xAD: 0x2D}.get(codice)
        return self.mappa.get(unicode) or self.mappa.get(riserva, 0)

    def Avanzamento(self, glifo):
        metriche = self.Numeri(b"hhea", ">H", 34)[0]
        return self.Numeri(b"hmtx", ">H", 4 * min(glifo, metriche - 1))[0]

    # -- texts and numbers -------------------------------------------------

    def Nome(self):
        """Name 6 of the Windows platform, as a PDF name."""
        quanti, testi = self.Numeri(b"name", ">HH", 2)
        for i in range(quanti):
            piattaforma, _, _, numero, lungo, posto = self.Numeri(b"name", ">6H", 6 + 12 * i)
            if (piattaforma, numero) == (3, 6):
                testo = self.tabelle[b"name"][testi + posto:testi + posto + lungo]
                testo = testo.decode("utf-16-be")
                return "".join(c for c in testo if c not in VIETATI_NEI_NOMI)
        raise ValueError("no name")

    def Font(self):
        peso, incorporazione = self.Numeri(b"OS/2", ">H", 4)[0], self.Numeri(b"OS/2", ">H", 8)[0]
        media, famiglia = self.Numeri(b"OS/2", ">h", 2)[0], self.Numeri(b"OS/2", ">B", 30)[0]
        minuscole, maiuscole = self.Numeri(b"OS/2", ">hh", 86)
        angolo = self.Numeri(b"post", ">i", 4)[0] / 65536
        fisso = self.Numeri(b"post", ">I", 12)[0]
        sale, scende = self.Numeri(b"hhea", ">hh", 4)
        segni = 4 if self.simboli else 32
        segni += (1 if fisso else 0) + (2 if famiglia in GRAZIE else 0) + (64 if angolo else 0)
        m = self.Mille
        riquadro = " ".join(str(m(v)) for v in self.Numeri(b"head", ">4h", 36))
        descrittore = (
            f"/Flags {segni} /FontBBox [ {riquadro} ] /MissingWidth {m(self.Avanzamento(0))} "
            f"/StemV {70 if peso <= 500 else 120} /ItalicAngle {Numero(angolo)} "
            f"/CapHeight {m(maiuscole)} /XHeight {m(minuscole)} /Ascent {m(sale)} "
            f"/Descent {m(scende)} /MaxWidth {m(self.Numeri(b'hhea', '>H', 10)[0])} "
            f"/AvgWidth {m(media)}")
        larghezze = [m(self.Avanzamento(self.Glifo(codice))) for codice in range(256)]
        return Font(self.Nome(), m(scende), incorporazione & 0xF != 2, descrittore, larghezze,
                    self.byte)


def Mappa4(tabella):
    """Character to glyph of a subtable of segments."""
    formato, _, _, doppi = struct.unpack_from(">4H", tabella, 0)
    assert formato == 4
    quanti = doppi // 2
    fini = struct.unpack_from(f">{quanti}H", tabella, 14)
    inizi = struct.unpack_from(f">{quanti}H", tabella, 16 + doppi)
    scarti = struct.unpack_from(f">{quanti}H", tabella, 16 + 2 * doppi)
    mappa = {}
    for i, (inizio, fine, scarto) in enumerate(zip(inizi, fini, scarti)):
        posto = 16 + 3 * doppi + 2 * i
        salto = struct.unpack_from(">H", tabella, posto)[0]
        for codice in range(inizio, fine + 1):
            if codice == 0xFFFF:
                continue
            glifo = codice
            if salto:
                glifo = struct.unpack_from(">H", tabella, posto + salto + 2 * (codice - inizio))[0]
                if glifo == 0:
                    continue
            mappa[codice] = (glifo + scarto) & 0xFFFF
    return mappa
