"""The filters of streams (ISO 32000-1, 7.4), undone strictly: nothing left over, nothing missing."""

import base64
import re
import zlib

from sintassi import pretendi

PULISCI, FINE = 256, 257


def flate(dati):
    macchina = zlib.decompressobj()
    chiaro = macchina.decompress(dati) + macchina.flush()
    pretendi(macchina.eof, "dati compressi senza fine")
    pretendi(not macchina.unused_data.strip(b"\r\n"), "dati compressi con altro in coda")
    return chiaro


def lzw(dati):
    """Codes of 9 to 12 bits that grow one code early (7.4.4.2)."""
    bit, quanti, posto, chiaro = 0, 0, 0, []
    tabella, larga, prima = [], 9, None
    while True:
        while quanti < larga:
            pretendi(posto < len(dati), "LZW senza fine")
            bit, quanti, posto = bit << 8 | dati[posto], quanti + 8, posto + 1
        quanti -= larga
        codice, bit = bit >> quanti, bit & (1 << quanti) - 1
        if codice == FINE:
            return b"".join(chiaro)
        if codice == PULISCI:
            tabella, larga, prima = [bytes([b]) for b in range(256)] + [b"", b""], 9, None
            continue
        pretendi(codice < len(tabella) + (prima is not None), f"LZW: codice {codice}")
        if prima is not None:
            testa = tabella[codice] if codice < len(tabella) else prima
            tabella.append(prima + testa[:1])
        prima = tabella[codice]
        chiaro.append(prima)
        larga = next(b for b in (9, 10, 11, 12) if len(tabella) + 1 < 1 << b or b == 12)


def ascii85(dati):
    return base64.a85decode(re.sub(rb"\s", b"", b"<~" + dati), adobe=True)


def esadecimale(dati):
    dati = re.sub(rb"\s", b"", dati)
    pretendi(dati.endswith(b">"), "esadecimale senza fine")
    return bytes.fromhex(dati[:-1].decode("ascii"))


def corse(dati):
    chiaro, posto = bytearray(), 0
    while dati[posto] != 128:
        lunga = dati[posto]
        if lunga < 128:
            chiaro += dati[posto + 1:posto + 2 + lunga]
            posto += 2 + lunga
        else:
            chiaro += dati[posto + 1:posto + 2] * (257 - lunga)
            posto += 2
    return bytes(chiaro)


def immagine(dati):
    """A whole JPEG file; what it shows is for other readers."""
    pretendi(dati.startswith(b"\xFF\xD8"), "JPEG senza inizio")
    return dati


FILTRI = {"FlateDecode": flate, "LZWDecode": lzw, "ASCII85Decode": ascii85,
          "ASCIIHexDecode": esadecimale, "RunLengthDecode": corse, "DCTDecode": immagine}


def predetto(dati, parametri):
    """Rows whose bytes say how much they differ from those above (7.4.4.4): the filter "up"."""
    if parametri.get("Predictor", 1) == 1:
        return dati
    larga = parametri.get("Columns", 1) * parametri.get("Colors", 1)
    pretendi(parametri["Predictor"] == 12 and len(dati) % (larga + 1) == 0, f"filtro {parametri}")
    sopra, chiaro = bytes(larga), bytearray()
    for posto in range(0, len(dati), larga + 1):
        pretendi(dati[posto] == 2, f"riga con il filtro {dati[posto]}")
        sopra = bytes((a + b) & 0xFF for a, b in zip(sopra, dati[posto + 1:posto + larga + 1]))
        chiaro += sopra
    return bytes(chiaro)


def decodifica(testa, dati):
    """The data of a stream without its filters. testa: its dictionary, nothing of it a reference."""
    nomi, parametri = testa.get("Filter", []), testa.get("DecodeParms", [])
    nomi = nomi if isinstance(nomi, list) else [nomi]
    parametri = parametri if isinstance(parametri, list) else [parametri]
    parametri += [None] * (len(nomi) - len(parametri))
    for nome, parametro in zip(nomi, parametri):
        pretendi(nome in FILTRI, f"filtro {nome}")
        dati = predetto(FILTRI[nome](dati), parametro or {})
    return dati
