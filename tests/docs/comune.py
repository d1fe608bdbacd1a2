"""What the tests of docs/ share: where things are, and the readers."""

import os
import subprocess
import sys
from pathlib import Path

DOCS = Path(os.environ["DOCS"])
COSTRUITI = Path(os.environ["COSTRUITI"])
LEGGI_PDF = os.environ["LEGGI_PDF"]
LETTORI = os.environ["LETTORI"]
LIBERATION = Path("/usr/share/fonts/truetype/liberation2")

sys.path.insert(0, str(DOCS))


def esegui(*comando, **altro):
    altro = {"capture_output": True, "text": True, "timeout": 300, "check": False, **altro}
    return subprocess.run([str(parte) for parte in comando], **altro)


def fai(*comando, **altro):
    fatto = esegui(*comando, **altro)
    if fatto.returncode != 0:
        raise AssertionError(f"{comando}: {fatto.returncode}: {fatto.stdout}{fatto.stderr}")
    return fatto.stdout


def attendi_testi(pdf, testi):
    """lettori.py looks for these texts in the document."""
    pdf.with_name(pdf.name + ".attese").write_text("\n".join(testi) + "\n", encoding="utf-8")


def leggi_tutti(cartella, quanti):
    """Our reader and those that are not ours accept each document of the folder."""
    fai(LEGGI_PDF, *sorted(cartella.glob("*.pdf")))
    fai(sys.executable, LETTORI, "--almeno", quanti, cartella)
