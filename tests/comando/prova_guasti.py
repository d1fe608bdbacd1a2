"""Files and channels that cannot be written."""

import os
import resource
import shutil
import stat
import subprocess
import unittest

from aiuti import (ATTESA, FATTO, RIFIUTO, SCRITTURA, TAGLIE, Esito, Prova, ambiente, buona_riga,
                   senza_generali, taglie_dei_colpi, taglie_nel_testo)

NESSUNO = 65534
RADICE = os.geteuid() == 0

FORME = [("txt", "taglie.txt"), ("html", "taglie.htm")]


def limita_i_file(byte):
    return lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (byte, byte))


class UscitaStandard(Prova):
    def test_l_uscita_piena_e_un_errore(self):
        for argomenti in [[], ["-s"], ["-f", "html"], ["--dati", "json"], ["--dati", "csv"], ["-h"],
                          ["-V"]]:
            with self.subTest(argomenti=argomenti):
                with open("/dev/full", "wb") as piena:
                    esito = self.taglie(*argomenti, stdout=piena)
                self.errore(esito, SCRITTURA, "uscita standard", "spazio esaurito")

    def test_il_tubo_che_nessuno_legge_piu_e_un_errore(self):
        for argomenti in [[], ["--dati", "json"], ["-h"]]:
            with self.subTest(argomenti=argomenti):
                lettore, scrittore = os.pipe()
                os.close(lettore)
                try:
                    self.errore(self.taglie(*argomenti, stdout=scrittore), SCRITTURA,
                                "uscita standard")
                finally:
                    os.close(scrittore)

    def test_il_report_e_intero_anche_se_il_percorso_non_si_puo_dire(self):
        with open("/dev/full", "wb") as piena:
            self.taglie("--seme", "1", "2", stdout=piena)
        intero = self.byte("taglie.txt")
        self.fa("--seme", "1", "2")
        self.assertEqual(self.byte("taglie.txt"), intero)

    def con_canali_chiusi(self, quali, *argomenti, **opzioni):
        comando = ["/bin/sh", "-c", f'exec "$@" {quali}', "sh", TAGLIE, *map(str, argomenti)]
        opzioni = {"env": ambiente(), "cwd": self.cartella, "capture_output": True, **opzioni}
        fatto = subprocess.run(comando, timeout=ATTESA, **opzioni)
        return Esito(fatto.returncode, fatto.stdout, fatto.stderr)

    def test_l_uscita_chiusa_e_un_errore(self):
        for argomenti in [[], ["--dati", "json", "--colpi", "c", "--salva-mazzi", "m"], ["-h"]]:
            with self.subTest(argomenti=argomenti):
                self.errore(self.con_canali_chiusi(">&-", *argomenti), SCRITTURA)

    def test_senza_canali_le_scritte_non_finiscono_nei_file(self):
        self.fa("--seme", "1", "--colpi", "attesi")
        attesi = self.byte("attesi")
        report = self.byte("taglie.txt")
        senza_programmi = ambiente(PATH=str(self.cartella))
        # Without an opener there is something to say on standard error while files are open.
        for quali in ["2>&-", ">&- 2>&-", "<&- 2>&-", "<&- >&- 2>&-"]:
            with self.subTest(quali=quali):
                self.con_canali_chiusi(quali, "--seme", "1", "-a", "--colpi", "c",
                                       "--salva-mazzi", "m", env=senza_programmi)
                self.assertEqual(self.byte("c"), attesi)
                self.assertEqual(self.byte("m").count(b"\n"), 1)
                self.assertNotIn(b"taglie", self.byte("m"))
                self.assertEqual(self.byte("taglie.txt"), report)

    def test_l_ingresso_chiuso_e_rifiutato(self):
        self.errore(self.con_canali_chiusi("<&-", "--mazzi", "-"), RIFIUTO, "taglie: -: ")


class Cartella(Prova):
    def test_la_cartella_che_non_c_e_e_un_errore(self):
        for forma, _ in FORME:
            self.errore(self.taglie("-f", forma, "-c", "assente"), SCRITTURA, "taglie: assente: ")
            self.errore(self.taglie("-s", "-f", forma, "-c", "a/b/c"), SCRITTURA, "taglie: a/b/c: ")
        self.assertEqual(self.contenuto(), [])

    def test_un_file_al_posto_della_cartella_e_un_errore(self):
        (self.cartella / "f").write_bytes(b"mio")
        for nome in ["f", "./f"]:
            self.errore(self.taglie("-c", nome), SCRITTURA, f"taglie: {nome}: non è una cartella")
        self.errore(self.taglie("-c", "f/"), SCRITTURA, "taglie: f/: ")
        self.assertEqual((self.contenuto(), self.byte("f")), (["f"], b"mio"))

    def test_la_cartella_di_un_file_di_dati_che_non_c_e_e_un_errore(self):
        for ruolo in ["--colpi", "--salva-mazzi"]:
            self.errore(self.taglie(ruolo, "assente/x"), SCRITTURA, "taglie: assente/x: ")
        self.assertEqual(self.contenuto(), [])

    def test_la_cartella_corrente_cancellata_e_un_errore(self):
        sotto = self.nuova("sotto")
        comando = ["/bin/sh", "-c", 'rmdir ../sotto && exec "$@"', "sh", TAGLIE]
        fatto = subprocess.run(comando, cwd=sotto, env=ambiente(), capture_output=True,
                               timeout=ATTESA)
        self.errore(Esito(fatto.returncode, fatto.stdout, fatto.stderr), SCRITTURA)

    def test_il_nome_troppo_lungo_e_un_errore(self):
        self.errore(self.taglie("-c", "x" * 300), SCRITTURA)
        self.errore(self.taglie("--colpi", "x" * 300), SCRITTURA)
        self.errore(self.taglie("--colpi", "x/" * 3000 + "x"), SCRITTURA)

    def test_la_cartella_in_sola_lettura_e_un_errore(self):
        # Root may write anywhere, so that this needs another user.
        chi = {"user": NESSUNO, "group": NESSUNO, "extra_groups": []} if RADICE else {}
        sola = self.nuova("sola")
        (sola / "taglie.txt").write_bytes(b"il vecchio")
        sola.chmod(0o555)
        self.addCleanup(sola.chmod, 0o755)
        prova = subprocess.run(["/bin/sh", "-c", ": > sola/x"], cwd=self.cartella, env=ambiente(),
                               capture_output=True, timeout=ATTESA, **chi)
        self.assertIn(b"Permission denied", prova.stderr)

        # The program may lie where that user cannot go.
        programma = self.cartella / "programma"
        shutil.copy(TAGLIE, programma)
        programma.chmod(0o755)

        def da_nessuno(*argomenti):
            fatto = subprocess.run([programma, *argomenti], cwd=self.cartella, env=ambiente(),
                                   capture_output=True, timeout=ATTESA, **chi)
            return Esito(fatto.returncode, fatto.stdout, fatto.stderr)

        for forma, nome in FORME:
            for soli in [[], ["-s"]]:
                with self.subTest(forma=forma, soli=soli):
                    self.errore(da_nessuno("-c", "sola", "-f", forma, *soli), SCRITTURA,
                                f"taglie: {sola}/{nome}: ")
        self.errore(da_nessuno("-f", "nessuna", "--colpi", "sola/x"), SCRITTURA, "taglie: sola/x: ")
        # What could be replaced beside it is not lost for a run that cannot be.
        sua = self.nuova("sua")
        vecchio = sua / "taglie.txt"
        vecchio.write_bytes(b"di prima")
        for percorso in [sua, vecchio] if RADICE else []:
            os.chown(percorso, NESSUNO, NESSUNO)
        for argomenti in [["--salva-mazzi", vecchio, "--colpi", "sola/x", "-f", "nessuna"],
                          ["--salva-mazzi", vecchio, "-c", "sola"], ["--colpi", vecchio, "-c", "sola"],
                          ["-c", "sua", "--colpi", "sola/x"]]:
            with self.subTest(argomenti=argomenti):
                self.errore(da_nessuno(*argomenti), SCRITTURA, "sola/")
                self.assertEqual(vecchio.read_bytes(), b"di prima")
        self.assertEqual(self.contenuto(sola), ["taglie.txt"])
        self.assertEqual((sola / "taglie.txt").read_bytes(), b"il vecchio")


class PostoOccupato(Prova):
    """What stands at the report's name and is no file of this user stays there."""

    def rifiuta_tutti(self, nome, controlla):
        forma = "txt" if nome.endswith(".txt") else "html"
        for soli in [[], ["-s"]]:
            with self.subTest(nome=nome, soli=soli):
                self.errore(self.taglie("-f", forma, *soli), SCRITTURA,
                            f"taglie: {self.cartella}/{nome}: ")
                controlla(self.cartella / nome)
        for ruolo in ["--colpi", "--salva-mazzi"]:
            with self.subTest(nome=nome, ruolo=ruolo):
                self.errore(self.taglie("-f", "nessuna", ruolo, nome), SCRITTURA,
                            f"taglie: {nome}: ")
                controlla(self.cartella / nome)

    def test_una_cartella(self):
        for _, nome in FORME:
            self.nuova(nome).joinpath("dentro").write_bytes(b"mio")
            self.rifiuta_tutti(
                nome, lambda c: self.assertEqual((c / "dentro").read_bytes(), b"mio"))

    def test_una_fila(self):
        for _, nome in FORME:
            os.mkfifo(self.cartella / nome)
            self.rifiuta_tutti(nome, lambda f: self.assertTrue(stat.S_ISFIFO(f.lstat().st_mode)))

    @unittest.skipUnless(RADICE, "solo root dà un file a un altro utente")
    def test_un_file_di_un_altro(self):
        def controlla(file):
            self.assertEqual((file.lstat().st_uid, file.read_bytes()), (NESSUNO, b"suo"))

        for _, nome in FORME:
            (self.cartella / nome).write_bytes(b"suo")
            os.chown(self.cartella / nome, NESSUNO, NESSUNO)
            self.assertEqual((self.cartella / nome).stat().st_uid, NESSUNO)
            self.rifiuta_tutti(nome, controlla)

    @unittest.skipUnless(RADICE, "solo root dà un collegamento a un altro utente")
    def test_un_collegamento_di_un_altro(self):
        (self.cartella / "bersaglio").write_bytes(b"mio")
        for _, nome in FORME:
            (self.cartella / nome).symlink_to("bersaglio")
            os.lchown(self.cartella / nome, NESSUNO, NESSUNO)
            self.rifiuta_tutti(nome, lambda f: self.assertTrue(f.is_symlink()))
        self.assertEqual(self.byte("bersaglio"), b"mio")

    def test_un_dispositivo_non_si_tocca(self):
        # The system's own is safe from an ordinary user only; root makes one that may be lost.
        nome = "/dev/null"
        if RADICE:
            nome = "niente"
            try:
                os.mknod(self.cartella / nome, stat.S_IFCHR | 0o666, os.makedev(1, 3))
            except PermissionError:
                self.skipTest("qui non si può fare un dispositivo")
        self.errore(self.taglie("-f", "nessuna", "--colpi", nome), SCRITTURA, f"taglie: {nome}: ")
        self.assertTrue(stat.S_ISCHR(os.lstat(self.cartella / nome).st_mode))


class SpazioFinito(Prova):
    def setUp(self):
        super().setUp()
        self.fa("60", "--seme", "8", "--colpi", "c", "--salva-mazzi", "m")
        self.intero = self.byte("taglie.txt")
        self.colpi, self.mazzi = self.byte("c"), self.byte("m")
        for nome in ["taglie.txt", "c", "m"]:
            (self.cartella / nome).unlink()

    def taglie_intere(self, testo, limite):
        """The text holds whole shoes of the run, as many as there was room for."""
        self.assertLessEqual(len(testo), limite)
        quante = taglie_nel_testo(testo)
        self.assertGreater(quante, 0)
        atteso = self.intero[:len(testo)]
        self.assertEqual(testo, atteso)
        resto = self.intero[len(testo):]
        self.assertTrue(resto.startswith(b"\r\n\t\t\tTaglia %d\r\n" % (quante + 1)))
        prossima = resto.index(b"\r\n\t\t\tTaglia %d\r\n" % (quante + 2))
        self.assertGreater(len(testo) + prossima, limite)

    def test_il_testo_tiene_le_taglie_intere(self):
        for limite in [5_000, 20_000, 65_537]:
            with self.subTest(limite=limite):
                esito = self.taglie("60", "--seme", "8", preexec_fn=limita_i_file(limite))
                self.errore(esito, SCRITTURA, f"taglie: {self.cartella}/taglie.txt: ")
                self.taglie_intere(self.byte("taglie.txt"), limite)

    def test_il_testo_senza_posto_per_le_statistiche_generali_tiene_tutte_le_taglie(self):
        limite = len(self.intero) - 1
        self.errore(self.taglie("60", "--seme", "8", preexec_fn=limita_i_file(limite)), SCRITTURA)
        self.assertEqual(self.byte("taglie.txt"), senza_generali(self.intero))

    def test_le_altre_forme_lasciano_il_report_di_prima(self):
        for argomenti, nome in [(["60", "-f", "html"], "taglie.htm"),
                                (["60", "-f", "html", "-s"], "taglie.htm"),
                                (["60", "-s"], "taglie.txt")]:
            for limite in [0, 200]:
                with self.subTest(argomenti=argomenti, limite=limite):
                    (self.cartella / nome).write_bytes(b"il vecchio")
                    self.errore(self.taglie(*argomenti, preexec_fn=limita_i_file(limite)),
                                SCRITTURA, f"taglie: {self.cartella}/{nome}: ")
                    self.assertEqual(self.contenuto(), [nome])
                    self.assertEqual(self.byte(nome), b"il vecchio")
                    (self.cartella / nome).unlink()
        self.errore(self.taglie("60", "-f", "html", preexec_fn=limita_i_file(1_000_000)), SCRITTURA)
        self.assertEqual(self.contenuto(), [])

    def test_il_report_fallito_non_si_apre(self):
        nota = self.cartella / "nota"
        programma = self.nuova("programmi") / "xdg-open"
        programma.write_text(f"#!/bin/sh\n: > '{nota}'\n")
        programma.chmod(0o755)
        env = ambiente(PATH=f"{programma.parent}:/usr/bin:/bin")
        self.errore(self.taglie("60", "-a", env=env, preexec_fn=limita_i_file(5_000)), SCRITTURA)
        self.assertFalse(nota.exists())
        # Whole itself, but the records beside it are not.
        self.errore(self.taglie("20", "-s", "-a", "--colpi", "c", env=env,
                                preexec_fn=limita_i_file(5_000)), SCRITTURA, "c")
        self.assertFalse(nota.exists())

    def test_un_collegamento_fra_i_dati_non_costa_gli_altri(self):
        (self.cartella / "s").write_bytes(b"di prima\n")
        (self.cartella / "altro").write_bytes(b"altrui\n")
        (self.cartella / "freccia").symlink_to("altro")
        self.errore(self.taglie("1", "--salva-mazzi", "s", "--colpi", "freccia"), SCRITTURA,
                    "freccia", "collegamento")
        self.assertEqual((self.cartella / "s").read_bytes(), b"di prima\n")
        self.assertEqual((self.cartella / "altro").read_bytes(), b"altrui\n")
        self.assertFalse((self.cartella / "taglie.txt").exists())

    def test_un_report_impossibile_non_costa_i_dati_di_prima(self):
        (self.nuova("d") / "taglie.txt").mkdir()
        for ruolo in ["--salva-mazzi", "--colpi"]:
            with self.subTest(ruolo=ruolo):
                (self.cartella / "s").write_bytes(b"di prima\n")
                self.errore(self.taglie("1", "-c", "d", ruolo, "s"), SCRITTURA)
                self.assertEqual((self.cartella / "s").read_bytes(), b"di prima\n")

    def test_record_e_taglie_restano_interi(self):
        limite = 100_000
        for ruolo, nome, intero in [("--colpi", "c", self.colpi),
                                    ("--salva-mazzi", "m", self.mazzi)]:
            self.assertGreater(len(intero) * 3, limite)
            with self.subTest(ruolo=ruolo):
                self.errore(self.taglie("600", "--seme", "8", "-f", "nessuna", ruolo, nome,
                                        preexec_fn=limita_i_file(limite)),
                            SCRITTURA, f"taglie: {nome}: ")
                scritto = self.byte(nome)
                self.assertGreater(len(scritto), limite // 3)
                self.fa("600", "--seme", "8", "-f", "nessuna", ruolo, nome)
                tutto = self.byte(nome)
                self.assertTrue(tutto.startswith(scritto))
                resto = tutto[len(scritto):]
                self.assertTrue(scritto.endswith(b"\n"))
                if ruolo == "--colpi":
                    self.assertTrue(resto.startswith(b"0,"))
                    self.assertGreater(len(taglie_dei_colpi(scritto)), 10)

    def test_il_disco_pieno_dice_file_e_motivo(self):
        pieno = self.nuova("pieno")
        passi = ("mount -t tmpfs -o size=64k prova pieno || exit 99; cd pieno || exit 99;"
                 '"$@"; codice=$?; ls -A > ../elenco; cp taglie.txt .. 2> /dev/null;'
                 "exit $codice")

        def su_disco_pieno(*argomenti):
            if not shutil.which("unshare"):
                self.skipTest("manca unshare")
            fatto = subprocess.run(["unshare", "-m", "/bin/sh", "-c", passi, "sh", TAGLIE,
                                    *argomenti], cwd=self.cartella, env=ambiente(),
                                   capture_output=True, timeout=ATTESA)
            if fatto.returncode == 99 or b"unshare" in fatto.stderr:
                self.skipTest("qui non si può montare un disco piccolo")
            return (Esito(fatto.returncode, fatto.stdout, fatto.stderr),
                    (self.cartella / "elenco").read_text().split())

        esito, elenco = su_disco_pieno("60", "--seme", "8")
        self.errore(esito, SCRITTURA, f"taglie: {pieno}/taglie.txt: spazio esaurito sul disco")
        self.assertEqual(elenco, ["taglie.txt"])
        self.taglie_intere(self.byte("taglie.txt"), 65_536)
        esito, elenco = su_disco_pieno("60", "-f", "html")
        self.errore(esito, SCRITTURA, f"taglie: {pieno}/taglie.htm: spazio esaurito sul disco")
        self.assertEqual(elenco, [])
        self.assertEqual(self.contenuto(pieno), [])  # the small disk was not seen from here


class DopoUnGuasto(Prova):
    def test_la_corsa_seguente_sostituisce_quel_che_e_rimasto(self):
        self.taglie("60", preexec_fn=limita_i_file(5_000))
        self.assertEqual(self.contenuto(), ["taglie.txt"])
        self.fa("--seme", "1", "2")
        dopo = self.byte("taglie.txt")
        (self.cartella / "taglie.txt").unlink()
        self.fa("--seme", "1", "2")
        self.assertEqual(self.byte("taglie.txt"), dopo)

    def test_le_taglie_rifiutate_lasciano_il_vecchio_report(self):
        (self.cartella / "m").write_text(buona_riga())
        self.assertEqual(self.fa("--mazzi", "m").codice, FATTO)
        prima = self.byte("taglie.txt")
        self.taglie("--mazzi", "m", "2")
        self.assertEqual(self.byte("taglie.txt"), prima)


if __name__ == "__main__":
    unittest.main()
