"""Numbers and texts of the reference PDF writer.

Everything that the writer keeps as a 32-bit number goes through Singolo();
all products and sums are formed in double precision.  Inside the writer a
text is a str whose characters are the bytes of the file (0 to 255).
"""

import math
import struct

PI = 4 * math.atan(1)

# The codes that Windows-1252 leaves undefined stand for themselves.
INDEFINITI = (0x81, 0x8D, 0x8F, 0x90, 0x9D)


class ErroreScrittore(Exception):
    """A call that the writer must refuse."""


def Singolo(valore):
    """The nearest 32-bit float, as a double."""
    return struct.unpack("<f", struct.pack("<f", valore))[0]


def Byte(testo):
    """Windows-1252 bytes of a text, as characters 0 to 255; "?" outside."""
    byte = []
    for carattere in testo:
        if ord(carattere) in INDEFINITI:
            byte.append(carattere)
        else:
            byte.append(carattere.encode("cp1252", "replace").decode("latin-1"))
    return "".join(byte)


def Nome(byte):
    """A caller's text as a name: what is no regular character as "#" and two digits."""
    if "\0" in byte or len(byte) > 127:
        raise ErroreScrittore(f"no name: {byte!r}")
    return "".join(c if "!" <= c <= "~" and c not in "()<>[]{}/%#" else f"#{ord(c):02X}"
                   for c in byte)


def CodiceUnicode(carattere):
    """Unicode code point of a character of the file."""
    codice = ord(carattere)
    if codice in INDEFINITI:
        return codice
    return ord(bytes([codice]).decode("cp1252"))


def Numero(valore, decimali=3):
    """Rounded to decimals, ties to even on the product; shortest; never -0."""
    scala = 10 ** decimali
    intero = round(float(valore) * scala)  # Python rounds halves to even
    segno = "-" if intero < 0 else ""
    parte, resto = divmod(abs(intero), scala)
    if resto == 0:
        return f"{segno}{parte}"
    return f"{segno}{parte}.{resto:0{decimali}d}".rstrip("0")


def StringaPdf(testo):
    """Escapes a text for a PDF string: backslash first, then parentheses."""
    return testo.replace("\\", "\\\\").replace("(", "\\(").replace(")", "\\)")


def Segnaposto(tipo, valore):
    """The text that replaces one placeholder, None for an unknown one."""
    if tipo in ("#i", "#s", "#c") and isinstance(valore, str):
        raise ErroreScrittore(f"a number is needed, not {valore!r}")
    if tipo == "#i":
        return str(math.floor(valore))
    if tipo == "#s":
        return Numero(valore)
    if tipo == "#c":
        return Numero(valore / 255)
    if tipo == "#t":
        return valore
    if tipo == "#p":
        return StringaPdf(valore)
    if tipo == "#b":
        return "true" if valore else "false"
    if tipo == "##":
        return "#"
    return None


def Espandi(modello, argomenti):
    """Fills a template; None when it has fewer placeholders than arguments.

    After a substitution the search goes on one character after the place of
    the "#", inside the value just put there: a later "#" of a value is taken
    for a placeholder in its turn, and uses up the next argument.
    """
    posizione = -1
    for argomento in argomenti:
        posizione = modello.find("#", posizione + 1)
        if posizione < 0:
            return None
        valore = Segnaposto(modello[posizione:posizione + 2], argomento)
        if valore is not None:
            modello = modello[:posizione] + valore + modello[posizione + 2:]
    return modello


# ---------------------------------------------------------------------------
# Colours
# ---------------------------------------------------------------------------

COLORI = {
    "BLACK": "#000000", "GRAY": "#808080", "SILVER": "#C0C0C0",
    "WHITE": "#FFFFFF", "FUCHSIA": "#FF00FF", "MAGENTA": "#FF00FF",
    "RED": "#FF0000", "YELLOW": "#FFFF00",
    # Full intensity, unlike the web colour of this name.
    "GREEN": "#00FF00",
    "AQUA": "#00FFFF", "CYAN": "#00FFFF", "BLUE": "#0000FF",
}


def NumeroIniziale(testo):
    """The number that a text begins with, 0 when there is none."""
    for lunghezza in range(len(testo), 0, -1):
        try:
            return float(testo[:lunghezza])
        except ValueError:
            continue
    return 0.0


def ColoreNominato(colore):
    """Resolves a colour: a name or a grey becomes "#" and six digits."""
    if colore.startswith("%"):
        grigio = 255 - math.floor(NumeroIniziale(colore[1:]) * 255 / 100)
        return "#" + f"{grigio:02X}" * 3
    return COLORI.get(colore.upper(), colore)


def Componenti(colore):
    """Red, green, blue of a "#" colour; missing digits are empty."""
    coppie = (colore[1:3], colore[3:5], colore[5:7])
    return [int(coppia, 16) if coppia else 0 for coppia in coppie]


def AColore(valori):
    """A colour text from 3 (RGB) or 4 (CMYK in percent) components."""
    if len(valori) == 3:
        return "#" + "".join(f"{round(v):02X}" for v in valori)
    if len(valori) != 4:
        return "#000000"
    ciano, magenta, giallo, nero = (min(v, 100) for v in valori)
    return "#" + "".join(
        f"{round(255 * (1 - v / 100) * (1 - nero / 100)):02X}"
        for v in (ciano, magenta, giallo))
