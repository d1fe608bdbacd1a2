"""What the tests of the command share.

The environment names what is tested: TAGLIE the program, GOLDEN the folder of the golden files,
LOCPATH the folder of the locales made for the tests.
"""

import math
import os
import shutil
import signal
import stat
import subprocess
import tempfile
import time
import unittest
from fractions import Fraction
from pathlib import Path
from typing import NamedTuple

TAGLIE = os.environ["TAGLIE"]
GOLDEN = Path(os.environ["GOLDEN"]).resolve()
SORGENTI = GOLDEN.parents[1]

# Ignored where the tests run in the background, and inherited by whatever they start.
signal.signal(signal.SIGINT, signal.default_int_handler)

FATTO, USO, RIFIUTO, SCRITTURA, INTERNA, INTERROTTO = 0, 2, 3, 4, 5, 130

# Patience with a loaded machine; nothing that goes well waits for it.
ATTESA = 120

MASSIMO = 2**53


class Esito(NamedTuple):
    codice: int
    uscita: bytes
    errori: bytes


def ambiente(locale="C", **altre):
    """The environment with one locale for everything and further variables."""
    base = {k: v for k, v in os.environ.items()
            if not k.startswith("LC_") and k not in ("LANG", "LANGUAGE")}
    return {**base, "LC_ALL": locale, **altre}


def aspetta(condizione, cosa, secondi=ATTESA):
    """Waits until the condition holds and returns its value; fails naming the thing."""
    fine = time.monotonic() + secondi
    while True:
        valore = condizione()
        if valore:
            return valore
        if time.monotonic() > fine:
            raise AssertionError(f"non è mai accaduto: {cosa}")
        time.sleep(0.005)


def scritti(numero):
    """How many bytes the longest file has that the process holds open, whether it has a name yet.

    0 when it has none, or has ended.
    """
    lunghezze = [0]
    for canale in Path(f"/proc/{numero}/fd").glob("*"):
        try:
            stato = canale.stat()
        except OSError:
            continue
        if stat.S_ISREG(stato.st_mode):
            lunghezze.append(stato.st_size)
    return max(lunghezze)


def con_sanificatori():
    """Whether the program is built with the address sanitizer, whose memory means nothing."""
    return b"__asan_init" in Path(TAGLIE).read_bytes()


class Prova(unittest.TestCase):
    """A test with a folder of its own, in which the command runs."""

    maxDiff = 2000

    def setUp(self):
        self.cartella = Path(tempfile.mkdtemp(prefix="taglie.")).resolve()
        self.addCleanup(shutil.rmtree, self.cartella, ignore_errors=True)
        # Some tests run the command as another user.
        self.cartella.chmod(0o755)

    def avvia(self, *argomenti, **opzioni):
        """Starts the command; whatever becomes of the test, it does not outlive it."""
        opzioni = {"cwd": self.cartella, "env": ambiente(), "stdin": subprocess.DEVNULL,
                   "stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **opzioni}
        processo = subprocess.Popen([TAGLIE, *map(_byte, argomenti)], **opzioni)

        def chiudi():
            if processo.poll() is None:
                processo.kill()
            processo.wait()
            for canale in (processo.stdin, processo.stdout, processo.stderr):
                if canale is not None:
                    canale.close()

        self.addCleanup(chiudi)
        return processo

    def raccogli(self, processo, ingresso=None):
        uscita, errori = processo.communicate(ingresso, timeout=ATTESA)
        return Esito(processo.returncode, uscita or b"", errori or b"")

    def taglie(self, *argomenti, ingresso=None, **opzioni):
        """Runs the command to its end."""
        if ingresso is not None:
            opzioni["stdin"] = subprocess.PIPE
        return self.raccogli(self.avvia(*argomenti, **opzioni), ingresso)

    def fa(self, *argomenti, **opzioni):
        """Runs the command, which must succeed without a word on standard error."""
        esito = self.taglie(*argomenti, **opzioni)
        self.assertEqual((esito.codice, esito.errori), (FATTO, b""), argomenti)
        return esito

    def errore(self, esito, codice, *pezzi):
        """One line "taglie: what: why" with these pieces, and nothing on standard output."""
        testo = esito.errori.decode("utf-8", "surrogateescape")
        self.assertEqual(esito.codice, codice, testo)
        self.assertEqual(esito.uscita, b"")
        self.assertRegex(testo, r"\Ataglie: [^\n]+: [^\n]+\n\Z")
        for pezzo in pezzi:
            self.assertIn(pezzo, testo)
        return testo

    def contenuto(self, cartella=None):
        return sorted(voce.name for voce in (cartella or self.cartella).iterdir())

    def byte(self, nome):
        return (self.cartella / nome).read_bytes()

    def nuova(self, nome):
        cartella = self.cartella / nome
        cartella.mkdir()
        return cartella


def _byte(argomento):
    return argomento if isinstance(argomento, bytes) else os.fsencode(str(argomento))


# ---- Shoes and records ---------------------------------------------------------------------------

def buona_riga():
    """A shoe file line with all cards in the order of their codes."""
    return ",".join(map(str, range(1, 313)))


def riga_testi():
    """The same as card texts."""
    valori = ["A", *map(str, range(2, 11)), "J", "Q", "K"]
    return " ".join([v + s for s in "CQFP" for v in valori] * 6)


def taglie_dei_colpi(byte):
    """The records of a records file: one list for each shoe, split into fields, index 0 first."""
    taglie = []
    for riga in byte.decode("ascii").splitlines():
        campi = riga.split(",")
        if campi[0] == "0":
            taglie.append([])
        taglie[-1].append(campi)
    return taglie


def testi_carte(campo):
    return campo.split("#") if campo else []


ESITI = ["VinceNero", "VinceRosso", "Colore", "Inverso", "Pari", "TrentunoApres",
         "NeroColore", "NeroInverso", "RossoColore", "RossoInverso"]

# Odds of the first coup, worked out from the composition of the shoe.
PARI = 0.10959891316214038
TRENTUNO = 0.021891370486570891
ESATTE = dict(zip(ESITI, [(1 - PARI) / 2] * 4 + [PARI, TRENTUNO] + [(1 - PARI) / 4] * 4))


def esiti_del_colpo(campi):
    """The names of the outcomes of one record; none for a coup that ran out of cards."""
    _, esito, colore, nero, rosso = campi[:5]
    if esito == "":
        return set()
    if esito == "E":
        return {"Pari", "TrentunoApres"} if nero == rosso == "31" else {"Pari"}
    chi = {"N": "Nero", "R": "Rosso"}[esito]
    come = {"C": "Colore", "I": "Inverso"}[colore]
    return {"Vince" + chi, come, chi + come}


def taglia_breve(record):
    """Whether the last record counts as the rest of a shoe and not as a coup."""
    return int(record[-1][3]) + int(record[-1][4]) <= 61


def colpi_mostrati(record):
    """The coups that the full HTML report shows."""
    return record[1:-1] if taglia_breve(record) else record[1:]


def student(gradi):
    """The two-sided 95% point of Student's distribution: the density, which is a power of the
    cosine of atan(t / sqrt(gradi)), summed by Simpson's rule and inverted by halving."""
    fattore = math.exp(math.lgamma((gradi + 1) / 2) - math.lgamma(gradi / 2)) / math.sqrt(math.pi)

    def dentro(angolo, passi=2000):
        h = angolo / passi
        pesi = [1 if i in (0, passi) else 4 if i % 2 else 2 for i in range(passi + 1)]
        return 2 * fattore * h / 3 * math.fsum(
            peso * math.cos(i * h) ** (gradi - 1) for i, peso in enumerate(pesi))

    sotto, sopra = 0.0, math.pi / 2
    for _ in range(60):
        mezzo = (sotto + sopra) / 2
        sotto, sopra = (mezzo, sopra) if dentro(mezzo) < 0.95 else (sotto, mezzo)
    return math.sqrt(gradi) * math.tan(sotto)


def conti_attesi(taglie):
    """All figures of the data output but the run's own, from the records."""
    n = len(taglie)
    per_taglia = []
    colpi = carte = 0
    for record in taglie:
        k = len(record) - 1
        ultimo = record[-1]
        colpi += k - 1 if taglia_breve(record) else k
        carte += 313 - 5
        if taglia_breve(record):
            carte -= len(testi_carte(ultimo[5])) + len(testi_carte(ultimo[6]))
        per_taglia.append([esiti_del_colpo(campi) for campi in record[1:]])
    completi = [sum(1 for esiti in taglia if esiti) for taglia in per_taglia]
    somma = sum(completi)
    t = student(n - 1) if n > 1 else None
    dati = {"taglie": n, "report": {"colpi": colpi, "carte": carte},
            "completi": {"colpi": somma, "carte": 307 * n}, "esiti": {}, "primo_colpo": {}}
    for nome in ESITI:
        conti = [sum(nome in esiti for esiti in taglia) for taglia in per_taglia]
        tasso = Fraction(sum(conti), somma)
        scarto, intervallo = None, [None, None]
        if n > 1:
            residui = sum((x - tasso * c) ** 2 for x, c in zip(conti, completi))
            scarto = math.sqrt(residui * Fraction(n, n - 1)) / somma
            if residui:
                intervallo = [max(0.0, float(tasso) - t * scarto),
                              min(1.0, float(tasso) + t * scarto)]
        dati["esiti"][nome] = {
            "totale": sum(conti), "tasso": float(tasso), "errore_standard": scarto,
            "intervallo95": intervallo}
        primi = sum(nome in taglia[0] for taglia in per_taglia)
        p = ESATTE[nome]
        dati["primo_colpo"][nome] = {
            "totale": primi, "tasso": primi / n, "esatta": p,
            "z": (primi - n * p) / math.sqrt(n * p * (1 - p))}
    return dati


# ---- The text report -----------------------------------------------------------------------------

def senza_generali(testo):
    """A full text report up to and including its last shoe."""
    return testo[:testo.index(b"\r\n\r\n\t\tStatistiche generali\r\n")]


def taglie_nel_testo(testo):
    return testo.count(b"\r\n\t\t\tTaglia ")
