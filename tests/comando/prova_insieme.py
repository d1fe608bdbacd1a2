"""Several runs in one folder at once, and everything else that stands there."""

import shutil
import signal
import time
import unittest

from aiuti import FATTO, SCRITTURA, Prova, ambiente, aspetta, scritti, taglie_nel_testo
from vicini import elenco, popola

FORME = {"txt": "taglie.txt", "html": "taglie.htm", "pdf": "taglie.pdf"}
FINE = {"txt": b"%)\r\n", "html": b"</html>\r\n", "pdf": b"%%EOF\r\r\n"}
SOSTITUITO = "un altro programma lo ha sostituito"


class Vicini(Prova):
    def setUp(self):
        super().setUp()
        popola(self.cartella)
        self.prima = elenco(self.cartella)
        self.assertGreater(len(self.prima), 40)

    def uguali(self):
        self.assertEqual(elenco(self.cartella), self.prima)

    def test_nessuno_e_toccato_dai_report(self):
        for forma, nome in FORME.items():
            for soli in [[], ["-s"]]:
                with self.subTest(forma=forma, soli=soli):
                    self.fa("2", "-f", forma, *soli)
                    self.assertTrue(self.byte(nome).endswith(FINE[forma]))
                    self.assertFalse((self.cartella / nome).is_symlink())
                    self.uguali()
        self.fa("2", "-f", "video")
        self.uguali()

    def test_nessuno_e_toccato_da_chi_non_ce_la_fa(self):
        for forma in FORME:
            for soli in [[], ["-s"]]:
                with self.subTest(forma=forma, soli=soli), open("/dev/full", "wb") as piena:
                    self.taglie("2", "-f", forma, *soli, stdout=piena)
                    self.uguali()
                    processo = self.avvia(10**9 if soli else 5000, "-f", forma, *soli)
                    time.sleep(0.1)
                    processo.send_signal(signal.SIGINT)
                    self.raccogli(processo)
                    self.uguali()


class DueInsieme(Prova):
    """The full text is that of the run that created it last, and the other one is told. Page and
    document are those of the run that was done last."""

    # Long enough to be overtaken, and how far it must be to have its file.
    LUNGHE = {"txt": [5_000], "html": [1_500], "pdf": [1_500, "--caratteri-unici"]}

    def lunga(self, forma, *altre):
        processo = self.avvia(*self.LUNGHE[forma], "-f", forma, *altre)
        aspetta(lambda: scritti(processo.pid) > 100_000 or (
            forma == "txt" and taglie_nel_testo(self.letto(FORME[forma])) > 50), "la lunga a metà")
        self.assertIsNone(processo.poll())
        processo.send_signal(signal.SIGSTOP)
        return processo

    def letto(self, nome):
        file = self.cartella / nome
        return file.read_bytes() if file.exists() else b""

    def test_il_testo_e_di_chi_comincia_dopo(self):
        lunga = self.lunga("txt")
        self.fa("1", "--seme", "3", "-f", "txt")
        suo = self.byte("taglie.txt")
        lunga.send_signal(signal.SIGCONT)
        self.errore(self.raccogli(lunga), SCRITTURA, f"taglie.txt: {SOSTITUITO}")
        self.assertEqual(self.byte("taglie.txt"), suo)
        self.assertEqual(self.contenuto(), ["taglie.txt"])

    def test_pagina_e_documento_sono_di_chi_finisce_dopo(self):
        for forma in ["html", "pdf"]:
            nome = FORME[forma]
            for soli in [[], ["-s"]]:
                with self.subTest(forma=forma, soli=soli):
                    lunga = self.lunga(forma)
                    self.fa("1", "--seme", "3", "-f", forma, *soli)
                    suo = self.byte(nome)
                    lunga.send_signal(signal.SIGCONT)
                    self.assertEqual(self.raccogli(lunga).codice, FATTO)
                    self.assertGreater(len(self.byte(nome)), len(suo))
                    self.assertTrue(self.byte(nome).endswith(FINE[forma]))
                    self.assertEqual(self.contenuto(), [nome])
                    (self.cartella / nome).unlink()

    def test_chi_si_interrompe_non_toglie_il_report_dell_altro(self):
        for forma, nome in FORME.items():
            with self.subTest(forma=forma):
                lunga = self.lunga(forma)
                self.fa("1", "--seme", "3", "-f", forma)
                suo = self.byte(nome)
                lunga.send_signal(signal.SIGINT)
                lunga.send_signal(signal.SIGCONT)
                self.assertNotEqual(self.raccogli(lunga).codice, FATTO)
                self.assertEqual(self.byte(nome), suo)
                (self.cartella / nome).unlink()

    def test_il_documento_che_si_apre_durante_la_corsa_resta(self):
        vecchio = self.cartella / "taglie.pdf"
        vecchio.write_bytes(b"di prima")
        lunga = self.lunga("pdf")
        with open(vecchio, "rb"):  # as a reader does that watches its file
            lunga.send_signal(signal.SIGCONT)
            self.errore(self.raccogli(lunga), SCRITTURA,
                        "taglie.pdf: è in uso da un altro programma")
        self.assertEqual((self.contenuto(), vecchio.read_bytes()), (["taglie.pdf"], b"di prima"))

    def test_un_testo_tolto_a_meta_e_un_errore(self):
        # As a window does that is closed meanwhile.
        lunga = self.lunga("txt")
        (self.cartella / "taglie.txt").unlink()
        lunga.send_signal(signal.SIGCONT)
        testo = self.errore(self.raccogli(lunga), SCRITTURA, "taglie.txt")
        self.assertNotIn("sostituito", testo)
        self.assertEqual(self.contenuto(), [])

    def test_una_cartella_tolta_a_meta_non_e_un_report_sostituito(self):
        for forma, nome in FORME.items():
            with self.subTest(forma=forma):
                self.cartella.mkdir(exist_ok=True)
                lunga = self.lunga(forma)
                shutil.rmtree(self.cartella)
                lunga.send_signal(signal.SIGCONT)
                testo = self.errore(self.raccogli(lunga), SCRITTURA, f"taglie: {self.cartella / nome}")
                self.assertNotIn("sostituito", testo)
                if forma != "txt":  # which opens its file again by its name
                    self.assertIn("la sua cartella non c'è più", testo)

    def test_forme_diverse_non_si_disturbano(self):
        processi = [self.avvia("20", "--seme", "3", "-f", forma) for forma in FORME]
        for processo in processi:
            self.assertEqual(self.raccogli(processo).codice, FATTO)
        insieme = {nome: self.byte(nome) for nome in FORME.values() if nome != "taglie.pdf"}
        for forma in ["txt", "html"]:
            self.fa("20", "--seme", "3", "-f", forma)
        self.assertEqual({nome: self.byte(nome) for nome in insieme}, insieme)

    def test_in_gara_resta_sempre_un_report_intero(self):
        env = ambiente(SOURCE_DATE_EPOCH="0")
        vinte = perse = 0
        for forma, nome in FORME.items():
            for soli in [[], ["-s"]]:
                argomenti = ["4", "-q", "-f", forma, *soli]
                interi = []
                for seme in ["1", "2", "3"]:
                    self.fa(*argomenti, "--seme", seme, env=env)
                    interi.append(self.byte(nome))
                self.assertEqual(len(set(interi)), 3)
                for _ in range(8):
                    processi = [self.avvia(*argomenti, "--seme", seme, env=env)
                                for seme in ["1", "2", "3"]]
                    esiti = [self.raccogli(processo) for processo in processi]
                    for esito in esiti:
                        if esito.codice == FATTO:
                            vinte += 1
                        else:
                            perse += 1
                            self.errore(esito, SCRITTURA, f"taglie: {self.cartella}/{nome}: ")
                    with self.subTest(argomenti=argomenti):
                        self.assertIn(FATTO, [esito.codice for esito in esiti])
                        self.assertEqual(self.contenuto(), [nome])
                        self.assertIn(self.byte(nome), [intero for intero, esito in zip(interi, esiti)
                                                        if esito.codice == FATTO])
                (self.cartella / nome).unlink()
        print(f"in gara: {vinte} report finiti, {perse} sostituiti", flush=True)


if __name__ == "__main__":
    unittest.main()
