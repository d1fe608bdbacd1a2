"""The values of a PDF file, read strictly (ISO 32000-1, 7.2 and 7.3). struttura.py reads whole files.

A name is a Nome, a string bytes, a reference a Rif, an operator of a content stream an Operatore;
numbers, true, false, null, arrays and dictionaries are Python's own.
"""

import re
from typing import NamedTuple


class Difetto(Exception):
    """Something that a strict reader does not accept."""


class Nome(str):
    """A name without its "/"; a character is a byte."""


class Operatore(str):
    """A word that is no value: an operator, or a keyword of the file."""


class Rif(NamedTuple):
    numero: int


SPAZI = re.compile(rb"(?:[\0\t\n\f\r ]|%[^\r\n]*)*")
RIFERIMENTO = re.compile(rb"(\d+) 0 R(?![^\0\t\n\f\r ()<>\[\]{}/%])")
NUMERO = re.compile(rb"[+-]?(?:\d+(\.\d*)?|\.\d+)(?![^\0\t\n\f\r ()<>\[\]{}/%])")
NOME = re.compile(rb"/([^\0\t\n\f\r ()<>\[\]{}/%]*)")
PAROLA = re.compile(rb"[^\0\t\n\f\r ()<>\[\]{}/%]+")
ESADECIMALE = re.compile(rb"<([0-9A-Fa-f\0\t\n\f\r ]*)>")
IN_STRINGA = re.compile(rb"[^()\\\r]+|\r\n?|\\(?:[0-7]{1,3}|\r\n|.)|[()]", re.S)
CODICI = {b"n": b"\n", b"r": b"\r", b"t": b"\t", b"b": b"\b", b"f": b"\f", b"\n": b"", b"\r": b"",
          b"\r\n": b"", b"(": b"(", b")": b")", b"\\": b"\\"}
COSTANTI = {b"true": True, b"false": False, b"null": None}


def pretendi(vero, detto):
    if not vero:
        raise Difetto(detto)


def salta(byte, da):
    """Behind blanks and comments."""
    return SPAZI.match(byte, da).end()


def valore(byte, da):
    """The value or the word at da, and where it ends."""
    da = salta(byte, da)
    pretendi(da < len(byte), f"niente al byte {da}")
    segno = byte[da:da + 1]
    if segno == b"(":
        return stringa(byte, da)
    if segno == b"[":
        return fila(byte, da + 1)
    if byte.startswith(b"<<", da):
        return dizionario(byte, da + 2)
    for forma, lettura in ((RIFERIMENTO, riferimento), (NUMERO, numero), (NOME, nome),
                           (ESADECIMALE, esadecimale), (PAROLA, parola)):
        trovato = forma.match(byte, da)
        if trovato:
            return lettura(trovato), trovato.end()
    raise Difetto(f"segno {segno!r} al byte {da}")


def riferimento(trovato):
    return Rif(int(trovato[1]))


def numero(trovato):
    return float(trovato[0]) if b"." in trovato[0] else int(trovato[0])


def nome(trovato):
    """Every "#" is an escape, and what is no regular character is one (7.3.5)."""
    testo = trovato[1]
    pretendi(re.fullmatch(rb"(?:[!-\"$-~]|#(?!00)[0-9A-Fa-f]{2})*", testo), f"nome {testo!r}")
    return Nome(re.sub(rb"#(..)", lambda m: bytes([int(m[1], 16)]), testo).decode("latin-1"))


def esadecimale(trovato):
    cifre = re.sub(rb"\s|\0", b"", trovato[1])
    return bytes.fromhex((cifre + b"0" * (len(cifre) % 2)).decode("ascii"))


def parola(trovato):
    if trovato[0] in COSTANTI:
        return COSTANTI[trovato[0]]
    return Operatore(trovato[0].decode("latin-1"))


def stringa(byte, da):
    """A literal string: its parentheses balance, its escapes are those of table 3."""
    pezzi, aperte, posto = [], 0, da
    while True:
        pezzo = IN_STRINGA.match(byte, posto)
        pretendi(pezzo, f"stringa senza fine al byte {da}")
        posto = pezzo.end()
        aperte += (pezzo[0] == b"(") - (pezzo[0] == b")")
        if aperte == 0:
            return b"".join(pezzi[1:]), posto
        pezzi.append(senza_escape(pezzo[0]))


def senza_escape(pezzo):
    if pezzo[:1] == b"\r":
        return b"\n"
    if pezzo[:1] != b"\\":
        return pezzo
    if pezzo[1:2].isdigit():
        return bytes([int(pezzo[1:], 8) & 0xFF])
    pretendi(pezzo[1:] in CODICI, f"escape {pezzo!r}")
    return CODICI[pezzo[1:]]


def fila(byte, da):
    valori = []
    while True:
        da = salta(byte, da)
        if byte.startswith(b"]", da):
            return valori, da + 1
        altro, da = valore(byte, da)
        pretendi(not isinstance(altro, Operatore), f"parola {altro!r} in un elenco")
        valori.append(altro)


def dizionario(byte, da):
    """No key twice, no value that is a word."""
    voci = {}
    while True:
        da = salta(byte, da)
        if byte.startswith(b">>", da):
            return voci, da + 2
        chiave, da = valore(byte, da)
        pretendi(isinstance(chiave, Nome), f"chiave {chiave!r}")
        pretendi(chiave not in voci, f"chiave doppia {chiave}")
        voci[chiave], da = valore(byte, da)
        pretendi(not isinstance(voci[chiave], Operatore), f"/{chiave} ha {voci[chiave]!r}")


def operazioni(byte):
    """The operators of a content stream, each with its operands (7.8.2)."""
    operandi, posto = [], salta(byte, 0)
    while posto < len(byte):
        cosa, posto = valore(byte, posto)
        posto = salta(byte, posto)
        if isinstance(cosa, Operatore):
            yield cosa, operandi
            operandi = []
        else:
            operandi.append(cosa)
    pretendi(not operandi, f"operandi senza operatore: {operandi}")


def scritto(cosa):
    """A value as bytes of a file."""
    if isinstance(cosa, bool) or cosa is None:
        return {True: b"true", False: b"false", None: b"null"}[cosa]
    if isinstance(cosa, Nome):
        regolari = re.compile(r"[!-\"$&'*-.0-;=?-Z\\^-z|~]")
        return "/".encode() + "".join(c if regolari.match(c) else f"#{ord(c):02X}"
                                      for c in cosa).encode("ascii")
    if isinstance(cosa, Rif):
        return b"%d 0 R" % cosa.numero
    if isinstance(cosa, bytes):
        return b"<" + cosa.hex().encode("ascii") + b">"
    if isinstance(cosa, list):
        return b"[" + b" ".join(map(scritto, cosa)) + b"]"
    if isinstance(cosa, dict):
        return b"<< " + b" ".join(scritto(Nome(k)) + b" " + scritto(v) for k, v in cosa.items()) + b" >>"
    return str(cosa).encode("ascii")
