"""The manual of the PDF writer: each example runs, stands there as it is, and shows its page."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

import comune
from comune import COSTRUITI, DOCS, LIBERATION, esegui, fai

import blocchi
import disegna_immagini
from PIL import Image

# What an example takes besides the name of its document.
ALTRI_ARGOMENTI = {
    "figure": [DOCS / "figure"],
    "font_propri": [LIBERATION / "LiberationSerif-BoldItalic.ttf"],
}

def corpo(risposta):
    """What an answer as of a web server brings."""
    testa, _, portato = risposta.partition(b"\r\n\r\n")
    righe = testa.decode("ascii").split("\r\n")
    if righe != ["HTTP/1.1 200 OK", "Content-Type: application/pdf",
                 f"Content-Length: {len(portato)}"]:
        raise AssertionError(righe)
    return portato


# Examples whose document is not in a file, and where it is in what they print.
DALL_USCITA = {"risposta": corpo, "tubo": bytes}

# Texts that readers find in the documents, in the order of the manual.
ATTESE = {
    "documento": ["An evening of cards", "Saturday at nine, in the garden room"],
    "pagine": ["Preface", "page 2 of the file", "A-10"],
    "caratteri": ["Rosso 31 Rosso 31", "Trentuno après"],
    "righe": ["ends at the line", "struck out", "narrow letters", "at an angle", "Scalvino"],
    "riquadri": ["the coup. Equal totals", "middle", "6 lines", "this one by ninety degrees."],
    "colori": [],
    "percorsi": [],
    "curve": [],
    "assi": [],
    "oggetti": ["page 1", "page 3", "of 3"],
    "tabelle": ["What the simulation says", "Rosso wins", "401,980", "2.2 %"],
    "figure": [],
    "font_propri": ["Perché no?", "«virgolette» – and €: what", "underlined in a face of one's own"],
    "note": ["The coup", "Where to read on", "example.org/rules"],
    "codici": ["006381", "TAGLIA 7", "Nero31"],
    "motivi": ["Scalvino"],
    "risposta": ["Signora Bruni", "is expected at nine"],
    "tubo": ["An evening of cards", "000033"],
}

IMMAGINE_MASSIMA = 30 * 1024

# Of 255, mean over a picture: the palette and the versions of the renderer cost up to 2, another
# page costs 10 and more.
DIFFERENZA_MASSIMA = 4


class Manuale(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.testo = blocchi.MANUALE.read_text(encoding="utf-8")
        cls.cartella = Path(tempfile.mkdtemp(prefix="manuale "))
        cls.errori = {}
        for nome in ATTESE:
            cls.errori[nome] = cls.scrivi(nome)
            if ATTESE[nome]:
                comune.attendi_testi(cls.pdf(nome), ATTESE[nome])

    @classmethod
    def scrivi(cls, nome):
        """Makes the example's document; what it says on standard error."""
        argomenti = [] if nome in DALL_USCITA else [cls.pdf(nome), *ALTRI_ARGOMENTI.get(nome, [])]
        fatto = esegui(COSTRUITI / "esempi" / nome, *argomenti, text=False)
        if fatto.returncode != 0:
            raise AssertionError(f"{nome}: {fatto.returncode}: {fatto.stderr}")
        if nome in DALL_USCITA:
            cls.pdf(nome).write_bytes(DALL_USCITA[nome](fatto.stdout))
        return fatto.stderr.decode("utf-8")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.cartella)

    @classmethod
    def pdf(cls, nome):
        return cls.cartella / f"{nome}.pdf"

    def test_ogni_sorgente_sta_nel_manuale_parola_per_parola(self):
        mostrati = blocchi.blocchi(self.testo)
        self.assertEqual(list(mostrati), list(ATTESE))
        self.assertEqual(sorted(mostrati), sorted(f.stem for f in (DOCS / "esempi").glob("*.cpp")))
        self.assertEqual(self.testo.count("```cpp"), len(mostrati))
        for nome, codice in mostrati.items():
            self.assertEqual(codice, blocchi.sorgente(nome), nome)

    def test_i_lettori_accettano_ogni_pagina(self):
        comune.leggi_tutti(self.cartella, len(ATTESE))

    def test_ogni_immagine_e_la_pagina_del_suo_esempio(self):
        for nome in ATTESE:
            for file, fresca in disegna_immagini.immagini(self.pdf(nome)).items():
                with self.subTest(file=file):
                    salvata = DOCS / "immagini" / file
                    self.assertLess(salvata.stat().st_size, IMMAGINE_MASSIMA)
                    self.assertIn(f"(immagini/{file})", self.testo)
                    with Image.open(salvata) as immagine:
                        self.assertEqual(immagine.size, fresca.size)
                        differenza = disegna_immagini.differenza(immagine, fresca)
                    self.assertLess(differenza, DIFFERENZA_MASSIMA)

    def test_le_proprieta_e_il_margine_arrivano_ai_lettori(self):
        detto = fai("pdfinfo", "-box", self.pdf("documento"))
        self.assertRegex(detto, r"Title: +An evening of cards\n")
        self.assertRegex(detto, r"PDF version: +1\.4\n")
        self.assertRegex(detto, r"CropBox: +11\.34 +11\.34 +409\.66 +286\.66\n")

    def test_i_codici_a_barre_si_leggono(self):
        figura = self.cartella / "codici"
        fai("pdftoppm", "-r", "200", "-png", "-singlefile", self.pdf("codici"), figura)
        letti = fai("zbarimg", "-q", f"{figura}.png")
        self.assertLessEqual({"EAN-13:4006381333931", "EAN-13:9780143007234", "CODE-39:TAGLIA 7"},
                             set(letti.splitlines()))

    def test_il_font_e_incorporato(self):
        riga = fai("pdffonts", self.pdf("font_propri")).splitlines()[2]
        self.assertRegex(riga, r"^LiberationSerif-BoldItalic +TrueType +WinAnsi +yes")

    def test_il_tubo_porta_documenti_lunghi_ed_e_un_errore_se_nessuno_legge(self):
        lungo = esegui(COSTRUITI / "esempi" / "tubo", 500, text=False)
        self.assertEqual((lungo.returncode, lungo.stderr), (0, b""))
        self.assertIn(b"/Count 500", lungo.stdout)
        for quanti in [1, 500]:
            with subprocess.Popen([COSTRUITI / "esempi" / "tubo", str(quanti)], text=True,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE) as scrive:
                scrive.stdout.close()
                self.assertEqual(scrive.stderr.read(),
                                 "clsPDFCreator: il flusso non accetta altri dati\n")
            self.assertEqual(scrive.returncode, 1)

    def test_gli_errori_degli_esempi_sono_quelli_detti(self):
        assente = DOCS / "figure" / "assente.jpg"
        for nome, errore in self.errori.items():
            atteso = f"{assente}: file o cartella inesistente\n" if nome == "figure" else ""
            self.assertEqual(errore, atteso, nome)
        fatto = esegui(COSTRUITI / "esempi" / "documento", "/non/esiste/x.pdf")
        self.assertEqual(fatto.returncode, 1)
        self.assertTrue(fatto.stderr.startswith("/non/esiste/x.pdf: "), fatto.stderr)


if __name__ == "__main__":
    unittest.main()
