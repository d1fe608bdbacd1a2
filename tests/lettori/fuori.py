"""Whether a conforming document gives back the texts that were put into it outside its pages.

Beside the document stands a file of lines "KIND HEX", the bytes of the text in UTF-8 as they were
given to the writer, in their order. KIND is the name of a property (Title, Author, Subject, Keywords,
Creator, Producer), "segnalibro", "etichetta" (the prefix of a page label), or "nota" and then "chi", a
note's text and its title. No digits after a property, a label or "chi" mean that none was given.
"""

import json
import re

import conformi
from sintassi import Difetto  # noqa: F401, what lettori.py catches
from struttura import leggi
from testi import testo

# The writer keeps its own where these are empty.
CON_RISERVA = ("Author", "Creator", "Producer")


def dati(righe):
    """The texts of a side file: of each kind a list."""
    trovati = {}
    for riga in righe:
        genere, _, cifre = riga.partition(" ")
        trovati.setdefault(genere, []).append(letto(bytes.fromhex(cifre)))
    return trovati


def letto(byte):
    """UTF-8 as the writer reads it: "?" stands for what is none, and for what in UTF-16 would begin
    the name of a language (ISO 32000-1, 7.9.2.2)."""
    return re.sub("[\uFFFD\x1B]", "?", byte.decode("utf-8", "replace"))


def attese(righe):
    """What readers must find: properties by name, titles of bookmarks, prefixes, notes in order."""
    dato = dati(righe)
    proprie = {nome: testi[0] for nome, testi in dato.items() if nome in conformi.PROPRIETA
               and (testi[0] or nome not in CON_RISERVA)}
    return {"proprietà": proprie, "segnalibri": dato.get("segnalibro", []),
            "etichette": [t for t in dato.get("etichetta", []) if t], "note": dato.get("nota", []),
            "chi": [t for t in dato.get("chi", []) if t]}


def confronta(attesi, trovati):
    """One line for each text that is not as it was given."""
    difetti = []
    for nome, atteso in attesi["proprietà"].items():
        if trovati["proprietà"].get(nome, "") != atteso:
            difetti.append(f"{nome}: {trovati['proprietà'].get(nome)!r} invece di {atteso!r}")
    for genere in ("segnalibri", "etichette", "note", "chi"):
        if trovati[genere] != attesi[genere]:
            diversi = [(t, a) for t, a in zip(trovati[genere], attesi[genere]) if t != a]
            difetti.append(f"{genere}: {diversi[:2] or (trovati[genere], attesi[genere])}")
    return difetti


def difetti(byte, righe):
    """What our own reader finds otherwise than it was given."""
    if not righe:
        return []
    documento = leggi(byte)
    note = [voce for voce in conformi.annotazioni(documento) if voce["Subtype"] != "Link"]
    etichette = documento.risolto(conformi.catalogo(documento).get("PageLabels", {})).get("Nums", [])
    return confronta(attese(righe), {
        "proprietà": conformi.proprieta(documento),
        "segnalibri": [titolo for _, titolo in conformi.segnalibri(documento)][1:],
        "etichette": [testo(voce["P"]) for voce in map(documento.risolto, etichette[1::2])
                      if "P" in voce],
        "note": [testo(voce["Contents"]) for voce in note],
        "chi": [t for t in (testo(voce.get("T", b"")) for voce in note) if t and t != "Orvenna"]})


# ---- qpdf ----------------------------------------------------------------------------------------

class Json:
    """The objects of qpdf --json, version 2."""

    def __init__(self, uscita):
        self.oggetti = json.loads(uscita)["qpdf"][1]

    def risolto(self, cosa):
        while isinstance(cosa, str) and re.fullmatch(r"\d+ 0 R", cosa):
            cosa = self.oggetti["obj:" + cosa]["value"]
        return cosa

    def voce(self, cosa, *chiavi):
        for chiave in chiavi:
            cosa = self.risolto(self.risolto(cosa).get(chiave))
        return cosa


def di_qpdf(stringa):
    """A text string: "u:" and its text, or "b:" and the digits of its bytes where these seem none."""
    if not stringa:
        return ""
    return stringa[2:] if stringa.startswith("u:") else testo(bytes.fromhex(stringa[2:]))


def titoli_qpdf(documento, nodo):
    titoli = []
    while nodo:
        titoli.append(di_qpdf(documento.voce(nodo, "/Title")))
        titoli += titoli_qpdf(documento, documento.voce(nodo, "/First"))
        nodo = documento.voce(nodo, "/Next")
    return titoli


def pagine_qpdf(documento, nodo):
    figli = documento.voce(nodo, "/Kids")
    if figli is None:
        return [nodo]
    return [pagina for figlio in figli for pagina in pagine_qpdf(documento, figlio)]


def difetti_qpdf(uscita, righe):
    """The same of what qpdf makes of the document. uscita: what it prints with --json."""
    documento = Json(uscita)
    coda = documento.oggetti["trailer"]["value"]
    info = documento.voce(coda, "/Info")
    note = [documento.risolto(nota)
            for pagina in pagine_qpdf(documento, documento.voce(coda, "/Root", "/Pages"))
            for nota in documento.voce(pagina, "/Annots") or []]
    note = [nota for nota in note if nota["/Subtype"] not in ("/Link", "/Watermark")]
    nomi = documento.voce(coda, "/Root", "/PageLabels")
    numeri = documento.voce(nomi, "/Nums") if nomi else []
    prefissi = [documento.voce(voce, "/P") for voce in numeri[1::2]]
    radice = documento.voce(coda, "/Root", "/Outlines")
    chi = [di_qpdf(documento.voce(nota, "/T")) for nota in note]
    return confronta(attese(righe), {
        "proprietà": {nome: di_qpdf(documento.voce(info, "/" + nome)) for nome in conformi.PROPRIETA},
        "segnalibri": titoli_qpdf(documento, documento.voce(radice, "/First") if radice else None)[1:],
        "etichette": [di_qpdf(prefisso) for prefisso in prefissi if prefisso],
        "note": [di_qpdf(documento.voce(nota, "/Contents")) for nota in note],
        "chi": [t for t in chi if t and t != "Orvenna"]})
