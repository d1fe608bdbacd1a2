"""Makes the small picture and font files that the readers are tried on.

    /usr/bin/python3 fai_semi.py        writes them beside itself

Most are built here byte by byte, so that their pixels are known without any decoder: BMP and GIF
tell the colours that must come out of them. The JPEG files are Pillow's, the fonts fontTools'.
"""

import io
import pathlib
import struct

LARGA, ALTA = 19, 13  # no multiple of 8 or 4: rows end inside a byte and inside a word


def colori_tavolozza(quanti):
    """Red, green, blue of so many entries, all different."""
    return [((i * 37 + 11) % 256, (i * 91 + 200) % 256, (255 - i * 53) % 256) for i in range(quanti)]


def indici(quanti):
    """The test picture as rows of indices below quanti: a slope, a plain bar, some noise."""
    righe = []
    for y in range(ALTA):
        riga = [(x * y + x // 2 + y) % quanti for x in range(LARGA)]
        riga[4:11] = [y % quanti] * 7
        righe.append(riga)
    return righe


def colora(righe, tavolozza):
    return [[tavolozza[i] for i in riga] for riga in righe]


def colori_veri():
    """The test picture in colours of five bits a channel at most, which any depth can hold."""
    return [
        [((x * 13 + y) % 32, (x + y * 7) % 32, (x * y) % 32) for x in range(LARGA)]
        for y in range(ALTA)
    ]


# --- BMP ----------------------------------------------------------------------------------------


def impacca(riga, bit):
    """Indices of one row as bytes, padded to a word of 32 bits."""
    testo = "".join(format(i, f"0{bit}b") for i in riga)
    testo += "0" * (-len(testo) % 32)
    return int(testo, 2).to_bytes(len(testo) // 8, "big")


def bmp(testata, bit, dati, tavolozza=(), alta=ALTA, metodo=0, usati=0, maschere=()):
    """A bitmap of its header size, with pixel data ready made. usati: the palette size told."""
    if testata == 12:
        info = struct.pack("<IHHHH", 12, LARGA, alta, 1, bit)
        voci = b"".join(bytes((b, g, r)) for r, g, b in tavolozza)
    else:
        info = struct.pack("<IiiHHIIiiII", 40, LARGA, alta, 1, bit, metodo, len(dati), 2835, 2835, usati, 0)
        info = struct.pack("<I", testata) + info[4:]
        campi = b"".join(struct.pack("<I", m) for m in maschere)
        info += campi.ljust(testata - 40, b"\0") if testata > 40 else campi
        voci = b"".join(bytes((b, g, r, 0)) for r, g, b in tavolozza)
    inizio = 14 + len(info) + len(voci)
    testa = b"BM" + struct.pack("<IHHI", inizio + len(dati), 0, 0, inizio)
    return testa + info + voci + dati


def righe_bmp(righe, bit, alto_in_basso=False):
    ordine = righe if alto_in_basso else righe[::-1]
    return b"".join(impacca(riga, bit) for riga in ordine)


def righe_vere(righe, byte, numero, alto_in_basso=False):
    """Rows of pixels of so many bytes; numero makes the number of a pixel from its colours."""
    uscita = b""
    for riga in righe if alto_in_basso else righe[::-1]:
        dati = b"".join(numero(*c).to_bytes(byte, "little") for c in riga)
        uscita += dati + bytes(-len(dati) % 4)
    return uscita


def in_otto_bit(righe, *alti):
    """Channels of 0 to alti as 0 to 255, to the nearest."""
    return [[tuple((v * 255 + a // 2) // a for v, a in zip(c, alti)) for c in riga] for riga in righe]


def corse(righe, bit):
    """Run-length data: runs where pixels repeat, plain pixels of odd and even number elsewhere."""
    uscita = b""
    for riga in righe[::-1]:
        x = 0
        while x < len(riga):
            n = 1
            while x + n < len(riga) and riga[x + n] == riga[x]:
                n += 1
            if n == 1 and x + 3 <= len(riga):
                n = min(len(riga) - x, 3 + x % 3)
                uscita += bytes((0, n)) + (impacca(riga[x : x + n], bit)[: (n * bit + 7) // 8])
                uscita += bytes(len(uscita) % 2)
            else:
                uscita += bytes((n, riga[x] * (17 if bit == 4 else 1)))
            x += n
        uscita += b"\0\0"
    return uscita + b"\0\1"


def corse_con_salti():
    """Four rows by hand: a delta, a line cut short, a run of alternating pixels, an early end."""
    dati = bytes((5, 0x12, 0, 2, 3, 1, 2, 0x33, 0, 0))  # 1 2 1 2 1, on to x 8 of row 1, 3 3
    dati += bytes((0, 3, 0x45, 0x60, 0, 0, 0, 1))  # row 2: 4 5 6; end
    righe = [[0] * LARGA for _ in range(4)]
    righe[3][:5] = [1, 2, 1, 2, 1]
    righe[2][8:10] = [3, 3]
    righe[1][:3] = [4, 5, 6]
    return dati, righe


def tutte_le_bmp():
    figure = {}
    for bit in (1, 4, 8):
        tavolozza = colori_tavolozza(1 << bit if bit < 8 else 40)
        righe = indici(len(tavolozza))
        dati = righe_bmp(righe, bit)
        atteso = colora(righe, tavolozza)
        piena = tavolozza + [(0, 0, 0)] * ((1 << bit) - len(tavolozza))
        usati = len(tavolozza) if bit == 8 else 0
        figure[f"{bit}bit_12"] = bmp(12, bit, dati, piena if bit < 8 else tavolozza), atteso
        for testata in (40, 108, 124):
            figure[f"{bit}bit_{testata}"] = bmp(testata, bit, dati, tavolozza, usati=usati), atteso
        alto = righe_bmp(righe, bit, True)
        figure[f"{bit}bit_alto"] = bmp(40, bit, alto, tavolozza, alta=-ALTA, usati=usati), atteso
        if bit > 1:
            metodo = 1 if bit == 8 else 2
            figure[f"{bit}bit_corse"] = (
                bmp(40, bit, corse(righe, bit), tavolozza, metodo=metodo, usati=usati), atteso)  # fmt: skip
    dati, righe = corse_con_salti()
    tavolozza = colori_tavolozza(16)
    figure["4bit_salti"] = bmp(40, 4, dati, tavolozza, alta=4, metodo=2), colora(righe, tavolozza)
    corta = colori_tavolozza(3)
    righe = [[i % 5 for i in riga] for riga in indici(16)]
    atteso = colora(righe, corta + [(0, 0, 0)] * 2)
    figure["4bit_tavolozza_corta"] = bmp(40, 4, righe_bmp(righe, 4), corta, usati=3), atteso
    return figure | bmp_a_colori()


def bmp_a_colori():
    veri = colori_veri()
    cinque = in_otto_bit(veri, 31, 31, 31)
    otto = [[(r * 8 + 3, g * 8 + 1, b * 8 + 7) for r, g, b in riga] for riga in veri]
    rgb = lambda r, g, b: r << 16 | g << 8 | b  # noqa: E731
    figure = {}
    for testata in (12, 40, 108, 124):
        figure[f"24bit_{testata}"] = bmp(testata, 24, righe_vere(otto, 3, rgb)), otto
    figure["24bit_alto"] = bmp(40, 24, righe_vere(otto, 3, rgb, True), alta=-ALTA), otto
    figure["32bit_40"] = bmp(40, 32, righe_vere(otto, 4, lambda *c: rgb(*c) | 0xA5000000)), otto
    x555 = lambda r, g, b: r << 10 | g << 5 | b  # noqa: E731
    figure["16bit_40"] = bmp(40, 16, righe_vere(veri, 2, x555)), cinque
    m565 = (0xF800, 0x7E0, 0x1F)
    dati = righe_vere(veri, 2, lambda r, g, b: r << 11 | (2 * g + 1) << 5 | b)
    sei = in_otto_bit([[(r, 2 * g + 1, b) for r, g, b in riga] for riga in veri], 31, 63, 31)
    figure["16bit_565"] = bmp(40, 16, dati, metodo=3, maschere=m565), sei
    figure["16bit_565_124"] = bmp(124, 16, dati, metodo=3, maschere=m565 + (0,)), sei
    dieci = lambda r, g, b: (r * 33) << 20 | (g * 33) << 10 | b * 33  # noqa: E731
    m10 = (0x3FF00000, 0xFFC00, 0x3FF)
    alti = in_otto_bit([[tuple(v * 33 for v in c) for c in riga] for riga in veri], *[1023] * 3)
    figure["32bit_dieci"] = bmp(108, 32, righe_vere(veri, 4, dieci), metodo=3, maschere=m10 + (0,)), alti
    bgr = lambda r, g, b: b << 24 | g << 16 | r << 8 | 0x77  # noqa: E731
    maschere = (0xFF00, 0xFF0000, 0xFF000000)
    alto = righe_vere(otto, 4, bgr, True)
    figure["32bit_bgr"] = bmp(40, 32, alto, alta=-ALTA, metodo=3, maschere=maschere), otto
    return figure


# --- GIF ----------------------------------------------------------------------------------------


def lzw_gif(pixel, bit, pulisci_a=4096, larghezza_massima=12):
    """Codes for pixels, lowest bit first; the table is cleared when it holds pulisci_a entries.

    More than 4096 entries never are: such a stream goes on with a full table.
    """
    pulito = 1 << bit
    bit_uscita, larghezza, tabella, codici = [], bit + 1, {}, 0

    def scrivi(codice):
        bit_uscita.extend(codice >> i & 1 for i in range(larghezza))

    def ricomincia():
        tabella.clear()
        tabella.update({(i,): i for i in range(pulito)})
        return pulito + 2

    scrivi(pulito)
    prossimo, stringa = ricomincia(), ()
    for p in pixel:
        if stringa + (p,) in tabella:
            stringa += (p,)
            continue
        scrivi(tabella[stringa])
        if prossimo < 4096:
            tabella[stringa + (p,)] = prossimo
            if prossimo == 1 << larghezza and larghezza < 12:
                larghezza += 1
            prossimo += 1
        stringa = (p,)
        if prossimo >= pulisci_a:
            scrivi(pulito)
            prossimo, larghezza = ricomincia(), bit + 1
    scrivi(tabella[stringa])
    if prossimo == 1 << larghezza and larghezza < 12:
        larghezza += 1
    scrivi(pulito + 1)
    bit_uscita += [0] * (-len(bit_uscita) % 8)
    return bytes(sum(bit_uscita[i + j] << j for j in range(8)) for i in range(0, len(bit_uscita), 8))


def blocchi(byte):
    pezzi = (byte[i : i + 255] for i in range(0, len(byte), 255))
    return b"".join(bytes((len(p),)) + p for p in pezzi) + b"\0"


def gif(righe, bit, tavolozza, versione=b"GIF89a", locale=False, intrecciata=False,
        trasparente=None, pulisci_a=4096, altri_fotogrammi=0, angolo=(0, 0)):  # fmt: skip
    """A GIF file. bit: of a pixel in the code stream (at least 2 by the format's rules)."""
    larga, alta = len(righe[0]), len(righe)
    voci = b"".join(bytes(c) for c in tavolozza)
    bit_tavolozza = (len(tavolozza) - 1).bit_length()
    assert len(tavolozza) == 1 << bit_tavolozza
    bandiera = 0x80 | bit_tavolozza - 1
    x, y = angolo
    uscita = versione + struct.pack("<HHBBB", larga + x, alta + y, 0 if locale else bandiera, 0, 0)
    uscita += b"" if locale else voci
    if trasparente is not None:
        uscita += b"!\xfe" + blocchi(b"una nota") + b"!\xf9\4\1\0\0" + bytes((trasparente, 0))
    ordine = [*range(0, alta, 8), *range(4, alta, 8), *range(2, alta, 4), *range(1, alta, 2)]
    scelte = [righe[i] for i in ordine] if intrecciata else righe
    dati = lzw_gif([p for riga in scelte for p in riga], bit, pulisci_a)
    for _ in range(1 + altri_fotogrammi):
        uscita += b"," + struct.pack("<HHHH", x, y, larga, alta)
        uscita += bytes((bandiera * locale | 0x40 * intrecciata,)) + voci * locale
        uscita += bytes((bit,)) + blocchi(dati)
        dati = lzw_gif([0] * (larga * alta), bit)
    return uscita + b";"


def tutte_le_gif():
    figure = {}
    for bit in (1, 2, 3, 4, 5, 8):
        tavolozza = colori_tavolozza(1 << bit)
        righe = indici(1 << bit)
        figure[f"{bit}bit"] = gif(righe, max(bit, 2), tavolozza), colora(righe, tavolozza)
    sei = colori_tavolozza(64)
    righe = indici(64)
    atteso = colora(righe, sei)
    figure["87a_intrecciata"] = gif(righe, 6, sei, b"GIF87a", intrecciata=True), atteso
    figure["locale"] = gif(righe, 6, sei, locale=True, trasparente=3), atteso
    figure["due_fotogrammi"] = gif(righe, 6, sei, altri_fotogrammi=1), atteso
    figure["spesso_pulita"] = gif(righe, 6, sei, pulisci_a=90), atteso
    figure["codici_larghi"] = gif(indici(16), 8, colori_tavolozza(16)), colora(
        indici(16), colori_tavolozza(16))  # fmt: skip
    figure["fuori_tavolozza"] = gif(indici(7), 3, colori_tavolozza(4)), colora(
        indici(7), colori_tavolozza(4) + [(0, 0, 0)] * 3)  # fmt: skip
    unita = [[3] * 180 for _ in range(90)]
    figure["tinta_unita"] = gif(unita, 2, colori_tavolozza(4)), colora(unita, colori_tavolozza(4))
    return figure


def gif_grande():
    """Noise that fills the table several times and then goes on with a full one; not kept."""
    stato, righe = 1, []
    for _ in range(120):
        riga = []
        for _ in range(200):
            stato = stato * 1103515245 + 12345 & 0x7FFFFFFF
            riga.append(stato >> 16 & 31)
        righe.append(riga)
    tavolozza = colori_tavolozza(32)
    atteso = colora(righe, tavolozza)
    return {
        "grande_pulita": (gif(righe, 5, tavolozza), atteso),
        "grande_piena": (gif(righe, 5, tavolozza, pulisci_a=9999), atteso),
    }


# --- JPEG ---------------------------------------------------------------------------------------


def tutte_le_jpeg():
    from PIL import Image

    figura = Image.new("RGB", (LARGA, ALTA))
    figura.putdata([tuple(8 * v for v in c) for riga in colori_veri() for c in riga])

    def salva(modo, **opzioni):
        uscita = io.BytesIO()
        figura.convert(modo).save(uscita, "JPEG", quality=30, **opzioni)
        return uscita.getvalue()

    def senza_adobe(byte):
        inizio = byte.index(b"\xff\xee")
        return byte[:inizio] + byte[inizio + 16 :]

    cmyk = salva("CMYK")
    assert b"Adobe" in cmyk
    return {
        "grigia": salva("L"),
        "colori": salva("RGB"),
        "colori_progressiva": salva("RGB", progressive=True),
        "grigia_progressiva": salva("L", progressive=True),
        "cmyk_adobe": cmyk,
        "cmyk_diritta": senza_adobe(cmyk),
    }


# --- TrueType -----------------------------------------------------------------------------------

GLIFI = [".notdef", "space", "H", "x", "iota", "eacute", "Euro", "bullet"]
LARGHEZZE = [500, 250, 731, 555, 301, 443, 617, 351]
MAPPA = {0x20: "space", 0x48: "H", 0x78: "x", 0x69: "iota", 0xE9: "eacute", 0x20AC: "Euro",
         0x2022: "bullet"}  # fmt: skip
MACINTOSH = {0x20: "space", 0x48: "H", 0x78: "x", 0x69: "iota", 0x8E: "eacute", 0xDB: "Euro",
             0xA5: "bullet"}  # fmt: skip


def rettangolo(larga, alta):
    from fontTools.pens.ttGlyphPen import TTGlyphPen

    penna = TTGlyphPen(None)
    penna.moveTo((40, 0))
    for punto in ((40, alta), (larga, alta), (larga, 0)):
        penna.lineTo(punto)
    penna.closePath()
    return penna.glyph()


def mappa_di_caratteri(piattaforma, codifica, formato, voci):
    from fontTools.ttLib.tables._c_m_a_p import CmapSubtable

    tabella = CmapSubtable.newSubtable(formato)
    tabella.platformID, tabella.platEncID, tabella.language = piattaforma, codifica, 0
    tabella.cmap = voci
    return tabella


def font(mappe, nome="Prova-Semplice", os2=None, post=None, togli=(), unita=1000, testata=None):
    """A font of eight glyphs. mappe: its character maps; os2, post: fields of these tables."""
    from fontTools.fontBuilder import FontBuilder
    from fontTools.ttLib import newTable

    fb = FontBuilder(unita, isTTF=True)
    fb.setupGlyphOrder(GLIFI)
    fb.setupCharacterMap(MAPPA)
    alti = dict(zip(GLIFI, (700, 0, 690, 480, 470, 660, 670, 300)))
    glifi = {g: rettangolo(400, a) if a else rettangolo(0, 0) for g, a in alti.items()}
    glifi["space"] = type(glifi["H"])()
    fb.setupGlyf(glifi)
    fb.setupHorizontalMetrics({g: (a, 40) for g, a in zip(GLIFI, LARGHEZZE)})
    fb.setupHorizontalHeader(ascent=880, descent=-220)
    fb.setupNameTable({"familyName": "Prova", "fullName": "Prova Semplice", "psName": nome})
    fb.setupOS2(**({"version": 4, "sCapHeight": 701, "sxHeight": 497, "usWeightClass": 400,
                    "xAvgCharWidth": 468, "fsType": 0} | (os2 or {})))  # fmt: skip
    fb.setupPost(keepGlyphNames=False, **(post or {}))
    for campo, valore in (testata or {}).items():
        setattr(fb.font["head"], campo, valore)
    tabella = newTable("cmap")
    tabella.tableVersion = 0
    tabella.tables = [mappa_di_caratteri(*m) for m in mappe]
    fb.font["cmap"] = tabella
    fb.font["head"].created = fb.font["head"].modified = 3_800_000_000
    fb.font.recalcTimestamp = False
    for tag in togli:
        del fb.font[tag]
    uscita = io.BytesIO()
    fb.save(uscita)
    return uscita.getvalue()


def tutti_i_font():
    unicode, mac = (3, 1, 4, MAPPA), (1, 0, 0, MACINTOSH)
    simboli = {0xF000 + c: g for c, g in {0x20: "space", 0x41: "H", 0xB7: "bullet"}.items()}
    return {
        "unicode": font([mac, unicode]),
        "formato12": font([(3, 10, 12, MAPPA)]),
        "formato6": font([(0, 3, 6, {c: g for c, g in MAPPA.items() if c < 0x80})]),
        "macintosh": font([mac]),
        "simboli": font([mac, (3, 0, 4, simboli)]),
        "corsivo": font([unicode], post={"italicAngle": -9.4, "isFixedPitch": 1}),
        "senza_os2": font([unicode], togli=["OS/2", "post"], testata={"macStyle": 1}),
        "os2_vecchia": font([unicode], os2={"version": 1, "usWeightClass": 700, "xAvgCharWidth": 0,
                                            "sFamilyClass": 0x0201}),
        "vietato": font([unicode], os2={"fsType": 2}),
        "unita2048": font([unicode], unita=2048),
        "nome": font([unicode], nome="Pro va(1)/<#2>%[x]{y}"),
    }


def scrivi(cartella, file):
    cartella.mkdir(exist_ok=True)
    for nome, byte in file.items():
        (cartella / nome).write_bytes(byte)


def main():
    qui = pathlib.Path(__file__).parent
    scrivi(qui / "bmp", {f"{n}.bmp": b for n, (b, _) in tutte_le_bmp().items()})
    scrivi(qui / "gif", {f"{n}.gif": b for n, (b, _) in tutte_le_gif().items()})
    scrivi(qui / "ttf", {f"{n}.ttf": b for n, b in tutti_i_font().items()})
    scrivi(qui / "jpeg", {f"{n}.jpg": b for n, b in tutte_le_jpeg().items()})


if __name__ == "__main__":
    main()
