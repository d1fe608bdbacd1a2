"""A display of one's own with a small window manager, and the hands of a user on it.

The environment names what is tested: SCALVINO the program, ARTEFATTI the folder that keeps the
screenshots, LOCPATH the folder of the locales made for the tests. Needs Xvfb, openbox, xdotool,
wmctrl, xclip and ImageMagick's import.
"""

import mmap
import os
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

SCALVINO = Path(os.environ["SCALVINO"]).resolve()
ARTEFATTI = Path(os.environ["ARTEFATTI"])

# Ignored where the tests run in the background, and inherited by whatever they start.
signal.signal(signal.SIGINT, signal.default_int_handler)

# Patience with a loaded machine; nothing that goes well waits for it.
ATTESA = 60

# Of the window at 100%, in pixels.
MISURA = 784, 451

# Middles of the controls, in pixels of the window at 100%.
POSTI = {
    "numTaglie": (158, 45), "optStampa0": (54, 104), "optStampa1": (54, 128),
    "optStampa2": (54, 152), "optStampa3": (54, 175), "chkStat": (55, 200),
    "cmdTaglie": (120, 241), "cmdMescola": (118, 303), "cmdColpo": (118, 340),
    "cmdCancel": (118, 378), "cmdHelp": (120, 427), "cmdExit": (736, 429), "picCard": (500, 215),
}


def aspetta(condizione, cosa, secondi=ATTESA, passo=0.01):
    """Waits until the condition holds and returns its value; fails naming the thing."""
    fine = time.monotonic() + secondi
    while True:
        valore = condizione()
        if valore:
            return valore
        if time.monotonic() > fine:
            raise AssertionError(f"non è mai accaduto: {cosa}")
        time.sleep(passo)


def leggi(*comando, **opzioni):
    return subprocess.run(comando, capture_output=True, text=True, check=False, **opzioni).stdout


class Schermo:
    """Xvfb with openbox; ends both at close()."""

    def __init__(self, larghezza=1700, altezza=1050):
        self.larghezza, self.altezza = larghezza, altezza
        leggere, scrivere = os.pipe()
        self.casa = tempfile.mkdtemp(prefix="schermo.")
        self.xvfb = subprocess.Popen(
            ["Xvfb", "-displayfd", str(scrivere), "-screen", "0", f"{larghezza}x{altezza}x24",
             "-nolisten", "tcp", "-noreset", "-fbdir", self.casa], pass_fds=[scrivere],
            stderr=subprocess.DEVNULL)
        os.close(scrivere)
        with os.fdopen(leggere) as canale:
            self.nome = ":" + canale.readline().strip()
        self.ambiente = {k: v for k, v in os.environ.items()
                         if not k.startswith(("LC_", "QT_")) and k not in ("LANG", "LANGUAGE",
                                                                           "WAYLAND_DISPLAY")}
        self.ambiente.update(DISPLAY=self.nome, LC_ALL="it_IT.UTF-8", XDG_RUNTIME_DIR=self.casa,
                             HOME=self.casa, QT_QPA_PLATFORM="xcb")
        self.gestore = self._avvia_gestore()
        self._apri_immagine()

    def _avvia_gestore(self):
        """The process that manages the windows, which it does by now."""
        gestore = subprocess.Popen(["openbox", "--sm-disable"], env=self.ambiente,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        aspetta(lambda: "_NET_SUPPORTING_WM_CHECK" in self.fa("xprop", "-root"), "openbox")
        return gestore

    def _apri_immagine(self):
        """The server's own picture of the screen: looking at it costs next to nothing."""
        with open(Path(self.casa) / "Xvfb_screen0", "rb") as file:
            self.immagine = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        campi = struct.unpack(">25I", self.immagine[:100])  # the header of an X window dump
        assert campi[11] == 32, campi                       # bits of a pixel
        self.riga = campi[12]
        self.inizio = campi[0] + 12 * campi[19]             # behind the header and its colours

    def zona(self, x, y, larghezza, altezza):
        """Rows of pixels of four bytes each: blue, green, red and one that means nothing."""
        primo = self.inizio + y * self.riga + 4 * x
        return b"".join(self.immagine[i:i + 4 * larghezza]
                        for i in range(primo, primo + altezza * self.riga, self.riga))

    def fa(self, *comando):
        return leggi(*comando, env=self.ambiente)

    def seleziona(self, testo):
        """Makes this the selected text of the display, as if another program showed it so."""
        subprocess.run(["xclip", "-selection", "primary"], input=testo.encode(), env=self.ambiente,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)

    def close(self):
        self.immagine.close()
        for processo in (self.gestore, self.xvfb):
            processo.terminate()
            processo.wait()
        shutil.rmtree(self.casa, ignore_errors=True)


def senza_segnali_ignorati():
    """Whoever started the tests in the background may have told them to ignore some."""
    for segnale in (signal.SIGINT, signal.SIGQUIT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(segnale, signal.SIG_DFL)


class Finestra:
    """The program running on a display, in a temporary folder of its own, of any name."""

    def __init__(self, schermo, scala=1, programma=SCALVINO, cartella="tmp", **variabili):
        self.schermo = schermo
        self.scala = scala
        self.base = Path(tempfile.mkdtemp(prefix="finestra."))
        self.cartella = self.base / cartella
        self.cartella.mkdir()
        self.registro = self.base / "aperti"
        self._apritore()
        ambiente = {**schermo.ambiente, "TMPDIR": str(self.cartella),
                    "QT_SCALE_FACTOR": str(scala),
                    "PATH": f"{self.base}:{schermo.ambiente['PATH']}", **variabili}
        with (self.base / "errori").open("wb") as errori:
            self.processo = subprocess.Popen([programma], cwd=self.base, env=ambiente,
                                             stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                             stderr=errori,
                                             preexec_fn=senza_segnali_ignorati)

    def _apritore(self):
        """The desktop's handler, which only writes down what it is to open."""
        apri = self.base / "xdg-open"
        apri.write_text(f'#!/bin/sh\nprintf "%s\\0" "$#" "$@" >>{self.registro}\n')
        apri.chmod(0o755)

    def aperti(self):
        """The paths that were opened, each given as the one argument."""
        byte = self.registro.read_bytes() if self.registro.exists() else b""
        argomenti = [os.fsdecode(argomento) for argomento in byte.split(b"\0")[:-1]]
        assert argomenti[::2] == ["1"] * (len(argomenti) // 2), argomenti
        return argomenti[1::2]

    def finestre(self):
        """(id, title) of the windows of the program that are on the screen."""
        righe = self.schermo.fa("wmctrl", "-l", "-p").splitlines()
        campi = [riga.split(None, 4) for riga in righe]
        return [(c[0], c[4]) for c in campi if len(c) == 5 and c[2] == str(self.processo.pid)]

    def pronta(self):
        # Of the window and a box on it, which share the title, the window comes first.
        self.id = aspetta(self.finestre, "la finestra")[0][0]
        self.attiva()
        # xdotool counts the frame twice.
        misure = self.schermo.fa("xwininfo", "-id", self.id)
        self.posto = tuple(int(re.search(f"Absolute upper-left {asse}: +(-?[0-9]+)", misure)[1])
                           for asse in "XY")
        self.scosta()
        return self

    def attiva(self):
        """Brings the window to the front, where others are, too."""
        self.schermo.fa("xdotool", "windowactivate", "--sync", self.id)

    def clicca(self, nome, pulsante=1):
        x, y = (round(v * self.scala) for v in POSTI[nome])
        self.schermo.fa("xdotool", "mousemove", "--window", self.id, str(x), str(y), "click",
                        str(pulsante))

    def scosta(self):
        """Takes the pointer off the window, of which it would be seen as a part."""
        self.schermo.fa("xdotool", "mousemove", "0", "0")

    def tasti(self, *tasti):
        self.schermo.fa("xdotool", "key", "--clearmodifiers", *tasti)

    def scrivi(self, testo):
        """Replaces the number: a click into the field selects it."""
        self.clicca("numTaglie")
        time.sleep(0.1)
        self.tasti("Home", "shift+End")
        self.schermo.fa("xdotool", "type", testo)

    def fotografa(self, nome, id=None):
        """Keeps a picture of the window, or of another one, under this name."""
        ARTEFATTI.mkdir(parents=True, exist_ok=True)
        self.schermo.fa("import", "-window", id or self.id, str(ARTEFATTI / f"{nome}.png"))

    def conserva(self, byte, nome):
        """Keeps what intera() gave under this name."""
        ARTEFATTI.mkdir(parents=True, exist_ok=True)
        misura = "x".join(str(int(v * self.scala)) for v in MISURA)
        subprocess.run(["convert", "-size", misura, "-depth", "8", "bgra:-", "-alpha", "off",
                        str(ARTEFATTI / f"{nome}.png")], input=byte, check=True)

    def colore(self, x, y):
        """The colour at a pixel of the layout, "RRGGBB"."""
        return self.zona(x, y, 1, 1)[2::-1].hex().upper()

    def zona(self, x, y, larghezza, altezza):
        """A part of the window, to see whether it changed."""
        x, y, larghezza, altezza = (int(v * self.scala) for v in (x, y, larghezza, altezza))
        sinistra, cima = self.posto
        zona = sinistra + x, cima + y, max(larghezza, 1), max(altezza, 1)
        visto = self.schermo.zona(*zona)
        while True: # until it is not seen half drawn: the server answers between two drawings
            self.schermo.fa("xprop", "-root", "-len", "1", "_NET_WM_NAME")
            prima, visto = visto, self.schermo.zona(*zona)
            if visto == prima:
                return visto

    def intera(self):
        return self.zona(0, 0, *MISURA)

    def tavolo(self):
        return self.zona(225, 21, 550, 388)

    def stato(self):
        """The status line."""
        return self.zona(228, 418, 465, 18)

    def chiudi(self):
        """The close button."""
        self.schermo.fa("wmctrl", "-i", "-c", self.id)

    def esito(self):
        """The exit code; whatever ended badly shows what it said."""
        codice = self.processo.wait(timeout=ATTESA)
        if codice:
            print((self.base / "errori").read_text(errors="replace"), file=sys.stderr)
        return codice

    def close(self):
        if self.processo.poll() is None:
            self.processo.send_signal(signal.SIGKILL)
            self.processo.wait()
        shutil.rmtree(self.base, ignore_errors=True)


class Prova(unittest.TestCase):
    """A test with a display, shared by its class."""

    @classmethod
    def setUpClass(cls):
        cls.schermo = Schermo()
        cls.addClassCleanup(cls.schermo.close)

    def avvia(self, *argomenti, **variabili):
        finestra = Finestra(self.schermo, *argomenti, **variabili)
        self.addCleanup(finestra.close)
        return finestra
