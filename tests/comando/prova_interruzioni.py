"""Requests to stop, sudden ends and the progress line."""

import fcntl
import os
import pty
import re
import resource
import select
import signal
import struct
import termios
import time
import unittest
from pathlib import Path

from aiuti import (ATTESA, FATTO, INTERROTTO, MASSIMO, SCRITTURA, TAGLIE, Esito, Prova, ambiente,
                   aspetta, scritti, senza_generali, taglie_dei_colpi, taglie_nel_testo)

TANTE = 10**9

# How long a stop may take. It is meant to be a tenth of a second; the rest is for the machine.
FERMATA = 5


def ascolta(processo):
    """Whether the command has got as far as catching the requests to stop."""
    testo = Path(f"/proc/{processo.pid}/status").read_text()
    catturati = int(re.search(r"^SigCgt:\s*(\w+)", testo, re.MULTILINE)[1], 16)
    return catturati >> (signal.SIGINT - 1) & 1


def dorme(processo):
    """Whether the command waits for something and has stopped working."""
    def letto():
        campi = Path(f"/proc/{processo.pid}/stat").read_text().rpartition(") ")[2].split()
        return campi[0], campi[11], campi[12]

    prima = letto()
    time.sleep(0.05)
    return prima[0] == "S" and letto() == prima


class Interruzione(Prova):
    def ferma(self, processo, segnale=signal.SIGINT):
        """Asks to stop, waits for the end and prints how long it took."""
        inizio = time.monotonic()
        processo.send_signal(segnale)
        esito = self.raccogli(processo)
        durata = time.monotonic() - inizio
        print(f"{self.id().rpartition('.')[2]}: fermato in {durata * 1000:.1f} ms", flush=True)
        self.assertLess(durata, FERMATA)
        return esito

    def interrompe(self, *argomenti, quando=None, segnale=signal.SIGINT, **opzioni):
        """Stops a run and returns the line that it ends with."""
        processo = self.avvia(*argomenti, **opzioni)
        aspetta(lambda: ascolta(processo), "l'ascolto dei segnali")
        if quando is not None:
            aspetta(lambda: quando(processo), "il momento di fermare")
        return self.errore(self.ferma(processo, segnale), INTERROTTO, "taglie: interrotto: ")

    def cresciuto(self, nome, byte=1_000_000):
        file = self.cartella / nome
        return lambda _: file.exists() and file.stat().st_size > byte

    def senza_nome(self, byte):
        """So much of a report is written that shows only when it is whole."""
        return lambda processo: scritti(processo.pid) > byte

    def col_vecchio(self, nome, *argomenti, **opzioni):
        """Stops a run that writes a report out of sight: the old one stays, or none."""
        for vecchio in [[], [nome]]:
            for altro in vecchio:
                (self.cartella / altro).write_bytes(b"di prima")
            self.interrompe(*argomenti, **opzioni)
            self.assertEqual(self.contenuto(), vecchio)
            self.assertEqual([self.byte(altro) for altro in vecchio], [b"di prima"] * len(vecchio))

    def lavora(self, processo):
        """A little processor time spent: the run itself has begun."""
        campi = Path(f"/proc/{processo.pid}/stat").read_text().rpartition(") ")[2].split()
        return int(campi[11]) + int(campi[12]) >= 5

    def test_il_testo_pieno_tiene_le_taglie_intere(self):
        for segnale in [signal.SIGINT, signal.SIGTERM]:
            with self.subTest(segnale=segnale):
                testo = self.interrompe(TANTE, "--seme", "5", "--numeri", "c", segnale=segnale,
                                        quando=self.cresciuto("taglie.txt"))
                fatte = int(re.search(rf": (\d+) tagli(?:e fatte|a fatta) su {TANTE}\n", testo)[1])
                rimasto = self.byte("taglie.txt")
                self.assertEqual(taglie_nel_testo(rimasto), fatte)
                self.fa(fatte, "--seme", "5", "--numeri", "c")
                self.assertTrue(rimasto == senza_generali(self.byte("taglie.txt")))

    def test_la_pagina_lascia_la_vecchia(self):
        # Few shoes in the index at the top, many enough for the time that it takes to stop.
        self.col_vecchio("taglie.htm", 20_000, "-f", "html", quando=self.senza_nome(3_000_000))

    def test_la_pagina_si_ferma_anche_mentre_scrive_l_indice(self):
        # The index of so many shoes would fill any disk; the limit keeps a failing test small.
        limite = 200_000_000
        self.interrompe(MASSIMO, "-f", "html", quando=self.senza_nome(100_000),
                        preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE,
                                                              (limite, limite)))
        self.assertEqual(self.contenuto(), [])

    def test_il_documento_lascia_il_vecchio(self):
        # With every font written once, as many pages as this fit into a document.
        for segnale in [signal.SIGINT, signal.SIGTERM]:
            with self.subTest(segnale=segnale):
                (self.cartella / "taglie.pdf").unlink(missing_ok=True)
                self.col_vecchio("taglie.pdf", 8_000, "-f", "pdf", "--caratteri-unici",
                                 segnale=segnale, quando=self.senza_nome(3_000_000))

    def test_le_statistiche_lasciano_il_report_di_prima(self):
        for nome, *argomenti in [
                ["taglie.txt"], ["taglie.htm", "-f", "html"], ["taglie.pdf", "-f", "pdf"],
                ["taglie.txt", "-j", "2"], ["taglie.htm", "-f", "html", "-j", "0"],
                ["taglie.pdf", "-f", "pdf", "-j", "2"]]:
            with self.subTest(argomenti=argomenti):
                self.col_vecchio(nome, MASSIMO, "-s", *argomenti, quando=self.lavora)
                (self.cartella / nome).unlink()

    def test_i_dati_non_escono(self):
        for argomenti in [["json"], ["csv"], ["json", "-j", "2"], ["json", "-j", "0"],
                          ["json", "-f", "txt", "-s"]]:
            with self.subTest(argomenti=argomenti):
                # The helper asserts that standard output stayed empty.
                self.interrompe(TANTE, "--dati", *argomenti, quando=self.lavora)
                self.assertEqual(self.contenuto(), [])

    def test_record_e_taglie_restano_interi(self):
        testo = self.interrompe(TANTE, "--seme", "5", "-f", "nessuna", "--colpi", "c",
                                "--salva-mazzi", "m", quando=self.cresciuto("c"))
        fatte = int(re.search(r": (\d+) tagli(?:e fatte|a fatta) su", testo)[1])
        colpi, mazzi = self.byte("c"), self.byte("m")
        self.assertEqual(len(taglie_dei_colpi(colpi)), fatte)
        self.fa(fatte, "--seme", "5", "-f", "nessuna", "--colpi", "c", "--salva-mazzi", "m")
        self.assertTrue(colpi == self.byte("c") and mazzi == self.byte("m"))

    def test_l_attesa_di_una_fila_che_non_da_niente_si_ferma(self):
        os.mkfifo(self.cartella / "fila")
        self.interrompe("--mazzi", "fila", "--colpi", "c", quando=dorme)  # nobody opens it
        # Both ends in one descriptor: opening does not wait, and nothing ever arrives.
        capo = os.open(self.cartella / "fila", os.O_RDWR)
        try:
            self.interrompe("--mazzi", "fila", quando=dorme)
        finally:
            os.close(capo)
        lettore, scrittore = os.pipe()
        try:
            self.interrompe("--mazzi", "-", stdin=lettore, quando=dorme)
        finally:
            os.close(lettore)
            os.close(scrittore)
        self.assertEqual(self.contenuto(), ["fila"])

    def test_l_avanzamento_si_ferma_con_la_corsa(self):
        processo = self.avvia(TANTE, "-f", "nessuna", "--avanzamento", "sempre")
        # The first line comes after a second.
        prima = processo.stderr.readline()
        esito = self.ferma(processo)
        righe = (prima + esito.errori).decode("utf-8").splitlines()
        self.assertEqual(esito.codice, INTERROTTO)
        self.assertRegex(righe.pop(), rf"^taglie: interrotto: \d+ tagli(e fatte|a fatta) su {TANTE}$")
        self.assertGreaterEqual(len(righe), 1)
        for riga in righe:
            self.assertRegex(riga, rf"^\d+ taglie su {TANTE} \(0%\), \d+ al secondo, "
                                   r"mancano \d+:\d\d(:\d\d)?$")

    def test_il_report_interrotto_non_si_apre(self):
        nota = self.cartella / "nota"
        programma = self.nuova("programmi") / "xdg-open"
        programma.write_text(f"#!/bin/sh\n: > '{nota}'\n")
        programma.chmod(0o755)
        self.interrompe(TANTE, "-a", quando=self.cresciuto("taglie.txt", 10_000),
                        env=ambiente(PATH=f"{programma.parent}:/usr/bin:/bin"))
        self.assertFalse(nota.exists())


class FineImprovvisa(Prova):
    def test_il_report_sostituito_durante_la_corsa_la_ferma(self):
        processo = self.avvia(TANTE, "--seme", "5", "--colpi", "c")
        report = self.cartella / "taglie.txt"
        aspetta(lambda: report.exists() and report.stat().st_size > 300_000, "un report lungo")
        (self.cartella / "altro").write_bytes(b"di un altro programma")
        os.link(report, self.cartella / "vecchio")
        os.replace(self.cartella / "altro", report)
        self.errore(self.raccogli(processo), SCRITTURA, f"taglie: {report}: ", "sostituito")
        self.assertEqual(report.read_bytes(), b"di un altro programma")
        fatte = taglie_nel_testo(self.byte("vecchio"))
        colpi = self.byte("c")
        self.fa(fatte, "--seme", "5", "--colpi", "c")
        self.assertTrue(self.byte("vecchio") == senza_generali(self.byte("taglie.txt")))
        self.assertTrue(colpi == self.byte("c"))  # what was still waiting has reached the disk

    def test_la_corsa_uccisa_lascia_la_pagina_di_prima(self):
        self.fa("3", "--seme", "2", "-f", "html", "--numeri", "it")
        attesa = self.byte("taglie.htm")
        processo = self.avvia("20000", "-f", "html")
        aspetta(lambda: scritti(processo.pid) > 3_000_000, "una pagina lunga")
        processo.kill()
        self.assertEqual(self.raccogli(processo).codice, -signal.SIGKILL)
        self.assertEqual(self.contenuto(), ["taglie.htm"])
        self.assertEqual(self.byte("taglie.htm"), attesa)


class Terminale(Prova):
    """Runs with standard error, or all three channels, on a terminal of their own."""

    def leggi(self, capo, finche=None):
        """Reads the terminal to its end, or until the text appears."""
        visto = b""
        while True:
            pronti, _, _ = select.select([capo], [], [], ATTESA)
            self.assertTrue(pronti, "il terminale tace")
            try:
                pezzo = os.read(capo, 65536)
            except OSError:  # how the end of a terminal reads
                return visto
            if not pezzo:
                return visto
            visto += pezzo
            if finche is not None and finche in visto:
                return visto

    def con_errori_su_terminale(self, *argomenti, prepara=lambda capo: None):
        capo, coda = pty.openpty()
        prepara(capo)
        try:
            processo = self.avvia(*argomenti, stderr=coda)
        finally:
            os.close(coda)
        try:
            visto = self.leggi(capo)
        finally:
            os.close(capo)
        uscita = processo.stdout.read()
        return Esito(processo.wait(ATTESA), uscita, visto)

    def test_sul_terminale_l_avanzamento_riscrive_la_sua_riga_e_alla_fine_la_toglie(self):
        taglie = 150_000
        esito = self.con_errori_su_terminale(taglie, "-s")
        self.assertEqual(esito.codice, FATTO)
        self.assertEqual(esito.uscita, os.fsencode(self.cartella / "taglie.txt") + b"\n")
        pezzi = esito.errori.decode("utf-8").split("\r")
        self.assertEqual((pezzi[0], pezzi[-1]), ("", "\x1b[K"))
        self.assertGreaterEqual(len(pezzi), 3)
        for pezzo in pezzi[1:-1]:
            self.assertRegex(pezzo, rf"^\d+ taglie su {taglie} \(\d+%\), \d+ al secondo, "
                                    r"mancano \d+:\d\d(:\d\d)?\x1b\[K$")

    def test_sul_terminale_l_avanzamento_sta_nella_larghezza(self):
        def larghezza(capo, colonne):
            fcntl.ioctl(capo, termios.TIOCSWINSZ, struct.pack("HHHH", 24, colonne, 0, 0))

        for colonne, forma in [(45, r"\d+ taglie su 150000 \(\d+%\), mancano \d+:\d\d"),
                               (30, r"\d+ taglie su 150000 \(\d+%\)"), (10, r"\d+%"), (2, "")]:
            with self.subTest(colonne=colonne):
                esito = self.con_errori_su_terminale(
                    150_000, "-s", prepara=lambda capo, n=colonne: larghezza(capo, n))
                pezzi = esito.errori.decode("utf-8").split("\r")
                self.assertGreaterEqual(len(pezzi), 3)
                for pezzo in pezzi[1:-1]:
                    testo = pezzo.removesuffix("\x1b[K")
                    self.assertLess(len(testo), colonne)
                    self.assertRegex(testo, f"^{forma}$")

    def test_sul_terminale_una_corsa_breve_non_dice_niente(self):
        self.assertEqual(self.con_errori_su_terminale("-V").errori, b"")

    def test_mai_e_quieto_tacciono_anche_sul_terminale(self):
        for argomenti in [["--avanzamento", "mai"], ["-q"], ["-q", "--avanzamento", "sempre"]]:
            with self.subTest(argomenti=argomenti):
                esito = self.con_errori_su_terminale(50_000, "-f", "nessuna", *argomenti)
                self.assertEqual((esito.codice, esito.errori), (FATTO, b""))

    def test_fuori_dal_terminale_l_avanzamento_automatico_tace(self):
        for argomenti in [[], ["--avanzamento", "auto"]]:
            processo = self.avvia(TANTE, "-f", "nessuna", *argomenti)
            pronti, _, _ = select.select([processo.stderr], [], [], 1.5)
            self.assertEqual(pronti, [])
            processo.kill()

    def test_il_tasto_di_interruzione_ferma_la_corsa(self):
        # A session of its own, so that the terminal's key reaches the command as it does for users.
        figlio, capo = pty.fork()
        if figlio == 0:
            os.chdir(self.cartella)
            os.execve(TAGLIE, [TAGLIE, str(TANTE), "-s", "-j", "2"], ambiente())
        try:
            visto = self.leggi(capo, b" taglie su ")
            inizio = time.monotonic()
            os.write(capo, b"\x03")
            visto += self.leggi(capo)
            codice = os.waitstatus_to_exitcode(os.waitpid(figlio, 0)[1])
            durata = time.monotonic() - inizio
            figlio = None
        finally:
            os.close(capo)
            if figlio is not None:
                os.kill(figlio, signal.SIGKILL)
                os.waitpid(figlio, 0)
        print(f"tasto di interruzione: fermato in {durata * 1000:.1f} ms", flush=True)
        self.assertEqual(codice, INTERROTTO)
        self.assertLess(durata, FERMATA)
        self.assertRegex(visto.decode("utf-8"),
                         rf"\x1b\[Ktaglie: interrotto: \d+ tagli(e fatte|a fatta) su {TANTE}\r\n\Z")
        self.assertEqual(self.contenuto(), [])


if __name__ == "__main__":
    unittest.main()
