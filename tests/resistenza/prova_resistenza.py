"""The tools of the endurance runs refuse what they must refuse."""

import os
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import letture
import resistenza
from letture import lettori

COSTRUITO = Path(os.environ["COSTRUITO"])


class Letture(unittest.TestCase):
    def test_lo_stesso_testo_in_altre_righe_e_lo_stesso(self):
        self.assertEqual(letture.differenza("Nero 31\nRosso", "Rosso\tNero\n3 1"), ([], []))

    def test_una_lettera_diversa_si_vede(self):
        self.assertEqual(letture.differenza("Nero", "Nera"), (["o"], ["a"]))
        self.assertEqual(letture.differenza("NeroNero", "Nero"), (list("Neor"), []))

    def test_i_segni_di_zapfdingbats_non_contano(self):
        self.assertEqual(letture.differenza("x\x8c", "x\u2780"), ([], []))

    def test_un_documento_letto_in_due_modi_si_rifiuta(self):
        lette = {"mutool, testo": lettori.Lettura(testo="Nero A"),
                 "pdftotext": lettori.Lettura(testo="Nero")}
        with mock.patch.object(letture, "estrai", return_value=("Nero", "Nera")):
            self.assertEqual(letture.confronta(None, lette),
                             ["testo: mutool in più 'o', pdftotext 'a'"])
        # Without the annotations, which each reader draws as it likes, it is the same.
        with mock.patch.object(letture, "estrai", return_value=("Nero", "Nero")):
            self.assertEqual(letture.confronta(None, lette), [])


class Conto(unittest.TestCase):
    def test_le_operazioni_sono_le_settanta_e_le_otto_aggiunte(self):
        self.assertEqual(len(resistenza.operazioni()), 78)

    def test_ai_documenti_soliti_mancano_solo_quelle_delle_altre_maniere(self):
        solite = dict.fromkeys(resistenza.operazioni() - resistenza.SOLO_IN_ALTRE_MANIERE, 1)
        self.assertEqual(len(solite), 72)
        self.assertEqual(resistenza.poche(solite, 1), [])
        self.assertEqual(len(resistenza.poche(solite, 1, "conformi")), 6)
        self.assertEqual(resistenza.poche({**solite, "Compress": 1}, 1), ["Compress"])

    def test_quelle_chiamate_poco_e_quelle_ignote_si_dicono(self):
        conto = dict.fromkeys(resistenza.operazioni() - resistenza.SOLO_IN_ALTRE_MANIERE, 3)
        self.assertEqual(resistenza.poche(conto, 3), [])
        conto["DrawText"] = 2
        conto["DrawPolygon"] = 9
        del conto["Pages"]
        self.assertEqual(resistenza.poche(conto, 3), ["DrawPolygon", "DrawText", "Pages"])


class Documenti(unittest.TestCase):
    def scrivi(self, primo, quanti):
        base = tempfile.TemporaryDirectory(prefix="documenti.")
        self.addCleanup(base.cleanup)
        cartella = Path(base.name) / "pdf"
        cartella.mkdir()
        resistenza.fai(COSTRUITO / "tests/resistenza/documenti", cartella, primo, quanti,
                       resistenza.SEMI, resistenza.FONT, env=resistenza.apritore(base.name))
        return {file.name: file.read_bytes() for file in cartella.iterdir()}

    def test_lo_stesso_seme_scrive_lo_stesso_documento(self):
        tutti = self.scrivi(1, 4)
        self.assertEqual(len([nome for nome in tutti if nome.endswith(".pdf")]), 4)
        da_solo = self.scrivi(3, 1)
        self.assertIn("documento_3.pdf", da_solo)
        for nome, byte in da_solo.items():
            self.assertEqual(byte, tutti[nome], nome)

    def test_un_documento_rovinato_si_rifiuta_e_si_conserva(self):
        with tempfile.TemporaryDirectory(prefix="rovinati.") as base:
            cartella, conservati = Path(base) / "pdf", Path(base) / "conservati"
            cartella.mkdir()
            byte = self.scrivi(1, 1)["documento_1.pdf"]
            (cartella / "rovinato.pdf").write_bytes(byte.replace(b" re\r\n", b" rx\r\n"))
            with mock.patch("builtins.print"):
                self.assertEqual(resistenza.esamina(cartella, conservati, 1), (1, 1))
            self.assertTrue((conservati / "rovinato.pdf").exists())


class Resti(unittest.TestCase):
    def test_un_file_di_troppo_o_di_meno_si_vede(self):
        with tempfile.TemporaryDirectory(prefix="resti.") as base:
            (Path(base) / "taglie.txt").write_text("x")
            with self.assertRaises(resistenza.Guasto):
                resistenza.resti(base, [])
            resistenza.resti(base, ["taglie.txt"])
            with self.assertRaises(resistenza.Guasto):
                resistenza.resti(base, ["taglie.txt"])


if __name__ == "__main__":
    unittest.main()
