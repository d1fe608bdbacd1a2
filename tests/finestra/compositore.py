"""A Wayland desktop of one's own, on a display of its own, and the window as it stands there.

A Wayland client cannot tell where its windows are, so they are looked for in the picture: whatever
is not the background.
"""

import contextlib
import signal
import subprocess
import time
from pathlib import Path

from schermo import MISURA, POSTI, Finestra, Schermo, aspetta

CONFIGURAZIONE = """[core]
idle-time=0
[shell]
background-color=0xff400080
panel-position=none
startup-animation=none
close-animation=none
locking=false
[input-method]
path=
"""
SFONDO = bytes.fromhex("800040") # blue, green, red

# The frame that Qt draws around a window: left, top, right, bottom.
CORNICE = 3, 30, 3, 3
INTERA = MISURA[0] + CORNICE[0] + CORNICE[2], MISURA[1] + CORNICE[1] + CORNICE[3]

# The frame's buttons and its title, from the upper left corner of the frame.
CHIUDI = INTERA[0] - 17, 15
INGRANDISCI = INTERA[0] - 40, 15
TITOLO = 200, 15


class Compositore(Schermo):
    """weston in a window that fills Xvfb, which takes clicks and keys as any X program does."""

    def _avvia_gestore(self):
        configurazione = Path(self.casa) / "weston.ini"
        configurazione.write_text(CONFIGURAZIONE)
        with (Path(self.casa) / "weston.log").open("wb") as registro:
            gestore = subprocess.Popen(
                ["weston", "--backend=x11-backend.so", "--use-pixman", "--socket=wayland-prova",
                 f"--width={self.larghezza}", f"--height={self.altezza}",
                 f"--config={configurazione}"],
                env=self.ambiente, stdout=registro, stderr=registro)
        aspetta(lambda: (Path(self.casa) / "wayland-prova").exists(), "weston")
        return gestore

    @contextlib.contextmanager
    def taciuto(self):
        """Meanwhile it does nothing, as on a machine that has no time for it."""
        self.gestore.send_signal(signal.SIGSTOP)
        try:
            yield
        finally:
            self.gestore.send_signal(signal.SIGCONT)

    def aspetta_sfondo(self):
        aspetta(lambda: self.zona(9, 9, 1, 1)[:3] == SFONDO, "lo sfondo di weston")

    def occupato(self):
        """(left, top, width, height) of what stands on the background; None without anything."""
        larghezza = self.larghezza - 4 # the tip of the resting pointer is seen beyond
        vuota = self.zona(0, self.altezza - 1, 1, 1) * larghezza
        piene = [y for y in range(self.altezza) if self.zona(0, y, larghezza, 1) != vuota]
        if not piene:
            return None
        riga = self.zona(0, piene[len(piene) // 2], larghezza, 1)
        colonne = [x for x in range(larghezza) if riga[4 * x:4 * x + 3] != SFONDO]
        if not colonne:
            return None
        return (colonne[0], piene[0], colonne[-1] - colonne[0] + 1, piene[-1] - piene[0] + 1)


class FinestraWayland(Finestra):
    """The program on a Compositore; its window may jump to another place."""

    def __init__(self, schermo, **variabili):
        super().__init__(schermo, **{"QT_QPA_PLATFORM": "wayland",
                                     "WAYLAND_DISPLAY": "wayland-prova", **variabili})

    def pronta(self):
        """The window stands there alone, in its own size; keeps its place."""
        aspetta(lambda: self._scoperta() == INTERA, "la finestra intera", passo=0.1)
        self._colloca()
        return self

    def _colloca(self):
        self.cornice = self.schermo.occupato()[:2]
        self.posto = tuple(c + m for c, m in zip(self.cornice, CORNICE))

    def _finita(self):
        return self.processo.poll() is not None

    def ferma(self):
        """pronta() once more, a moment later."""
        time.sleep(0.5)
        return self.pronta()

    def _scoperta(self):
        # weston follows the pointer by its steps from a place that it must have seen: after the
        # longest way from corner to corner it agrees with the display.
        self.scosta()
        self.va(0, 0)
        self.scosta()
        return (self.schermo.occupato() or (0,) * 4)[2:]

    def va(self, x, y):
        self.schermo.fa("xdotool", "mousemove", str(x), str(y))

    def preme(self, posto, volte=1):
        """Clicks at a place on the frame."""
        self.va(*(c + p for c, p in zip(self.cornice, posto)))
        time.sleep(0.05)
        self.schermo.fa("xdotool", "click", "--repeat", str(volte), "--delay", "60", "1")

    def clicca(self, nome):
        self.va(*(o + p for o, p in zip(self.posto, POSTI[nome])))
        time.sleep(0.05)
        self.schermo.fa("xdotool", "click", "1")

    def scosta(self):
        self.va(self.schermo.larghezza - 1, self.schermo.altezza - 1)

    def fotografa_tutto(self, nome):
        """Keeps a picture of the whole desktop under this name."""
        self.fotografa(nome, id="root")

    def chiudi(self):
        """Clicks on the close button, once more where the window has jumped away from under it."""
        for _ in range(3):
            aspetta(lambda: self._finita() or self._scoperta() == INTERA, "la finestra intera")
            if self._finita():
                return
            self._colloca()
            self.preme(CHIUDI)
            try:
                self.processo.wait(timeout=15)
                return
            except subprocess.TimeoutExpired:
                pass
