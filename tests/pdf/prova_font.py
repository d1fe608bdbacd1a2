"""The TrueType reader against values known by construction and against fontTools."""

import os
import pathlib
import re
import subprocess
import unittest

from fontTools.ttLib import TTFont

SEMI = pathlib.Path(__file__).parent / "semi" / "ttf"
SISTEMA = pathlib.Path("/usr/share/fonts/truetype")
VOCI = ("Flags MissingWidth StemV ItalicAngle CapHeight XHeight Ascent Descent MaxWidth AvgWidth").split()
# Windows-1252 codes that name no character; PDF readers draw a bullet for them.
APERTI = {0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D}


class Letto:
    def __init__(self, nome, discesa, incorporabile, descrittore, larghezze):
        self.nome, self.descrittore = nome, descrittore
        self.discesa = float(discesa)
        self.incorporabile = incorporabile == "1"
        self.larghezze = [int(x) for x in larghezze.split()]
        self.voci = {v: float(re.search(rf"/{v} (\S+)", descrittore).group(1)) for v in VOCI}


def leggi(*percorsi):
    esito = subprocess.run(
        [os.environ["LEGGI_FONT"], *percorsi], capture_output=True, check=True, text=True
    )
    righe = esito.stdout.splitlines()
    letti = []
    while righe:
        if righe[0].startswith("errore: "):
            letti.append(righe.pop(0))
        else:
            letti.append(Letto(*righe[:5]))
            del righe[:5]
    assert len(letti) == len(percorsi)
    return letti


def seme(nome):
    (letto,) = leggi(SEMI / f"{nome}.ttf")
    return letto


def carattere(codice):
    if codice in APERTI:
        return 0x2022
    return ord(bytes([codice]).decode("cp1252"))


def larghezze_attese(font):
    """The advance of each code by fontTools' best Unicode map."""
    mappa, metriche = font.getBestCmap(), font["hmtx"]
    mille = lambda v: round(v * 1000 / font["head"].unitsPerEm)  # noqa: E731
    attese = []
    for codice in range(256):
        segno = mappa.get(carattere(codice)) if codice >= 32 else None
        if segno is None and codice in (0xA0, 0xAD):
            segno = mappa.get({0xA0: 0x20, 0xAD: 0x2D}[codice])
        attese.append(mille(metriche[segno or ".notdef"][0]))
    return attese


def descrittore_atteso(font):
    testa, orizzontale, os2, post = (font[t] for t in ("head", "hhea", "OS/2", "post"))
    mille = lambda v: round(v * 1000 / testa.unitsPerEm)  # noqa: E731
    famiglia = os2.sFamilyClass >> 8
    bandiere = 32 + bool(post.isFixedPitch) + 64 * (post.italicAngle != 0)
    bandiere += 2 * (famiglia in (1, 2, 3, 4, 5, 7))
    angolo = f"{post.italicAngle:.3f}".rstrip("0").rstrip(".")
    riquadro = " ".join(str(mille(v)) for v in (testa.xMin, testa.yMin, testa.xMax, testa.yMax))
    return (
        f"/Flags {bandiere} /FontBBox [ {riquadro} ] /MissingWidth {mille(font['hmtx']['.notdef'][0])}"
        f" /StemV {70 if os2.usWeightClass <= 500 else 120} /ItalicAngle {angolo}"
        f" /CapHeight {mille(altezza(font, 'H', 'sCapHeight'))}"
        f" /XHeight {mille(altezza(font, 'x', 'sxHeight'))}"
        f" /Ascent {mille(orizzontale.ascent)} /Descent {mille(orizzontale.descent)}"
        f" /MaxWidth {mille(orizzontale.advanceWidthMax)} /AvgWidth {mille(os2.xAvgCharWidth)}"
    )


def altezza(font, lettera, campo):
    os2 = font["OS/2"]
    if os2.version >= 2 and getattr(os2, campo):
        return getattr(os2, campo)
    return font["glyf"][font.getBestCmap()[ord(lettera)]].yMax


class Font(unittest.TestCase):
    def test_descrittore_per_intero(self):
        letto = seme("unicode")
        self.assertEqual(letto.nome, "Prova-Semplice")
        self.assertEqual(letto.discesa, -220)
        self.assertEqual(
            letto.descrittore,
            "/Flags 32 /FontBBox [ 40 0 400 700 ] /MissingWidth 500 /StemV 70 /ItalicAngle 0"
            " /CapHeight 701 /XHeight 497 /Ascent 880 /Descent -220 /MaxWidth 731 /AvgWidth 468",
        )

    def test_larghezze_dei_codici(self):
        larghezze = seme("unicode").larghezze
        self.assertEqual(larghezze[:32], [500] * 32)
        for codice, larghezza in {0x20: 250, 0x48: 731, 0x78: 555, 0x69: 301, 0xE9: 443,
                                  0x80: 617, 0x95: 351, 0x81: 351, 0x7F: 351, 0xA0: 250,
                                  0xAD: 500, 0x41: 500, 0xFF: 500}.items():  # fmt: skip
            self.assertEqual(larghezze[codice], larghezza, hex(codice))

    def test_ogni_mappa_da_le_stesse_larghezze(self):
        attese = seme("unicode").larghezze
        for nome in ("formato12", "macintosh", "corsivo", "vietato", "nome"):
            self.assertEqual(seme(nome).larghezze, attese, nome)
        solo_ascii = [x if c < 0x80 else 500 for c, x in enumerate(attese)]
        solo_ascii[0x7F], solo_ascii[0xA0] = 500, 250
        self.assertEqual(seme("formato6").larghezze, solo_ascii)

    def test_i_simboli_hanno_codici_propri(self):
        letto = seme("simboli")
        self.assertEqual(letto.voci["Flags"], 4)
        attese = [500] * 256
        attese[0x20], attese[0x41], attese[0xB7] = 250, 731, 351
        self.assertEqual(letto.larghezze, attese)

    def test_corsivo_e_passo_fisso(self):
        voci = seme("corsivo").voci
        self.assertEqual((voci["Flags"], voci["ItalicAngle"]), (32 + 64 + 1, -9.4))

    def test_quel_che_os2_non_dice_lo_dicono_i_glifi(self):
        voci = seme("os2_vecchia").voci
        self.assertEqual((voci["CapHeight"], voci["XHeight"], voci["StemV"]), (690, 480, 120))
        self.assertEqual(voci["Flags"], 32 + 2)
        media = round(sum(seme("os2_vecchia").larghezze) / 256)
        self.assertEqual(voci["AvgWidth"], media)
        senza = seme("senza_os2").voci
        self.assertEqual((senza["CapHeight"], senza["XHeight"], senza["StemV"]), (690, 480, 120))
        self.assertEqual((senza["Flags"], senza["ItalicAngle"]), (32, 0))

    def test_millesimi_da_altre_unita(self):
        letto = seme("unita2048")
        self.assertEqual(letto.larghezze[0x48], round(731 * 1000 / 2048))
        self.assertEqual(letto.discesa, round(-220 * 1000 / 2048))

    def test_il_divieto_di_incorporare(self):
        self.assertFalse(seme("vietato").incorporabile)
        self.assertTrue(seme("unicode").incorporabile)
        self.assertTrue(seme("senza_os2").incorporabile)

    def test_il_nome_entra_in_un_nome_pdf(self):
        self.assertEqual(seme("nome").nome, "Prova12xy")

    def test_i_font_del_sistema_come_li_legge_fonttools(self):
        percorsi = sorted([*SISTEMA.glob("dejavu/*.ttf"), *SISTEMA.glob("liberation/*.ttf")])
        self.assertGreaterEqual(len(percorsi), 6, "fonts-dejavu-core and fonts-liberation are missing")
        for percorso, letto in zip(percorsi, leggi(*percorsi)):
            with self.subTest(percorso.name), TTFont(percorso, lazy=True) as font:
                self.assertEqual(letto.nome, font["name"].getDebugName(6))
                self.assertEqual(letto.larghezze, larghezze_attese(font))
                self.assertEqual(letto.descrittore, descrittore_atteso(font))
                self.assertTrue(letto.incorporabile)


if __name__ == "__main__":
    unittest.main()
