"""Makes the pictures of the README from the programs themselves: the window and the HTML report.

    disegna_schermate.py FOLDER BUILD REPORT.htm     writes FOLDER/finestra.png and taglie-html.png

BUILD is a build folder with the window. The coup on its table is another one each time: the window
has no seed. Needs Xvfb, openbox, xdotool, wmctrl, x11-utils, ImageMagick and Chromium.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from PIL import Image

import disegna_immagini

RADICE = Path(__file__).resolve().parent.parent
MISURE_PAGINA = (1000, 760)


def ridotta(figura):
    """Without dithering, which would roughen the even surfaces of a screen."""
    return figura.convert("RGB").quantize(256, method=Image.Quantize.MEDIANCUT,
                                          dither=Image.Dither.NONE)


def finestra(costruiti, lavoro):
    """The window at the first coup of a shoe, with nothing under the mouse."""
    os.environ.update(SCALVINO=str(costruiti / "bin" / "scalvino"), ARTEFATTI=str(lavoro),
                      LOCPATH=str(costruiti / "locale"))
    sys.path.insert(0, str(RADICE / "tests" / "finestra"))
    import schermo  # reads the environment

    video = schermo.Schermo()
    programma = schermo.Finestra(video)
    try:
        programma.pronta()
        for pulsante in ["cmdMescola", "cmdColpo"]:
            prima = programma.tavolo()
            programma.clicca(pulsante)
            schermo.aspetta(lambda: programma.tavolo() != prima, pulsante)
        programma.scosta()
        time.sleep(0.5)
        programma.fotografa("finestra")
        return Image.open(lavoro / "finestra.png").convert("RGB")
    finally:
        programma.close()
        video.close()


def pagina(report, lavoro):
    """The upper part of the page as a browser shows it, with a thin frame."""
    foto = lavoro / "pagina.png"
    browser = shutil.which("chromium") or "chromium-browser"
    subprocess.run([browser, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                    f"--user-data-dir={lavoro / 'profilo'}", f"--screenshot={foto}",
                    "--window-size={},{}".format(*MISURE_PAGINA), report.resolve().as_uri()],
                   check=True, capture_output=True, timeout=120)
    return disegna_immagini.incorniciata(Image.open(foto).convert("RGB"), MISURE_PAGINA[0])


def principale(cartella, costruiti, report):
    with tempfile.TemporaryDirectory(prefix="schermate.") as nome:
        lavoro = Path(nome)
        for file, figura in [("finestra.png", finestra(costruiti.resolve(), lavoro)),
                             ("taglie-html.png", pagina(report, lavoro))]:
            ridotta(figura).save(cartella / file, optimize=True)
            print(file, figura.size, (cartella / file).stat().st_size)


if __name__ == "__main__":
    principale(*map(Path, sys.argv[1:]))
