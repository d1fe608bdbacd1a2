#!/usr/bin/env python3
"""Draws the 52 faces and the back of the card table: resources/carte.svg.

Usage: tools/disegna_carte.py resources/carte.svg

Every card is one group of 71 x 96 units with the same outline, so that a program which asks for
the bounding box of "carta0" ... "carta51" or "dorso53" always gets the same size. The number of a
face is 4 x (value - 1) + suit, the suits being clubs, diamonds, hearts, spades. Only what SVG Tiny
1.2 knows is used, and of that neither text nor references: the picture may not depend on a font
of the machine, and parts drawn by reference have no box of their own in every renderer.
"""

import sys

import figure_carte as figure
from tratti_carte import (ALTEZZA, BIANCO, BLU, LARGHEZZA, ORO, SEMI, VALORI, capovolto,
                          cerchio, disco, rettangolo, seme, tinta, tratto)

COLONNE = (23, 35.5, 48)
RIGHE_ESTERNE = (17, 79)
PASSO_QUATTRO_RIGHE = (RIGHE_ESTERNE[1] - RIGHE_ESTERNE[0]) / 3
MEZZO = 48

# Index glyphs as pen strokes two units wide. Upright strokes run on whole units, so that at 71 x 96
# pixels they fill whole pixels. Box: x 4 to 10, y 6 to 16. With the pen nothing passes x 11: cards
# lie 60 units apart, and the turned index of a covered card must not peep out.
PENNA = 2
INDICI = {
    "A": "M4,16 L7,6.2 L10,16 M5.2,13 L8.8,13",
    "2": "M4.2,8.6 C4.4,5.2 9.8,5 9.8,8.8 C9.8,11.6 4.6,13 4.1,16 L10,16",
    "3": "M4.4,6 L9.8,6 L6.9,9.8 C11,9.7 11,16 6.9,16 C5.5,16 4.5,15.3 4,14.3",
    "4": "M8,16 L8,6 L4,13 L10,13",
    "5": "M9.6,6 L5,6 L4.6,10.6 C6.2,9.2 10,9.4 10,12.8 C10,16.6 5.2,17 4,14.5",
    "6": "M9.2,6.5 C5.9,5.6 4,8.6 4,12.6 " + cerchio(7, 12.8, 3, 3.2),
    "7": "M4,6 L10,6 L6.4,16",
    "8": cerchio(7, 8.3, 2.4, 2.3) + " " + cerchio(7, 13.3, 3, 2.7),
    "9": "M4.8,15.5 C8.1,16.4 10,13.4 10,9.4 " + cerchio(7, 9.2, 3, 3.2),
    "10": "M3,7.8 L4,6 L4,16 " + cerchio(8.5, 11, 1.5, 5),
    "J": "M9,6 L9,13 C9,17 4.2,17 4,13.2 M7,6 L10,6",
    "Q": cerchio(7, 11, 3, 5) + " M7.8,13.6 L10,16.2",
    "K": "M4,6 L4,16 M10,6 L4.4,12 M6.4,10 L10,16",
}


def posizioni(valore):
    """Places of the pips of the number cards 2 to 10."""
    sinistra, centro, destra = COLONNE
    alto, basso = RIGHE_ESTERNE
    terza = alto + PASSO_QUATTRO_RIGHE
    angoli = [(x, y) for y in (alto, basso) for x in (sinistra, destra)]
    fianchi = [(sinistra, MEZZO), (destra, MEZZO)]
    lati = angoli + [(x, y) for y in (terza, 96 - terza) for x in (sinistra, destra)]
    sette = angoli + fianchi + [(centro, (alto + MEZZO) / 2)]
    return {
        2: [(centro, alto), (centro, basso)],
        3: [(centro, alto), (centro, MEZZO), (centro, basso)],
        4: angoli,
        5: angoli + [(centro, MEZZO)],
        6: angoli + fianchi,
        7: sette,
        8: sette + [(centro, (basso + MEZZO) / 2)],
        9: lati + [(centro, MEZZO)],
        10: lati + [(centro, (alto + terza) / 2), (centro, 96 - (alto + terza) / 2)],
    }[valore]


def foglio_bianco():
    return (f'<rect x="0.5" y="0.5" width="{LARGHEZZA - 1}" height="{ALTEZZA - 1}" rx="4" ry="4" '
            f'fill="{BIANCO}" stroke="#303038" stroke-width="1"/>')


def indici(nome, segno):
    uno = tratto(INDICI[nome], bordo=tinta(segno), spessore=PENNA) + seme(segno, 6.5, 23.6, 4.4)
    return uno + capovolto(uno)


def asso(segno):
    if segno != "P":
        return seme(segno, 35.5, MEZZO, 15)
    return (seme("P", 35.5, 47, 21) + disco(35.5, 51, 7.4, BIANCO, bordo=ORO, spessore=1.6)
            + seme("C", 35.5, 51.2, 4.4))


def numeri(valore, segno):
    raggio = 6 if valore > 8 else 6.6
    return "".join(seme(segno, x, y, raggio, rovescio=y > MEZZO) for x, y in posizioni(valore))


def faccia(valore, segno):
    if valore == 1:
        centro = asso(segno)
    elif valore <= 10:
        centro = numeri(valore, segno)
    else:
        centro = figure.figura(VALORI[valore - 1], segno)
    return foglio_bianco() + centro + indici(VALORI[valore - 1], segno)


def griglia(sinistra, alto, destra, basso, colonne, righe):
    """Crossing lines and a stud at each node; cells divide the frame evenly, none is cut."""
    passo_x, passo_y = (destra - sinistra) / colonne, (basso - alto) / righe
    linee, borchie = [], []
    for i in range(colonne):
        for j in range(righe):
            x, y = sinistra + i * passo_x, alto + j * passo_y
            linee.append(f"M{x:.5g},{y:.5g} l{passo_x:.5g},{passo_y:.5g}")
            linee.append(f"M{x + passo_x:.5g},{y:.5g} l{-passo_x:.5g},{passo_y:.5g}")
            if i and j:
                borchie.append(disco(x, y, 1.2, ORO))
    return tratto(" ".join(linee), bordo="#7f9fe4", spessore=1.1) + "".join(borchie)


def dorso():
    medaglione = disco(35.5, MEZZO, 14, BLU, bordo=ORO, spessore=1.6)
    for segno, dx, dy in (("P", 0, -6.2), ("C", 6.2, 0), ("F", 0, 6.2), ("Q", -6.2, 0)):
        chiaro = BIANCO if segno in "PF" else "#ff8a96"
        medaglione += seme(segno, 35.5 + dx, MEZZO + dy, 4, colore=chiaro)
    return (foglio_bianco() + rettangolo(4, 4, 63, 88, BLU, raggio=2)
            + griglia(6.5, 6.5, 64.5, 89.5, 6, 9)
            + rettangolo(6.5, 6.5, 58, 83, "none", bordo=ORO) + medaglione)


def mazzo():
    """All cards on one sheet, a column for each value, so that the file can be looked at whole."""
    righe = [f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
             f'width="{13 * LARGHEZZA}" height="{5 * ALTEZZA}" '
             f'viewBox="0 0 {13 * LARGHEZZA} {5 * ALTEZZA}">',
             "<title>Carte di Scalvino</title>"]
    for numero in range(52):
        colonna, riga = divmod(numero, 4)
        righe.append(f'<g transform="translate({colonna * LARGHEZZA},{riga * ALTEZZA})">'
                     f'<g id="carta{numero}">{faccia(colonna + 1, SEMI[riga])}</g></g>')
    righe.append(f'<g transform="translate(0,{4 * ALTEZZA})"><g id="dorso53">{dorso()}</g></g>')
    return "\n".join(righe + ["</svg>", ""])


if __name__ == "__main__":
    with open(sys.argv[1], "w", encoding="utf-8", newline="\n") as uscita:
        uscita.write(mazzo())
