"""The window in hard company: hostile folder names, other programs in its folder, odd clocks."""

import os
import subprocess
import unittest

from schermo import ATTESA, Prova, aspetta
from vicini import elenco, popola

TAGLIE = os.environ["TAGLIE"]
OROLOGIO_FINTO = os.environ["OROLOGIO_FINTO"]

REPORT = {"optStampa0": "taglie.htm", "optStampa1": "taglie.pdf", "optStampa2": "taglie.txt"}
NOSTRI = ["scalvino.htm", "taglie.htm", "taglie.pdf", "taglie.txt"]


def comando(cartella, *argomenti):
    return subprocess.run([TAGLIE, "-c", cartella, *argomenti], capture_output=True, timeout=ATTESA,
                          check=True)


class Compagnia(Prova):
    def fa_report(self, finestra, opzione):
        quanti = len(finestra.aperti()) + 1
        finestra.clicca(opzione)
        finestra.clicca("cmdTaglie")
        aspetta(lambda: len(finestra.aperti()) == quanti, f"{REPORT[opzione]} aperto")

    def chiude(self, finestra):
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)
        self.assertEqual((finestra.base / "errori").read_text(), "")


class Nomi(Compagnia):
    NOMI = [" 'semplici' \"doppi\" `touch preso` ", "$(touch preso);touch preso&|%20%s#?*~\\",
            "a\nb\r", "-rf", "punto.", "\udcff\udce8 latino", "\x01\x1b[2J", "x" * 255]

    def prova(self, finestra):
        finestra.pronta()
        for opzione in REPORT:
            self.fa_report(finestra, opzione)
        finestra.clicca("cmdHelp")
        aspetta(lambda: len(finestra.aperti()) == 4, "la guida aperta")
        attesi = [f"{finestra.cartella}/{nome}" for nome in [*REPORT.values(), "scalvino.htm"]]
        self.assertEqual(finestra.aperti(), attesi)
        self.assertEqual(sorted(os.listdir(finestra.cartella)), NOSTRI)
        self.assertTrue((finestra.cartella / "taglie.htm").read_bytes().endswith(b"</html>\r\n"))
        self.assertTrue((finestra.cartella / "taglie.pdf").read_bytes().endswith(b"%%EOF\r\r\n"))
        self.assertTrue((finestra.cartella / "taglie.txt").read_bytes().endswith(b"%)\r\n"))
        self.chiude(finestra)
        self.assertEqual(os.listdir(finestra.cartella), [])
        self.assertEqual(sorted(os.listdir(finestra.base)),
                         sorted([finestra.cartella.name, "aperti", "errori", "xdg-open"]))

    def test_report_e_guida_vi_si_scrivono_e_si_aprono(self):
        for nome in self.NOMI:
            with self.subTest(nome=nome):
                self.prova(self.avvia(cartella=nome))

    def test_una_cartella_relativa(self):
        self.prova(self.avvia(cartella="-rf", TMPDIR="-rf"))


class Insieme(Compagnia):
    def test_chiudere_toglie_solo_i_quattro_nomi(self):
        finestra = self.avvia().pronta()
        popola(finestra.cartella)
        prima = elenco(finestra.cartella)
        self.assertGreater(len(prima), 40)
        for opzione in REPORT:
            self.fa_report(finestra, opzione)
        finestra.clicca("chkStat")
        for opzione in REPORT:
            self.fa_report(finestra, opzione)
        finestra.clicca("cmdHelp")
        aspetta(lambda: len(finestra.aperti()) == 7, "la guida aperta")
        self.assertEqual(elenco(finestra.cartella), prima)
        self.chiude(finestra)
        self.assertEqual(elenco(finestra.cartella), prima)
        for nome in NOSTRI:
            self.assertFalse(os.path.lexists(finestra.cartella / nome))

    def test_la_finestra_toglie_i_report_del_comando(self):
        finestra = self.avvia().pronta()
        self.fa_report(finestra, "optStampa2")
        for forma in ["txt", "html", "pdf"]:
            comando(finestra.cartella, "-f", forma, "--seme", "1")
        (finestra.cartella / "colpi.csv").write_text("resta")
        self.chiude(finestra)
        self.assertEqual(os.listdir(finestra.cartella), ["colpi.csv"])

    def test_due_finestre(self):
        prima = self.avvia().pronta()
        popola(prima.cartella)
        vicini = elenco(prima.cartella)
        self.fa_report(prima, "optStampa2")
        seconda = self.avvia(TMPDIR=str(prima.cartella)).pronta()
        # The report of the one is replaced by that of the other.
        di_prima = (prima.cartella / "taglie.txt").read_bytes()
        self.fa_report(seconda, "optStampa2")
        self.assertNotEqual((prima.cartella / "taglie.txt").read_bytes(), di_prima)
        # The first one takes the second one's away with it.
        self.chiude(prima)
        self.assertFalse((prima.cartella / "taglie.txt").exists())
        seconda.attiva()
        self.fa_report(seconda, "optStampa0")
        self.assertTrue((prima.cartella / "taglie.htm").is_file())
        self.chiude(seconda)
        self.assertFalse((prima.cartella / "taglie.htm").exists())
        self.assertEqual(elenco(prima.cartella), vicini)


class Orologi(Compagnia):
    def test_l_avanzamento_si_vede_anche_con_un_orologio_fermo(self):
        for passo in ["0", "-1000000"]:
            asan = os.environ.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0"
            finestra = self.avvia(LD_PRELOAD=OROLOGIO_FINTO, MONOTONO="1000000",
                                  MONOTONO_PASSO=passo, ASAN_OPTIONS=asan).pronta()
            finestra.clicca("chkStat")
            finestra.clicca("optStampa2")
            finestra.scrivi("90000000")
            finestra.clicca("cmdTaglie")
            aspetta(lambda: len(finestra.finestre()) == 2, "la domanda")
            finestra.tasti("Return")
            aspetta(lambda: len(finestra.finestre()) == 1, "la domanda chiusa")
            for _ in range(5):
                stato = finestra.stato()
                aspetta(lambda: finestra.stato() != stato, "l'avanzamento", secondi=20)
            self.chiude(finestra)
            self.assertEqual(os.listdir(finestra.cartella), [])


if __name__ == "__main__":
    unittest.main()
