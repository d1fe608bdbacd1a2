"""Memory: the number of shoes must not matter."""

import os
import re
import subprocess
import time
import unittest
from pathlib import Path

from aiuti import Prova, aspetta, con_sanificatori

KIB = 1024


def dorme(processo):
    """Whether the command waits for something and has stopped working."""
    def letto():
        campi = Path(f"/proc/{processo.pid}/stat").read_text().rpartition(") ")[2].split()
        return campi[0], campi[11], campi[12]

    prima = letto()
    time.sleep(0.2)
    return prima[0] == "S" and letto() == prima


class TuboPieno:
    """A pipe without room: who writes into it waits."""

    def __enter__(self):
        self.lettore, self.scrittore = os.pipe()
        os.set_blocking(self.scrittore, False)
        try:
            while True:
                os.write(self.scrittore, b"x" * 4096)
        except BlockingIOError:
            pass
        os.set_blocking(self.scrittore, True)
        return self

    def __exit__(self, *_):
        os.close(self.lettore)
        os.close(self.scrittore)


class Memoria(Prova):
    def setUp(self):
        super().setUp()
        if con_sanificatori():
            self.skipTest("con i sanificatori la memoria liberata resta occupata")

    def picco(self, *argomenti, report, fine, **opzioni):
        """Most memory that a run held at any time, in KiB.

        The kernel's figure for an ended child would include what the interpreter held when it
        started the child. So the run is caught alive at its very end, held back by a standard
        output that takes no more bytes, and asked for the peak of its own memory.
        """
        file = self.cartella / report

        def finito():
            if not file.exists():
                return False
            with open(file, "rb") as aperto:
                aperto.seek(max(0, file.stat().st_size - 200))
                return fine in aperto.read()

        picco = self.picco_alla_scrittura(*argomenti, quando=lambda _: finito(), **opzioni)
        file.unlink()
        return picco

    def picco_alla_scrittura(self, *argomenti, quando, **opzioni):
        """The same for a run that is caught when something has come about."""
        with TuboPieno() as tubo:
            processo = self.avvia(*argomenti, stdout=tubo.scrittore, **opzioni)
            aspetta(lambda: quando(processo), "la fine del report")
            stato = Path(f"/proc/{processo.pid}/status").read_text()
            self.assertIsNone(processo.poll())
            processo.kill()
            processo.wait()
        return int(re.search(r"^VmHWM:\s*(\d+) kB$", stato, re.MULTILINE)[1])

    def pari(self, poche, tante):
        print(f"{self.id().rpartition('.')[2]}: {poche} e {tante} KiB", flush=True)
        self.assertGreater(poche, 500)  # a process this small does not exist: wrongly measured
        self.assertLess(abs(tante - poche), KIB)

    def test_le_statistiche_di_tante_taglie_non_prendono_piu_memoria(self):
        def picco(n, *altre):
            return self.picco("-s", n, *altre, report="taglie.txt", fine=b"Vincite Rosso-Inverso")

        self.pari(picco(2_000), picco(40_000))
        self.pari(picco(2_000, "-j", "2"), picco(40_000, "-j", "2"))

    def test_la_pagina_di_tante_taglie_non_prende_piu_memoria(self):
        def picco(n):
            return self.picco("-f", "html", n, report="taglie.htm", fine=b"</html>\r\n")

        self.pari(picco(20), picco(200))

    def test_l_indice_di_tante_taglie_non_prende_piu_memoria(self):
        def picco(n):
            return self.picco("-f", "html", n, report="taglie.htm", fine=b"</html>\r\n")

        self.pari(picco(20), picco(2_000))

    def test_testo_record_e_taglie_di_tante_taglie_non_prendono_piu_memoria(self):
        def picco(n):
            return self.picco(n, "--colpi", "c", "--salva-mazzi", "m", report="taglie.txt",
                              fine=b"Vincite Rosso-Inverso")

        self.pari(picco(200), picco(4_000))

    def documento(self, n, *altre):
        return self.picco("-f", "pdf", n, *altre, report="taglie.pdf", fine=b"%%EOF\r\r\n")

    def test_il_documento_sta_in_otto_mebibyte(self):
        versione = self.picco_alla_scrittura("--version", quando=dorme)
        for argomenti in [[20], [20, "--caratteri-unici"], [20, "-s"]]:
            documento = self.documento(*argomenti)
            print(f"{argomenti}: {documento} KiB, la versione {versione} KiB", flush=True)
            self.assertGreater(versione, 500)
            self.assertGreater(documento, versione)
            self.assertLessEqual(documento, versione + 8 * KIB)

    def test_le_pagine_del_documento_vanno_sul_disco(self):
        self.pari(self.documento(20, "--caratteri-unici"),
                  self.documento(200, "--caratteri-unici"))

    def test_le_statistiche_in_un_documento_non_prendono_piu_memoria(self):
        self.pari(self.documento(2_000, "-s"), self.documento(40_000, "-s"))

    def picco_dei_mazzi(self, n, *, tubo):
        self.fa(n, "-f", "nessuna", "--salva-mazzi", "m")
        come = {"report": "taglie.txt", "fine": b"Vincite Rosso-Inverso"}
        if not tubo:
            return self.picco("--mazzi", "m", "-s", **come)
        with subprocess.Popen(["cat", self.cartella / "m"], stdout=subprocess.PIPE) as gatto:
            return self.picco("--mazzi", "-", "-s", stdin=gatto.stdout, **come)

    def test_un_file_di_tante_taglie_prende_al_massimo_sedici_byte_l_una(self):
        poche, tante, incertezza = 1_000, 60_000, 200
        cresce = self.picco_dei_mazzi(tante, tubo=False) - self.picco_dei_mazzi(poche, tubo=False)
        print(f"{tante - poche} taglie di file in più: {cresce} KiB", flush=True)
        self.assertGreater(cresce, 0)
        self.assertLess(cresce, 16 * (tante - poche) // KIB + incertezza)

    def test_la_misura_vede_la_memoria_che_cresce(self):
        # Shoes from a pipe are held all at once, so that many must show.
        self.assertGreater(self.picco_dei_mazzi(8_000, tubo=True) -
                           self.picco_dei_mazzi(10, tubo=True), 2 * KIB)


if __name__ == "__main__":
    unittest.main()
