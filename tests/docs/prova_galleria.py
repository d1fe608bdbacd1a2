"""The gallery of the PDF writer: every operation of the class on pages that all readers show."""

import json
import os
import re
import shutil
import stat
import sys
import tempfile
import time
import unittest
from pathlib import Path

import comune
from comune import COSTRUITI, DOCS, LIBERATION, esegui, fai

import disegna_immagini
from PIL import Image

GALLERIA = COSTRUITI / "gallery" / "galleria"
FIGURE = DOCS / "figure"
FONT = [LIBERATION / "LiberationSerif-BoldItalic.ttf", LIBERATION / "LiberationMono-Regular.ttf"]
SORGENTI = sorted((DOCS / "gallery").glob("*.cpp"))
PAGINE = 15

# Public, but no operations of the numbered list: what the library adds for tests and small files.
AGGIUNTE = {"SetClock", "ShareFonts", "Conforming", "Compress", "SetLanguage", "BeginDocTo",
            "AddFontData", "DrawImageData"}

ATTESE = [
    "tutte le operazioni di clsPDFCreator", "12 Motivi e sfumature",
    "Rosso 31 Times New Roman, corsivo", "àèéìòù ç ñ ü ß € « » – — … ‰ ½ © ® ™", "sta in mezzo", "tutto insieme",
    "16: in basso", "rientro di 6 mm, righe: 10", "restano dove sono, salvo a trentuno.",
    "Fuchsia", "ToColor con ciano, magenta, giallo e nero", "raggio 50",
    "DrawCurveB: il primo è l'inizio", "DrawArc da 0 a 45, 90 ... 360 gradi",
    "MakeAxisSkewing", "Vince Rosso 401.655 401.980 44,52 %", "FilterDecode 6: come stanno",
    "0123456789 àèéìòù «così» – € % & ? !", "Rosso 31 AC 9P 8F KQ 3P", "TAGLIA 31", "Nero Rosso",
    "Mazzo da Scalvino", "prolungata da una parte sola", "timbro 13", "contornato",
    "SetTextHorizontalScaling", "clsPDFCreator 1.9.1", "pag. 13", "di 14",
]

CODICI = {"EAN-13:4006381333931", "EAN-13:9780143007234", "EAN-13:8012345678907",
          "EAN-13:8012345313129", "CODE-39:TAGLIA 31", "CODE-39:ROSSO",
          "CODE-39:N+E+R+O R+O+S+S+O"}

IMMAGINE_MASSIMA = 40 * 1024
DIFFERENZA_MASSIMA = 4  # of 255; see prova_manuale.py


def operazioni():
    """The names that the last page lists, in their order."""
    sorgente = (DOCS / "gallery" / "Pagine_Note.cpp").read_text(encoding="utf-8")
    elenco = re.search(r"Operazioni\[\] = \{(.*?)\};", sorgente, re.DOTALL)[1]
    return re.findall(r'"(\w+)"', elenco)


class Galleria(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.cartella = Path(tempfile.mkdtemp(prefix="galleria "))
        cls.pdf = cls.cartella / "galleria.pdf"
        cls.scrivi(cls.pdf)
        comune.attendi_testi(cls.pdf, ATTESE)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.cartella)

    @staticmethod
    def scrivi(pdf, *opzioni, **altro):
        fai(GALLERIA, pdf, FIGURE, *FONT, *opzioni, **altro)

    def altra_cartella(self):
        cartella = Path(tempfile.mkdtemp(prefix="galleria "))
        self.addCleanup(shutil.rmtree, cartella)
        return cartella

    # ---- The source ------------------------------------------------------------------------------

    def test_l_elenco_ha_le_settanta_operazioni_della_classe(self):
        nomi = operazioni()
        self.assertEqual(len(nomi), 70)
        testata = (DOCS.parent / "pdf" / "clsPDFCreator.h").read_text(encoding="utf-8")
        pubblica = re.sub(r"//.*", "", testata[testata.index("void SetClock"):
                                               testata.index("private:")])
        dichiarate = re.findall(r"^    (?:static )?[\w:]+ (\w+)\(", pubblica, re.MULTILINE)
        dichiarate.remove("BeginDocTo")  # there are two, one for each kind of receiver
        self.assertEqual(len(dichiarate), len(set(dichiarate)))
        self.assertEqual(set(dichiarate) - AGGIUNTE, set(nomi))

    def test_i_sorgenti_chiamano_ogni_operazione(self):
        tutto = "".join(re.sub(r"//.*", "", f.read_text(encoding="utf-8")) for f in SORGENTI)
        chiamate = set(re.findall(r"(?:\bpdf\.|clsPDFCreator::)(\w+)\(", tutto))
        self.assertEqual(set(operazioni()) - chiamate, set())

    def test_i_sorgenti_restano_piccoli(self):
        self.assertGreater(len(SORGENTI), 5)
        for file in SORGENTI:
            self.assertLessEqual(len(file.read_text(encoding="utf-8").splitlines()), 300, file)

    def test_il_manuale_nomina_ogni_operazione(self):
        manuale = (DOCS / "pdf-writer.md").read_text(encoding="utf-8")
        prosa = re.sub(r"```.*?```", "", manuale, flags=re.DOTALL)
        self.assertEqual([nome for nome in operazioni() if f"`{nome}`" not in prosa], [])

    # ---- The document ----------------------------------------------------------------------------

    def test_tutti_i_lettori_la_accettano(self):
        comune.leggi_tutti(self.cartella, 1)
        self.assertRegex(fai("pdfinfo", self.pdf), rf"Pages: +{PAGINE}\n")

    def test_conforme_e_compatta_nessun_lettore_dice_niente(self):
        cartella = self.altra_cartella()
        for opzione in ["--conforme", "--compatta"]:
            pdf = cartella / f"galleria{opzione}.pdf"
            self.scrivi(pdf, opzione)
            self.assertRegex(fai("pdfinfo", pdf), rf"Title: +Galleria\n[^$]*Pages: +{PAGINE}\n")
            self.assertEqual(self.figure(pdf), self.figure(self.pdf))
            comune.attendi_testi(pdf, ATTESE)
        fai(sys.executable, comune.LETTORI, "--almeno", 2, cartella)

    def test_ogni_filtro_da_le_stesse_figure(self):
        attese = self.figure(self.pdf)
        self.assertEqual(len(attese), 4)
        for filtri in range(16):
            with self.subTest(filtri=filtri):
                pdf = self.altra_cartella() / f"filtri_{filtri}.pdf"
                self.scrivi(pdf, filtri)
                fai(comune.LEGGI_PDF, pdf)
                self.assertEqual(self.figure(pdf), attese)

    def figure(self, pdf):
        """Of each picture, once however often it is drawn, its size and pixels."""
        cartella = self.altra_cartella()
        fai("pdfimages", "-png", pdf, cartella / "f")
        oggetti = [riga.split()[10] for riga in fai("pdfimages", "-list", pdf).splitlines()[2:]]
        prime = [oggetti.index(oggetto) for oggetto in sorted(set(oggetti), key=oggetti.index)]
        trovate = []
        for numero in prime:
            with Image.open(cartella / f"f-{numero:03}.png") as immagine:
                trovate.append((immagine.size, immagine.convert("RGB").tobytes()))
        return trovate

    def test_i_codici_a_barre_si_leggono(self):
        figura = self.cartella / "codici"
        pagina = ["-f", "12", "-l", "12", "-singlefile"]
        fai("pdftoppm", "-r", "300", *pagina, "-png", self.pdf, figura)
        letti = fai("zbarimg", "-q", f"{figura}.png")
        self.assertEqual(set(letti.splitlines()), CODICI)

    def test_i_due_font_sono_incorporati(self):
        righe = fai("pdffonts", self.pdf).splitlines()[2:]
        incorporati = sorted(riga.split()[0] for riga in righe if riga.split()[3] == "yes")
        self.assertEqual(incorporati, ["LiberationMono", "LiberationSerif-BoldItalic"])

    def test_le_etichette_contano_le_pagine(self):
        fatto = esegui("qpdf", "--json", "--json-key=pagelabels", self.pdf)
        self.assertIn(fatto.returncode, (0, 3), fatto.stderr)
        trovate = [(riga["index"], riga["label"].get("/P", "").removeprefix("u:"),
                    riga["label"].get("/S"), riga["label"].get("/St", 1))
                   for riga in json.loads(fatto.stdout)["pagelabels"]]
        self.assertEqual(trovate, [(0, "Copertina", None, 1), (1, "", "/D", 1),
                                   (14, "A-", "/D", 1)])

    def test_i_segnalibri_sono_uno_per_foglio_e_per_sezione(self):
        fatto = esegui("mutool", "show", self.pdf, "outline")
        livelli = [len(re.match(r"[|+-]\t*", riga)[0]) for riga in fatto.stdout.splitlines()]
        self.assertEqual(livelli.count(min(livelli)), 1)
        self.assertEqual(livelli.count(min(livelli) + 1), 14)
        self.assertEqual(livelli.count(min(livelli) + 2), 47)
        self.assertEqual(livelli.count(min(livelli) + 3), 3)

    def test_solo_l_ultimo_foglio_e_girato(self):
        giri = re.findall(r"rot: +(\d+)", fai("pdfinfo", "-f", "1", "-l", PAGINE, self.pdf))
        self.assertEqual(giri, ["0"] * 14 + ["90"])

    def test_ogni_immagine_del_manuale_e_la_sua_pagina(self):
        manuale = (DOCS / "pdf-writer.md").read_text(encoding="utf-8")
        fresche = disegna_immagini.immagini(self.pdf)
        self.assertEqual(len(fresche), PAGINE)
        for file, fresca in fresche.items():
            with self.subTest(file=file):
                salvata = DOCS / "immagini" / file
                self.assertLess(salvata.stat().st_size, IMMAGINE_MASSIMA)
                self.assertIn(f"(immagini/{file})", manuale)
                with Image.open(salvata) as immagine:
                    self.assertEqual(immagine.size, fresca.size)
                    self.assertLess(disegna_immagini.differenza(immagine, fresca),
                                    DIFFERENZA_MASSIMA)

    # ---- The program -----------------------------------------------------------------------------

    def test_due_volte_gli_stessi_byte(self):
        ambiente = {**os.environ, "SOURCE_DATE_EPOCH": "1000000000"}
        cartella = self.altra_cartella()
        for nome in ["una.pdf", "due.pdf"]:
            self.scrivi(cartella / nome, env=ambiente)
        self.assertEqual((cartella / "una.pdf").read_bytes(), (cartella / "due.pdf").read_bytes())

    def test_apri_passa_il_documento_al_sistema(self):
        cartella = self.altra_cartella()
        finto = cartella / "xdg-open"
        segno = cartella / "aperto"
        finto.write_text(f"#!/bin/sh\nprintf %s \"$1\" >'{segno}.tmp'\nmv '{segno}.tmp' '{segno}'\n",
                         encoding="utf-8")
        finto.chmod(finto.stat().st_mode | stat.S_IXUSR)
        ambiente = {**os.environ, "PATH": f"{cartella}{os.pathsep}{os.environ['PATH']}"}
        self.scrivi(cartella / "g.pdf", "--apri", env=ambiente)
        scadenza = time.monotonic() + 30
        while not segno.exists() and time.monotonic() < scadenza:
            time.sleep(0.05)
        self.assertEqual(segno.read_text(encoding="utf-8"), str(cartella / "g.pdf"))

    def test_dice_che_cosa_manca(self):
        pdf = self.altra_cartella() / "g.pdf"
        for argomenti, codice, detto in [
                ([], 2, "galleria USCITA.pdf"),
                ([pdf, FIGURE, *FONT, "sei"], 2, "galleria USCITA.pdf"),
                ([pdf, "/non/esiste", *FONT], 1, "/non/esiste/tramonto.jpg: "),
                ([pdf, FIGURE, FIGURE / "semi.bmp", FONT[1]], 1, f"{FIGURE / 'semi.bmp'}: ")]:
            with self.subTest(argomenti=argomenti):
                fatto = esegui(GALLERIA, *argomenti)
                self.assertEqual(fatto.returncode, codice)
                self.assertTrue(fatto.stderr.startswith(detto), fatto.stderr)


if __name__ == "__main__":
    unittest.main()
