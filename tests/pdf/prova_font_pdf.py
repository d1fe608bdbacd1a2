"""Embedded fonts in PDF files: seen, copied and searched by readers that are not ours."""

import os
import pathlib
import re
import subprocess
import sys
import unittest

from PIL import Image

QUI = pathlib.Path(__file__).parent
sys.path.insert(0, str(QUI / "aiuti"))
from pdf_da_fuori import DaFuori, esegui  # noqa: E402

SEMI = QUI / "semi" / "ttf"
LIBERATION = sorted(pathlib.Path("/usr/share/fonts/truetype/liberation2").glob("*.ttf"))

# Seeds whose maps reach all their glyphs, by the name that the document gives them.
INCORPORABILI = {
    "unicode": "Prova-Semplice",
    "formato12": "Prova-Semplice",
    "macintosh": "Prova-Semplice",
    "corsivo": "Prova-Semplice",
    "unita2048": "Prova-Semplice",
    "nome": "Prova12xy",
}
TESTO_DEI_SEMI = "Hix xiH é€ H•x"


def tutti_i_caratteri():
    """The characters of Windows-1252, some on a line. The two that readers take for others, the
    blank and the hyphen that do not show where a line may end, are left out."""
    codici = [c for c in range(33, 256) if c not in (0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D, 0xA0, 0xAD)]
    testo = bytes(codici).decode("cp1252")
    return [testo[i : i + 27] for i in range(0, len(testo), 27)]


class FontPdf(DaFuori):
    def documento(self, nome, scritture):
        """scritture: font file and its lines; each font has a page."""
        ordini, attese = [], []
        for numero, (percorso, righe) in enumerate(scritture):
            ordini += [("pagina",)] if numero else []
            ordini.append(("font", percorso, f"Nome {numero}"))
            for i, riga in enumerate(righe):
                ordini.append(("testo", 30, 40 + 30 * i, 14, f"NOME{numero}", riga.encode().hex()))
            attese += righe
        percorso = self.disegna(nome, ordini)
        percorso.with_name(nome + ".attese").write_text("\n".join(attese) + "\n", encoding="utf-8")
        return percorso

    def incorporati(self, percorso):
        """Name, type and encoding of the embedded fonts, one for each page."""
        righe = esegui("pdffonts", percorso).decode().splitlines()[2:]
        campi = [re.fullmatch(r"(\S+) +(\S+) +(\S+) +(yes|no) (yes|no) .*", r).groups() for r in righe]
        self.assertEqual({c[3] for c in campi}, {"yes"})
        return [c[:3] for c in campi]

    def accettato_con_i_testi(self, percorso):
        self.accettati([percorso])  # poppler and mupdf find the texts beside it
        testo = esegui("gs", "-q", "-sDEVICE=txtwrite", "-o", "-", percorso).decode()
        parole = " ".join(testo.split())
        for riga in percorso.with_name(percorso.name + ".attese").read_text("utf-8").splitlines():
            self.assertIn(riga, parole, "Ghostscript")

    def test_font_liberation(self):
        self.assertGreaterEqual(len(LIBERATION), 12, "fonts-liberation2 is missing")
        righe = ["Il Nero vince, il Rosso perde.", *tutti_i_caratteri()]
        percorso = self.documento("liberation.pdf", [(f, righe) for f in LIBERATION])
        trovati = self.incorporati(percorso)
        self.assertEqual({t[1:] for t in trovati}, {("TrueType", "WinAnsi")})
        nomi = [n for n, _, _ in trovati]
        self.assertEqual(len(set(nomi)), len(LIBERATION))
        self.assertTrue(all(n.startswith("Liberation") for n in nomi), nomi)
        self.accettato_con_i_testi(percorso)

    def test_font_seme(self):
        for seme, nome in INCORPORABILI.items():
            with self.subTest(seme):
                # A blank of an eighth of the size is too narrow for pdftotext to be one.
                testo = TESTO_DEI_SEMI.replace(" ", "" if seme == "unita2048" else " ")
                percorso = self.documento(f"{seme}.pdf", [(SEMI / f"{seme}.ttf", [testo])])
                self.assertEqual(self.incorporati(percorso), [(nome, "TrueType", "WinAnsi")])
                self.accettato_con_i_testi(percorso)

    def inchiostro(self, percorso):
        """First and last dark column and row of the page in each reader, points as pixels."""
        disegnatori = {
            "poppler": ("pdftoppm", "-r", 72, "-gray", "-singlefile", percorso, self.cartella / "poppler"),
            "mupdf": ("mutool", "draw", "-r", 72, "-c", "gray", "-o", self.cartella / "mupdf.pgm", percorso),
            "gs": ("gs", "-q", "-r72", "-sDEVICE=pgmraw", "-o", self.cartella / "gs.pgm", percorso),
        }  # fmt: skip
        for nome, comando in disegnatori.items():
            subprocess.run([str(c) for c in comando], check=True, capture_output=True)
            with Image.open(self.cartella / f"{nome}.pgm") as pagina:
                yield nome, pagina.point(lambda v: 255 * (v < 128)).getbbox()

    def test_si_vede_il_glifo_del_font(self):
        """The letter is a block 40 to 400 units wide and 690 high, which no other font has."""
        lettere = {**{seme: "H" for seme in INCORPORABILI}, "senza_os2": "H", "simboli": "A"}
        for seme, lettera in lettere.items():
            unita = 2048 if seme == "unita2048" else 1000
            ordini = [("font", SEMI / f"{seme}.ttf", "Suo"),
                      ("testo", 100, 300, 200, "Suo", lettera.encode().hex())]  # fmt: skip
            percorso = self.disegna(f"vista_{seme}.pdf", ordini)
            atteso = [100 + 200 * 40 / unita, 300 - 200 * 690 / unita, 100 + 200 * 400 / unita, 300]
            for lettore, riquadro in self.inchiostro(percorso):
                with self.subTest(f"{seme}, {lettore}"):
                    self.assertIsNotNone(riquadro)
                    for avuto, vero in zip(riquadro, atteso):
                        self.assertAlmostEqual(avuto, vero, delta=1.01)

    def test_il_font_vietato_non_entra(self):
        vietato = SEMI / "vietato.ttf"
        esito = subprocess.run(
            [os.environ["DISEGNA_PDF"], self.cartella / "vietato.pdf"],
            input=f"font\t{vietato}\tVietato\n".encode(), capture_output=True)  # fmt: skip
        self.assertEqual(esito.returncode, 1)
        self.assertIn(str(vietato).encode(), esito.stderr)


if __name__ == "__main__":
    unittest.main()
