"""What the readers have accepted before: the same bytes need no second look by the same readers."""

import hashlib
import subprocess
from pathlib import Path

VERSIONI = [["qpdf", "--version"], ["mutool", "-v"], ["pdftoppm", "-v"], ["gs", "--version"]]
ACCANTO = ["", ".attese", ".mancanti", ".fuori"]


def lettori():
    """Stands for the programs that read and for the rules by which they are judged."""
    somma = hashlib.sha256()
    for comando in VERSIONI:
        fatto = subprocess.run(comando, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, check=False)
        somma.update(fatto.stdout)
    for regola in sorted(Path(__file__).parent.glob("*.py")):
        somma.update(regola.read_bytes())
    return somma.digest()


class Ricordo:
    """A file with a line for each accepted document: a sum of all that it was judged by, and its
    pages. None as file remembers nothing."""

    def __init__(self, file):
        self.file = file and Path(file)
        self.noti = {}
        if self.file and self.file.exists():
            self.noti = dict(riga.split() for riga in self.file.read_text().splitlines())
        self.lettori = lettori() if self.file else b""

    def somma(self, percorso):
        somma = hashlib.sha256(self.lettori)
        for fine in ACCANTO:
            vicino = percorso.with_name(percorso.name + fine)
            byte = vicino.read_bytes() if vicino.exists() else b""
            somma.update(b"%d:" % len(byte) + byte)
        return somma.hexdigest()

    def pagine(self, percorso):
        """Of a document that was accepted as it is; None for any other."""
        pagine = self.noti.get(self.somma(percorso)) if self.noti else None
        return pagine and int(pagine)

    def serba(self, accettati):
        """accettati: paths and pages of all documents that are accepted now."""
        if self.file:
            righe = sorted(f"{self.somma(percorso)} {pagine}\n" for percorso, pagine in accettati)
            self.file.parent.mkdir(parents=True, exist_ok=True)
            self.file.write_text("".join(righe))
