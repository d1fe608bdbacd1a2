"""The code blocks of the manual pdf-writer.md and the sources they show.

    blocchi.py     writes the sources of esempi/ into the manual's blocks

A block stands under a line "Source: [`esempi/NAME.cpp`](esempi/NAME.cpp)" and is the whole file.
"""

import re
from pathlib import Path

QUI = Path(__file__).parent
MANUALE = QUI / "pdf-writer.md"
BLOCCO = re.compile(r"(?P<testa>Source: \[`esempi/(?P<nome>\w+)\.cpp`\]"
                    r"\(esempi/(?P=nome)\.cpp\)\n\n```cpp\n)(?P<codice>.*?)```\n", re.DOTALL)


def blocchi(testo):
    """The blocks by the names of their examples, in order; a name shown twice counts once."""
    return {trovato["nome"]: trovato["codice"] for trovato in BLOCCO.finditer(testo)}


def sorgente(nome):
    return (QUI / "esempi" / f"{nome}.cpp").read_text(encoding="utf-8")


def aggiornato(testo):
    return BLOCCO.sub(lambda trovato: trovato["testa"] + sorgente(trovato["nome"]) + "```\n", testo)


if __name__ == "__main__":
    MANUALE.write_text(aggiornato(MANUALE.read_text(encoding="utf-8")), encoding="utf-8")
