"""Stream encoders of the reference PDF writer: bytes in, bytes out."""

import zlib

PULISCI, FINE, PRIMO = 256, 257, 258

# From here on an encoder may clear its table when it likes.
QUASI_PIENA = 4090


def AScii85(dati):
    """Base 85 in groups of four bytes; "z" for four zeros; ends with "~>"."""
    testo = bytearray()
    for inizio in range(0, len(dati), 4):
        gruppo = dati[inizio:inizio + 4]
        if gruppo == bytes(4):
            testo += b"z"
            continue
        numero = int.from_bytes(gruppo.ljust(4, b"\0"), "big")
        cifre = [numero // 85 ** potenza % 85 + 33 for potenza in (4, 3, 2, 1, 0)]
        testo += bytes(cifre[:len(gruppo) + 1])
    return bytes(testo) + b"~>"


def AEsadecimale(dati):
    return dati.hex().upper().encode("ascii") + b">"


def Comprimi(dati, livello):
    """Deflated with the header and the check of zlib (RFC 1950)."""
    return zlib.compress(dati, livello)


class DatiLunghi(Exception):
    """More strings than the table holds: how such data go on is not fixed."""


def LarghezzaLzw(codici):
    """Bits of the code that follows so many codes after a clear.

    Code n assigns entry 257 + n; codes are wider right after 511, 1023, 2047.
    """
    ultima = PRIMO - 1 + codici
    if ultima > QUASI_PIENA:
        raise DatiLunghi
    return 9 + sum(ultima >= limite for limite in (511, 1023, 2047))


def ALzw(dati):
    """Longest known string each time, early change, the end's code counts too."""
    tabella, codici, stringa = {bytes([b]): b for b in range(256)}, [], b""
    for byte in dati:
        lunga = stringa + bytes([byte])
        if lunga in tabella:
            stringa = lunga
            continue
        codici.append(tabella[stringa])
        tabella[lunga] = PRIMO - 1 + len(codici)
        stringa = bytes([byte])
    if stringa:
        codici.append(tabella[stringa])
    bit = f"{PULISCI:09b}"
    bit += "".join(f"{codice:0{LarghezzaLzw(prima)}b}"
                   for prima, codice in enumerate(codici + [FINE]))
    bit += "0" * (-len(bit) % 8)
    return int(bit, 2).to_bytes(len(bit) // 8, "big")
