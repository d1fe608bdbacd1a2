"""What all cards are made of: colours, the four suit signs and a few SVG elements as text."""

LARGHEZZA, ALTEZZA = 71, 96
ROSSO, BLU, ORO = "#c41e3a", "#1f3f8f", "#e9b52c"
NERO, BIANCO = "#1c1c22", "#ffffff"

# By the card number's last two bits: clubs, diamonds, hearts, spades.
SEMI = "FQCP"
VALORI = ("A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K")

# Outlines in a box from -1 to 1, point upwards.
SAGOME = {
    "C": "M0,0.95 C-0.42,0.38 -1,0.05 -1,-0.4 C-1,-0.78 -0.74,-0.95 -0.5,-0.95 "
         "C-0.24,-0.95 -0.07,-0.78 0,-0.52 C0.07,-0.78 0.24,-0.95 0.5,-0.95 "
         "C0.74,-0.95 1,-0.78 1,-0.4 C1,0.05 0.42,0.38 0,0.95Z",
    "Q": "M0,-1 Q0.34,-0.44 0.82,0 Q0.34,0.44 0,1 Q-0.34,0.44 -0.82,0 Q-0.34,-0.44 0,-1Z",
    "P": "M0,-1 C0.3,-0.52 0.95,-0.2 0.95,0.26 C0.95,0.72 0.38,0.8 0.1,0.46 "
         "C0.12,0.72 0.22,0.9 0.42,1 L-0.42,1 C-0.22,0.9 -0.12,0.72 -0.1,0.46 "
         "C-0.38,0.8 -0.95,0.72 -0.95,0.26 C-0.95,-0.2 -0.3,-0.52 0,-1Z",
    "F": "M-0.16,-0.02 C-0.4,-0.1 -0.48,-0.34 -0.46,-0.52 C-0.44,-0.82 -0.22,-1 0,-1 "
         "C0.22,-1 0.44,-0.82 0.46,-0.52 C0.48,-0.34 0.4,-0.1 0.16,-0.02 "
         "C0.3,-0.16 0.46,-0.22 0.58,-0.2 C0.84,-0.16 1,0.06 1,0.28 C1,0.54 0.8,0.72 0.56,0.72 "
         "C0.34,0.72 0.16,0.6 0.09,0.42 C0.11,0.7 0.22,0.9 0.42,1 L-0.42,1 "
         "C-0.22,0.9 -0.11,0.7 -0.09,0.42 C-0.16,0.6 -0.34,0.72 -0.56,0.72 "
         "C-0.8,0.72 -1,0.54 -1,0.28 C-1,0.06 -0.84,-0.16 -0.58,-0.2 "
         "C-0.46,-0.22 -0.3,-0.16 -0.16,-0.02Z",
}


def tinta(segno):
    return ROSSO if segno in "CQ" else NERO


def contorno(bordo, spessore):
    if bordo is None:
        return ""
    return (f' stroke="{bordo}" stroke-width="{spessore:g}"'
            ' stroke-linejoin="round" stroke-linecap="round"')


def tratto(disegno, interno="none", bordo=None, spessore=0.8):
    return f'<path d="{disegno}" fill="{interno}"{contorno(bordo, spessore)}/>'


def disco(x, y, raggio, interno, bordo=None, spessore=0.8):
    return (f'<circle cx="{x:.5g}" cy="{y:.5g}" r="{raggio:g}" fill="{interno}"'
            f'{contorno(bordo, spessore)}/>')


def rettangolo(x, y, larghezza, altezza, interno, bordo=None, raggio=0):
    angoli = f' rx="{raggio:g}" ry="{raggio:g}"' if raggio else ""
    return (f'<rect x="{x:g}" y="{y:g}" width="{larghezza:g}" height="{altezza:g}"{angoli} '
            f'fill="{interno}"{contorno(bordo, 1)}/>')


def cerchio(x, y, raggio_x, raggio_y):
    """An ellipse as path data, to be joined with other strokes."""
    meta = f"a{raggio_x:g},{raggio_y:g} 0 1 0"
    return f"M{x - raggio_x:g},{y:g} {meta} {2 * raggio_x:g},0 {meta} {-2 * raggio_x:g},0"


def seme(segno, x, y, raggio, rovescio=False, colore=None):
    verso = -raggio if rovescio else raggio
    return (f'<path transform="translate({x:.5g},{y:.5g}) scale({raggio:g},{verso:g})" '
            f'fill="{colore or tinta(segno)}" d="{SAGOME[segno]}"/>')


def capovolto(disegno):
    """The same drawing turned by half a turn about the middle of the card."""
    return f'<g transform="rotate(180,{LARGHEZZA / 2:g},{ALTEZZA / 2:g})">{disegno}</g>'
