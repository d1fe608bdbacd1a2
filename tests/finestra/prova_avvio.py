"""The start as somebody outside sees it: without a display, on small screens, at odd scales."""

import os
import subprocess
import unittest

from schermo import ATTESA, MISURA, SCALVINO, Prova, Schermo, aspetta


def fa(*argomenti, **variabili):
    ambiente = {k: v for k, v in os.environ.items()
                if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    return subprocess.run([SCALVINO, *argomenti], env={**ambiente, **variabili}, text=True,
                          capture_output=True, timeout=ATTESA, stdin=subprocess.DEVNULL)


class SenzaSchermo(unittest.TestCase):
    def test_una_frase_e_codice_1(self):
        for variabili in ({}, {"DISPLAY": ":9999"}, {"QT_QPA_PLATFORM": "nessuna"}):
            esito = fa(**variabili)
            self.assertEqual(esito.returncode, 1, variabili)
            self.assertEqual(esito.stdout, "")
            self.assertEqual(esito.stderr,
                             "scalvino: non c'è uno schermo su cui aprire la finestra\n")

    def test_aiuto_e_versione(self):
        versione = fa("--version")
        self.assertEqual((versione.returncode, versione.stderr), (0, ""))
        self.assertRegex(versione.stdout, r"^scalvino \d+\.\d+\.\d+\n$")
        aiuto = fa("--help")
        self.assertEqual((aiuto.returncode, aiuto.stderr), (0, ""))
        self.assertTrue(aiuto.stdout.startswith("Uso: scalvino"))

    def test_un_aiuto_che_nessuno_riceve(self):
        with open("/dev/full", "wb") as pieno:
            self.assertEqual(subprocess.call([SCALVINO, "--help"], stdout=pieno), 1)


class SchermoPiccolo(Prova):
    LARGHEZZA, ALTEZZA = 1280, 1024

    @classmethod
    def setUpClass(cls):
        cls.schermo = Schermo(cls.LARGHEZZA, cls.ALTEZZA)
        cls.addClassCleanup(cls.schermo.close)

    def misura(self, finestra):
        """(left, top, width, height) on the screen, when the window has been shown."""
        finestra.pronta()
        testo = self.schermo.fa("xwininfo", "-id", finestra.id)
        campi = dict(riga.strip().split(":", 1) for riga in testo.splitlines() if ":" in riga)
        return finestra.posto + (int(campi["Width"]), int(campi["Height"]))

    def avviata(self, **variabili):
        finestra = self.avvia(**variabili)
        return finestra, self.misura(finestra)

    def finisce(self, finestra):
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)
        self.assertEqual((finestra.base / "errori").read_text(), "")

    def test_il_doppio_si_riduce_finche_ci_sta(self):
        for variabili in ({"QT_SCALE_FACTOR": "2"}, {"QT_SCREEN_SCALE_FACTORS": "2"},
                          {"QT_FONT_DPI": "192"}, {"QT_SCALE_FACTOR": "20"}):
            finestra, (x, y, larghezza, altezza) = self.avviata(**{"QT_SCALE_FACTOR": "1",
                                                                   **variabili})
            with self.subTest(**variabili):
                self.assertGreaterEqual(min(x, y), 0)
                self.assertLessEqual(x + larghezza, self.LARGHEZZA)
                self.assertLessEqual(y + altezza, self.ALTEZZA)
                self.assertGreater(larghezza, 1.5 * MISURA[0])
                self.assertAlmostEqual(larghezza / altezza, MISURA[0] / MISURA[1], places=2)
                finestra.fotografa("ridotta-" + "-".join(variabili))
                # Everything stands where it belongs, at the new scale.
                finestra.scala = larghezza / MISURA[0]
                prima = finestra.tavolo()
                finestra.clicca("cmdMescola")
                aspetta(lambda: finestra.tavolo() != prima, "la nuova taglia")
            self.finisce(finestra)

    def test_un_fattore_impossibile_non_conta(self):
        for nome, valore in (("QT_SCALE_FACTOR", "0"), ("QT_SCALE_FACTOR", "molto"),
                             ("QT_SCALE_FACTOR", "inf"), ("QT_SCALE_FACTOR", "1e-9"),
                             ("QT_SCREEN_SCALE_FACTORS", "screen=inf"),
                             ("QT_FONT_DPI", "999999")):
            with self.subTest(nome=nome, valore=valore):
                finestra, misura = self.avviata(**{"QT_SCALE_FACTOR": "1", nome: valore})
                self.assertEqual(misura[2:], MISURA)
                self.finisce(finestra)

    # Qt draws at 1 and cuts off at less.
    def test_sotto_uno_si_disegna_intera(self):
        for nome in ("QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"):
            finestra, misura = self.avviata(**{"QT_SCALE_FACTOR": "1", nome: "0.7"})
            self.assertEqual(misura[2:], MISURA)
            self.assertEqual(finestra.colore(780, 445), finestra.colore(5, 5))
            finestra.clicca("cmdExit")
            self.assertEqual(finestra.esito(), 0)


if __name__ == "__main__":
    unittest.main()
