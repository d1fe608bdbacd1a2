"""Arguments, help, where the report goes and how it is opened."""

import os
import re
import unittest

from aiuti import (FATTO, MASSIMO, RIFIUTO, SCRITTURA, SORGENTI, USO, Prova, ambiente, aspetta,
                   buona_riga)

CON_VALORE = ["-f", "--forma", "-c", "--cartella", "--seme", "--mazzi", "--salva-mazzi", "--colpi",
              "--dati", "--numeri", "-j", "--lavori", "--avanzamento"]


class NumeroDiTaglie(Prova):
    def test_senza_argomenti_esce_il_report_di_una_taglia_in_testo(self):
        esito = self.fa()
        self.assertEqual(esito.uscita, os.fsencode(self.cartella / "taglie.txt") + b"\n")
        self.assertEqual(self.contenuto(), ["taglie.txt"])
        testo = self.byte("taglie.txt")
        self.assertTrue(testo.startswith(b"\t\t\tSCALVINO\r\n\r\n\r\n\t\t\tTaglia 1\r\n"))
        self.assertIn(b"\r\nTaglie: \t\t1\r\n", testo)
        self.assertNotIn(b"Taglia 2", testo)

    def test_il_numero_dice_quante_taglie(self):
        self.fa("12")
        self.assertIn(b"\r\n\t\t\tTaglia 12\r\n", self.byte("taglie.txt"))
        self.assertNotIn(b"Taglia 13", self.byte("taglie.txt"))

    def test_il_numero_malformato_e_uso_sbagliato(self):
        for testo in ["-1", "1e3", "", "1.5", "+1", " 1", "1 ", "1,5", "1.000", "0x10", "uno", "-",
                      "--1", "٣", "1_0", "inf", "nan"]:
            with self.subTest(testo=testo):
                self.errore(self.taglie(testo), USO)
        for testo in ["-1", "+1", ""]:
            with self.subTest(testo=testo):
                self.errore(self.taglie("--", testo), USO, "non è un numero intero")
        self.assertEqual(self.contenuto(), [])

    def test_meno_di_una_taglia_e_uso_sbagliato(self):
        for testo in ["0", "00", "0" * 50]:
            with self.subTest(testo=testo):
                self.errore(self.taglie(testo), USO, "almeno 1")
        self.assertEqual(self.contenuto(), [])

    def test_oltre_il_massimo_e_rifiutato(self):
        for numero in [MASSIMO + 1, 2**63, 2**64, 2**64 + 1, 10**30]:
            with self.subTest(numero=numero):
                self.errore(self.taglie(numero), RIFIUTO, str(numero), str(MASSIMO))
        self.assertEqual(self.contenuto(), [])

    def test_gli_zeri_davanti_non_contano(self):
        self.fa("003", "-s")
        self.assertIn(b"\r\nTaglie: \t\t3\r\n", self.byte("taglie.txt"))


class ValoriDelleOpzioni(Prova):
    def test_il_valore_sbagliato_e_uso_sbagliato(self):
        for argomenti, pezzo in [
                (["-f", "doc"], '"doc"'), (["--forma="], "--forma"), (["-f", "TXT"], '"TXT"'),
                (["--forma", ""], '""'), (["-f", "txt,html"], '"txt,html"'),
                (["--numeri", "fr"], '"fr"'), (["--numeri", ""], '""'),
                (["--dati", "xml"], '"xml"'), (["--dati", ""], '""'),
                (["--avanzamento", "si"], '"si"'),
                (["--seme", "-1"], '"-1"'), (["--seme", ""], '""'), (["--seme", "1e3"], '"1e3"'),
                (["--seme", "+1"], '"+1"'), (["--seme", " 1"], '" 1"'),
                (["--seme", "1.0"], '"1.0"'),
                (["--seme", str(2**64)], str(2**64)), (["--seme", "0x1"], '"0x1"'),
                (["-s", "-j", "-1"], '"-1"'), (["-s", "-j", "257"], '"257"'),
                (["-s", "-j", ""], '""'), (["-s", "-j", "2.0"], '"2.0"'),
                (["-s", "-j", str(2**64 + 1)], str(2**64 + 1)),
                (["-c", ""], "--cartella"), (["--mazzi", ""], "--mazzi"),
                (["--salva-mazzi", ""], "--salva-mazzi"), (["--colpi", ""], "--colpi")]:
            with self.subTest(argomenti=argomenti):
                self.errore(self.taglie(*argomenti), USO, pezzo)
        self.assertEqual(self.contenuto(), [])

    def test_il_valore_che_manca_e_uso_sbagliato(self):
        lunghe = {"-f": "--forma", "-c": "--cartella", "-j": "--lavori"}
        for opzione in CON_VALORE:
            with self.subTest(opzione=opzione):
                self.errore(self.taglie(opzione), USO,
                            f"taglie: {lunghe.get(opzione, opzione)}: manca il valore")

    def test_l_opzione_sconosciuta_e_uso_sbagliato(self):
        for opzione in ["--xyz", "-x", "--Forma", "--form", "--no-statistiche", "--config", "-?"]:
            with self.subTest(opzione=opzione):
                self.errore(self.taglie(opzione), USO, opzione, "opzione sconosciuta")
        self.assertEqual(self.contenuto(), [])

    def test_due_numeri_sono_uso_sbagliato(self):
        self.errore(self.taglie("1", "2"), USO, "taglie: 2: ")

    def test_il_valore_dato_a_un_interruttore_e_uso_sbagliato(self):
        for opzione in ["--statistiche", "--apri", "--quieto", "--help", "--version"]:
            for valore in ["si", "false", "0"]:
                with self.subTest(opzione=opzione, valore=valore):
                    self.errore(self.taglie(f"{opzione}={valore}"), USO,
                                f"taglie: {opzione}: non vuole un valore")
        for argomenti, interruttore in [(["-s=1"], "-s"), (["-sq=1"], "-sq"),
                                        (["3", "-q", "-a=-=1"], "-a")]:
            with self.subTest(argomenti=argomenti):
                self.errore(self.taglie(*argomenti), USO,
                            f"taglie: {interruttore}: non vuole un valore")
        self.errore(self.taglie("-=1"), USO, "taglie: -=1: opzione sconosciuta")
        self.assertEqual(self.contenuto(), [])

    def test_le_contraddizioni_sono_uso_sbagliato(self):
        (self.cartella / "mazzi").write_text(buona_riga())
        for argomenti in [["-a", "-f", "nessuna"], ["-a", "--dati", "json"],
                          ["-c", ".", "-f", "nessuna"], ["-c", ".", "-f", "video"],
                          ["--cartella", ".", "--dati", "csv"], ["-c", "x", "--dati", "json", "-s"],
                          ["--mazzi", "mazzi", "--seme", "1"],
                          ["-j", "2"], ["-j", "0"], ["-f", "html", "-j", "2"],
                          ["-s", "-j", "2", "--colpi", "x"],
                          ["-s", "-j", "2", "--salva-mazzi", "x"]]:
            with self.subTest(argomenti=argomenti):
                self.errore(self.taglie(*argomenti), USO)
        self.assertEqual(self.contenuto(), ["mazzi"])

    def test_un_lavoro_va_bene_anche_al_report_pieno(self):
        self.fa("-j", "1")
        self.fa("-f", "html", "--lavori", "1")
        self.assertEqual(self.contenuto(), ["taglie.htm", "taglie.txt"])

    def test_le_scritture_brevi_e_lunghe_valgono_lo_stesso(self):
        for argomenti in [["-f", "html", "-s", "-q", "2"], ["-fhtml", "-sq", "2"],
                          ["2", "--forma=html", "--statistiche", "--quieto"],
                          ["-qsf", "html", "--", "2"]]:
            with self.subTest(argomenti=argomenti):
                self.assertEqual(self.fa(*argomenti).uscita, b"")
                self.assertEqual(self.contenuto(), ["taglie.htm"])
                self.assertIn(b">Numero taglie:</td>\r\n      <td width=\"8%\">2</td>",
                              self.byte("taglie.htm"))
                (self.cartella / "taglie.htm").unlink()

    def test_l_errore_resta_su_una_riga_anche_con_a_capo_nell_argomento(self):
        for argomenti, codice in [(["a\nb"], USO), (["--forma", "a\nb"], USO), (["-z\ny"], USO),
                                  (["--x\ny"], USO), (["--mazzi", "a\nb"], RIFIUTO),
                                  (["1", "x\ny"], USO), (["--seme", "a\r\nb"], USO)]:
            with self.subTest(argomenti=argomenti):
                self.errore(self.taglie(*argomenti), codice)

    def test_l_errore_non_passa_i_comandi_oltre_il_127(self):
        for dato, detto in {
                b"\xc2\x9b2J": b"?2J",                       # 128 to 159 as UTF-8
                b"\xc2\x80\xc2\x9f\xc2\xa0": b"??\xc2\xa0",  # the first, the last, the next
                b"\x9b2J\xff": b"?2J\xff",                   # as bytes that are no UTF-8
                b"\xe0\x82\x9b": b"\xe0??",                  # longer than it may be
                b"\xc0\x9b": b"\xc0?",
                b"\xc2": b"\xc2",
                "È ‑ 😀 Û".encode(): "È ‑ 😀 Û".encode()}.items(): # whole characters hold such bytes
            with self.subTest(dato=dato):
                esito = self.taglie("--forma", dato)
                self.assertEqual(esito.codice, USO)
                self.assertIn(b'"' + detto + b'"', esito.errori)

    def test_l_errore_non_passa_cio_che_gira_o_spezza_il_testo(self):
        casi = {f"a{chr(c)}b": "a?b" for c in [*range(0x2028, 0x202F), *range(0x2066, 0x206A)]}
        for codice in [0x2027, 0x202F, 0x2065, 0x206A, 0x2010, 0x30A8, 0x80A8]:  # beside them
            casi[f"a{chr(codice)}b"] = f"a{chr(codice)}b"
        for dato, detto in casi.items():
            with self.subTest(dato=ascii(dato)):
                self.errore(self.taglie("--forma", dato), USO, f'"{detto}"')
                self.errore(self.taglie("--mazzi", dato), RIFIUTO, f"taglie: {detto}: ")

    def test_l_argomento_lunghissimo_e_accorciato(self):
        lungo = 131_000
        for argomenti, codice, motivo in [
                (["x" * lungo], USO, '" non è un numero intero'),
                (["9" * lungo], RIFIUTO, "999 supera il massimo, 9007199254740992"),
                (["--" + "x" * lungo], USO, "xxx: opzione sconosciuta"),
                (["1", "2" * lungo], USO, "222: argomento di troppo"),
                (["--forma", "è" * (lungo // 2)], USO, 'èè" non è tra html, nessuna, pdf, txt, video'),
                (["--seme=" + "-" * lungo], USO, 'numero intero da 0 a 18446744073709551615'),
                (["-c", "d" * lungo], SCRITTURA, "ddd: "),
                (["--mazzi", "m" * lungo], RIFIUTO, "mmm: il nome è troppo lungo"),
                (["--colpi", "c" * lungo], SCRITTURA, "ccc: il nome è troppo lungo"),
                (["--mazzi", "\udc80" * lungo], RIFIUTO, "...")]:
            with self.subTest(argomenti=argomenti[0][:10], codice=codice):
                testo = self.errore(self.taglie(*argomenti), codice, motivo, "...")
                self.assertLess(len(testo), 500)
                self.assertNotRegex(testo.replace("\udc80", ""), "[\udc80-\udcff]")

    def test_il_nome_che_puo_esistere_e_detto_intero(self):
        nome = "/".join(["n" * 250] * 16)
        self.errore(self.taglie("--mazzi", nome), RIFIUTO, f"taglie: {nome}: ")

    def test_l_errore_non_passa_comandi_al_terminale(self):
        esito = self.taglie("--forma", "\x1b[2J\x07")
        self.errore(esito, USO)
        self.assertNotRegex(esito.errori, rb"[\x00-\x09\x0b-\x1f\x7f]")


class Aiuto(Prova):
    def test_l_aiuto_elenca_esattamente_le_opzioni_che_si_possono_dare(self):
        nomi = dict(re.findall(r'(\w+) = "(--[\w-]+)"',
                               (SORGENTI / "cli/Argomenti.h").read_text("utf-8")))
        righe = re.findall(r'\{"(-\w|)", (?:opzione::(\w+)|"(--[\w-]+)"), &',
                           (SORGENTI / "cli/Argomenti.cpp").read_text("utf-8"))
        dichiarate = [f"{breve},{lungo}" if breve else lungo for breve, lungo in
                      ((breve, lungo or nomi[nome]) for breve, nome, lungo in righe)]
        self.assertGreater(len(dichiarate), 10)
        aiuto = self.fa("--help").uscita.decode("utf-8")
        elencate = re.findall(r"^ +((?:-\w, )?--[\w-]+)", aiuto, re.MULTILINE)
        self.assertEqual(sorted(e.replace(", ", ",") for e in elencate), sorted(dichiarate))

    def test_l_aiuto_sta_in_ottanta_colonne(self):
        for riga in self.fa("-h").uscita.decode("utf-8").splitlines():
            self.assertLessEqual(len(riga), 80, riga)

    def test_l_aiuto_nomina_ogni_valore_e_ogni_codice_di_uscita(self):
        aiuto = self.fa("-h").uscita.decode("utf-8")
        for parola in ["txt", "html", "pdf", "video", "nessuna", "sistema", "it", "json", "csv",
                       "auto", "sempre", "mai", str(2**64 - 1), "130"]:
            self.assertRegex(aiuto, rf"\b{parola}\b")

    def test_la_versione_e_una_riga(self):
        for opzione in ["-V", "--version"]:
            self.assertEqual(self.fa(opzione).uscita, b"taglie 1.0.0\n")

    def test_aiuto_e_versione_non_scrivono_file(self):
        self.fa("-h", "5")
        self.fa("-V", "--colpi", "x")
        self.assertEqual(self.contenuto(), [])


class CartellaDelReport(Prova):
    def test_il_percorso_assoluto_e_l_ultima_riga(self):
        self.nuova("sotto")
        for argomenti, nome in [(["-c", "sotto"], "sotto/taglie.txt"),
                                (["-c", "./sotto/"], "sotto/taglie.txt"),
                                (["-c", "sotto/../sotto", "-f", "html"], "sotto/taglie.htm"),
                                (["-c", str(self.cartella), "-s"], "taglie.txt"),
                                (["-s", "-f", "html"], "taglie.htm")]:
            with self.subTest(argomenti=argomenti):
                atteso = self.cartella / nome
                atteso.unlink(missing_ok=True)
                self.assertEqual(self.fa(*argomenti).uscita.splitlines()[-1], os.fsencode(atteso))
                self.assertTrue(atteso.is_file())

    def test_i_byte_del_nome_della_cartella_restano_quelli(self):
        nome = b"con spazi 'e' \"virgolette\" \xff\xe8 $HOME;*"
        os.mkdir(os.path.join(os.fsencode(self.cartella), nome))
        esito = self.fa("-c", nome)
        self.assertEqual(esito.uscita, os.fsencode(self.cartella) + b"/" + nome + b"/taglie.txt\n")
        self.assertTrue(os.path.isfile(esito.uscita[:-1]))

    def test_la_cartella_dopo_un_collegamento_e_quella_del_sistema(self):
        # ".." after a link leads to the parent of the link's target.
        self.nuova("casa").joinpath("stanza").mkdir()
        (self.cartella / "porta").symlink_to("casa/stanza")
        esito = self.fa("-c", "porta/..")
        self.assertEqual(self.contenuto(self.cartella / "casa"), ["stanza", "taglie.txt"])
        self.assertTrue(os.path.samefile(esito.uscita[:-1], self.cartella / "casa/taglie.txt"))

    def test_quieto_non_dice_il_percorso(self):
        self.assertEqual(self.fa("-q").uscita, b"")
        self.assertEqual(self.contenuto(), ["taglie.txt"])

    def test_senza_report_non_c_e_nessun_file_e_nessun_percorso(self):
        self.assertEqual(self.fa("-f", "nessuna", "3").uscita, b"")
        self.assertEqual(self.contenuto(), [])

    def test_il_vecchio_report_e_sostituito(self):
        (self.cartella / "taglie.txt").write_bytes(b"vecchio" * 100000)
        self.fa("-s", "--seme", "1")
        self.assertTrue(self.byte("taglie.txt").startswith(b"\t\t\tSCALVINO\r\n"))
        self.assertLess(len(self.byte("taglie.txt")), 1000)

    def test_al_posto_di_un_collegamento_nasce_un_file_e_il_bersaglio_resta(self):
        (self.cartella / "prezioso").write_bytes(b"mio")
        for forma, nome in [("txt", "taglie.txt"), ("html", "taglie.htm")]:
            (self.cartella / nome).symlink_to("prezioso")
            self.fa("-f", forma)
            self.assertFalse((self.cartella / nome).is_symlink())
        self.assertEqual(self.byte("prezioso"), b"mio")

    def test_i_permessi_sono_quelli_della_maschera_dell_utente(self):
        self.fa("--colpi", "c", umask=0o027)
        for nome in ["taglie.txt", "c"]:
            self.assertEqual((self.cartella / nome).stat().st_mode & 0o777, 0o640)


class Apertura(Prova):
    def setUp(self):
        super().setUp()
        self.programmi = self.nuova("programmi")
        self.nota = self.cartella / "nota"

    def apritore(self, seguito=""):
        """A handler that notes what it is given."""
        programma = self.programmi / "xdg-open"
        programma.write_text('#!/bin/sh\nprintf "%s\\n" "$#" "$@" > "$NOTA.parte"\n'
                             'mv "$NOTA.parte" "$NOTA"\n' + seguito)
        programma.chmod(0o755)
        return ambiente(PATH=f"{self.programmi}:/usr/bin:/bin", NOTA=str(self.nota))

    def test_il_report_finito_si_apre_con_il_percorso_come_solo_argomento(self):
        cartella = self.nuova("a 'b' $(c);d")
        env = self.apritore()
        for argomenti, nome in [([], "taglie.txt"), (["-s"], "taglie.txt"),
                                (["-f", "html"], "taglie.htm"),
                                (["-f", "html", "-s"], "taglie.htm")]:
            with self.subTest(argomenti=argomenti):
                self.fa("-a", "-c", cartella.name, *argomenti, env=env)
                aspetta(self.nota.exists, "l'apertura")
                self.assertEqual(self.nota.read_text(), f"1\n{cartella}/{nome}\n")
                self.nota.unlink()

    def test_senza_chiederlo_non_si_apre_niente(self):
        env = self.apritore()
        self.fa(env=env)
        self.fa("-a", "-f", "html", env=env)  # opened later, so that there is something to wait for
        aspetta(self.nota.exists, "l'apertura")
        self.assertIn("taglie.htm", self.nota.read_text())

    def test_il_comando_non_aspetta_chi_mostra_il_report(self):
        os.mkfifo(self.cartella / "rubinetto")
        # Open at both ends: the handler waits for a line until this end of the test closes it.
        capo = os.open(self.cartella / "rubinetto", os.O_RDWR)
        self.addCleanup(os.close, capo)
        env = self.apritore(f'read riga < "{self.cartella}/rubinetto"\n')
        self.fa("-a", env=env)  # reads both channels to their end: the handler must not hold them
        aspetta(self.nota.exists, "l'apertura")

    def test_dove_niente_puo_aprirlo_il_report_riesce_lo_stesso(self):
        esito = self.taglie("-a", env=ambiente(PATH=str(self.programmi)))
        self.assertEqual(esito.codice, FATTO)
        percorso = os.fsencode(self.cartella / "taglie.txt")
        self.assertEqual(esito.uscita.splitlines()[-1], percorso)
        self.assertEqual(esito.errori.count(b"\n"), 1)
        self.assertTrue(esito.errori.startswith(b"taglie: " + percorso + b": "))


if __name__ == "__main__":
    unittest.main()
