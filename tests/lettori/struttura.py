"""A strict reader of our own for whole PDF files: what other readers forgive is a fault here.

    struttura.py FILE.pdf...

From the head to the end mark every byte belongs to an object or to the cross-reference data; every
entry leads to its object, every reference to an entry, every length is exact. Object streams and
cross-reference streams are read, too (ISO 32000-1, 7.5.7 and 7.5.8). conformi.py judges what the
objects say.
"""

import re
import sys
import zlib
from pathlib import Path
from typing import NamedTuple

from filtri import decodifica
from sintassi import Difetto, Nome, Operatore, Rif, pretendi, salta, valore

TESTA = re.compile(rb"%PDF-(\d\.\d)\r?\n")
CODA = re.compile(rb"startxref[\r\n]+(\d+)[\r\n]+%%EOF[\r\n]*\Z")
OGGETTO = re.compile(rb"(\d+) 0 obj[\0\t\n\f\r ]*")
FINE = re.compile(rb"[\0\t\n\f\r ]*endobj(?:\r\n|\r|\n)")
INIZIO_FLUSSO = re.compile(rb"[\0\t\n\f\r ]*stream(?:\r\n|\n)")
FINE_FLUSSO = re.compile(rb"(?:\r\n|\n|\r)?endstream")
SEZIONE = re.compile(rb"(\d+) (\d+)(?:\r\n|\r|\n)")
VOCE = re.compile(rb"(\d{10}) (\d{5}) ([nf])(?:\r\n| \r| \n)")

# In one object stream, as this writer promises.
OGGETTI_INSIEME = 200


class Flusso(NamedTuple):
    testa: dict
    dati: bytes  # as they stand in the file


class Posto(NamedTuple):
    """Where an object is: at a byte of the file, or, when dentro is not 0, in that object stream."""
    byte: int
    dentro: int = 0


class Documento:
    """versione "1.7"; coda, the trailer's dictionary; posti, the place of each number."""

    def __init__(self, byte):
        self.byte = byte
        testa = TESTA.match(byte)
        pretendi(testa, "senza testa")
        self.versione = testa[1].decode("ascii")
        coda = CODA.search(byte)
        pretendi(coda, "senza coda")
        self.posti, self.tratti, self._letti, self._pacchi = {}, [], {}, {}
        self.inizio_tavola = int(coda[1])
        self.tavola(self.inizio_tavola)
        # Without Conforming it is one short on purpose.
        pretendi(self.coda["Size"] - max(self.posti) in (0, 1), f"/Size {self.coda['Size']}")
        for numero in self.posti:
            self.oggetto(numero)
        self.senza_vuoti(salta(byte, testa.end()), coda.start())

    # ---- Where the objects are -------------------------------------------------------------------

    def tavola(self, da):
        self.a_flusso = not self.byte.startswith(b"xref", da)
        if self.a_flusso:
            numero, flusso = self.leggi_oggetto(da)
            self._letti[numero] = flusso
            self.coda = flusso.testa
            self.voci_del_flusso(flusso)
            pretendi(self.posti.get(numero) == Posto(da), "il flusso della tavola non vi si trova")
        else:
            self.voci_della_tavola(da)

    def voci_della_tavola(self, da):
        sezione = SEZIONE.match(self.byte, re.compile(rb"xref(?:\r\n|\r|\n)").match(self.byte, da).end())
        pretendi(sezione and int(sezione[1]) == 0, "tavola senza una sezione da 0")
        posto, liberi = sezione.end(), []
        for numero in range(int(sezione[2])):
            voce = VOCE.match(self.byte, posto)
            pretendi(voce and len(voce[0]) == 20, f"voce {numero} della tavola")
            posto = voce.end()
            if voce[3] == b"n":
                self.posti[numero] = Posto(int(voce[1]))
            else:
                liberi.append((numero, int(voce[1])))
        # A free entry leads to the next one or, as those never used, to entry 0 (7.5.4).
        dopo = [numero for numero, _ in liberi[1:]] + [0]
        pretendi(all(poi in (0, seguente) for (_, poi), seguente in zip(liberi, dopo))
                 and liberi[0][0] == 0, f"liberi {liberi}")
        trailer = re.compile(rb"trailer[\0\t\n\f\r ]*").match(self.byte, posto)
        pretendi(trailer, "senza trailer")
        self.coda, fine = valore(self.byte, trailer.end())
        self.tratti.append((da, fine))

    def voci_del_flusso(self, flusso):
        pretendi(flusso.testa.get("Type") == "XRef", "la tavola non è un flusso /XRef")
        larghezze, dati = flusso.testa["W"], decodifica(flusso.testa, flusso.dati)
        indice = flusso.testa.get("Index", [0, flusso.testa["Size"]])
        numeri = [n for da, quanti in zip(indice[::2], indice[1::2]) for n in range(da, da + quanti)]
        pretendi(len(dati) == len(numeri) * sum(larghezze), "tavola di lunghezza sbagliata")
        for i, numero in enumerate(numeri):
            campi, posto = [], i * sum(larghezze)
            for larga in larghezze:
                campi.append(int.from_bytes(dati[posto:posto + larga], "big"))
                posto += larga
            tipo = campi[0] if larghezze[0] else 1
            pretendi(tipo in (0, 1, 2), f"voce {numero} di tipo {tipo}")
            if tipo == 1:
                pretendi(campi[2] == 0, f"voce {numero}: generazione {campi[2]}")
                self.posti[numero] = Posto(campi[1])
            elif tipo == 2:
                self.posti[numero] = Posto(campi[2], campi[1])
        pretendi(numeri == list(range(flusso.testa["Size"])) and 0 not in self.posti, "numeri mancanti")

    # ---- The objects -----------------------------------------------------------------------------

    def oggetto(self, numero):
        """The object of that number."""
        if numero not in self._letti:
            pretendi(numero in self.posti, f"l'oggetto {numero} non c'è")
            posto = self.posti[numero]
            if posto.dentro:
                self._letti[numero] = self.nel_pacco(numero, posto)
            else:
                trovato, letto = self.leggi_oggetto(posto.byte)
                pretendi(trovato == numero, f"oggetto {trovato} al posto di {numero}")
                self._letti[numero] = letto
        return self._letti[numero]

    def risolto(self, cosa):
        """What a reference leads to; anything else itself."""
        return self.oggetto(cosa.numero) if isinstance(cosa, Rif) else cosa

    def chiaro(self, flusso):
        """A stream's data without its filters."""
        testa = {chiave: self.risolto(voce) for chiave, voce in flusso.testa.items()
                 if chiave in ("Filter", "DecodeParms")}
        try:
            return decodifica(testa, flusso.dati)
        except (zlib.error, ValueError, IndexError) as errore:
            raise Difetto(f"filtro {testa}: {errore}") from None

    def leggi_oggetto(self, da):
        """Number and value of the object that begins at a byte of the file."""
        inizio = OGGETTO.match(self.byte, da)
        pretendi(inizio, f"nessun oggetto al byte {da}")
        letto, posto = valore(self.byte, inizio.end())
        pretendi(not isinstance(letto, Operatore), f"oggetto {inizio[1]}: {letto!r}")
        flusso = INIZIO_FLUSSO.match(self.byte, posto)
        if flusso:
            letto, posto = self.leggi_flusso(letto, flusso.end())
        fine = FINE.match(self.byte, posto)
        pretendi(fine, f"oggetto {inizio[1]} senza fine")
        self.tratti.append((da, fine.end()))
        return int(inizio[1]), letto

    def leggi_flusso(self, testa, da):
        lunga = self.risolto(testa["Length"])
        fine = FINE_FLUSSO.match(self.byte, da + lunga)
        pretendi(fine, f"/Length {lunga} al byte {da}")
        return Flusso(testa, self.byte[da:da + lunga]), fine.end()

    def nel_pacco(self, numero, posto):
        oggetti = self.pacco(posto.dentro)
        pretendi(posto.byte < len(oggetti) and oggetti[posto.byte][0] == numero,
                 f"l'oggetto {numero} non è il {posto.byte} del flusso {posto.dentro}")
        return oggetti[posto.byte][1]

    def pacco(self, numero):
        """Numbers and values in an object stream."""
        if numero not in self._pacchi:
            pretendi(self.posti[numero].dentro == 0, f"flusso {numero} dentro un altro")
            flusso = self.oggetto(numero)
            pretendi(flusso.testa.get("Type") == "ObjStm", f"{numero} non è un /ObjStm")
            pretendi(isinstance(flusso.testa["Length"], int), f"flusso {numero}: /Length altrove")
            self._pacchi[numero] = list(self.apri_pacco(flusso))
        return self._pacchi[numero]

    def apri_pacco(self, flusso):
        quanti, primo = flusso.testa["N"], flusso.testa["First"]
        pretendi(1 <= quanti <= OGGETTI_INSIEME, f"{quanti} oggetti in un flusso")
        dati = self.chiaro(flusso)
        coppie = [int(cifre) for cifre in dati[:primo].split()]
        pretendi(len(coppie) == 2 * quanti, "indice di un flusso di oggetti")
        atteso = primo
        for numero, da in zip(coppie[::2], coppie[1::2]):
            pretendi(atteso <= primo + da == salta(dati, atteso), f"oggetto {numero} nel flusso")
            letto, atteso = valore(dati, primo + da)
            yield numero, letto
        pretendi(salta(dati, atteso) == len(dati), "altro in fondo a un flusso di oggetti")

    # ---- The whole -------------------------------------------------------------------------------

    def senza_vuoti(self, da, fine):
        """Between the objects stands nothing."""
        for inizio, dopo in sorted(set(self.tratti)):
            pretendi(salta(self.byte, da) == inizio and b"%" not in self.byte[da:inizio],
                     f"fra i byte {da} e {inizio} c'è altro")
            da = dopo
        pretendi(salta(self.byte, da) == fine, f"fra i byte {da} e {fine} c'è altro")
        for flusso in {posto.dentro for posto in self.posti.values()} - {0}:
            detti = {n for n, _ in self.pacco(flusso)}
            pretendi(detti == {n for n, p in self.posti.items() if p.dentro == flusso},
                     f"il flusso {flusso} ha oggetti che la tavola non conosce")

    def raggiunti(self, *da):
        """The numbers that some values, without any the trailer, lead to."""
        visti, da_vedere = set(), list(da or [self.coda])
        while da_vedere:
            cosa = da_vedere.pop()
            if isinstance(cosa, Rif) and cosa.numero not in visti:
                visti.add(cosa.numero)
                da_vedere.append(self.oggetto(cosa.numero))
            elif isinstance(cosa, Flusso):
                da_vedere.append(cosa.testa)
            elif isinstance(cosa, dict):
                da_vedere += cosa.values()
            elif isinstance(cosa, list):
                da_vedere += cosa
        return visti

    def orfani(self):
        """The numbers of objects that nothing leads to, but for those that hold the others."""
        cornice = {numero for numero in self.posti if isinstance(self.oggetto(numero), Flusso)
                   and self.oggetto(numero).testa.get("Type") in ("XRef", "ObjStm")}
        return set(self.posti) - self.raggiunti() - cornice


def leggi(byte):
    """The document of a file's bytes. Raises Difetto."""
    try:
        return Documento(byte)
    except (KeyError, TypeError, ValueError, AttributeError, zlib.error, RecursionError) as errore:
        raise Difetto(f"{type(errore).__name__}: {errore}") from errore


def principale(percorsi):
    for percorso in percorsi:
        documento = leggi(Path(percorso).read_bytes())
        print(f"{percorso}: {documento.versione}, oggetti {len(documento.posti)}, "
              f"orfani {sorted(documento.orfani())}")
    return 0


if __name__ == "__main__":
    sys.exit(principale(sys.argv[1:]))
