"""The totals for other programs, worked out again from the records."""

import csv
import io
import json
import unittest

from aiuti import (ESITI, GOLDEN, Prova, ambiente, conti_attesi, taglie_dei_colpi)

INTESTAZIONE = ["sezione", "voce", "valore", "tasso", "errore_standard", "minimo95", "massimo95",
                "esatta", "z"]


class Dati(Prova):
    def json(self, *argomenti, **opzioni):
        return json.loads(self.fa("--dati", "json", *argomenti, **opzioni).uscita)

    def uguali(self, dati, attesi, dove=""):
        """The same fields in the same order; numbers to twelve digits, counts exactly."""
        self.assertEqual(type(dati), type(attesi), dove)
        if isinstance(attesi, dict):
            self.assertEqual(list(dati), list(attesi), dove)
            for nome in attesi:
                self.uguali(dati[nome], attesi[nome], f"{dove}.{nome}")
        elif isinstance(attesi, list):
            self.assertEqual(len(dati), len(attesi), dove)
            for uno, altro in zip(dati, attesi):
                self.uguali(uno, altro, dove)
        elif isinstance(attesi, float):
            # 1e-13 of a rate is far below any error that could be told from these counts.
            self.assertAlmostEqual(dati, attesi, delta=max(1e-13, abs(attesi) * 1e-12), msg=dove)
        else:
            self.assertEqual(dati, attesi, dove)

    def verifica(self, dati, seme, colpi):
        self.assertEqual(dati.pop("versione"), "1.0.0")
        self.assertEqual(dati.pop("seme"), seme)
        secondi = dati.pop("secondi")
        self.assertIsInstance(secondi, float)
        self.assertTrue(0 < secondi < 600)
        self.uguali(dati, conti_attesi(taglie_dei_colpi(colpi)))

    def test_ogni_campo_si_ricalcola_dai_record_dello_stesso_seme(self):
        for taglie, seme in [(1, 7), (2, 8), (3, 0), (300, 2**64 - 1)]:
            with self.subTest(taglie=taglie):
                dati = self.json(taglie, "--seme", seme, "--colpi", "c")
                self.assertEqual(dati["taglie"], taglie)
                self.verifica(dati, seme, self.byte("c"))

    def test_ogni_campo_si_ricalcola_dai_record_delle_taglie_dorate(self):
        # They hold short, long and empty last records, and shoes without a tie at 31.
        for nome in ["uno_trentuno", "uno_liscio", "tre", "otto", "dodici"]:
            with self.subTest(nome=nome):
                self.verifica(self.json("--mazzi", GOLDEN / f"{nome}.mazzi"), None,
                              (GOLDEN / f"{nome}.colpi").read_bytes())

    def test_una_taglia_contata_a_mano(self):
        # 28 complete coups and 7 cards left over: see the notes beside the golden reports.
        dati = self.json("--mazzi", GOLDEN / "uno_trentuno.mazzi")
        self.assertEqual(dati["report"], {"colpi": 28, "carte": 301})
        self.assertEqual(dati["completi"], {"colpi": 28, "carte": 307})
        self.assertEqual({nome: dati["esiti"][nome]["totale"] for nome in ESITI},
                         {"VinceNero": 6, "VinceRosso": 19, "Colore": 14, "Inverso": 11, "Pari": 3,
                          "TrentunoApres": 1, "NeroColore": 5, "NeroInverso": 1, "RossoColore": 9,
                          "RossoInverso": 10})
        self.assertEqual([nome for nome in ESITI if dati["primo_colpo"][nome]["totale"]],
                         ["Pari", "TrentunoApres"])

    def test_con_una_taglia_l_errore_non_si_sa(self):
        for esito in self.json("1")["esiti"].values():
            self.assertIsNone(esito["errore_standard"])
            self.assertEqual(esito["intervallo95"], [None, None])

    def test_il_tasso_uguale_in_ogni_taglia_ha_errore_zero_e_nessun_intervallo(self):
        # This seed's two shoes have 8 coups of 29 each.
        esito = self.json("2", "--seme", "4")["esiti"]["RossoInverso"]
        self.assertEqual(esito, {"totale": 16, "tasso": 16 / 58, "errore_standard": 0.0,
                                 "intervallo95": [None, None]})
        righe = self.fa("2", "--seme", "4", "--dati", "csv").uscita.decode("ascii")
        self.assertRegex(righe, r"\nesiti,RossoInverso,16,0\.\d+,0\.0,,,,\n")

    def test_gli_intervalli_restano_fra_zero_e_uno(self):
        limiti = [limite for seme in range(20)
                  for esito in self.json("2", "--seme", seme)["esiti"].values()
                  for limite in esito["intervallo95"] if limite is not None]
        self.assertTrue(all(0 <= limite <= 1 for limite in limiti))
        self.assertIn(0, limiti)
        self.assertIn(1, limiti)

    def test_i_conti_si_sommano(self):
        dati = self.json("500")
        e = {nome: dati["esiti"][nome]["totale"] for nome in ESITI}
        self.assertEqual(e["VinceNero"] + e["VinceRosso"] + e["Pari"], dati["completi"]["colpi"])
        self.assertEqual(e["Colore"] + e["Inverso"] + e["Pari"], dati["completi"]["colpi"])
        self.assertEqual(e["NeroColore"] + e["RossoInverso"] + e["NeroInverso"] + e["RossoColore"],
                         e["VinceNero"] + e["VinceRosso"])
        self.assertEqual(e["NeroColore"] + e["NeroInverso"], e["VinceNero"])
        self.assertEqual(e["NeroColore"] + e["RossoColore"], e["Colore"])
        p = {nome: dati["primo_colpo"][nome] for nome in ESITI}
        self.assertEqual(sum(p[nome]["totale"] for nome in ["VinceNero", "VinceRosso", "Pari"]),
                         500)
        self.assertAlmostEqual(sum(p[nome]["esatta"] for nome in ["Colore", "Inverso", "Pari"]), 1)

    def test_il_csv_porta_gli_stessi_valori(self):
        def valore(testo):
            return None if testo == "" else json.loads(testo)

        for argomenti in [["40", "--seme", "5"], ["1", "--seme", "5"],
                          ["--mazzi", GOLDEN / "dodici.mazzi"]]:
            with self.subTest(argomenti=argomenti):
                dati = self.json(*argomenti)
                byte = self.fa("--dati", "csv", *argomenti).uscita
                righe = list(csv.reader(io.StringIO(byte.decode("ascii")), strict=True))
                self.assertEqual(righe.pop(0), INTESTAZIONE)
                letti = {}
                for sezione, voce, *celle in righe:
                    self.assertNotIn((sezione, voce), letti)
                    letti[sezione, voce] = celle
                    self.assertEqual(len(celle), 7)
                self.assertEqual(letti.pop(("corsa", "versione")), [dati["versione"]] + [""] * 6)
                self.assertGreater(valore(letti.pop(("corsa", "secondi"))[0]), 0)
                for voce in ["seme", "taglie"]:
                    celle = letti.pop(("corsa", voce))
                    self.assertEqual((valore(celle[0]), celle[1:]), (dati[voce], [""] * 6))
                for sezione in ["report", "completi"]:
                    for voce, atteso in dati[sezione].items():
                        celle = letti.pop((sezione, voce))
                        self.assertEqual((valore(celle[0]), celle[1:]), (atteso, [""] * 6))
                for voce, e in dati["esiti"].items():
                    self.assertEqual([valore(c) for c in letti.pop(("esiti", voce))],
                                     [e["totale"], e["tasso"], e["errore_standard"],
                                      *e["intervallo95"], None, None])
                for voce, p in dati["primo_colpo"].items():
                    self.assertEqual([valore(c) for c in letti.pop(("primo_colpo", voce))],
                                     [p["totale"], p["tasso"], None, None, None, p["esatta"],
                                      p["z"]])
                self.assertEqual(letti, {})

    def test_i_totali_sono_quelli_del_report(self):
        dati = self.json("200", "--seme", "9", "-f", "txt", "-s", "--numeri", "c")
        testo = self.byte("taglie.txt").decode("cp1252")
        self.assertIn(f"\r\nColpi totali: \t\t{dati['report']['colpi']} (", testo)
        self.assertIn(f"\r\nCarte utilizzate: \t{dati['report']['carte']} (", testo)
        self.assertIn(f"\r\n31 après: \t\t{dati['esiti']['TrentunoApres']['totale']} (", testo)
        self.assertIn(f"\r\nVincite Rosso-Inverso: \t{dati['esiti']['RossoInverso']['totale']} (",
                      testo)

    def test_i_dati_da_soli_non_scrivono_report(self):
        for forma in ["json", "csv"]:
            self.fa("--dati", forma)
        self.assertEqual(self.contenuto(), [])

    def test_i_dati_con_una_forma_scrivono_il_report_ma_non_il_percorso(self):
        for ordine in [["-f", "txt", "--dati", "json"], ["--dati", "json", "-f", "txt"]]:
            esito = self.fa(*ordine)
            json.loads(esito.uscita)
            self.assertNotIn(b"taglie.txt", esito.uscita)
            self.assertEqual(self.contenuto(), ["taglie.txt"])
            (self.cartella / "taglie.txt").unlink()

    def test_quieto_lascia_i_dati(self):
        self.assertEqual(self.json("-q", "3")["taglie"], 3)


class Seme(Prova):
    def dati(self, *argomenti):
        dati = json.loads(self.fa("--dati", "json", *argomenti).uscita)
        del dati["secondi"]
        return dati

    def test_lo_stesso_seme_rida_gli_stessi_file(self):
        for forma, report in [("txt", "taglie.txt"), ("html", "taglie.htm")]:
            visti = []
            for _ in range(2):
                self.fa("4", "--seme", "123", "-f", forma, "--colpi", "c", "--salva-mazzi", "m")
                visti.append((self.byte(report), self.byte("c"), self.byte("m")))
            self.assertEqual(visti[0], visti[1])

    def test_ogni_seme_da_altre_taglie(self):
        viste = set()
        for seme in [0, 1, 2, 2**32, 2**32 + 1, 2**63, 2**64 - 2, 2**64 - 1]:
            self.fa("2", "--seme", seme, "-f", "nessuna", "--salva-mazzi", "m")
            viste.update(self.byte("m").splitlines())
        self.assertEqual(len(viste), 16)

    def test_senza_seme_ogni_corsa_e_diversa(self):
        viste = set()
        for _ in range(3):
            self.fa("2", "-f", "nessuna", "--salva-mazzi", "m")
            viste.update(self.byte("m").splitlines())
        self.assertEqual(len(viste), 6)

    def test_una_taglia_dipende_solo_dal_seme_e_dal_suo_numero(self):
        self.fa("9", "--seme", "55", "-f", "nessuna", "--salva-mazzi", "m", "--colpi", "c")
        taglie, colpi = self.byte("m"), self.byte("c")
        for n in [1, 4]:
            for forma in [["-f", "html"], ["-s"], ["-f", "nessuna"]]:
                self.fa(n, "--seme", "55", "--salva-mazzi", "m", "--colpi", "c", *forma)
                self.assertEqual(self.byte("m"), b"".join(taglie.splitlines(True)[:n]))
                self.assertEqual(taglie_dei_colpi(self.byte("c")), taglie_dei_colpi(colpi)[:n])

    def test_i_lavori_non_cambiano_ne_totali_ne_report(self):
        for n in [1, 33, 700]:
            attesi = self.dati(n, "--seme", "6", "-j", "1", "-s", "-f", "html")
            report = self.byte("taglie.htm")
            for fili in ["0", "2", "7", "256"]:
                with self.subTest(n=n, fili=fili):
                    self.assertEqual(self.dati(n, "--seme", "6", "--lavori", fili, "-s",
                                               "-f", "html"), attesi)
                    self.assertEqual(self.byte("taglie.htm"), report)


class Punto(Prova):
    def test_i_numeri_dei_dati_hanno_il_punto_in_ogni_lingua(self):
        for forma in ["json", "csv"]:
            for numeri in ["sistema", "it"]:
                byte = self.fa("5", "--seme", "1", "--dati", forma, "--numeri", numeri,
                               env=ambiente("it_IT.UTF-8")).uscita
                self.assertRegex(byte, rb"0\.445200543418929")


if __name__ == "__main__":
    unittest.main()
