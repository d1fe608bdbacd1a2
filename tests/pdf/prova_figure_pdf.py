"""Pictures taken out of PDF files by readers that are not ours, against the pixels put in."""

import pathlib
import shutil
import sys
import unittest

from PIL import Image

QUI = pathlib.Path(__file__).parent
sys.path[:0] = [str(QUI / "aiuti"), str(QUI / "semi")]
import fai_semi  # noqa: E402
from pdf_da_fuori import DaFuori, esegui  # noqa: E402

TUTTI_I_FILTRI = range(16)

# Ghostscript 10.00 never ends on a palette in hexadecimal around base 85 whose last group is short,
# when no other filter follows: it is not shown the palettes of two, five and seven colours.
ESADECIMALE_DI_BASE_85 = 12
TAVOLOZZE_DISPARI = ("1bit", "4bit_tavolozza_corta", "fuori_tavolozza")


def figure():
    """File and colours of each seed picture; None for those whose data go in as they are."""
    trovate = []
    for tipo, fatte in (("bmp", fai_semi.tutte_le_bmp()), ("gif", fai_semi.tutte_le_gif())):
        trovate += [(QUI / "semi" / tipo / f"{n}.{tipo}", atteso) for n, (_, atteso) in fatte.items()]
    return trovate + [(p, None) for p in sorted(QUI.glob("semi/jpeg/*.jpg"))]


def righe(percorso):
    with Image.open(percorso) as figura:
        colori = list(figura.convert("RGB").getdata())
        return [colori[i : i + figura.width] for i in range(0, len(colori), figura.width)]


def trama(colori):
    """Pixels as numbers in the order in which their colours first appear."""
    numeri = {}
    return [[numeri.setdefault(c, len(numeri)) for c in riga] for riga in colori]


class FigurePdf(DaFuori):
    def documento(self, filtri, scelte):
        ordini = [("filtri", filtri)]
        for i, (percorso, _) in enumerate(scelte):
            ordini.append(("figura", 10 + 80 * (i % 7), 10 + 70 * (i // 7), 76, 52, percorso))
        return self.disegna(f"filtri_{filtri:02}.pdf", ordini)

    def estratte(self, *comando):
        """The files that a reader leaves in a new folder, in the order of their names."""
        cartella = self.cartella / "estratte"
        shutil.rmtree(cartella, ignore_errors=True)
        cartella.mkdir()
        esegui(*comando, cwd=cartella)
        return sorted(cartella.iterdir())

    def stessi_pixel(self, estratta, percorso, atteso, due_colori):
        if estratta.suffix == ".pam":
            # The only one that a reader must turn over: its four inks as they are printed.
            self.assertEqual(percorso.stem, "cmyk_adobe")
            with Image.open(percorso) as figura:
                self.assertEqual(estratta.read_bytes().split(b"ENDHDR\n")[1], figura.tobytes())
        elif atteso is None:
            # JPEG data are copied; a line end follows them.
            self.assertTrue(estratta.read_bytes().startswith(percorso.read_bytes()))
            with Image.open(estratta) as una, Image.open(percorso) as altra:
                self.assertEqual((una.mode, una.tobytes()), (altra.mode, altra.tobytes()))
        elif due_colori:
            self.assertEqual(trama(righe(estratta)), trama(atteso))
        else:
            self.assertEqual(righe(estratta), atteso)

    def confronta(self, estratte, scelte, lettore):
        self.assertEqual(len(estratte), len(scelte), lettore)
        for estratta, (percorso, atteso) in zip(estratte, scelte):
            # pdfimages shows pictures of one bit in black and white; mutool checks their colours.
            bianco_e_nero = lettore == "pdfimages" and percorso.stem.startswith("1bit")
            with self.subTest(f"{lettore}, {percorso.name}"):
                self.stessi_pixel(estratta, percorso, atteso, bianco_e_nero)

    def test_tornano_tutti_i_pixel(self):
        scelte = figure()
        self.assertGreaterEqual(len(scelte), 45)
        for filtri in TUTTI_I_FILTRI:
            with self.subTest(filtri=filtri):
                documento = self.documento(filtri, scelte)
                poppler = self.estratte("pdfimages", "-png", "-j", documento, "f")
                self.confronta(poppler, scelte, "pdfimages")
                self.confronta(self.estratte("mutool", "extract", documento), scelte, "mutool")

    def test_li_accettano_tutti_i_lettori(self):
        documenti = []
        for filtri in TUTTI_I_FILTRI:
            vietate = TAVOLOZZE_DISPARI if filtri == ESADECIMALE_DI_BASE_85 else ()
            scelte = [f for f in figure() if not f[0].stem.startswith(vietate)]
            self.assertGreater(len(scelte), 40)
            documenti.append(self.documento(filtri, scelte))
        self.accettati(documenti)

    def test_le_pagine_disegnate_sono_uguali(self):
        """However the data are encoded, the same page is seen."""
        scelte = figure()
        viste = set()
        for filtri in TUTTI_I_FILTRI:
            documento = self.documento(filtri, scelte)
            esegui("pdftoppm", "-r", 100, "-singlefile", documento, self.cartella / "pagina")
            viste.add((self.cartella / "pagina.ppm").read_bytes())
        self.assertEqual(len(viste), 1)

    def test_la_figura_sta_diritta_nel_suo_rettangolo(self):
        percorso, atteso = next(f for f in figure() if f[0].name == "24bit_40.bmp")
        # Ten points, ten pixels of the page, are one pixel of the picture: their middles tell it.
        documento = self.disegna("diritta.pdf", [("figura", 40, 50, 190, 130, percorso)])
        esegui("pdftoppm", "-r", 72, "-singlefile", "-aa", "no", documento, self.cartella / "p")
        pagina = righe(self.cartella / "p.ppm")
        self.assertEqual([riga[45:230:10] for riga in pagina[55:180:10]], atteso)
        colorate = [(x, y) for y, riga in enumerate(pagina) for x, c in enumerate(riga)
                    if c != (255, 255, 255)]  # fmt: skip
        self.assertEqual(min(colorate), (40, 50))
        # Some readers paint every pixel that the edge touches.
        self.assertIn(max(colorate), [(229, 179), (230, 180)])


if __name__ == "__main__":
    unittest.main()
