"""What the tests share that look at PDF files of the writer from outside."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "lettori"))
import lettori  # noqa: E402


# Debian's mutool says of every file that it has no colour management.
DETTO_SEMPRE = lettori.MUTOOL + [r"warning: ICC support is not available"]


def esegui(*comando, **opzioni):
    """Standard output, as bytes, of a program that succeeds and has nothing to complain of."""
    esito = subprocess.run([str(c) for c in comando], capture_output=True, **opzioni)
    detto, _ = lettori.separa(esito.stderr.decode(errors="replace"), *DETTO_SEMPRE)
    assert esito.returncode == 0 and not detto, (comando, esito.returncode, detto)
    return esito.stdout


class DaFuori(unittest.TestCase):
    def setUp(self):
        temporanea = tempfile.TemporaryDirectory()
        self.addCleanup(temporanea.cleanup)
        self.cartella = pathlib.Path(temporanea.name)

    def disegna(self, nome, ordini):
        """Writes a document; an order is a sequence of fields."""
        righe = "".join("\t".join(map(str, ordine)) + "\n" for ordine in ordini)
        percorso = self.cartella / nome
        esegui(os.environ["DISEGNA_PDF"], percorso, input=righe.encode())
        return percorso

    def accettati(self, percorsi):
        """All readers take the documents and count the same pages."""
        for giudizio in lettori.controlla([lettori.apri(p) for p in percorsi]):
            self.assertEqual(giudizio.difetti, [], giudizio.documento.percorso.name)
