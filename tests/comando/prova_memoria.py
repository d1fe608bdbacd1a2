"""Memory: the number of shoes must not matter."""

import os
import re
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

        picco = self.picco_alla_scrittura(*argomenti, quando=lambda _: finito())
        file.unlink()
        return picco

    def picco_alla_scrittura(self, *argomenti, quando):
        """The same for a run that is caught when something has come about."""
        with TuboPieno() as tubo:
            processo = self.avvia(*argomenti, stdout=tubo.scrittore)
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

    def test_la_misura_vede_la_memoria_che_cresce(self):
        # Recorded shoes are held all at once, so that many must show.
        def picco(n):
            self.fa(n, "-f", "nessuna", "--salva-mazzi", "m")
            return self.picco("--mazzi", "m", "-s", report="taglie.txt",
                              fine=b"Vincite Rosso-Inverso")

        self.assertGreater(picco(8_000) - picco(10), 2 * KIB)


if __name__ == "__main__":
    unittest.main()
