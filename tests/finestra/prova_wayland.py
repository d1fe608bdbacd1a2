"""The window under a Wayland compositor: a short tour, and whatever would make the window larger."""

import time
import unittest

from compositore import INGRANDISCI, TITOLO, Compositore, FinestraWayland
from schermo import Prova, aspetta

SCHERMO_INTERO, MASSIMO = "super+shift+f", "super+shift+m" # keys of weston


class Wayland(Prova):
    @classmethod
    def setUpClass(cls):
        cls.schermo = Compositore(1400, 900)
        cls.addClassCleanup(cls.schermo.close)
        cls.schermo.aspetta_sfondo()

    def avvia(self, **variabili):
        finestra = FinestraWayland(self.schermo, **variabili)
        self.addCleanup(finestra.close)
        return finestra.pronta()

    def cambia(self, finestra, gesto, cosa):
        """Does something that must change the card table; returns the new picture."""
        prima = finestra.tavolo()
        gesto()
        finestra.scosta()
        aspetta(lambda: finestra.tavolo() != prima, cosa)
        time.sleep(0.3) # drawn to the end
        return finestra.tavolo()

    def finisce(self, finestra):
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)
        self.assertEqual((finestra.base / "errori").read_text(), "")
        self.assertEqual(list(finestra.cartella.iterdir()), [])

    def resta(self, finestra, gesto):
        """After what asks for another size the window stands there in its own, ready to be used."""
        gesto()
        time.sleep(0.5)
        finestra.tasti("shift+Tab", "Tab") # what is drawn anew has to be of the right size
        time.sleep(0.5)
        self.assertIsNone(finestra.processo.poll(), (finestra.base / "errori").read_text())
        aspetta(lambda: finestra.pronta().cornice == finestra.ferma().cornice, "un posto fermo")

    def ingrandisci(self, finestra):
        return [lambda: finestra.preme(INGRANDISCI), lambda: finestra.preme(TITOLO, 2),
                lambda: finestra.preme(INGRANDISCI, 2), lambda: finestra.tasti(MASSIMO),
                lambda: finestra.tasti(SCHERMO_INTERO),
                lambda: finestra.tasti(*[MASSIMO, SCHERMO_INTERO] * 3)]

    def test_un_giro(self):
        finestra = self.avvia()
        finestra.fotografa_tutto("wayland-titolo")
        self.cambia(finestra, lambda: finestra.clicca("cmdMescola"), "la nuova taglia")
        self.cambia(finestra, lambda: finestra.clicca("cmdColpo"), "il primo colpo")
        self.cambia(finestra, lambda: finestra.tasti("space"), "il secondo colpo")
        finestra.fotografa_tutto("wayland-colpo")
        for quanti, opzione in enumerate(("optStampa0", "optStampa1", "optStampa2"), 1):
            finestra.clicca(opzione)
            finestra.clicca("cmdTaglie")
            aspetta(lambda: len(finestra.aperti()) == quanti, opzione)
        finestra.clicca("cmdHelp")
        aspetta(lambda: len(finestra.aperti()) == 4, "la guida")
        self.finisce(finestra)

    def test_niente_la_ingrandisce_e_la_taglia_resta(self):
        finestra = self.avvia()
        self.cambia(finestra, lambda: finestra.clicca("cmdMescola"), "la nuova taglia")
        colpo = self.cambia(finestra, lambda: finestra.clicca("cmdColpo"), "il primo colpo")
        for numero, gesto in enumerate(self.ingrandisci(finestra)):
            with self.subTest(gesto=numero):
                self.resta(finestra, gesto)
                self.assertEqual(finestra.tavolo(), colpo)
        finestra.fotografa_tutto("wayland-dopo")
        # The keys of the game still work, without a click that would give the focus back.
        self.cambia(finestra, lambda: finestra.tasti("space"), "il secondo colpo")
        self.finisce(finestra)

    def test_nemmeno_con_un_riquadro(self):
        finestra = self.avvia()
        finestra.scrivi("51")
        finestra.clicca("cmdTaglie")
        time.sleep(0.7)
        # The box has the keyboard; the frame behind it can be clicked all the same.
        for gesto in (lambda: finestra.tasti(MASSIMO), lambda: finestra.tasti(SCHERMO_INTERO),
                      lambda: finestra.preme(INGRANDISCI)):
            gesto()
            time.sleep(0.7)
            self.assertIsNone(finestra.processo.poll(), (finestra.base / "errori").read_text())
        finestra.fotografa_tutto("wayland-riquadro")
        finestra.tasti("Return") # to the box, which still is in front
        finestra.pronta()
        finestra.clicca("cmdTaglie")
        aspetta(lambda: len(finestra.aperti()) == 1, "il report di 50 taglie")
        self.finisce(finestra)

    def corre(self):
        finestra = self.avvia()
        finestra.clicca("chkStat")
        finestra.clicca("optStampa2")
        finestra.scrivi("90000000")
        finestra.clicca("cmdTaglie")
        time.sleep(0.7)
        finestra.tasti("Return")
        return finestra

    def test_nemmeno_quando_il_compositore_tace(self):
        """What it has not answered for a while comes all at once, in the middle of a drawing."""
        finestra = self.corre()
        for tasto, secondi in [(MASSIMO, 0.09), (SCHERMO_INTERO, 0.3), (MASSIMO, 0.15)] * 3:
            with self.schermo.taciuto():
                finestra.tasti(tasto)
                time.sleep(secondi)
            time.sleep(0.15)
            self.assertIsNone(finestra.processo.poll(), (finestra.base / "errori").read_text())
        self.finisce(finestra.pronta())

    def test_nemmeno_durante_una_corsa(self):
        finestra = self.corre()
        for gesto in self.ingrandisci(finestra):
            self.resta(finestra, gesto)
        stato = finestra.stato()
        aspetta(lambda: finestra.stato() != stato, "l'avanzamento")
        self.finisce(finestra)

    def test_finisce_ogni_volta(self):
        for _ in range(6):
            finestra = self.avvia()
            finestra.preme(INGRANDISCI)
            finestra.ferma()
            self.finisce(finestra)


if __name__ == "__main__":
    unittest.main()
