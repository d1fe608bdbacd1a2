"""The foreign readers' script itself: it accepts a sound document and refuses each broken one."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
import unittest.mock
from pathlib import Path

SCRIPT = Path(__file__).with_name("lettori.py")
sys.path.insert(0, str(SCRIPT.parent))
import lettori  # noqa: E402
from prova_conformi import CHI, impacchettati, oggetti as conformi, sciolti  # noqa: E402

PAGINA = b"""1 0 0 -1 0 842 cm
0 0 0 rg
q
100 200 50 50 re
f
Q
BT
/F 12 Tf 14 TL
1 0 0 -1 60 80 Tm (Nero \\(31\\), Rosso) Tj
ET
BT
/F 12 Tf 14 TL
1 0 0 -1 60 100 Tm (una riga) Tj T*
(e la seconda) Tj T*
ET
/Piede Do
""".replace(b"\n", b"\r\n")

PIEDE = b"q\r\nBT\r\n/F 9 Tf\r\n1 0 0 -1 500 800 Tm (di 1) Tj\r\nET\r\nQ\r\n"

TIMBRO = b"<< /Type /Annot /Subtype /Stamp /Rect [9 9 99 49] /F 4 /Contents (x) /Name /Draft >>"


def flusso(inizio, dati, lunghezza=None):
    lunghezza = len(dati) if lunghezza is None else lunghezza
    return b"<< %s/Length %d >>\r\nstream\r\n%sendstream" % (inizio, lunghezza, dati)


def oggetti(pagina=PAGINA):
    """The objects of a sound document of one page, by number."""
    forma = b"/Type /XObject /Subtype /Form /BBox [0 0 596 842] "
    return {
        1: b"<< /Title (Prova) >>",
        2: b"<< /Type /Catalog /Pages 3 0 R >>",
        3: b"<< /Type /Pages /Count 1 /MediaBox [0 0 596 842] /Kids [4 0 R] /Resources 6 0 R >>",
        4: b"<< /Type /Page /Parent 3 0 R /Contents 5 0 R /Annots [ ] >>",
        5: flusso(b"", pagina),
        6: b"<< /Font << /F 7 0 R >> /XObject << /Piede 8 0 R >> >>",
        7: b"<< /Type /Font /Subtype /Type1 /BaseFont /Arial /Encoding /WinAnsiEncoding >>",
        8: flusso(forma, PIEDE),
    }


def componi(corpi, meno=1):
    """The file of these objects; its /Size is so much below the right one."""
    file = b"%PDF-1.3\r\n% fatto a mano\r\n"
    tavola = b"0000000000 65535 f\r\n"
    for numero, corpo in sorted(corpi.items()):
        tavola += b"%010d 00000 n\r\n" % len(file)
        file += b"%d 0 obj\r\n%s\r\nendobj\r\n" % (numero, corpo)
    voci = len(corpi) + 1
    coda = b"trailer\r\n<< /Size %d /Info 1 0 R /Root 2 0 R >>\r\n" % (voci - meno)
    return (file + b"xref\r\n0 %d\r\n" % voci + tavola + coda +
            b"startxref\r%d\r\n%%%%EOF\r\r\n" % len(file))


class Lettori(unittest.TestCase):
    maxDiff = 4000

    def setUp(self):
        self.cartella = Path(tempfile.mkdtemp(prefix="lettori."))
        self.addCleanup(shutil.rmtree, self.cartella)

    def scrivi(self, nome, byte):
        (self.cartella / nome).write_bytes(byte)

    def avvia(self, *argomenti, **ambiente):
        return subprocess.run([sys.executable, SCRIPT, *argomenti, self.cartella],
                              capture_output=True, encoding="utf-8", timeout=120,
                              env={**os.environ, "PYTHONIOENCODING": "utf-8", **ambiente})

    def accetta(self, byte, attese="", mancanti=""):
        esito = self.legge(byte, attese, mancanti)
        self.assertEqual((esito.returncode, esito.stderr), (0, ""), esito.stdout)
        return esito.stdout

    def rifiuta(self, byte, *pezzi, attese="", mancanti=""):
        """Refused with one line that holds all these pieces."""
        esito = self.legge(byte, attese, mancanti)
        self.assertEqual((esito.returncode, esito.stderr), (1, ""), esito.stdout)
        self.assertTrue(esito.stdout.startswith("NO uno.pdf: "), esito.stdout)
        for pezzo in pezzi:
            self.assertIn(pezzo, esito.stdout.splitlines()[0])

    def legge(self, byte, attese, mancanti):
        self.scrivi("uno.pdf", byte)
        for fine, testo in [("attese", attese), ("mancanti", mancanti)]:
            if testo:
                self.scrivi(f"uno.pdf.{fine}", testo.encode("utf-8"))
        return self.avvia()

    # ---- Accepted --------------------------------------------------------------------------------

    def test_un_documento_sano_e_accettato(self):
        uscita = self.accetta(componi(oggetti()))
        self.assertEqual(uscita, "sì uno.pdf: pagine 1, testi attesi 0\n"
                                 "PDF accettati: 1, rifiutati: 0\n")

    def test_anche_con_la_misura_giusta_della_tavola(self):
        self.accetta(componi(oggetti(), meno=0))

    def test_un_nome_con_un_cancelletto_e_un_nome_come_gli_altri(self):
        for nome in [b"/Pie#23de", b"/#23", b"/P#E0#20#28#23#29"]:
            corpi = oggetti(PAGINA.replace(b"/Piede", nome))
            corpi[6] = corpi[6].replace(b"/Piede", nome)
            self.accetta(componi(corpi))

    def test_un_nome_col_cancelletto_scoperto_e_rifiutato(self):
        corpi = oggetti(PAGINA.replace(b"/Piede", b"/Pie#xe"))
        corpi[6] = corpi[6].replace(b"/Piede", b"/Pie#xe")
        self.rifiuta(componi(corpi), "qpdf: WARNING", "stray #")

    def test_i_testi_sono_trovati_in_ogni_ordine_e_oltre_la_riga(self):
        uscita = self.accetta(componi(oggetti()),
                              attese="di 1\n\nNero  (31), Rosso\nuna riga e la seconda\n")
        self.assertIn("testi attesi 3", uscita)

    def test_un_timbro_e_accettato(self):
        corpi = oggetti()
        corpi[4] = corpi[4].replace(b"[ ]", b"[9 0 R]")
        corpi[9] = TIMBRO
        self.accetta(componi(corpi))

    def test_un_nome_che_manca_di_proposito_e_accettato(self):
        self.accetta(componi(oggetti(PAGINA.replace(b"/Piede", b"/Paese"))), mancanti="Paese\n")

    def test_uno_conforme_e_accettato_comunque_sia_fatto(self):
        self.accetta(sciolti(conformi()), attese="Nero (31)\n")
        self.accetta(impacchettati(conformi()), attese="Nero (31)\n")

    # ---- Refused ---------------------------------------------------------------------------------

    def test_un_testo_che_manca(self):
        self.rifiuta(componi(oggetti()), 'mutool, testo: manca il testo "Bianco"',
                     'pdftotext: manca il testo "Bianco"', attese="di 1\nBianco\n")

    def test_una_lunghezza_sbagliata(self):
        corpi = oggetti()
        corpi[5] = flusso(b"", PAGINA, len(PAGINA) - 9)
        self.rifiuta(componi(corpi), "qpdf: WARNING", "expected endstream")

    def test_una_misura_della_tavola_troppo_piccola(self):
        self.rifiuta(componi(oggetti(), meno=2), "qpdf: WARNING", "reported number of objects")

    def test_di_uno_conforme_nessuno_deve_dire_niente(self):
        self.rifiuta(sciolti(conformi(), piu=0), "qpdf: WARNING", "mutool: warning", "il nostro: testa_e_coda: /Size")
        senza_piede = conformi()
        senza_piede[4] = senza_piede[4].replace(b"/Piede 13 0 R", b"")
        self.rifiuta(sciolti(senza_piede), "il nostro: ", mancanti="Piede\n")
        self.rifiuta(sciolti(conformi(), coda=CHI[:4]), "qpdf: ", "il nostro: ")

    def test_i_testi_fuori_dalle_pagine(self):
        self.scrivi("uno.pdf.fuori", b"Author 526F737369\nsegnalibro 756E6F\nnota 61202862\nchi 696F\n")
        self.accetta(sciolti(conformi()))
        self.scrivi("uno.pdf.fuori", b"Author 526F73\nnota 61202862\nchi 696F\n")
        self.rifiuta(sciolti(conformi()), "il nostro: Author", "qpdf, testi: Author", "segnalibri")

    def test_un_operatore_sconosciuto(self):
        self.rifiuta(componi(oggetti(PAGINA.replace(b"rg", b"rh"))),
                     "mutool: ", "pdftoppm: ", "'rh'")

    def test_una_stringa_non_chiusa(self):
        self.rifiuta(componi(oggetti(PAGINA.replace(b"seconda)", b"seconda"))),
                     "qpdf: ", "mutool: ", "pdftotext: ")

    def test_uno_stato_salvato_e_mai_ripreso(self):
        self.rifiuta(componi(oggetti(PAGINA.replace(b"Q\r\n", b"n\r\n"))),
                     "Ghostscript: encountered more q than Q")

    def test_un_blocco_di_testo_non_chiuso_anche_dove_c_e_un_timbro(self):
        corpi = oggetti(PAGINA.replace(b"ET\r\n", b"\r\n", 1))
        corpi[4] = corpi[4].replace(b"[ ]", b"[9 0 R]")
        corpi[9] = TIMBRO
        self.rifiuta(componi(corpi), "Ghostscript: ", "BT found inside a text block")

    def test_un_oggetto_che_la_tavola_non_trova(self):
        byte = componi(oggetti())
        voce = byte.index(b"65535 f\r\n") + 9 + 20 * 4
        spostata = b"%010d" % (int(byte[voce:voce + 10]) + 3)
        self.rifiuta(byte[:voce] + spostata + byte[voce + 10:], "qpdf: ", "mutool: ", "pdftoppm: ")

    def test_un_oggetto_che_non_c_e(self):
        corpi = oggetti()
        corpi[6] = corpi[6].replace(b"7 0 R", b"9 0 R")
        self.rifiuta(componi(corpi), "pdftoppm: ", "Ghostscript: ")

    def test_un_carattere_che_non_c_e(self):
        self.rifiuta(componi(oggetti(PAGINA.replace(b"/F 12", b"/G 12"))), "pdftoppm: ", "'G'")

    def test_un_nome_che_manca(self):
        self.rifiuta(componi(oggetti(PAGINA.replace(b"/Piede", b"/Paese"))),
                     "mutool: manca Paese", "pdftoppm: ", "Ghostscript: ")

    def test_un_nome_detto_mancante_che_c_e(self):
        self.rifiuta(componi(oggetti()), "solo nell'elenco: Piede", mancanti="Piede\n")

    def test_un_conto_di_pagine_sbagliato(self):
        corpi = oggetti()
        corpi[3] = corpi[3].replace(b"/Count 1", b"/Count 2")
        self.rifiuta(componi(corpi), "mutool: ", "Ghostscript: ")

    def test_un_documento_senza_pagine(self):
        corpi = oggetti()
        corpi[3] = corpi[3].replace(b"/Count 1", b"/Count 0").replace(b"4 0 R", b"")
        self.rifiuta(componi(corpi), "mutool: ", "pdftoppm: ")

    def test_un_file_troncato_uno_vuoto_e_uno_che_non_e_un_pdf(self):
        for byte in [componi(oggetti())[:-150], b"", b"niente"]:
            with self.subTest(byte=byte[:10]):
                self.rifiuta(byte, "qpdf: ", "mutool: ", "pdftoppm: ", "pdftotext: ")

    def test_uno_rotto_fra_buoni_e_il_solo_rifiutato(self):
        for nome in ["a.pdf", "c.pdf"]:
            self.scrivi(nome, componi(oggetti()))
        (self.cartella / "sotto").mkdir()
        self.scrivi("sotto/b.pdf", componi(oggetti(b"rotto\r\n")))
        esito = self.avvia()
        self.assertEqual(esito.returncode, 1)
        self.assertRegex(esito.stdout, r"\Asì a\.pdf: .*\nsì c\.pdf: .*\nNO b\.pdf: .*\n"
                                       r"PDF accettati: 2, rifiutati: 1\n\Z")

    def test_cio_che_e_ricordato_non_e_letto_di_nuovo(self):
        def gia_accettati():
            esito = self.avvia("--ricordo", self.cartella / "ricordo")
            return (int(esito.stdout.splitlines()[0].removeprefix("PDF già accettati: ")),
                    esito.returncode, esito.stdout.count("\nsì "), esito.stdout.count("\nNO "))

        self.scrivi("buono.pdf", componi(oggetti()))
        self.scrivi("rotto.pdf", componi(oggetti(b"rotto\r\n")))
        self.assertEqual(gia_accettati(), (0, 1, 1, 1))
        self.assertEqual(gia_accettati(), (1, 1, 1, 1)) # what was refused is always read again
        self.scrivi("buono.pdf.attese", b"manca")
        self.assertEqual(gia_accettati(), (0, 1, 0, 2))
        (self.cartella / "buono.pdf.attese").unlink()
        self.assertEqual(gia_accettati(), (0, 1, 1, 1))
        self.scrivi("buono.pdf", componi(oggetti(), meno=0))
        self.assertEqual(gia_accettati(), (0, 1, 1, 1))

    def test_un_lettore_diverso_legge_tutto_di_nuovo(self):
        self.scrivi("buono.pdf", componi(oggetti()))
        falsi = self.cartella / "falsi"
        falsi.mkdir()
        finto = falsi / "gs"
        vero = shutil.which("gs")
        finto.write_text("#!/bin/sh\n[ \"$1\" = --version ] && echo altro || "
                         f"exec {vero} \"$@\"\n")
        finto.chmod(0o755)
        altro = {"PATH": f"{falsi}:{os.environ['PATH']}"}
        ricordo = "--ricordo", self.cartella / "ricordo"
        self.assertIn("già accettati: 0", self.avvia(*ricordo).stdout)
        self.assertIn("già accettati: 1", self.avvia(*ricordo).stdout)
        self.assertIn("già accettati: 0", self.avvia(*ricordo, **altro).stdout)

    def test_ghostscript_ne_legge_molti_insieme_e_conta_le_pagine_di_ognuno(self):
        due = oggetti()
        due[3] = due[3].replace(b"/Count 1", b"/Count 2").replace(b"[4 0 R]", b"[4 0 R 9 0 R]")
        due[9] = due[4]
        for n, corpi in enumerate([oggetti(), due, oggetti()]):
            self.scrivi(f"{n}.pdf", componi(corpi))
        trovati = lettori.trova([self.cartella])
        letti = lettori.ghostscript_insieme(trovati)
        self.assertEqual([letti[d.percorso].pagine for d in trovati], [1, 2, 1])

    def test_ghostscript_non_accetta_insieme_cio_che_rifiuta_da_solo(self):
        senza_piede, senza_pagine = oggetti(), oggetti()
        senza_piede[6] = senza_piede[6].replace(b"7 0 R", b"9 0 R")
        senza_pagine[3] = senza_pagine[3].replace(b"/Count 1", b"/Count 0").replace(b"4 0 R", b"")
        for guasto in [componi(oggetti(PAGINA.replace(b"Q\r\n", b"n\r\n"))),
                       componi(oggetti(PAGINA.replace(b"/Piede", b"/Paese"))),
                       componi(senza_piede), componi(senza_pagine), b"", b"niente"]:
            for posto in ["a", "m", "z"]: # first, between and last
                with self.subTest(guasto=guasto[-60:], posto=posto):
                    for nome in ["b", "y"]:
                        self.scrivi(f"{nome}.pdf", componi(oggetti()))
                    self.scrivi(f"{posto}.pdf", guasto)
                    self.assertEqual(
                        lettori.ghostscript_insieme(lettori.trova([self.cartella])), {})
                    (self.cartella / f"{posto}.pdf").unlink()

    def test_un_difetto_che_vede_solo_ghostscript_e_detto_del_suo_documento(self):
        for n in range(20):
            self.scrivi(f"{n:02}.pdf", componi(oggetti()))
        self.scrivi("11.pdf", componi(oggetti(PAGINA.replace(b"Q\r\n", b"n\r\n"))))
        esito = self.avvia()
        self.assertEqual(esito.returncode, 1)
        self.assertRegex(esito.stdout, r"\nNO 11\.pdf: Ghostscript: encountered more q than Q")
        self.assertIn("PDF accettati: 19, rifiutati: 1\n", esito.stdout)

    def test_un_lettore_che_non_finisce(self):
        self.scrivi("uno.pdf", componi(oggetti()))
        # Over before it begins: any time at all may be enough for a reader on a busy machine.
        with unittest.mock.patch.object(lettori, "ATTESA", -1):
            giudizio, = lettori.controlla(lettori.trova([self.cartella]))
        self.assertEqual([difetto.split(":")[0] for difetto in giudizio.difetti],
                         list(lettori.LETTORI))
        self.assertIn("non finisce", giudizio.difetti[0])

    # ---- Nothing to prove ------------------------------------------------------------------------

    def uso(self, esito, pezzo):
        self.assertEqual((esito.returncode, esito.stdout), (2, ""))
        self.assertIn(pezzo, esito.stderr)

    def test_senza_pdf_niente_e_provato(self):
        self.uso(self.avvia("--almeno", "1"), "PDF trovati: 0, almeno 1")
        for cartella in [self.cartella, self.cartella / "altrove"]:
            with self.subTest(cartella=cartella):
                esito = self.avvia(cartella)
                self.assertEqual((esito.returncode, esito.stderr), (lettori.SALTATO, ""))
                self.assertEqual(esito.stdout, "no documents: run the tests that make them\n")

    def test_meno_pdf_di_quelli_promessi(self):
        self.scrivi("uno.pdf", componi(oggetti()))
        self.uso(self.avvia("--almeno", "2"), "PDF trovati: 1, almeno 2")

    def test_un_file_che_non_c_e(self):
        self.uso(self.avvia(self.cartella / "altrove.pdf"), "altrove.pdf non c'è")
        self.uso(self.avvia("--almeno", "1", self.cartella / "altrove"), "PDF trovati: 0")

    def test_un_file_accanto_a_niente_o_vuoto(self):
        self.scrivi("uno.pdf", componi(oggetti()))
        for nome, pezzo in [("due.pdf.attese", "non sta accanto"),
                            ("uno.pdf.atese", "non sta accanto"), ("uno.pdf.attese", "è vuoto")]:
            with self.subTest(nome=nome):
                self.scrivi(nome, b" \n")
                self.uso(self.avvia(), pezzo)
                (self.cartella / nome).unlink()

    def test_un_lettore_che_manca_e_un_fallimento(self):
        self.scrivi("uno.pdf", componi(oggetti()))
        for assente in lettori.PROGRAMMI:
            with self.subTest(assente=assente), tempfile.TemporaryDirectory() as programmi:
                for altro in set(lettori.PROGRAMMI) - {assente}:
                    os.symlink(shutil.which(altro), Path(programmi) / altro)
                self.uso(self.avvia(PATH=programmi), "mancano i lettori: " + assente)


if __name__ == "__main__":
    unittest.main()
