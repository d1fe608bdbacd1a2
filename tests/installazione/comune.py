"""What the tests of the installed trees share.

The environment names what is tested: COSTRUITA the build folder, CMAKE the program that installs
from it, RADICE the sources, VERSIONE the project's version, COMPONENTI the components that are
built.
"""

import fnmatch
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

COSTRUITA = Path(os.environ["COSTRUITA"])
CMAKE = os.environ["CMAKE"]
QUI = Path(__file__).resolve().parent
COMPONENTI = os.environ["COMPONENTI"].split()


# "  -f, --forma FORMA". The help explains an option on the same line, a man page on the next: there
# nothing else may follow, since a line of its text may begin with an option, too.
OPZIONE = r"^ {2,7}(?:(-\w), )? *(--[\w-]+)(?: ([A-Z]+))?"


def opzioni_di_help(testo):
    """The options that the help explains: (short, long, name of the value)."""
    return sorted(re.findall(OPZIONE + "(?: |$)", testo, re.MULTILINE))


def opzioni_di_manuale(testo):
    """The same of a man page."""
    return sorted(re.findall(OPZIONE + "$", testo, re.MULTILINE))


def fai(*comando, zitto=False, **altro):
    """Runs a command, which must succeed, and returns what it printed.

    zitto: nor may it write anything on standard error.
    """
    opzioni = {"text": True, "timeout": 300, "stdin": subprocess.DEVNULL, **altro}
    fatto = subprocess.run([str(c) for c in comando], capture_output=True, check=False, **opzioni)
    if fatto.returncode != 0 or (zitto and fatto.stderr):
        raise AssertionError(f"{comando}: {fatto.returncode}: {fatto.stdout}{fatto.stderr}")
    return fatto.stdout


def installa(prefisso, componente=None, destdir=None):
    scelta = ["--component", componente] if componente else []
    ambiente = {k: v for k, v in os.environ.items() if k != "DESTDIR"}
    if destdir:
        ambiente["DESTDIR"] = str(destdir)
    fai(CMAKE, "--install", COSTRUITA, "--prefix", prefisso, *scelta, env=ambiente)


def albero(cartella):
    """The files and links below a folder."""
    return sorted(str(f.relative_to(cartella)) for f in Path(cartella).rglob("*")
                  if f.is_symlink() or not f.is_dir())


def tenuta(componente):
    """The kept list of a component; a line may be a pattern."""
    return (QUI / "alberi" / f"{componente}.txt").read_text().splitlines()


def differenze(trovati, attesi):
    """What stands on one side only: files that no line names, and lines that name no file."""
    in_piu = [f for f in trovati if not any(fnmatch.fnmatchcase(f, riga) for riga in attesi)]
    mancano = [riga for riga in attesi if not fnmatch.filter(trovati, riga)]
    return in_piu, mancano


class Prova(unittest.TestCase):
    """A test with a folder of its own, which is shared by its class; its name has a blank."""

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.cartella = Path(tempfile.mkdtemp(prefix="installata "))
        cls.addClassCleanup(shutil.rmtree, cls.cartella, ignore_errors=True)
