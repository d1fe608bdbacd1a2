"""Memory: the number of shoes must not matter."""

import os
import re
import unittest
from pathlib import Path

from aiuti import Prova, aspetta, con_sanificatori

KIB = 1024


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

    def picco(self, *argomenti, report, fine):
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

        with TuboPieno() as tubo:
            processo = self.avvia(*argomenti, stdout=tubo.scrittore)
            aspetta(finito, "la fine del report")
            stato = Path(f"/proc/{processo.pid}/status").read_text()
            self.assertIsNone(processo.poll())
            processo.kill()
            processo.wait()
        file.unlink()
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

    def test_la_misura_vede_la_memoria_che_cresce(self):
        # Recorded shoes are held all at once, so that many must show.
        def picco(n):
            self.fa(n, "-f", "nessuna", "--salva-mazzi", "m")
            return self.picco("--mazzi", "m", "-s", report="taglie.txt",
                              fine=b"Vincite Rosso-Inverso")

        self.assertGreater(picco(8_000) - picco(10), 2 * KIB)


if __name__ == "__main__":
    unittest.main()
