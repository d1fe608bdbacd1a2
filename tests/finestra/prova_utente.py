"""The window as a user meets it: mouse, keyboard, reports, help, closing."""

import os
import shutil
import signal
import tempfile
import time
import unittest
from pathlib import Path

from schermo import SCALVINO, Prova, aspetta

VERDE = "69E600"
REPORT = {"optStampa0": "taglie.htm", "optStampa1": "taglie.pdf", "optStampa2": "taglie.txt"}


class Utente(Prova):
    def cambia(self, finestra, gesto, cosa):
        """Does something that must change the card table; returns the new picture."""
        prima = finestra.tavolo()
        gesto()
        return aspetta(lambda: (dopo := finestra.tavolo()) != prima and dopo, cosa, passo=0.03)

    def aperto(self, finestra, quanti, nome):
        aspetta(lambda: len(finestra.aperti()) == quanti, f"{nome} aperto")
        percorso = finestra.cartella / nome
        self.assertEqual(finestra.aperti()[-1], str(percorso))
        return percorso

    def partita(self, finestra, suffisso):
        """One whole shoe from the title screen back to it."""
        aspetta(lambda: finestra.colore(230, 30) == VERDE, "il titolo", passo=0.03)
        titolo = finestra.tavolo()
        finestra.fotografa(f"titolo-{suffisso}")
        self.cambia(finestra, lambda: finestra.clicca("cmdMescola"), "la nuova taglia")
        finestra.fotografa(f"nuova-{suffisso}")
        self.cambia(finestra, lambda: finestra.clicca("cmdColpo"), "il primo colpo")
        finestra.fotografa(f"colpo-{suffisso}")
        finestra.scosta()
        # The space bar plays on; the shoe is over when only cancelling is left.
        for colpo in range(2, 80):
            prima = finestra.tavolo()
            ultima = finestra.intera()
            finestra.tasti("space")
            aspetta(lambda: finestra.tavolo() != prima, f"il colpo {colpo}")
            if finestra.tavolo() == titolo:
                break
        finestra.conserva(ultima, f"fine-{suffisso}")
        self.assertGreater(colpo, 20)
        self.assertEqual(finestra.tavolo(), titolo) # the bar has cancelled the finished shoe

    def statistiche(self, finestra, suffisso):
        """From statistics only being asked for already to their rows on the table."""
        finestra.clicca("optStampa3")
        self.cambia(finestra, lambda: finestra.clicca("cmdTaglie"), "le statistiche")
        time.sleep(0.2)
        finestra.fotografa(f"statistiche-{suffisso}")

    def limite(self, finestra, suffisso):
        finestra.scrivi("51")
        finestra.clicca("cmdTaglie")
        riquadri = aspetta(lambda: len(finestra.finestre()) == 2 and finestra.finestre(), "limite")
        self.assertEqual([titolo for _, titolo in riquadri], ["Scalvino", "Scalvino"])
        time.sleep(0.3)
        finestra.fotografa(f"limite-{suffisso}", id=riquadri[1][0])
        finestra.tasti("Return")
        aspetta(lambda: len(finestra.finestre()) == 1, "il limite chiuso")
        finestra.fotografa(f"dopo-limite-{suffisso}")

    def giro(self, scala):
        finestra = self.avvia(scala).pronta()
        suffisso = f"chiaro-{scala}x"
        self.partita(finestra, suffisso)
        quanti = 0
        for opzione, nome in REPORT.items():
            finestra.scrivi("3")
            finestra.clicca(opzione)
            finestra.clicca("cmdTaglie")
            quanti += 1
            self.assertGreater(self.aperto(finestra, quanti, nome).stat().st_size, 3000)
        finestra.clicca("chkStat")
        for opzione, nome in REPORT.items():
            finestra.clicca(opzione)
            finestra.clicca("cmdTaglie")
            quanti += 1
            self.aperto(finestra, quanti, nome)
        self.statistiche(finestra, suffisso)
        self.assertFalse((finestra.cartella / "taglie.txt").exists())
        finestra.clicca("cmdHelp")
        guida = self.aperto(finestra, quanti + 1, "scalvino.htm")
        self.assertEqual(guida.stat().st_size, 12936)
        finestra.clicca("optStampa0")
        finestra.clicca("chkStat")
        self.limite(finestra, suffisso)
        self.assertEqual(sorted(v.name for v in finestra.cartella.glob("*.*")),
                         ["scalvino.htm", "taglie.htm", "taglie.pdf"])
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)
        self.assertEqual(list(finestra.cartella.glob("*.*")), [])
        self.assertEqual((finestra.base / "errori").read_text(), "")

    def test_un_giro_intero(self):
        self.giro(1)

    def test_un_giro_intero_al_doppio(self):
        self.giro(2)

    def test_al_buio(self):
        for scala in (1, 2):
            finestra = self.avvia(scala, QT_QPA_PLATFORMTHEME="gtk3",
                                  GTK_THEME="Adwaita:dark").pronta()
            suffisso = f"scuro-{scala}x"
            self.assertLess(sum(bytes.fromhex(finestra.colore(5, 5))), 3 * 80)
            self.limite(finestra, suffisso)
            self.partita(finestra, suffisso)
            finestra.clicca("chkStat")
            self.statistiche(finestra, suffisso)
            finestra.chiudi()
            self.assertEqual(finestra.esito(), 0)

    def test_a_una_volta_e_mezza(self):
        finestra = self.avvia(1.5).pronta()
        self.cambia(finestra, lambda: finestra.clicca("cmdMescola"), "la nuova taglia")
        self.cambia(finestra, lambda: finestra.clicca("cmdColpo"), "il primo colpo")
        finestra.fotografa("colpo-chiaro-1.5x")

    def test_la_finestra_non_si_ridimensiona(self):
        finestra = self.avvia().pronta()
        misure = self.schermo.fa("xprop", "-id", finestra.id, "WM_NORMAL_HINTS")
        self.assertIn("minimum size: 784 by 451", misure)
        self.assertIn("maximum size: 784 by 451", misure)
        permesse = self.schermo.fa("xprop", "-id", finestra.id, "_NET_WM_ALLOWED_ACTIONS")
        self.assertNotIn("RESIZE", permesse)
        self.assertIn("CLOSE", permesse)
        self.assertIn("scalvino", self.schermo.fa("xprop", "-id", finestra.id, "WM_CLASS"))
        icone = self.schermo.fa("xprop", "-id", finestra.id, "_NET_WM_ICON")
        for lato in (16, 32):
            self.assertIn(f"{lato} x {lato}", icone)

    def test_il_pulsante_esci_chiude(self):
        finestra = self.avvia().pronta()
        finestra.clicca("cmdMescola")
        finestra.clicca("cmdExit")
        self.assertEqual(finestra.esito(), 0)

    def test_i_segnali_chiudono_come_il_pulsante(self):
        for segnale in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT,
                        signal.SIGALRM, signal.SIGXCPU):
            finestra = self.avvia().pronta()
            finestra.clicca("cmdHelp")
            self.aperto(finestra, 1, "scalvino.htm")
            os.kill(finestra.processo.pid, segnale)
            self.assertEqual(finestra.esito(), 0)
            self.assertEqual(list(finestra.cartella.glob("*.*")), [])

    def test_i_segnali_che_il_chiamante_ignora_restano_ignorati(self):
        cartella = Path(tempfile.mkdtemp(prefix="ignora."))
        self.addCleanup(shutil.rmtree, cartella)
        programma = cartella / "ignora"
        programma.write_text(f"#!/bin/sh\ntrap '' HUP QUIT\nexec '{SCALVINO}'\n")
        programma.chmod(0o755)
        finestra = self.avvia(programma=programma).pronta()
        for segnale in (signal.SIGHUP, signal.SIGQUIT, signal.SIGHUP):
            os.kill(finestra.processo.pid, segnale)
        finestra.clicca("cmdHelp")
        self.aperto(finestra, 1, "scalvino.htm")
        os.kill(finestra.processo.pid, signal.SIGALRM)
        self.assertEqual(finestra.esito(), 0)

    def lungo(self, opzione):
        """A run of statistics that takes minutes."""
        finestra = self.avvia().pronta()
        finestra.clicca("chkStat")
        finestra.clicca(opzione)
        finestra.scrivi("90000000")
        finestra.clicca("cmdTaglie")
        aspetta(lambda: len(finestra.finestre()) == 2, "la domanda")
        time.sleep(0.2)
        finestra.fotografa("domanda", id=finestra.finestre()[1][0])
        finestra.tasti("Return") # Yes is the button that Return presses
        aspetta(lambda: len(finestra.finestre()) == 1, "la domanda chiusa")
        time.sleep(0.5)
        self.assertIsNone(finestra.processo.poll())
        return finestra

    def test_chiudere_durante_una_corsa(self):
        for opzione in [*REPORT, "optStampa3"]:
            finestra = self.lungo(opzione)
            finestra.fotografa("in-corso")
            stato = finestra.stato()
            self.assertGreater(len(set(stato)), 8) # there is a text
            aspetta(lambda: finestra.stato() != stato, "l'avanzamento")
            inizio = time.monotonic()
            finestra.chiudi()
            self.assertEqual(finestra.esito(), 0)
            self.assertLess(time.monotonic() - inizio, 5)
            self.assertEqual(list(finestra.cartella.glob("*.*")), [])
            self.assertEqual(finestra.aperti(), [])
            self.assertEqual((finestra.base / "errori").read_text(), "")

    def test_un_segnale_durante_una_corsa(self):
        for segnale in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGQUIT,
                        signal.SIGXCPU):
            finestra = self.lungo("optStampa2")
            os.kill(finestra.processo.pid, segnale)
            self.assertEqual(finestra.esito(), 0)
            self.assertEqual(list(finestra.cartella.glob("*.*")), [])

    def test_esc_ferma_una_corsa(self):
        finestra = self.lungo("optStampa2")
        finestra.tasti("Escape")
        aspetta(lambda: self.libera(finestra), "i comandi di nuovo liberi")
        self.assertEqual(finestra.aperti(), [])
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)

    def libera(self, finestra):
        """The help button works again."""
        finestra.clicca("cmdHelp")
        time.sleep(0.2)
        return finestra.cartella.joinpath("scalvino.htm").exists() and finestra.registro.unlink(
            missing_ok=True) is None

    def test_un_segnale_con_una_domanda_aperta(self):
        finestra = self.avvia().pronta()
        finestra.scrivi("51")
        finestra.clicca("cmdTaglie")
        aspetta(lambda: len(finestra.finestre()) == 2, "il limite")
        os.kill(finestra.processo.pid, signal.SIGTERM)
        self.assertEqual(finestra.esito(), 0)

    def test_senza_le_carte_il_programma_finisce(self):
        cartella = Path(tempfile.mkdtemp(prefix="senza\x1b[2J-carte."))
        self.addCleanup(shutil.rmtree, cartella)
        shutil.copy2(SCALVINO, cartella / "scalvino")
        intero = SCALVINO.with_name("carte.svg").read_bytes()
        for byte, detto in ((None, "../share/scalvino/carte.svg: non si può leggere"),
                            (b"", "carte.svg: è danneggiato"),
                            (intero[:100000], "carte.svg: è danneggiato"),
                            (intero.replace(b'"carta7"', b'"altra"'),
                             "carte.svg: manca qualche carta")):
            if byte is not None:
                (cartella / "carte.svg").write_bytes(byte)
            finestra = self.avvia(1, cartella / "scalvino")
            (finestra.cartella / "taglie.txt").write_text("resta")
            (riquadro, titolo), = aspetta(finestra.finestre, "il messaggio")
            self.assertEqual(titolo, "Scalvino")
            time.sleep(0.3)
            finestra.fotografa("senza-carte", id=riquadro)
            self.schermo.fa("xdotool", "windowactivate", "--sync", riquadro, "key", "Return")
            self.assertEqual(finestra.esito(), 1)
            detto = f"scalvino: {cartella}/{detto}\n".replace("\x1b", "?")
            self.assertEqual((finestra.base / "errori").read_text(encoding="utf-8"), detto)
            # No closing steps.
            self.assertTrue((finestra.cartella / "taglie.txt").exists())

    def test_installato_trova_le_carte_nella_loro_cartella(self):
        prefisso = Path(tempfile.mkdtemp(prefix="installato."))
        self.addCleanup(shutil.rmtree, prefisso)
        for cartella in ("bin", "share/scalvino"):
            (prefisso / cartella).mkdir(parents=True)
        shutil.copy2(SCALVINO, prefisso / "bin")
        shutil.copy2(SCALVINO.with_name("carte.svg"), prefisso / "share/scalvino")
        finestra = self.avvia(1, prefisso / "bin/scalvino").pronta()
        aspetta(lambda: finestra.colore(230, 30) == VERDE, "il titolo", passo=0.03)
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)

    def test_senza_cartella_temporanea_si_gioca_ma_non_si_scrive(self):
        finestra = self.avvia(TMPDIR="/cartella/che/non/esiste").pronta()
        self.cambia(finestra, lambda: finestra.clicca("cmdMescola"), "la nuova taglia")
        finestra.clicca("cmdHelp")
        finestra.clicca("chkStat")
        finestra.clicca("optStampa3")
        self.cambia(finestra, lambda: finestra.clicca("cmdTaglie"), "le statistiche")
        finestra.clicca("optStampa0")
        finestra.clicca("cmdTaglie")
        riquadri = aspetta(lambda: len(finestra.finestre()) == 2 and finestra.finestre(), "errore")
        time.sleep(0.2)
        finestra.fotografa("senza-cartella", id=riquadri[1][0])
        finestra.tasti("Return")
        self.assertEqual(finestra.esito(), 1)
        self.assertEqual(finestra.aperti(), [])
        self.assertEqual([v.name for v in finestra.base.iterdir()
                          if v.suffix in (".htm", ".txt", ".pdf")], [])

    def test_un_tasto_tenuto_giu_preme_una_volta_sola(self):
        finestra = self.avvia().pronta()
        finestra.tasti("Return") # from the field to the button
        for quanti, tasto in enumerate(("Return", "space"), 1):
            self.tieni_giu(tasto)
            self.aperto(finestra, quanti, "taglie.htm")
        # A message is not answered by the key that brought it up.
        finestra.scrivi("51")
        finestra.tasti("Return")
        self.tieni_giu("Return")
        self.assertEqual(len(finestra.finestre()), 2)
        finestra.tasti("Return")
        aspetta(lambda: len(finestra.finestre()) == 1, "il limite chiuso")
        self.assertEqual(len(finestra.aperti()), 2)
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)

    def tieni_giu(self, tasto):
        """Holds a key down until the server has repeated it many times over."""
        self.schermo.fa("xdotool", "keydown", tasto)
        time.sleep(1.5)
        self.schermo.fa("xdotool", "keyup", tasto)
        time.sleep(0.3)

    def test_il_testo_selezionato_altrove_non_arriva_al_numero(self):
        for testo in ("parola", "9"):
            finestra = self.avvia().pronta()
            finestra.scrivi("2")
            self.schermo.seleziona(testo)
            finestra.clicca("numTaglie", pulsante=2)
            finestra.tasti("ctrl+shift+Insert", "ctrl+shift+KP_Insert")
            finestra.clicca("cmdTaglie")
            pagina = self.aperto(finestra, 1, "taglie.htm").read_bytes()
            self.assertIn(b'<a name="2"', pagina)
            self.assertNotIn(b'<a name="3"', pagina)
            finestra.chiudi()
            self.assertEqual(finestra.esito(), 0)

    def test_le_lettere_non_arrivano_al_numero(self):
        finestra = self.avvia().pronta()
        finestra.scrivi("ab-c5")
        finestra.fotografa("lettere")
        finestra.tasti("Return", "space") # on to the button, and pressed
        percorso = self.aperto(finestra, 1, "taglie.htm")
        pagina = percorso.read_bytes()
        self.assertIn(b'<a name="5"', pagina)
        self.assertNotIn(b'<a name="6"', pagina)
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)


if __name__ == "__main__":
    unittest.main()
