"""Reports under a name of the user's choice, or on standard output."""

import os
import pty
import resource
import signal
import subprocess
import time
import unittest
from pathlib import Path

from aiuti import (ATTESA, FATTO, INTERROTTO, SCRITTURA, TAGLIE, USO, Prova, ambiente, aspetta,
                   con_sanificatori, senza_generali, taglie_nel_testo)

FISSO = {"env": ambiente(SOURCE_DATE_EPOCH="0")}
FORME = {"txt": "taglie.txt", "html": "taglie.htm", "pdf": "taglie.pdf"}


class Nome(Prova):
    def test_ogni_forma_ha_gli_stessi_byte_sotto_qualunque_nome(self):
        self.nuova("sotto")
        for forma, nome in FORME.items():
            for soli in [[], ["-s"]]:
                argomenti = ["3", "--seme", "7", "-f", forma, *soli]
                self.fa(*argomenti, **FISSO)
                attesi = self.byte(nome)
                for dato in ["mio", "sotto/mio.x", "./sotto/../mio", self.cartella / "assoluto",
                             "con spazi e òàù", "-x", "sotto//mio"]:
                    with self.subTest(forma=forma, soli=soli, dato=dato):
                        esito = self.fa(*argomenti, f"--uscita={dato}", **FISSO)
                        percorso = Path(os.fsdecode(esito.uscita[:-1]))
                        self.assertTrue(percorso.is_absolute())
                        self.assertTrue(percorso.samefile(self.cartella / dato))
                        self.assertEqual(percorso.read_bytes(), attesi)
                        percorso.unlink()

    def test_la_forma_viene_dal_nome(self):
        for nome, inizio in [("x.pdf", b"%PDF-"), ("x.PDF", b"%PDF-"), ("x.html", b"<html>"),
                             ("x.htm", b"<html>"), ("x.txt", b"\t\t\tSCALVINO"),
                             ("pdf", b"\t\t\tSCALVINO")]:
            with self.subTest(nome=nome):
                self.fa("-o", nome)
                self.assertTrue(self.byte(nome).startswith(inizio))
        self.fa("-o", "y.pdf", "-f", "txt")
        self.assertTrue(self.byte("y.pdf").startswith(b"\t\t\tSCALVINO"))

    def test_il_nome_sta_nella_cartella_data(self):
        self.nuova("d").joinpath("e").mkdir()
        self.assertEqual(self.fa("-c", "d", "-o", "x.txt").uscita,
                         os.fsencode(self.cartella / "d/x.txt") + b"\n")
        self.fa("-c", "d", "-o", "e/x.txt")
        self.assertTrue((self.cartella / "d/e/x.txt").exists())
        self.errore(self.taglie("-c", "d", "-o", self.cartella / "x"), USO, "--cartella: ")

    def test_i_nomi_che_non_vanno_hanno_un_messaggio(self):
        self.nuova("d")
        (self.cartella / "f").write_bytes(b"mio")
        (self.cartella / "freccia").symlink_to("f")
        os.mkfifo(self.cartella / "fila")
        casi = [("", USO, "--uscita: il nome è vuoto"), ("d/", USO, "d/: è una cartella"),
                (".", USO, ".: è una cartella"), ("..", USO, "..: è una cartella"),
                ("/", USO, "/: è una cartella"), ("d/..", USO, "è una cartella"),
                ("d", SCRITTURA, "/d: è una cartella"),
                ("assente/x", SCRITTURA, "assente: la cartella non esiste"),
                ("f/x", SCRITTURA, "f: non è una cartella"),
                ("x" * 300, SCRITTURA, "il nome è troppo lungo"),
                ("x/" * 3000 + "x", SCRITTURA, ""),
                ("freccia", SCRITTURA, "è un collegamento"), ("/dev/stdout", SCRITTURA, ""),
                ("fila", SCRITTURA, "non è un file ordinario"),
                (".taglie.07.incompiuto", USO, "è un nome che il programma usa per sé"),
                ("d/.taglie.00.incompiuto", USO, "è un nome che il programma usa per sé")]
        prima = self.contenuto()
        for nome, codice, motivo in casi:
            for forma in FORME:
                with self.subTest(nome=nome[:30], forma=forma):
                    self.errore(self.taglie("-f", forma, "-o", nome), codice, motivo)
                    self.assertEqual(self.contenuto(), prima)
        self.assertEqual(self.byte("f"), b"mio")

    def test_il_nome_non_serve_a_due_cose(self):
        (self.cartella / "x").write_bytes(b"di prima")
        for ruolo in ["--colpi", "--salva-mazzi", "--mazzi"]:
            self.errore(self.taglie("-o", "x", ruolo, "./x"), USO, "è lo stesso file")
        self.assertEqual(self.byte("x"), b"di prima")

    def test_i_dati_vanno_insieme_al_report(self):
        esito = self.fa("2", "--dati", "csv", "-o", "x.pdf")
        self.assertTrue(esito.uscita.startswith(b"sezione,voce"))
        self.assertTrue(self.byte("x.pdf").startswith(b"%PDF-"))
        self.errore(self.taglie("--dati", "csv", "-o", "x"), USO, "--uscita: ")

    def test_il_report_di_prima_resta_se_la_corsa_non_riesce(self):
        for forma in ["html", "pdf"]:
            (self.cartella / "x").write_bytes(b"di prima")
            limite = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (5_000, 5_000))
            self.errore(self.taglie("3", "-o", "x", "-f", forma, preexec_fn=limite), SCRITTURA)
            self.assertEqual((self.contenuto(), self.byte("x")), (["x"], b"di prima"))

    def test_i_dati_che_non_riescono_non_costano_il_report_di_prima(self):
        limite = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (20_000, 20_000))
        (self.cartella / "x").write_bytes(b"di prima")
        self.errore(self.taglie("40", "-s", "-f", "html", "-o", "x", "--colpi", "c",
                                preexec_fn=limite), SCRITTURA, "taglie: c: ")
        self.assertEqual(self.byte("x"), b"di prima")


class StandardOutput(Prova):
    def test_ogni_forma_ha_gli_stessi_byte_e_nessuna_riga_in_piu(self):
        for forma, nome in FORME.items():
            for soli in [[], ["-s"]]:
                with self.subTest(forma=forma, soli=soli):
                    argomenti = ["3", "--seme", "7", "-f", forma, *soli]
                    self.fa(*argomenti, **FISSO)
                    attesi = self.byte(nome)
                    (self.cartella / nome).unlink()
                    self.assertTrue(self.fa(*argomenti, "-o", "-", **FISSO).uscita == attesi)
                    self.assertEqual(self.contenuto(), [])

    def test_con_altri_file_accanto(self):
        esito = self.fa("3", "--seme", "7", "-o", "-", "--colpi", "c", "--salva-mazzi", "m")
        self.assertEqual(taglie_nel_testo(esito.uscita), 3)
        self.assertEqual(self.byte("m").count(b"\n"), 3)
        altro = self.fa("--mazzi", "-", "-o", "-", ingresso=self.byte("m"))
        self.assertEqual(altro.uscita, esito.uscita)

    def test_cio_che_vuole_lo_standard_output_o_una_cartella_e_rifiutato(self):
        for altro in [["--dati", "json"], ["--dati", "csv", "-f", "txt"], ["-f", "video"], ["-a"],
                      ["-c", "."], ["-f", "nessuna"]]:
            with self.subTest(altro=altro):
                self.errore(self.taglie("-o", "-", *altro), USO)
        self.assertEqual(self.contenuto(), [])

    def test_lo_standard_output_non_va_in_un_altro_file_della_corsa(self):
        self.fa("1", "-f", "nessuna", "--salva-mazzi", "m")
        taglie = self.byte("m")
        for ruolo in ["--colpi", "--salva-mazzi", "--mazzi"]:
            with open(self.cartella / "m", "ab") as file:
                esito = self.taglie("-o", "-", ruolo, "m", stdout=file)
            self.errore(esito, USO, "m: è lo stesso file per lo standard output e per " + ruolo)
        self.assertEqual((self.contenuto(), self.byte("m")), (["m"], taglie))

    def test_un_pdf_non_va_sul_terminale(self):
        capo, coda = pty.openpty()
        try:
            esito = self.taglie("-f", "pdf", "-o", "-", stdout=coda)
            self.errore(esito, USO, "--uscita: ", "terminale")
            self.assertEqual(self.taglie("-s", "-o", "-", stdout=coda).codice, FATTO)
        finally:
            os.close(coda)
            os.close(capo)

    def test_il_disco_pieno_si_dice(self):
        for forma in FORME:
            for soli in [[], ["-s"]]:
                with self.subTest(forma=forma, soli=soli), open("/dev/full", "wb") as piena:
                    self.errore(self.taglie("-o", "-", "-f", forma, *soli, stdout=piena), SCRITTURA,
                                "taglie: uscita standard: spazio esaurito sul disco")
        limite = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (5_000, 5_000))
        with open(self.cartella / "x", "wb") as file:
            esito = self.taglie("9", "-o", "-", stdout=file, preexec_fn=limite)
        self.errore(esito, SCRITTURA, "uscita standard: superata la dimensione massima")

    def test_lo_standard_output_chiuso_si_dice_prima_di_giocare(self):
        for forma in FORME:
            fatto = subprocess.run(
                ["/bin/sh", "-c", 'exec "$@" >&-', "sh", TAGLIE, str(10**15), "-s", "-o", "-", "-f",
                 forma], cwd=self.cartella, env=ambiente(), capture_output=True, timeout=ATTESA)
            self.assertEqual((fatto.returncode, fatto.stderr.decode()),
                             (SCRITTURA, "taglie: uscita standard: il file non è aperto\n"))

    def dopo_head(self, *argomenti, **opzioni):
        """Runs the command into a pipe whose reader goes after some bytes."""
        processo = self.avvia(*argomenti, "-o", "-", **opzioni)
        self.assertEqual(len(processo.stdout.read(100)), 100)
        processo.stdout.close()
        errori = processo.stderr.read()
        return processo.wait(ATTESA), errori

    def test_chi_smette_di_leggere_finisce_la_corsa_in_silenzio(self):
        for argomenti in [["20000"], ["20000", "-f", "html"],
                          ["8000", "-f", "pdf", "--caratteri-unici"]]:
            with self.subTest(argomenti=argomenti):
                self.assertEqual(self.dopo_head(*argomenti), (-signal.SIGPIPE, b""))
        # The files beside it keep their whole shoes.
        self.assertEqual(self.dopo_head("20000", "--colpi", "c"), (-signal.SIGPIPE, b""))
        self.assertTrue(self.byte("c").endswith(b"\n"))

    def test_chi_ignora_i_tubi_chiusi_ha_un_messaggio(self):
        ignora = lambda: signal.signal(signal.SIGPIPE, signal.SIG_IGN)
        # The parent's own way of starting programs would put it right.
        esito = self.dopo_head("20000", preexec_fn=ignora, restore_signals=False)
        self.assertEqual(esito, (SCRITTURA, "taglie: uscita standard: chi leggeva ha chiuso\n".encode()))

    def test_il_testo_fermato_finisce_con_una_taglia_intera(self):
        for segnale in [signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGUSR1]:
            with self.subTest(segnale=segnale):
                uscita = self.cartella / "uscita"
                with open(uscita, "wb") as file:
                    processo = self.avvia(10**9, "--seme", "5", "-o", "-", stdout=file)
                aspetta(lambda: uscita.stat().st_size > 300_000, "un testo lungo")
                processo.send_signal(segnale)
                esito = self.raccogli(processo)
                self.errore(esito, INTERROTTO, "taglie: interrotto: ")
                fatte = taglie_nel_testo(uscita.read_bytes())
                self.assertIn(f": {fatte} taglie fatte su", esito.errori.decode())
                self.fa(fatte, "--seme", "5")
                self.assertTrue(uscita.read_bytes() == senza_generali(self.byte("taglie.txt")))
                (self.cartella / "taglie.txt").unlink()

    def test_l_avanzamento_sta_sullo_standard_error(self):
        esito = self.taglie("150000", "-s", "-o", "-", "--avanzamento", "sempre")
        self.assertEqual(esito.codice, FATTO)
        self.assertTrue(esito.uscita.startswith(b"\t\t\tSCALVINO\r\n"))
        self.assertNotIn(b" su 150000", esito.uscita)


class Uccise(Prova):
    """Runs that are killed at any moment: the report is the old one or the new one."""

    def test_la_corsa_uccisa_lascia_un_report_intero(self):
        self.uccidi(FISSO)

    @unittest.skipIf(con_sanificatori(), "i sanificatori vogliono essere i primi")
    def test_anche_dove_ogni_file_ha_un_nome(self):
        senza = {"env": ambiente(SOURCE_DATE_EPOCH="0", LD_PRELOAD=os.environ["SENZA_ANONIMI"])}
        lunga = self.avvia("1000", "-f", "html", **senza)
        aspetta(lambda: ".taglie.00.incompiuto" in self.contenuto(), "il nome nascosto")
        self.fa("1", "-f", "html", **senza)  # leaves that of a living run alone
        self.assertIn(".taglie.00.incompiuto", self.contenuto())
        self.assertEqual(self.raccogli(lunga).codice, FATTO)
        self.assertEqual(self.contenuto(), ["taglie.htm"])
        (self.cartella / "taglie.htm").unlink()
        self.uccidi(senza)

    def uccidi(self, come):
        for forma in ["html", "pdf"]:
            nome = FORME[forma]
            argomenti = ["30", "-q", "--seme", "3", "-f", forma]
            inizio = time.monotonic()
            self.fa(*argomenti, **come)
            durata = time.monotonic() - inizio
            intero = self.byte(nome)
            visti = set()
            for colpo in range(int(os.environ.get("COLPI", "60"))):
                (self.cartella / nome).write_bytes(b"di prima")
                processo = self.avvia(*argomenti, **come)
                time.sleep(durata * 1.2 * (colpo % 20) / 20)
                processo.kill()
                self.raccogli(processo)
                visti.add(self.byte(nome))
                # A hidden name at most, and the next run takes it away.
                for altro in self.contenuto():
                    self.assertRegex(altro, rf"\A({nome}|\.taglie\.\d\d\.incompiuto)\Z")
            self.assertLessEqual(visti, {b"di prima", intero})
            self.assertGreater(len(visti), 1)
            self.fa(*argomenti, **come)
            self.assertEqual(self.contenuto(), [nome])
            (self.cartella / nome).unlink()

    def test_un_nome_nascosto_rimasto_e_tolto_da_qualunque_corsa_nella_cartella(self):
        for argomenti in [["-f", "html"], ["-f", "pdf"], ["-s"], ["-o", "x.pdf"], []]:
            (self.cartella / ".taglie.42.incompiuto").write_bytes(b"a mezzo")
            self.fa(*argomenti)
            self.assertNotIn(".taglie.42.incompiuto", self.contenuto())


if __name__ == "__main__":
    unittest.main()
