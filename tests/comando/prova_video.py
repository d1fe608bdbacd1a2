"""The statistics on the terminal: the same figures as everywhere, no file, one page at the end."""

import os
import re
import signal
import time
import unittest

from aiuti import FATTO, INTERROTTO, USO, Prova

ETICHETTE = ["Taglie:", "Colpi totali:", "Carte utilizzate:", "Vincite Nero:", "Vincite Rosso:",
             "Colpi pari:", "Vincite Colore:", "Vincite Inverso:", "31 après:", "Nero-Colore:",
             "Nero-Inverso:", "Rosso-Colore:", "Rosso-Inverso:"]


class Video(Prova):
    def righe(self, *argomenti):
        return self.fa("-f", "video", *argomenti).uscita.decode("utf-8").splitlines()

    def test_titoli_ed_etichette_stanno_in_ordine(self):
        righe = self.righe(3, "--seme", 5)
        self.assertEqual([r.strip() for r in righe[:4]],
                         ["SCALVINO", "", "Simulazione taglie", "Statistiche generali"])
        tabella = [r for r in righe[4:] if r]
        self.assertEqual([r[:20].strip() for r in tabella], ETICHETTE)
        # The four combined outcomes stand apart.
        self.assertEqual(righe[righe.index(tabella[9]) - 1], "")
        self.assertEqual(self.contenuto(), [])

    def test_le_cifre_sono_quelle_del_report_di_testo(self):
        for quante, numeri in [(1, "it"), (7, "c"), (2000, "it")]:
            comuni = [quante, "--seme", 11, "--numeri", numeri]
            self.fa(*comuni, "-s")
            testo = self.byte("taglie.txt").decode("cp1252")
            attese = re.findall(r"^[^\r\n:]+:[ \t]+([\d.,]*)(?: \(([\d.,]+%?)\))?\r", testo, re.M)
            self.assertEqual(len(attese), len(ETICHETTE))
            viste = [r[20:].split() for r in self.righe(*comuni)[4:] if r]
            for etichetta, (valore, quota), vista in zip(ETICHETTE, attese, viste):
                # A zero is written out here and left empty there.
                self.assertEqual(vista, [valore or "0"] + ([quota] if quota else []), etichetta)

    def test_lo_zero_si_scrive(self):
        for seme in range(50):
            righe = self.righe(1, "--seme", seme, "--numeri", "c")
            apres = next(r for r in righe if r.startswith("31 après:"))
            if apres.split()[2] == "0":
                self.assertEqual(apres.split(), ["31", "après:", "0", "0.00%"])
                return
        self.fail("no shoe without a tie at 31 among fifty")

    def test_un_report_di_testo_nella_cartella_resta(self):
        (self.cartella / "taglie.txt").write_text("mio")
        self.righe(1)
        self.assertEqual(self.byte("taglie.txt"), b"mio")

    def test_un_numero_lungo_non_tocca_quello_dopo(self):
        for riga in self.righe(5000, "--numeri", "it"):
            self.assertLessEqual(len(riga), 60)
        self.assertRegex("\n".join(self.righe(5000, "--numeri", "it")),
                         r"Carte utilizzate: +1\.5\d\d\.\d{3}  +9\d,\d\d%")

    def test_i_lavori_in_parallelo_danno_gli_stessi_numeri(self):
        self.assertEqual(self.righe(500, "--seme", 3), self.righe(500, "--seme", 3, "-j", 2))

    def test_i_dati_vogliono_lo_standard_output_per_se(self):
        self.errore(self.taglie("-f", "video", "--dati", "json"), USO, "taglie: --dati: ")

    def test_interrotto_non_stampa_nulla(self):
        processo = self.avvia("-f", "video", 10**9)
        time.sleep(0.5)
        os.kill(processo.pid, signal.SIGINT)
        esito = self.raccogli(processo)
        self.assertEqual((esito.codice, esito.uscita), (INTERROTTO, b""))
        self.assertEqual(self.taglie("-f", "video", 1).codice, FATTO)


if __name__ == "__main__":
    unittest.main()
