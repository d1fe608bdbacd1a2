"""Every signal that asks the command to end, at random moments of every form.

COLPI says how many hits each signal and form get (50 where it is not set, 10 where each takes long;
the signals that hardly anybody sends get a tenth).
"""

import multiprocessing
import os
import pty
import random
import re
import resource
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from aiuti import (ATTESA, FATTO, INTERROTTO, TAGLIE, Prova, ambiente, aspetta, con_sanificatori,
                   scritti, senza_generali)

COLPI = int(os.environ.get("COLPI", "10" if con_sanificatori() else "50"))
INSIEME = 4  # commands at once
CON_ZLIB = os.environ["ZLIB"] == "ON"
VECCHIO = b"il report di prima\n"
AMBIENTE = ambiente(SOURCE_DATE_EPOCH="0")

CONSUETI = [signal.SIGHUP, signal.SIGINT, signal.SIGQUIT, signal.SIGTERM, signal.SIGALRM,
            signal.SIGXCPU]
RARI = [signal.SIGUSR1, signal.SIGUSR2, signal.SIGVTALRM, signal.SIGPROF, signal.SIGIO,
        signal.SIGPWR, signal.SIGSTKFLT, signal.SIGRTMIN, signal.SIGRTMIN + 1, signal.SIGRTMAX]

# The file and the arguments of each form, in sizes that take some hundredths of a second.
FORME = {
    "testo": ("taglie.txt", [300]),
    "pagina": ("taglie.htm", [200, "-f", "html"]),
    "documento": ("taglie.pdf", [60, "-f", "pdf"]),
    "documento con caratteri unici": ("taglie.pdf", [60, "-f", "pdf", "--caratteri-unici"]),
    **({"documento compatto": ("taglie.pdf", [300, "-f", "pdf", "--compatto"])} if CON_ZLIB else {}),
    "statistiche in testo": ("taglie.txt", [2000, "-s"]),
    "statistiche in pagina": ("taglie.htm", [2000, "-s", "-f", "html"]),
    "statistiche in documento": ("taglie.pdf", [2000, "-s", "-f", "pdf"]),
    "statistiche in due fili": ("taglie.htm", [4000, "-s", "-f", "html", "-j", "2"]),
    "video": (None, [2000, "-f", "video"]),
    "json": (None, [2000, "--dati", "json"]),
    "csv": (None, [2000, "--dati", "csv", "-j", "2"]),
    "dati": (None, [200, "-f", "nessuna", "--colpi", "c", "--salva-mazzi", "m"]),
}


def senza_segnali_ignorati():
    """Whoever started the tests in the background may have told them to ignore some.

    Nor is a picture of the memory wanted of a command that a signal ends.
    """
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    for segnale in CONSUETI + RARI:
        signal.signal(segnale, signal.SIG_DFL)


def ascolta(processo, segnale):
    """Whether the command has got as far as catching the signal; true too when it has ended."""
    try:
        testo = Path(f"/proc/{processo.pid}/status").read_text()
    except OSError:
        return True
    catturati = re.search(r"^SigCgt:\s*(\w+)", testo, re.MULTILINE)
    return catturati is None or int(catturati[1], 16) >> (segnale - 1) & 1


def confini(testo, inizio):
    """Where a file of whole shoes may end: before each line that begins a shoe, and at its end."""
    return {0, *(trovato.start() for trovato in re.finditer(inizio, testo)), len(testo)}


class Forma:
    """One form: what a whole run of it leaves, how long it takes, what a stopped one may leave."""

    def __init__(self, nome):
        self.report, argomenti = FORME[nome]
        self.argomenti = [TAGLIE, "--seme", "5", "-q", *map(str, argomenti)]
        self.durata = ATTESA
        for _ in range(3):
            with tempfile.TemporaryDirectory(prefix="taglie.") as cartella:
                inizio = time.monotonic()
                subprocess.run(self.argomenti, cwd=cartella, env=AMBIENTE, check=True,
                               stdout=subprocess.DEVNULL)
                self.durata = min(self.durata, time.monotonic() - inizio)
                self.interi = {voce.name: voce.read_bytes() for voce in Path(cartella).iterdir()}
        self.confini = {}
        if nome == "testo":
            taglie = senza_generali(self.interi["taglie.txt"])
            self.confini["taglie.txt"] = confini(taglie, rb"\r\n\t\t\tTaglia ")
        elif nome == "dati":
            self.confini["c"] = confini(self.interi["c"], rb"(?m)^0,")
            self.confini["m"] = confini(self.interi["m"], rb"(?m)^")

    def ammesso(self, nome, byte):
        """Whether a stopped run may leave this."""
        intero = self.interi[nome]
        if byte == VECCHIO:
            return nome == self.report  # of a text that has not been begun
        return len(byte) in self.confini.get(nome, ()) and intero.startswith(byte)


def difetto(forma, segnale, ascoltava, esito, prima, dopo):
    """What is wrong with what a hit has left; nothing when all is well."""
    codice, uscita, errori = esito
    descrizione = (codice, uscita[:80], errori, {n: len(byte) for n, byte in dopo.items()})
    if codice == FATTO:
        return None if dopo == forma.interi and errori == b"" else descrizione
    if codice == -segnale and not ascoltava:
        return None if dopo == prima else descrizione
    if codice != INTERROTTO or uscita != b"":
        return descrizione
    if not re.fullmatch(rb"taglie: interrotto: \d+ tagli(e fatte|a fatta) su \d+\n", errori):
        return descrizione
    if forma.report not in forma.confini:
        # It shows only when it is whole.
        if dopo.pop(forma.report, None) != prima.get(forma.report):
            return descrizione
    return None if all(forma.ammesso(*voce) for voce in dopo.items()) else descrizione


def conosci(forma):
    """Tells a process of the pool which form it is to hit."""
    globals()["colpita"] = forma


def colpisci(segnale, seme):
    """One hit; returns the exit code and what is wrong."""
    forma = globals()["colpita"]
    caso = random.Random(seme)
    with tempfile.TemporaryDirectory(prefix="taglie.") as nome:
        cartella = Path(nome)
        prima = {}
        if forma.report is not None and caso.random() < 0.5:
            prima[forma.report] = VECCHIO
            (cartella / forma.report).write_bytes(VECCHIO)
        processo = subprocess.Popen(
            forma.argomenti, cwd=cartella, env=AMBIENTE, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, preexec_fn=senza_segnali_ignorati)
        time.sleep(caso.uniform(0, forma.durata))
        ascoltava = ascolta(processo, segnale)
        processo.send_signal(segnale)
        uscita, errori = processo.communicate(timeout=ATTESA)
        dopo = {voce.name: voce.read_bytes() for voce in cartella.iterdir()}
        codice = processo.returncode
        return codice, difetto(forma, segnale, ascoltava, (codice, uscita, errori), prima, dopo)


class Segnali(unittest.TestCase):
    def prova(self, nome):
        forma = Forma(nome)
        caso = random.Random(nome)
        # Processes, no threads: the child of one thread would hold the files of another one open.
        with multiprocessing.get_context("fork").Pool(INSIEME, conosci, (forma,)) as insieme:
            for segnale in CONSUETI + RARI:
                colpi = COLPI if segnale in CONSUETI else max(1, COLPI // 10)
                with self.subTest(segnale=segnale):
                    semi = caso.sample(range(10**9), colpi)
                    esiti = insieme.starmap(colpisci, [(segnale, seme) for seme in semi])
                    self.assertEqual([male for _, male in esiti if male], [])
                    if colpi >= 20:
                        fermati = sum(codice == INTERROTTO for codice, _ in esiti)
                        self.assertGreater(fermati, colpi // 10)


def aggiungi(nome):
    setattr(Segnali, "test_" + nome.replace(" ", "_"), lambda self: self.prova(nome))


for forma_di_prova in FORME:
    aggiungi(forma_di_prova)


class Insistenza(Prova):
    """What comes twice, what is ignored, and what comes from a terminal or a limit."""

    def ferma(self, *segnali, ignorato=None):
        """Sends the signals, one right after the other, while the command is held."""
        def prepara():
            senza_segnali_ignorati()
            if ignorato is not None:
                signal.signal(ignorato, signal.SIG_IGN)

        processo = self.avvia(10**9, "-s", "-f", "html", preexec_fn=prepara)
        aspetta(lambda: ascolta(processo, segnali[-1]), "l'ascolto dei segnali")
        processo.send_signal(signal.SIGSTOP)
        for segnale in segnali:
            processo.send_signal(segnale)
        processo.send_signal(signal.SIGCONT)
        return self.raccogli(processo)

    def test_cio_che_e_ignorato_resta_ignorato(self):
        for segnale in CONSUETI + RARI:
            altro = signal.SIGTERM if segnale != signal.SIGTERM else signal.SIGINT
            with self.subTest(segnale=segnale):
                esito = self.ferma(segnale, segnale, altro, ignorato=segnale)
                self.errore(esito, INTERROTTO, "taglie: interrotto: ")

    def test_chi_esce_dalla_sessione_manda_due_segnali_diversi(self):
        for segnali in [(signal.SIGTERM, signal.SIGHUP), (signal.SIGHUP, signal.SIGTERM)]:
            self.errore(self.ferma(*segnali), INTERROTTO, "taglie: interrotto: ")
            self.assertEqual(self.contenuto(), [])

    def test_il_limite_di_tempo_ferma_la_corsa(self):
        processo = self.avvia(10**9, preexec_fn=lambda: resource.setrlimit(
            resource.RLIMIT_CPU, (1, 60)))
        self.errore(self.raccogli(processo), INTERROTTO, "taglie: interrotto: ")

    def processi(self):
        """The commands that run in the folder."""
        trovati = []
        for voce in Path("/proc").glob("[0-9]*"):
            try:
                if os.readlink(voce / "cwd") == str(self.cartella) and os.path.samefile(
                        voce / "exe", TAGLIE):
                    trovati.append(int(voce.name))
            except OSError:
                continue
        return trovati

    def test_il_terminale_che_si_chiude_non_lascia_una_pagina_a_meta(self):
        """The shell tells the command, and so does the terminal when the shell has gone."""
        for _ in range(5):
            figlio, capo = pty.fork()
            if figlio == 0:
                os.chdir(self.cartella)
                os.execve("/bin/bash", ["bash", "--norc", "-i"], ambiente())
            os.write(capo, f"{TAGLIE} 20000 -f html\n".encode())
            aspetta(lambda: max(map(scritti, self.processi()), default=0) > 1_000_000, "una pagina")
            os.close(capo)
            os.waitpid(figlio, 0)
            aspetta(lambda: not self.processi(), "la fine del comando")
            self.assertEqual(self.contenuto(), [])


if __name__ == "__main__":
    unittest.main()
