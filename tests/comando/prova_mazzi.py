"""Shoe files and records files: golden reports, round trips, refusals."""

import os
import re
import signal
import unittest

from aiuti import (GOLDEN, RIFIUTO, USO, Prova, ambiente, aspetta, buona_riga, riga_testi,
                   taglie_dei_colpi, taglie_nel_testo)

# How each kind of golden report is asked for.
GENERI = {"it": (["--numeri", "it"], "C"), "c": (["--numeri", "c"], "C"),
          "nbsp": (["--numeri", "sistema"], "fr_FR.UTF-8")}

# The moment that the golden documents were made: 2 January 2026, 03:04:05.
MOMENTO = {"SOURCE_DATE_EPOCH": "1767323045"}
QUALI = {"pieno": [], "statistiche": ["-s"], "unici": ["--caratteri-unici"]}


class Dorati(Prova):
    def test_i_report_sono_quelli_dorati_byte_per_byte(self):
        visti = 0
        for file in sorted(GOLDEN.glob("*.*.*.*")):
            nome, genere, quali, estensione = file.name.split(".")
            numeri, locale = GENERI[genere]
            forma = {"txt": "txt", "htm": "html", "pdf": "pdf"}[estensione]
            with self.subTest(file=file.name):
                self.fa("--mazzi", GOLDEN / f"{nome}.mazzi", "-f", forma, *numeri,
                        *QUALI[quali], env=ambiente(locale, **MOMENTO))
                self.assertEqual(self.byte(f"taglie.{estensione}"), file.read_bytes())
            visti += 1
        self.assertGreaterEqual(visti, 32)

    def test_i_record_sono_quelli_dorati_byte_per_byte(self):
        for nome in ["uno_trentuno", "uno_liscio", "tre", "otto", "dodici"]:
            for forma in [["-f", "nessuna"], ["-f", "txt"], ["-f", "html", "-s"]]:
                with self.subTest(nome=nome, forma=forma):
                    self.fa("--mazzi", GOLDEN / f"{nome}.mazzi", "--colpi", "c", *forma)
                    self.assertEqual(self.byte("c"), (GOLDEN / f"{nome}.colpi").read_bytes())

    def test_piu_lavori_danno_le_stesse_statistiche_dorate(self):
        for fili in ["0", "2", "256"]:
            with self.subTest(fili=fili):
                self.fa("--mazzi", GOLDEN / "dodici.mazzi", "-s", "-j", fili, "--numeri", "it")
                self.assertEqual(self.byte("taglie.txt"),
                                 (GOLDEN / "dodici.it.statistiche.txt").read_bytes())


class AndataERitorno(Prova):
    def test_le_taglie_salvate_ridanno_gli_stessi_file(self):
        for forma, report in [("txt", "taglie.txt"), ("html", "taglie.htm")]:
            for seme in [["--seme", "77"], []]:
                with self.subTest(forma=forma, seme=seme):
                    self.fa("5", *seme, "-f", forma, "--salva-mazzi", "m1", "--colpi", "c1")
                    primo = self.byte(report)
                    self.fa("--mazzi", "m1", "-f", forma, "--salva-mazzi", "m2", "--colpi", "c2")
                    self.assertEqual(self.byte(report), primo)
                    self.assertEqual(self.byte("m2"), self.byte("m1"))
                    self.assertEqual(self.byte("c2"), self.byte("c1"))

    def test_ogni_taglia_salvata_ha_tutte_le_carte_una_volta(self):
        self.fa("20", "-f", "nessuna", "--salva-mazzi", "m")
        righe = self.byte("m").decode("ascii").splitlines()
        self.assertEqual(len(righe), 20)
        self.assertEqual(len(set(righe)), 20)
        for riga in righe:
            self.assertEqual(sorted(map(int, riga.split(","))), list(range(1, 313)))

    def test_le_prime_carte_salvate_sono_quelle_annullate_e_poi_quelle_del_primo_colpo(self):
        valori = ["A", *map(str, range(2, 11)), "J", "Q", "K"]
        self.fa("--seme", "4", "-f", "nessuna", "--salva-mazzi", "m", "--colpi", "c")
        testi = [valori[(c - 1) % 13] + "CQFP"[(c - 1) % 52 // 13]
                 for c in map(int, self.byte("m").split(b","))]
        taglia, = taglie_dei_colpi(self.byte("c"))
        distribuite = taglia[0][1:]
        for campi in taglia[1:]:
            distribuite += [carta for mano in campi[5:] for carta in mano.split("#") if carta]
        self.assertEqual(distribuite, testi)


class Lettura(Prova):
    def scrivi(self, nome, contenuto):
        dati = contenuto.encode() if isinstance(contenuto, str) else contenuto
        (self.cartella / nome).write_bytes(dati)

    def colpi(self, contenuto, *argomenti):
        self.scrivi("mazzi", contenuto)
        self.fa("--mazzi", "mazzi", "-f", "nessuna", "--colpi", "c", *argomenti)
        return self.byte("c")

    def test_codici_testi_virgole_spazi_e_commenti_dicono_la_stessa_taglia(self):
        attesi = self.colpi(buona_riga() + "\n")
        self.assertTrue(attesi.startswith(b"0,AC,2C,3C,4C,5C\n1,"))
        for nome, contenuto in {
                "spazi": buona_riga().replace(",", " ") + "\n",
                "separatori di ogni genere": "\t , " + buona_riga().replace(",", " ,\t, ") + " ,\n",
                "commenti": "# una\n\n   # due\n" + buona_riga() + "# 1,2,3\n\n#fine",
                "a capo di due byte": buona_riga() + "\r\n",
                "commento con a capo di due byte": "# x\r\n" + buona_riga() + " # y\r\n\r\n",
                "senza a capo alla fine": buona_riga(),
                "punto e virgola": buona_riga().replace(",", ";") + "\n",
                "punto e virgola con altro": buona_riga().replace(",", " ;\t,") + ";\n",
                "segno di UTF-8": b"\xef\xbb\xbf" + buona_riga().encode(),
                "segno di UTF-8 e commento": b"\xef\xbb\xbf# una\r\n" + buona_riga().encode(),
                "testi": riga_testi() + "\n",
                "testi con virgole": riga_testi().replace(" ", ",") + "\r\n",
                "zeri davanti": re.sub(r"\b(\d\d?)\b", r"00\1", buona_riga()) + "\n"}.items():
            with self.subTest(nome):
                self.assertEqual(self.colpi(contenuto), attesi)

    def test_il_numero_prende_le_prime_taglie_del_file(self):
        dorati = (GOLDEN / "dodici.mazzi").read_bytes()
        tutti = taglie_dei_colpi((GOLDEN / "dodici.colpi").read_bytes())
        self.assertEqual(taglie_dei_colpi(self.colpi(dorati)), tutti)
        for n in [1, 5, 12]:
            self.assertEqual(taglie_dei_colpi(self.colpi(dorati, n)), tutti[:n])

    def test_piu_taglie_di_quelle_del_file_sono_rifiutate(self):
        self.scrivi("mazzi", buona_riga() + "\n" + buona_riga() + "\n")
        self.errore(self.taglie("--mazzi", "mazzi", "3"), RIFIUTO,
                    "taglie: mazzi: contiene 2 taglie, ne servono 3\n")
        self.scrivi("mazzi", buona_riga())
        self.errore(self.taglie("--mazzi", "mazzi", "2"), RIFIUTO,
                    "taglie: mazzi: contiene 1 taglia, ne servono 2\n")
        self.assertEqual(self.contenuto(), ["mazzi"])

    def test_il_trattino_e_lo_standard_input(self):
        self.fa("--mazzi", "-", "-f", "nessuna", "--colpi", "c",
                ingresso=(GOLDEN / "tre.mazzi").read_bytes())
        self.assertEqual(self.byte("c"), (GOLDEN / "tre.colpi").read_bytes())
        self.errore(self.taglie("--mazzi", "-", ingresso=b""), RIFIUTO, "nessuna taglia")
        self.errore(self.taglie("--mazzi", "-", ingresso=b"1,2\n"), RIFIUTO, "riga 1")

    def test_lo_standard_input_si_legge_da_dove_sta(self):
        tre = (GOLDEN / "tre.mazzi").read_bytes()
        self.scrivi("mazzi", tre)
        salto = len(b"".join(tre.splitlines(True)[:2]))  # a comment and the first shoe
        with open(self.cartella / "mazzi", "rb") as ingresso:
            os.lseek(ingresso.fileno(), salto, os.SEEK_SET)
            self.fa("--mazzi", "-", "-f", "nessuna", "--salva-mazzi", "resto", stdin=ingresso)
        self.fa("--mazzi", "mazzi", "-f", "nessuna", "--salva-mazzi", "tutti")
        resto, tutti = self.byte("resto"), self.byte("tutti")
        self.assertEqual(resto, b"".join(tutti.splitlines(True)[1:]))
        self.assertEqual(resto.count(b"\n"), 2)

    def test_piu_lavori_rileggono_le_stesse_taglie(self):
        self.fa(700, "--seme", 3, "-f", "nessuna", "--salva-mazzi", "m")
        dati = [self.fa("--mazzi", "m", "--dati", "csv", "-j", fili).uscita
                for fili in [1, 4, 32]]
        senza_tempo = [re.sub(rb"corsa,secondi,[^,]*", b"", testo) for testo in dati]
        self.assertEqual(set(senza_tempo), {senza_tempo[0]})

    def test_il_file_che_non_si_legge_e_rifiutato(self):
        self.nuova("cartella")
        self.errore(self.taglie("--mazzi", "assente"), RIFIUTO, "taglie: assente: ")
        self.errore(self.taglie("--mazzi", "cartella"), RIFIUTO, "taglie: cartella: ")
        self.assertEqual(self.contenuto(), ["cartella"])

    def test_la_riga_sbagliata_e_rifiutata_con_numero_e_motivo_prima_di_scrivere(self):
        buona = buona_riga()
        testi = riga_testi()
        con_taglia_prima = "# prima\n" + buona + "\n"
        casi = {
            "carte in meno": (buona[:buona.rindex(",")], "311"),
            "carte in più": (buona + ",1", "313"),
            "codice ripetuto": (buona.replace(",312", ",311"), "311 si ripete"),
            "codice zero": (buona.replace("1,2,", "0,2,", 1), '"0"'),
            "codice oltre": (buona.replace(",312", ",313"), '"313"'),
            "negativo": ("-" + buona, '"-1"'),
            "col segno": ("+" + buona, '"+1"'),
            "con esponente": (buona.replace(",100,", ",1e2,"), '"1e2"'),
            "con la virgola mobile": (buona.replace(",100,", ",100.0,"), '"100.0"'),
            "enorme": (buona.replace(",312", "," + "9" * 300), '"99999999999999999999..."'),
            "2^64 e qualcosa": (buona.replace(",312", f",{2**64 + 312}"), f'"{2**64 + 312}"'),
            "2^32 e qualcosa": (buona.replace(",312", f",{2**32 + 312}"), f'"{2**32 + 312}"'),
            "2^16 e qualcosa": (buona.replace(",312", f",{2**16 + 312}"), f'"{2**16 + 312}"'),
            "testo sette volte": (testi.replace("KP", "QP", 1), "QP compare più di 6 volte"),
            "testo che non c'è": (testi.replace("10F", "11F", 1), '"11F"'),
            "testo minuscolo": (testi.replace("KP", "kp", 1), '"kp"'),
            "codici e poi testi": (buona.replace(",312", ",KP"), '"KP"'),
            "testi e poi codici": (testi[:-2] + "312", '"312"'),
            "una parola sola": ("ciao", "la carta è 1 invece di 312"),
            "un byte nullo": (buona.replace(",2,", ",2\0,", 1), "2?"),
            "solo byte nulli": ("\0" * 1000, "1 invece di 312"),
            "byte alti": (b"\xff\xfe\x80" + buona.encode(), '"???1"'),
            "comandi al terminale": (buona.replace(",312", ",\x1b[2J\x07"), '"?[2J?"'),
            "dieci milioni di byte": (b"1" * 10_000_000, "troppo lunga"),
            "dieci milioni di spazi": (b" " * 10_000_000, "troppo lunga"),
            "commento senza fine": (b"#" * 10_000_000, "troppo lunga"),
        }
        (self.cartella / "taglie.txt").write_bytes(b"il vecchio")
        for nome, (riga, pezzo) in casi.items():
            with self.subTest(nome):
                dati = riga.encode() if isinstance(riga, str) else riga
                self.scrivi("mazzi", con_taglia_prima.encode() + dati + b"\n" + buona.encode())
                esito = self.taglie("--mazzi", "mazzi", "--colpi", "c", "--salva-mazzi", "s")
                testo = self.errore(esito, RIFIUTO, "taglie: mazzi: riga 3: ", pezzo)
                self.assertLess(len(testo), 200)
                self.assertNotRegex(esito.errori[:-1], rb"[\x00-\x1f\x7f]")
        self.assertEqual(self.contenuto(), ["mazzi", "taglie.txt"])
        self.assertEqual(self.byte("taglie.txt"), b"il vecchio")

    def test_la_riga_sbagliata_e_rifiutata_anche_oltre_le_taglie_chieste(self):
        self.scrivi("mazzi", buona_riga() + "\n1,2,3\n")
        self.errore(self.taglie("--mazzi", "mazzi", "1"), RIFIUTO, "riga 2: ")

    def test_i_byte_a_caso_sono_rifiutati(self):
        # Every byte value, in an order that no generator of ours could change.
        byte = bytes((i * i * 31 + i * 7 + i // 256) % 256 for i in range(100_000))
        self.assertEqual(len(set(byte)), 256)
        self.scrivi("mazzi", byte)
        self.errore(self.taglie("--mazzi", "mazzi"), RIFIUTO, "taglie: mazzi: riga ")
        self.assertEqual(self.contenuto(), ["mazzi"])

    def test_il_file_senza_taglie_e_rifiutato(self):
        for nome, contenuto in {"vuoto": "", "solo commenti": "# a\n#b\r\n#",
                                "solo spazi": " ,\t\n", "solo a capo": "\n" * 100_000,
                                "solo separatori": ",,,\r\n,"}.items():
            with self.subTest(nome):
                self.scrivi("mazzi", contenuto)
                self.errore(self.taglie("--mazzi", "mazzi"), RIFIUTO,
                            "taglie: mazzi: non contiene nessuna taglia")
        self.assertEqual(self.contenuto(), ["mazzi"])


class Uguali(Prova):
    """Equal shoes are played, but told."""

    def avvisa(self, attesi, *argomenti, **opzioni):
        esito = self.taglie(*argomenti, "-f", "nessuna", "--colpi", "c", **opzioni)
        self.assertEqual(esito.codice, 0)
        self.assertEqual(esito.errori.decode(), attesi)

    def test_le_taglie_uguali_sono_dette(self):
        testo = ("taglie: {}: avviso: {} (la {} è uguale alla {}); errori e intervalli valgono per "
                 "taglie indipendenti\n")
        altra = buona_riga().replace("1,2,3,", "3,2,1,", 1)
        (self.cartella / "m").write_text(f"{buona_riga()}\n{altra}\n{riga_testi()}\n")
        una = testo.format("m", "1 taglia ne ripete un'altra", 3, 1)
        self.avvisa(una, "--mazzi", "m")
        self.avvisa(una, "--mazzi", "m", "-q")
        self.assertEqual(len(taglie_dei_colpi(self.byte("c"))), 3)
        self.avvisa("", "--mazzi", "m", 2)  # the third is not played
        self.avvisa(una.replace(" m:", " -:"), "--mazzi", "-", ingresso=self.byte("m"))
        (self.cartella / "m").write_text(f"{altra}\n" * 5 + f"{riga_testi()}\n")
        self.avvisa(testo.format("m", "4 taglie ne ripetono altre", 2, 1), "--mazzi", "m")

    def test_mille_mescolate_sono_diverse(self):
        self.fa(1000, "-f", "nessuna", "--salva-mazzi", "m")
        self.avvisa("", "--mazzi", "m")


class Cambiato(Prova):
    """A shoe file that somebody writes to between its check and the dealing."""

    def corre(self, cambia, *argomenti):
        """Runs over many shoes; while the first ones are dealt the file is changed."""
        self.fa(20_000, "--seme", 1, "-f", "nessuna", "--salva-mazzi", "m")
        processo = self.avvia("--mazzi", "m", *argomenti)
        report = self.cartella / "taglie.txt"
        aspetta(lambda: report.exists() and report.stat().st_size > 100_000, "le prime taglie")
        processo.send_signal(signal.SIGSTOP)
        cambia(self.cartella / "m")
        processo.send_signal(signal.SIGCONT)
        return self.raccogli(processo)

    def test_la_taglia_cambiata_ferma_la_corsa(self):
        def cambia(file):
            with open(file, "r+b") as aperto:
                aperto.seek(-100, os.SEEK_END)
                aperto.write(b"x")

        testo = self.errore(self.corre(cambia), RIFIUTO)
        self.assertEqual(testo, "taglie: m: la taglia 20000 è cambiata da quando è stata "
                                "controllata\n")
        self.assertEqual(taglie_nel_testo(self.byte("taglie.txt")), 19_999)

    def test_il_file_accorciato_ferma_la_corsa(self):
        def cambia(file):
            os.truncate(file, file.stat().st_size // 2)

        testo = self.errore(self.corre(cambia), RIFIUTO)
        self.assertRegex(testo, r"\Ataglie: m: la taglia \d+ è cambiata ")

    def test_il_file_allungato_e_detto_e_le_taglie_sono_quelle_di_prima(self):
        def cambia(file):
            with open(file, "ab") as aperto:
                aperto.write(b"non una taglia\n")

        esito = self.corre(cambia)
        self.assertEqual(esito.codice, 0)
        self.assertEqual(esito.errori.decode(), "taglie: m: avviso: è stato modificato durante la "
                                                "corsa; sono giocate le taglie di prima\n")
        self.assertEqual(taglie_nel_testo(self.byte("taglie.txt")), 20_000)

    def test_il_file_sostituito_non_conta(self):
        def cambia(file):
            file.rename(file.with_name("altro"))
            file.write_text("niente")

        esito = self.corre(cambia)
        self.assertEqual((esito.codice, esito.errori), (0, b""))
        self.assertEqual(taglie_nel_testo(self.byte("taglie.txt")), 20_000)


class StessoFile(Prova):
    """One file in two roles is refused, whatever it is called, and keeps what it holds."""

    def rifiuta(self, *argomenti):
        prima = {nome: self.byte(nome) for nome in self.contenuto()
                 if (self.cartella / nome).is_file()}
        self.errore(self.taglie(*argomenti), USO, "stesso file")
        self.assertEqual({nome: self.byte(nome) for nome in self.contenuto()
                          if (self.cartella / nome).is_file()}, prima)

    def altri_nomi(self, nome):
        """Further names of a file in the test's folder."""
        return [nome, "./" + nome, str(self.cartella / nome), f"../{self.cartella.name}/{nome}",
                f"sotto/../{nome}", f"giro/{nome}", f".//{nome}"]

    def setUp(self):
        super().setUp()
        self.nuova("sotto")
        (self.cartella / "giro").symlink_to(".")

    def test_record_e_taglie_in_un_file_che_non_c_e_ancora(self):
        for altro in self.altri_nomi("x"):
            with self.subTest(altro=altro):
                self.rifiuta("--colpi", "x", "--salva-mazzi", altro, "-f", "nessuna")
                self.rifiuta("--colpi", altro, "--salva-mazzi", "x")
        self.assertEqual(self.contenuto(), ["giro", "sotto"])

    def test_record_e_taglie_in_un_file_che_c_e(self):
        (self.cartella / "x").write_bytes(b"mio")
        os.link(self.cartella / "x", self.cartella / "gemello")
        (self.cartella / "freccia").symlink_to("x")
        for altro in [*self.altri_nomi("x"), "gemello", "freccia"]:
            with self.subTest(altro=altro):
                self.rifiuta("--colpi", "x", "--salva-mazzi", altro, "-f", "nessuna")
        self.assertTrue((self.cartella / "freccia").is_symlink())

    def test_record_o_taglie_al_posto_del_report_che_non_c_e_ancora(self):
        for forma, report in [("txt", "taglie.txt"), ("html", "taglie.htm")]:
            for ruolo in ["--colpi", "--salva-mazzi"]:
                for altro in self.altri_nomi(report):
                    with self.subTest(ruolo=ruolo, altro=altro):
                        self.rifiuta("-f", forma, ruolo, altro)
        self.rifiuta("-c", "sotto", "--colpi", "sotto/taglie.txt")
        self.assertEqual(self.contenuto(), ["giro", "sotto"])

    def test_record_o_taglie_al_posto_del_report_che_c_e(self):
        (self.cartella / "taglie.txt").write_bytes(b"il vecchio")
        os.link(self.cartella / "taglie.txt", self.cartella / "gemello")
        (self.cartella / "freccia").symlink_to("taglie.txt")
        for altro in [*self.altri_nomi("taglie.txt"), "gemello", "freccia"]:
            with self.subTest(altro=altro):
                self.rifiuta("--colpi", altro)
                self.rifiuta("--salva-mazzi", altro, "-s")

    def test_le_taglie_lette_non_sono_quelle_scritte(self):
        (self.cartella / "x").write_text(buona_riga())
        os.link(self.cartella / "x", self.cartella / "gemello")
        (self.cartella / "freccia").symlink_to("x")
        for altro in [*self.altri_nomi("x"), "gemello", "freccia"]:
            with self.subTest(altro=altro):
                self.rifiuta("--mazzi", "x", "--salva-mazzi", altro)
                self.rifiuta("--mazzi", altro, "--colpi", "x")
        self.rifiuta("--mazzi", "freccia", "--colpi", "gemello")

    def test_le_taglie_lette_non_sono_il_report(self):
        for report, forma in [("taglie.txt", "txt"), ("taglie.htm", "html")]:
            (self.cartella / report).write_text(buona_riga())
            for altro in self.altri_nomi(report):
                with self.subTest(altro=altro):
                    self.rifiuta("--mazzi", altro, "-f", forma)

    def test_due_file_diversi_vanno_bene_anche_con_nomi_uguali(self):
        self.fa("--colpi", "x", "--salva-mazzi", "sotto/x")
        self.fa("-f", "html", "--colpi", "taglie.txt", "--salva-mazzi", "sotto/taglie.htm")
        self.assertTrue(self.byte("taglie.txt").startswith(b"0,"))
        self.fa("-f", "nessuna", "--colpi", "taglie.txt")


if __name__ == "__main__":
    unittest.main()
