"""The same annotations in every reader: their pictures are compared place by place.

DISEGNA_NOTE names the program that makes the document.
"""

import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

# Pixels are as large as points, so that places in points are places in the picture.
LETTORI = {
    "poppler": lambda pdf, ppm: ["pdftoppm", "-r", "72", "-singlefile", pdf, ppm.with_suffix("")],
    "mutool": lambda pdf, ppm: ["mutool", "draw", "-N", "-q", "-r", "72", "-c", "rgb",
                                "-o", ppm, pdf],
    "Ghostscript": lambda pdf, ppm: ["gs", "-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ppmraw",
                                     "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4", "-r72",
                                     f"-sOutputFile={ppm}", pdf],
}

# Cells of 5 by 5 pixels: letters and edges lie a part of a pixel apart from one reader to another.
CELLA = 5

# How much the mean of a cell may differ, of 255, and of a whole place.
PARI_CELLA = 90
PARI_POSTO = 12


class Immagine:
    def __init__(self, byte):
        # A line of a comment may stand after the first.
        testa = re.match(rb"P6\s+(?:#.*\n)?(\d+)\s+(\d+)\s+255\s", byte)
        self.larga, self.alta = int(testa[1]), int(testa[2])
        self.punti = byte[testa.end():]

    def media(self, x, y, larga, alta):
        """The mean red, green and blue of a rectangle."""
        righe = [self.punti[3 * (self.larga * riga + x):3 * (self.larga * riga + x + larga)]
                 for riga in range(y, y + alta)]
        return [sum(sum(riga[colore::3]) for riga in righe) / (larga * alta)
                for colore in range(3)]


def scarto(una, altra):
    return max(abs(a - b) for a, b in zip(una, altra))


class Note(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.cartella = tempfile.TemporaryDirectory(prefix="note.")
        cls.addClassCleanup(cls.cartella.cleanup)
        pdf = Path(cls.cartella.name) / "note.pdf"
        posti = subprocess.run([os.environ["DISEGNA_NOTE"], pdf], check=True, text=True,
                               stdout=subprocess.PIPE).stdout
        cls.posti = {riga.split()[0]: [int(n) for n in riga.split()[1:]]
                     for riga in posti.splitlines()}
        cls.immagini = {}
        for lettore, comando in LETTORI.items():
            ppm = pdf.with_name(lettore + ".ppm")
            subprocess.run(comando(pdf, ppm), check=True, timeout=300)
            cls.immagini[lettore] = Immagine(ppm.read_bytes())

    def test_ogni_nota_si_vede_in_ogni_lettore(self):
        for lettore, immagine in self.immagini.items():
            for nome, posto in self.posti.items():
                with self.subTest(lettore=lettore, nome=nome):
                    self.assertGreater(scarto(immagine.media(*posto), [255, 255, 255]), 8)

    def test_la_stessa_nota_e_uguale_nei_lettori(self):
        prima = self.immagini["poppler"]
        for lettore, immagine in self.immagini.items():
            for nome, posto in self.posti.items():
                with self.subTest(lettore=lettore, nome=nome):
                    self.confronta(prima, immagine, posto)

    def confronta(self, prima, altra, posto):
        x, y, larga, alta = posto
        self.assertLess(scarto(prima.media(*posto), altra.media(*posto)), PARI_POSTO)
        celle = [(a, b, CELLA, CELLA) for a in range(x, x + larga - CELLA + 1, CELLA)
                 for b in range(y, y + alta - CELLA + 1, CELLA)]
        peggiore = max(scarto(prima.media(*cella), altra.media(*cella)) for cella in celle)
        self.assertLess(peggiore, PARI_CELLA)

    def test_fuori_dalle_note_non_c_e_niente(self):
        for lettore, immagine in self.immagini.items():
            with self.subTest(lettore=lettore):
                self.assertEqual(immagine.media(0, 0, 596, 18), [255, 255, 255])
                self.assertEqual(immagine.media(0, 735, 596, 100), [255, 255, 255])


if __name__ == "__main__":
    unittest.main()
