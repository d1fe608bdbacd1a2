"""Draws the small pictures of the manual's examples and of the gallery.

    disegna_figure.py [FOLDER]     by default its own: tramonto.jpg, mano.gif, semi.bmp

Everything is drawn four times as large and reduced, so that edges are smooth.
"""

import math
import sys
from pathlib import Path

from PIL import Image, ImageDraw, ImageFilter

VOLTE = 4
PANNO, ORO, ROSSO, NERO = (31, 78, 61), (228, 179, 99), (193, 39, 45), (34, 34, 34)


def tela(larghezza, altezza, colore=(255, 255, 255)):
    return Image.new("RGB", (larghezza * VOLTE, altezza * VOLTE), colore)


def ridotta(figura):
    return figura.resize((figura.width // VOLTE, figura.height // VOLTE), Image.LANCZOS)


# ---- A sunset, for the format of photographs -----------------------------------------------------

def cielo(larghezza, altezza):
    figura = tela(larghezza, altezza)
    colori = [(38, 44, 92), (122, 66, 118), (226, 118, 88), (250, 204, 120)]
    for y in range(figura.height):
        posto = min(y / (figura.height * 0.72), 0.999) * (len(colori) - 1)
        prima, dopo = colori[int(posto)], colori[int(posto) + 1]
        quota = posto - int(posto)
        riga = tuple(round(a + (b - a) * quota) for a, b in zip(prima, dopo))
        ImageDraw.Draw(figura).line([(0, y), (figura.width, y)], fill=riga)
    return figura


def colline(figura, base, ampiezza, passo, colore):
    punti = [(x, base + ampiezza * (math.sin(x / passo) + 0.4 * math.sin(x / passo * 2.7 + 1)))
             for x in range(0, figura.width + 8, 8)]
    contorno = punti + [(figura.width, figura.height), (0, figura.height)]
    ImageDraw.Draw(figura).polygon(contorno, fill=colore)


def tramonto():
    figura = cielo(240, 150)
    x, y, raggio = 640, 400, 74
    alone = Image.new("L", figura.size, 0)
    ImageDraw.Draw(alone).ellipse([x - 170, y - 170, x + 170, y + 170], fill=150)
    figura.paste((255, 226, 150), mask=alone.filter(ImageFilter.GaussianBlur(60)))
    ImageDraw.Draw(figura).ellipse([x - raggio, y - raggio, x + raggio, y + raggio],
                                   fill=(255, 240, 190))
    colline(figura, 420, 34, 150, (110, 62, 92))
    colline(figura, 478, 28, 95, (66, 48, 76))
    colline(figura, 540, 20, 70, (30, 34, 50))
    return ridotta(figura)


# ---- Cards and suits -----------------------------------------------------------------------------

def cuore(disegno, x, y, lato, colore):
    quarto = lato / 4
    for centro in (x - quarto, x + quarto):
        disegno.ellipse([centro - quarto * 1.05, y - lato / 2, centro + quarto * 1.05, y + 1],
                        fill=colore)
    disegno.polygon([(x - lato / 2, y - quarto * 0.75), (x + lato / 2, y - quarto * 0.75),
                     (x, y + lato / 2)], fill=colore)


def quadro(disegno, x, y, lato, colore):
    disegno.polygon([(x, y - lato / 2), (x + lato * 0.38, y), (x, y + lato / 2),
                     (x - lato * 0.38, y)], fill=colore)


def gambo(disegno, x, y, lato, colore):
    disegno.polygon([(x, y - lato * 0.1), (x + lato * 0.16, y + lato / 2),
                     (x - lato * 0.16, y + lato / 2)], fill=colore)


def fiore(disegno, x, y, lato, colore):
    raggio = lato * 0.23
    for dx, dy in ((0, -0.27), (-0.26, 0.1), (0.26, 0.1), (0, 0)):
        cx, cy = x + dx * lato, y + dy * lato
        disegno.ellipse([cx - raggio, cy - raggio, cx + raggio, cy + raggio], fill=colore)
    gambo(disegno, x, y, lato, colore)


def picca(disegno, x, y, lato, colore):
    quarto = lato / 4
    for centro in (x - quarto * 0.95, x + quarto * 0.95):
        disegno.ellipse([centro - quarto, y - quarto * 0.6, centro + quarto, y + quarto * 1.3],
                        fill=colore)
    disegno.polygon([(x, y - lato / 2), (x + lato * 0.45, y + quarto * 0.1),
                     (x - lato * 0.45, y + quarto * 0.1)], fill=colore)
    gambo(disegno, x, y, lato, colore)


SEMI = [(cuore, ROSSO), (quadro, ROSSO), (fiore, NERO), (picca, NERO)]


def carta(seme, colore):
    figura = Image.new("RGBA", (56 * VOLTE, 80 * VOLTE))
    disegno = ImageDraw.Draw(figura)
    disegno.rounded_rectangle([2, 2, figura.width - 3, figura.height - 3], 24,
                              fill="white", outline=(90, 90, 90), width=4)
    seme(disegno, figura.width / 2, figura.height / 2, 120, colore)
    return figura


def mano():
    figura = tela(200, 130, PANNO)
    for posto, (seme, colore) in enumerate(SEMI):
        angolo = 36 - 24 * posto
        girata = carta(seme, colore).rotate(angolo, expand=True, resample=Image.BICUBIC)
        centro = (400 - 330 * math.sin(math.radians(angolo)),
                  570 - 330 * math.cos(math.radians(angolo)))
        angolo_alto = (round(centro[0] - girata.width / 2), round(centro[1] - girata.height / 2))
        figura.paste(girata, angolo_alto, girata)
    return ridotta(figura).quantize(64)


def semi():
    figura = tela(160, 40, (247, 241, 225))
    for posto, (seme, colore) in enumerate(SEMI):
        seme(ImageDraw.Draw(figura), 80 + 160 * posto, 80, 120, colore)
    return ridotta(figura).quantize(32)


def principale(argomenti):
    cartella = Path(argomenti[0]) if argomenti else Path(__file__).parent
    tramonto().save(cartella / "tramonto.jpg", quality=82, optimize=True)
    mano().save(cartella / "mano.gif")
    semi().save(cartella / "semi.bmp")


if __name__ == "__main__":
    principale(sys.argv[1:])
