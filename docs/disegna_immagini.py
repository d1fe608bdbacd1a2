"""Makes the pictures of the manual from the pages of PDF files.

    disegna_immagini.py FOLDER FILE.pdf...     writes FOLDER/NAME.png for each NAME.pdf

A document of one page fills the picture; the pages of a longer one stand side by side, in rows.
The pages of a document named like "galleria" become a picture each: galleria-1.png and so on.
"""

import subprocess
import sys
import tempfile
from pathlib import Path

from PIL import Image, ImageChops

LARGHEZZA = 468
LARGHEZZA_FOGLIO = 400  # of a page of A4, which is twice as high
LARGHEZZE = {"taglie-pdf": 620}  # where the cards are to be read
MARGINE = 6
COLORI = 180
COLORI_RARI = 40
CORNICE = (190, 190, 190)
UNA_PER_PAGINA = {"galleria"}


def pagine(percorso, larghezza):
    """The pages as other readers show them, so many pixels wide, with a thin frame."""
    with tempfile.TemporaryDirectory(prefix="immagini.") as cartella:
        subprocess.run(["pdftoppm", "-cropbox", "-r", "160", percorso, Path(cartella) / "p"],
                       check=True)
        return [incorniciata(Image.open(file).convert("RGB"), larghezza)
                for file in sorted(Path(cartella).glob("*.ppm"))]


def incorniciata(figura, larghezza):
    dentro = figura.resize((larghezza - 2, round(figura.height * (larghezza - 2) / figura.width)),
                           Image.LANCZOS)
    fuori = Image.new("RGB", (dentro.width + 2, dentro.height + 2), CORNICE)
    fuori.paste(dentro, (1, 1))
    return fuori


def affiancate(figure):
    """In rows of at most three; a page that lies is as wide as the others are high."""
    in_riga = min(len(figure), 3)
    lato = (LARGHEZZA - (in_riga - 1) * MARGINE) // in_riga
    alto = max(round(figura.height * lato / figura.width) for figura in figure)
    tutte = [figura.resize((lato, round(figura.height * lato / figura.width)), Image.LANCZOS)
             if figura.height > figura.width else
             figura.resize((alto, round(figura.height * alto / figura.width)), Image.LANCZOS)
             for figura in figure]
    righe = [tutte[i:i + in_riga] for i in range(0, len(tutte), in_riga)]
    tela = Image.new("RGB", (LARGHEZZA, len(righe) * (alto + MARGINE) - MARGINE), "white")
    for numero, riga in enumerate(righe):
        x = 0
        for figura in riga:
            tela.paste(figura, (x, numero * (alto + MARGINE)))
            x += figura.width + MARGINE
    return tela


def immagini(percorso):
    """The pictures of a document, by the names of their files."""
    nome = percorso.stem
    if nome in UNA_PER_PAGINA:
        return {f"{nome}-{numero}.png": figura for numero, figura
                in enumerate(pagine(percorso, LARGHEZZA_FOGLIO), 1)}
    figure = pagine(percorso, LARGHEZZA)
    if len(figure) > 1:
        return {nome + ".png": affiancate(figure)}
    if figure[0].height <= figure[0].width:
        return {nome + ".png": figure[0]}
    return {nome + ".png": pagine(percorso, LARGHEZZE.get(nome, LARGHEZZA_FOGLIO))[0]}


def ridotta(figura):
    """With a palette of its own; dithered only where the colours do not suffice."""
    # Most by area; some by extent, for the few red pixels that one looks at on a green page.
    scelti = []
    for quanti, metodo in [(COLORI, Image.Quantize.MEDIANCUT),
                           (COLORI_RARI, Image.Quantize.MAXCOVERAGE)]:
        scelta = figura.quantize(quanti, method=metodo, dither=Image.Dither.NONE)
        scelti += scelta.getpalette()[:3 * quanti]
    terne = zip(scelti[0::3], scelti[1::3], scelti[2::3])
    # The averages of whites and of blacks are the paper's and the ink's.
    puliti = [(255,) * 3 if min(terna) > 246 else (0,) * 3 if max(terna) < 12 else terna
              for terna in terne]
    tavolozza = Image.new("P", (1, 1))
    tavolozza.putpalette([valore for terna in puliti for valore in terna])
    return figura.quantize(palette=tavolozza, dither=Image.Dither.FLOYDSTEINBERG)


def differenza(una, altra):
    """Mean distance of two pictures of one size, 0 to 255."""
    scarti = ImageChops.difference(una.convert("RGB"), altra.convert("RGB")).convert("L")
    return sum(valore * quanti for valore, quanti in enumerate(scarti.histogram())) / (
        scarti.width * scarti.height)


def principale(argomenti):
    cartella, *percorsi = map(Path, argomenti)
    for percorso in percorsi:
        for nome, figura in immagini(percorso).items():
            ridotta(figura).save(cartella / nome, optimize=True)
            print(nome, figura.size, (cartella / nome).stat().st_size)


if __name__ == "__main__":
    principale(sys.argv[1:])
