"""The picture readers against pixels known by construction and against Pillow's decoders."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from PIL import Image

SEMI = pathlib.Path(__file__).parent / "semi"
sys.path.insert(0, str(SEMI))
import fai_semi  # noqa: E402

# What Pillow cannot read: asserted below, so that the list stays true.
PILLOW_RIFIUTA = {"32bit_dieci", "32bit_bgr"}
# Pillow loses its way in plain runs of odd length; ImageMagick reads these.
PILLOW_SBAGLIA = {"4bit_corse", "4bit_salti"}
# Colours outside the palette are anybody's choice; ours is black.
SENZA_COLORE = {"4bit_tavolozza_corta", "fuori_tavolozza"}
# Pillow rounds five and six bits down where we take the nearest.
PILLOW_ARROTONDA = {"16bit_40", "16bit_565", "16bit_565_124"}


def leggi(percorso):
    """First line as numbers and pixels as rows of colours, or the text of the refusal."""
    esito = subprocess.run([os.environ["LEGGI_FIGURA"], percorso], capture_output=True)
    assert esito.returncode in (0, 1), esito
    if esito.returncode == 1:
        return esito.stdout.decode(), None
    testa, _, byte = esito.stdout.partition(b"\n")
    larga, alta, *altro = map(int, testa.split())
    colori = [tuple(byte[i : i + 3]) for i in range(0, len(byte), 3)]
    return (larga, alta, *altro), [colori[i : i + larga] for i in range(0, len(colori), larga)]


def con_pillow(percorso):
    with Image.open(percorso) as figura:
        figura.seek(0)
        colori = list(figura.convert("RGB").getdata())
        larga = figura.width
    return [colori[i : i + larga] for i in range(0, len(colori), larga)]


def con_imagemagick(percorso, larga):
    byte = subprocess.run(
        ["convert-im6.q16", percorso, "-depth", "8", "rgb:-"], capture_output=True
    ).stdout
    colori = [tuple(byte[i : i + 3]) for i in range(0, len(byte), 3)]
    return [colori[i : i + larga] for i in range(0, len(colori), larga)]


def lontananza(prima, seconda):
    return max(abs(a - b) for x, y in zip(prima, seconda) for c, d in zip(x, y) for a, b in zip(c, d))


class Figure(unittest.TestCase):
    def setUp(self):
        temporanea = tempfile.TemporaryDirectory()
        self.addCleanup(temporanea.cleanup)
        self.cartella = pathlib.Path(temporanea.name)

    def confronta(self, percorso, atteso):
        testa, colori = leggi(percorso)
        self.assertEqual(testa[:2], (len(atteso[0]), len(atteso)), percorso)
        self.assertEqual(colori, atteso, percorso)
        return testa

    def confronta_tutte(self, cartella, figure):
        for nome, (byte, atteso) in figure.items():
            with self.subTest(nome):
                percorso = SEMI / cartella / f"{nome}.{cartella}"
                self.assertEqual(percorso.read_bytes(), byte, "not what fai_semi.py makes")
                testa = self.confronta(percorso, atteso)
                bit = int(nome.split("bit")[0]) if nome[0].isdigit() and "bit" in nome else 0
                if cartella == "bmp":
                    self.assertEqual(testa[2:4], (bit, 3) if bit <= 8 else (24, 1))

    def test_bmp_hanno_i_pixel_costruiti(self):
        figure = fai_semi.tutte_le_bmp()
        self.assertGreaterEqual(len(figure), 30)
        self.confronta_tutte("bmp", figure)

    def test_gif_hanno_i_pixel_costruiti(self):
        figure = fai_semi.tutte_le_gif()
        self.assertGreater(len(figure), 12)
        self.confronta_tutte("gif", figure)

    def test_gif_riempiono_la_tabella_dei_codici(self):
        for nome, (byte, atteso) in fai_semi.gif_grande().items():
            percorso = self.cartella / f"{nome}.gif"
            percorso.write_bytes(byte)
            self.confronta(percorso, atteso)
            self.assertEqual(con_pillow(percorso), atteso)

    def test_il_fotogramma_piccolo_e_la_figura(self):
        tavolozza = fai_semi.colori_tavolozza(16)
        righe = fai_semi.indici(16)
        percorso = self.cartella / "angolo.gif"
        percorso.write_bytes(fai_semi.gif(righe, 4, tavolozza, angolo=(7, 5)))
        self.confronta(percorso, fai_semi.colora(righe, tavolozza))

    def test_pillow_vede_gli_stessi_pixel(self):
        confrontate = 0
        for percorso in sorted([*SEMI.glob("bmp/*.bmp"), *SEMI.glob("gif/*.gif")]):
            with self.subTest(percorso.name):
                if percorso.stem in PILLOW_RIFIUTA:
                    self.assertRaises(Exception, con_pillow, percorso)
                    continue
                if percorso.stem in PILLOW_SBAGLIA | SENZA_COLORE:
                    continue
                scarto = 1 if percorso.stem in PILLOW_ARROTONDA else 0
                _, colori = leggi(percorso)
                self.assertLessEqual(lontananza(colori, con_pillow(percorso)), scarto)
                confrontate += 1
        self.assertGreater(confrontate, 35)

    def test_imagemagick_vede_gli_stessi_pixel(self):
        for nome in sorted(PILLOW_SBAGLIA | {"32bit_bgr", "8bit_corse", "1bit_12", "24bit_alto"}):
            with self.subTest(nome):
                testa, colori = leggi(SEMI / "bmp" / f"{nome}.bmp")
                self.assertEqual(colori, con_imagemagick(SEMI / "bmp" / f"{nome}.bmp", testa[0]))

    def test_figure_scritte_da_pillow(self):
        figura = Image.new("RGB", (61, 47))
        figura.putdata([(x * 4, y * 5, (x * y) % 256) for y in range(47) for x in range(61)])
        for modo in ("1", "L", "P", "RGB"):
            for tipo in ("bmp", "gif"):
                with self.subTest(f"{modo} {tipo}"):
                    percorso = self.cartella / f"{modo}.{tipo}"
                    figura.convert(modo).save(percorso)
                    self.confronta(percorso, con_pillow(percorso))

    def test_jpeg_dimensioni_e_componenti(self):
        attesi = {"L": (8, 0), "RGB": (24, 1), "CMYK": (32, 2)}
        nomi = sorted(p.stem for p in SEMI.glob("jpeg/*.jpg"))
        self.assertEqual(len(nomi), 6)
        for nome in nomi:
            with self.subTest(nome):
                percorso = SEMI / "jpeg" / f"{nome}.jpg"
                with Image.open(percorso) as figura:
                    atteso = (*figura.size, *attesi[figura.mode])
                    adobe = "adobe" in figura.info
                testa, _ = leggi(percorso)
                self.assertEqual(testa, (*atteso, int(adobe and atteso[3] == 2), 0))


if __name__ == "__main__":
    unittest.main()
