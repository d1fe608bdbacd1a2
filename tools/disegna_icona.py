#!/usr/bin/env python3
"""Draws the program's icon: two cards, a black one and a red one, on the green table.

Usage: tools/disegna_icona.py resources

Writes scalvino.svg, the pictures icone/scalvino-24.png to -256.png (needs rsvg-convert),
icone/scalvino-16.png, which has a drawing of its own, and scalvino.ico, 32 x 32 in 16 colours
(needs python3-pil).
"""

import io
import pathlib
import struct
import subprocess
import sys
import zlib

from PIL import Image

from tratti_carte import BIANCO, NERO, ROSSO, seme

MISURE = (24, 32, 48, 64, 128, 256)
LATO_ICO = 32
# Chosen by hand: an automatic choice spends its last colours on pink specks along the green edges.
# The last one stands for a transparent pixel and must be black below the mask.
COLORI_ICO = ("24500a", "3c8405", "55b800", "93cf66", "7c9a6c", "b4c8a8", "e2ebdc", "ffffff",
              "1c1c22", "4c5048", "8a9084", "c41e3a", "d4566c", "e79aa8", "5c0f1c", "000000")
TRASPARENTE = len(COLORI_ICO) - 1
# Below this the pixel belongs to the mask: a 16-colour icon knows no half transparency.
OPACO = 128


# In 16 pixels the tilted cards of the drawing become a blur: here they stand upright, and every
# edge falls between two pixels.
SEDICI = """
..GGGGGGGGGGGG..
.GggggggggggggG.
GwwwwwwwgggggggG
GwwwwwwwgggggggG
GwwwkwwwswwwwwwG
GwwkkkwwswwwwwwG
GwkkkkkwswrwrwwG
GwkkkkkwsrrrrrwG
GwwwkwwwsrrrrrwG
GwwkkkwwswrrrwwG
GwwwwwwwswwrwwwG
GwwwwwwwswwwwwwG
GgggggggswwwwwwG
GgggggggswwwwwwG
.GggggggggggggG.
..GGGGGGGGGGGG..
""".split()
COLORI_SEDICI = {"G": "#24500a", "g": "#55b800", "w": BIANCO, "s": "#93a488", "k": NERO, "r": ROSSO}


def carta(segno, x, y, angolo, posto):
    foglio = ('<rect x="-13" y="-19" width="26" height="38" rx="3.5" ry="3.5" '
              f'fill="{BIANCO}" stroke="#24500a" stroke-width="2"/>')
    return (f'<g transform="translate({x:g},{y:g}) rotate({angolo:g})">{foglio}'
            f'{seme(segno, *posto)}</g>')


def disegno():
    tavolo = ('<rect x="1.5" y="1.5" width="61" height="61" rx="12" ry="12" fill="#55b800" '
              'stroke="#24500a" stroke-width="3"/>')
    return ('<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
            'width="64" height="64" viewBox="0 0 64 64">\n<title>Scalvino</title>\n'
            f'{tavolo}\n{carta("P", 22.5, 30.5, -12, (-3.5, -5, 8.5))}\n'
            f'{carta("C", 41.5, 34, 12, (0, 0.5, 10))}\n</svg>\n')


def figura(svg, lato):
    """The drawing as PNG bytes of lato x lato pixels."""
    return subprocess.run(["rsvg-convert", "-w", str(lato), "-h", str(lato), str(svg)],
                          capture_output=True, check=True).stdout


def pezzo(tipo, dati):
    """A chunk of a PNG file."""
    return struct.pack(">I", len(dati)) + tipo + dati + struct.pack(">I", zlib.crc32(tipo + dati))


def a_mano(righe):
    """Rows of letters as PNG bytes, a dot being transparent."""
    punti = {segno: bytes.fromhex(colore[1:]) + b"\xff" for segno, colore in COLORI_SEDICI.items()}
    punti["."] = b"\0\0\0\0"
    byte = b"".join(b"\0" + b"".join(punti[segno] for segno in riga) for riga in righe)
    testa = struct.pack(">IIBBBBB", len(righe[0]), len(righe), 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + pezzo(b"IHDR", testa)
            + pezzo(b"IDAT", zlib.compress(byte, 9)) + pezzo(b"IEND", b""))


def distanza(colore, punto):
    return sum((a - b) ** 2 for a, b in zip(colore, punto))


def indice(punto, colori):
    if punto[3] < OPACO:
        return TRASPARENTE
    return min(range(TRASPARENTE), key=lambda numero: distanza(colori[numero], punto))


def righe_dal_basso(indici):
    for riga in reversed(range(LATO_ICO)):
        yield indici[riga * LATO_ICO : (riga + 1) * LATO_ICO]


def icona(png):
    """One icon directory with one picture: header, 16 colours, pixels bottom up, mask bottom up."""
    colori = [bytes.fromhex(colore) for colore in COLORI_ICO]
    immagine = Image.open(io.BytesIO(png)).convert("RGBA")
    indici = [indice(punto, colori) for punto in immagine.getdata()]
    tavolozza = b"".join(colore[::-1] + b"\0" for colore in colori)
    punti, maschera = b"", b""
    for riga in righe_dal_basso(indici):
        punti += bytes(16 * a + b for a, b in zip(riga[::2], riga[1::2]))
        bit = "".join("1" if numero == TRASPARENTE else "0" for numero in riga)
        maschera += int(bit, 2).to_bytes(LATO_ICO // 8, "big")
    testa = struct.pack("<IiiHHIIiiII", 40, LATO_ICO, 2 * LATO_ICO, 1, 4, 0,
                        len(punti) + len(maschera), 0, 0, len(colori), 0)
    corpo = testa + tavolozza + punti + maschera
    voce = struct.pack("<BBBBHHII", LATO_ICO, LATO_ICO, len(colori), 0, 1, 4, len(corpo), 22)
    return struct.pack("<HHH", 0, 1, 1) + voce + corpo


def principale(cartella):
    svg = cartella / "scalvino.svg"
    svg.write_text(disegno(), encoding="utf-8", newline="\n")
    (cartella / "icone").mkdir(exist_ok=True)
    for lato in MISURE:
        (cartella / "icone" / f"scalvino-{lato}.png").write_bytes(figura(svg, lato))
    (cartella / "icone" / "scalvino-16.png").write_bytes(a_mano(SEDICI))
    (cartella / "scalvino.ico").write_bytes(icona(figura(svg, LATO_ICO)))


if __name__ == "__main__":
    principale(pathlib.Path(sys.argv[1]))
