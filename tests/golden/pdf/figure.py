"""Picture files for the reference PDF writer: bitmaps, GIF, JPEG headers.

Only what the scenarios draw, and no care for damaged files.  A picture is a
Figura; pixels go from the top row down, rows begin at a whole byte.
"""

import os
import struct
from collections import namedtuple

# bit: bits of a pixel in the file (24 for true colours); spazio: the colour
# space's name; tavolozza: red, green, blue of each entry; filtro: "" or the
# name of the filter that the data already need; inversa: 0 stands for full.
Figura = namedtuple("Figura", "larga alta bit spazio dati tavolozza filtro inversa")


def LeggiFigura(percorso):
    lettore = {".BMP": Bmp, ".GIF": Gif, ".JPG": Jpeg, ".JPEG": Jpeg}
    with open(percorso, "rb") as archivio:
        return lettore[os.path.splitext(percorso)[1].upper()](archivio.read())


def Impacca(righe, bit):
    """Rows of indices as bytes."""
    uscita = bytearray()
    for riga in righe:
        testo = "".join(f"{indice:0{bit}b}" for indice in riga)
        testo += "0" * (-len(testo) % 8)
        uscita += int(testo, 2).to_bytes(len(testo) // 8, "big")
    return bytes(uscita)


# -- bitmaps ---------------------------------------------------------------

RLE8, RLE4, CAMPI = 1, 2, 3


def Bmp(byte):
    assert byte[:2] == b"BM"
    inizio, testata = struct.unpack_from("<II", byte, 10)
    if testata == 12:
        larga, alta, _, bit = struct.unpack_from("<HHHH", byte, 18)
        metodo, usati, voce = 0, 0, 3
    else:
        larga, alta, _, bit, metodo = struct.unpack_from("<iiHHI", byte, 18)
        usati, voce = struct.unpack_from("<I", byte, 46)[0], 4
    if bit > 8:
        return BmpColori(byte, inizio, larga, alta, bit, Maschere(byte, bit, metodo))
    if metodo in (RLE8, RLE4):
        righe = Corse(byte[inizio:], larga, alta, bit)
    else:
        righe = [[Indice(riga, x, bit) for x in range(larga)]
                 for riga in Righe(byte, inizio, larga, alta, bit)]
    da = 14 + testata
    # A palette may end early, where the pixels begin.
    fine = min(da + voce * (usati or 1 << bit), inizio)
    voci = [byte[p:p + 3] for p in range(da, fine, voce)]
    tavolozza = b"".join(v[::-1] for v in voci)
    return Figura(larga, abs(alta), bit, "DeviceRGB", Impacca(righe, bit), tavolozza, "", False)


def Indice(riga, x, bit):
    return riga[x * bit // 8] >> (8 - bit - x * bit % 8) & (1 << bit) - 1


def Righe(byte, inizio, larga, alta, bit):
    """Rows of the file from the top down; a negative height is stored so."""
    passo = (larga * bit + 31) // 32 * 4
    righe = [byte[inizio + y * passo:inizio + (y + 1) * passo] for y in range(abs(alta))]
    return righe if alta < 0 else righe[::-1]


def Maschere(byte, bit, metodo):
    if metodo == CAMPI:
        return struct.unpack_from("<III", byte, 54)
    return (0x7C00, 0x3E0, 0x1F) if bit == 16 else (0xFF0000, 0xFF00, 0xFF)


def BmpColori(byte, inizio, larga, alta, bit, maschere):
    dati, passo = bytearray(), bit // 8
    for riga in Righe(byte, inizio, larga, alta, bit):
        for x in range(0, larga * passo, passo):
            numero = int.from_bytes(riga[x:x + passo], "little")
            dati += bytes(Canale(numero, maschera) for maschera in maschere)
    return Figura(larga, abs(alta), 24, "DeviceRGB", bytes(dati), b"", "", False)


def Canale(numero, maschera):
    """A bit field as 0 to 255, to the nearest."""
    basso = maschera & -maschera
    massimo = maschera // basso
    return ((numero & maschera) // basso * 255 + massimo // 2) // massimo


def Corse(dati, larga, alta, bit):
    """Run-length pixels; what is skipped stays 0."""
    righe = [[0] * larga for _ in range(alta)]
    x = y = posto = 0
    while True:
        quanti, valore = dati[posto], dati[posto + 1]
        posto += 2
        if quanti:
            riga = bytes([valore]) * quanti
        elif valore == 0:
            x, y = 0, y + 1
            continue
        elif valore == 1:
            return righe[::-1]
        elif valore == 2:
            x, y, posto = x + dati[posto], y + dati[posto + 1], posto + 2
            continue
        else:
            quanti, lunga = valore, (valore * bit + 7) // 8
            riga = dati[posto:posto + lunga]
            posto += lunga + lunga % 2
        for i in range(quanti):
            righe[y][x + i] = Indice(riga, i, bit)
        x += quanti


# -- GIF -------------------------------------------------------------------


def Gif(byte):
    assert byte[:6] in (b"GIF87a", b"GIF89a")
    posto, tavolozza = TavolozzaGif(byte, 10, 13)
    while byte[posto] == 0x21:  # extensions
        _, posto = Blocchi(byte, posto + 2)
    larga, alta, bandiera = struct.unpack_from("<HHB", byte, posto + 5)
    posto, locale = TavolozzaGif(byte, posto + 9, posto + 10)
    codici, _ = Blocchi(byte, posto + 1)
    pixel = CodiciGif(codici, byte[posto])
    righe = [pixel[y * larga:(y + 1) * larga] for y in range(alta)]
    if bandiera & 0x40:
        ordine = [y for da, passo in ((0, 8), (4, 8), (2, 4), (1, 2))
                  for y in range(da, alta, passo)]
        righe = [righe[ordine.index(y)] for y in range(alta)]
    tavolozza = locale or tavolozza
    # The fewest bits that PDF knows and the palette needs.
    bit = next(b for b in (1, 2, 4, 8) if len(tavolozza) <= 3 << b)
    return Figura(larga, alta, bit, "DeviceRGB", Impacca(righe, bit), tavolozza, "", False)


def TavolozzaGif(byte, bandiera, inizio):
    """Where the file goes on after a palette, and the palette or nothing."""
    if not byte[bandiera] & 0x80:
        return inizio, b""
    fine = inizio + 3 * (2 << (byte[bandiera] & 7))
    return fine, byte[inizio:fine]


def Blocchi(byte, posto):
    dati = b""
    while byte[posto]:
        dati += byte[posto + 1:posto + 1 + byte[posto]]
        posto += 1 + byte[posto]
    return dati, posto + 1


def CodiciGif(dati, minimo):
    bit = int.from_bytes(dati, "little")
    pulisci, pixel = 1 << minimo, []
    tabella, larga, prima = None, minimo + 1, None
    while True:
        codice = bit & (1 << larga) - 1
        bit >>= larga
        if codice == pulisci:
            tabella = [[i] for i in range(pulisci)] + [None, None]
            larga, prima = minimo + 1, None
            continue
        if codice == pulisci + 1:
            return pixel
        if prima is not None and len(tabella) < 4096:
            testa = tabella[codice] if codice < len(tabella) else prima
            tabella.append(prima + testa[:1])
        prima = tabella[codice]
        pixel += prima
        if len(tabella) == 1 << larga and larga < 12:
            larga += 1


# -- JPEG ------------------------------------------------------------------


def Jpeg(byte):
    """Size and components from the frame header; the data stay as they are."""
    posto, adobe = 2, False
    while True:
        assert byte[posto] == 0xFF
        segno, lunga = byte[posto + 1], int.from_bytes(byte[posto + 2:posto + 4], "big")
        if segno == 0xEE and byte[posto + 4:posto + 9] == b"Adobe":
            adobe = True
        if 0xC0 <= segno <= 0xCF and segno not in (0xC4, 0xC8, 0xCC):
            break
        posto += 2 + lunga
    alta, larga, componenti = struct.unpack_from(">HHB", byte, posto + 5)
    spazio = {1: "DeviceGray", 3: "DeviceRGB", 4: "DeviceCMYK"}[componenti]
    return Figura(larga, alta, 24, spazio, byte, b"", "/DCTDecode ", adobe and componenti == 4)
