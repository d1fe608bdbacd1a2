#!/usr/bin/env python3
"""Writes the shoe files used by the golden reports.

    costruisci_mazzi.py [FOLDER]

Deterministic: every shoe comes from random.Random with a fixed seed.  A shoe
that has to show something is looked for from its first seed upward, so the
same run always finds the same shoe.  Only random() is used, whose sequence
does not change between versions of the language.
"""

import os
import random
import sys

from riferimento import CAMPI_STATISTICHE, CARTE_TAGLIA, CifreTaglia, PuntiCarta, Taglia, ValoreCarta


# ---------------------------------------------------------------------------
# Shuffling and rearranging
# ---------------------------------------------------------------------------

def Mescola(caso, carte):
    """Shuffle a list in place with random() alone."""
    for i in range(len(carte) - 1, 0, -1):
        j = int(caso.random() * (i + 1))
        carte[i], carte[j] = carte[j], carte[i]
    return carte


def MazzoMescolato(caso):
    return Mescola(caso, list(range(1, CARTE_TAGLIA + 1)))


def InizioColpo(mazzo, numero):
    """Index in the shoe of the first card of a coup."""
    taglia = Taglia(mazzo)
    while taglia.NumeroColpo < numero:
        taglia.GiocaColpo()
    return taglia.Posizione


def MettiMano(mazzo, numero, valori):
    """Give a coup's Nero row these value indices, leaving earlier coups alone.

    Each wanted card is swapped in from further on in the shoe.
    """
    inizio = InizioColpo(mazzo, numero)
    for i, valore in enumerate(valori, inizio):
        j = next(j for j in range(i, CARTE_TAGLIA) if ValoreCarta(mazzo[j]) == valore)
        mazzo[i], mazzo[j] = mazzo[j], mazzo[i]
    return mazzo


# ---------------------------------------------------------------------------
# What a shoe shows
# ---------------------------------------------------------------------------

class Esame:
    """A simulated shoe with the questions asked about it."""

    def __init__(self, mazzo):
        self.mazzo = mazzo
        self.taglia = Taglia(mazzo)
        self.taglia.SimulaTaglia()
        self.cifre = CifreTaglia(self.taglia)
        self.conti = self.taglia.Statistiche
        self.campi = [record.split(",") for record in self.taglia.Colpi]
        self.ultimo = self.campi[-1]

    def SommaFinale(self):
        return int(self.ultimo[3]) + int(self.ultimo[4])

    def RossoParziale(self):
        return self.ultimo[6] != ""

    def Esiti(self, da, a):
        return [self.campi[i][1] for i in range(da, a + 1)]

    def MostraTrentuno(self, da, a):
        return any(self.campi[i][1] == "E" and self.campi[i][3] == "31"
                   for i in range(da, a + 1))

    def PariComuniMostrati(self):
        """Ties other than 31-31 in the rows of the text report."""
        return sum(1 for i in range(1, self.cifre.colpiTesto + 1)
                   if self.campi[i][1] == "E" and self.campi[i][3] != "31")

    def LunghezzaNero(self, numero):
        return len(self.campi[numero][5])


def ContiDistinti(esami):
    """No two totals of the run are equal, so that a swapped count is seen.

    The 31-31 ties stay out of it: there may be none, and they are ties too.
    """
    totali = [sum(e.conti[campo] for e in esami)
              for campo in CAMPI_STATISTICHE if campo != "TrentunoApres"]
    return len(set(totali)) == len(totali)


def CercaMazzo(seme, adatto, prepara=lambda mazzo: mazzo):
    """First shoe, from this seed upward, that passes the test."""
    while True:
        mazzo = prepara(MazzoMescolato(random.Random(seme)))
        if adatto(Esame(mazzo)):
            return mazzo
        seme += 1


def CercaMazzi(seme, quanti, adatti):
    """First group of shoes drawn from one seed that passes the test."""
    while True:
        caso = random.Random(seme)
        mazzi = [MazzoMescolato(caso) for _ in range(quanti)]
        if adatti([Esame(mazzo) for mazzo in mazzi]):
            return mazzi
        seme += 1


# ---------------------------------------------------------------------------
# A shoe of 32 coups
# ---------------------------------------------------------------------------

def PescaRiga(caso, riserva, totale):
    """Take from the reserve one row of exactly this total, or None.

    riserva[p] lists the codes left that are worth p points.
    """
    for _ in range(400):
        prese, somma = [], 0
        while totale - somma > 10:
            codici = [c for lista in riserva.values() for c in lista if c not in prese]
            scelta = codici[int(caso.random() * len(codici))]
            prese.append(scelta)
            somma += PuntiCarta(scelta)
        mancano = totale - somma
        ultime = [c for c in riserva[mancano] if c not in prese] if mancano > 0 else []
        # The row may not pass 30 before its last card.
        if ultime and somma <= 30:
            prese.append(ultime[int(caso.random() * len(ultime))])
            for codice in prese:
                riserva[PuntiCarta(codice)].remove(codice)
            return prese
    return None


def MazzoTrentadueColpi(caso):
    """A shoe of 32 complete coups, or None when the cards do not work out.

    Every row stops at 31 or 32, and the five cancelled cards are aces: only so
    do 2,040 points last for 32 coups.
    """
    riserva = {punti: [] for punti in range(1, 11)}
    for codice in Mescola(caso, list(range(1, CARTE_TAGLIA + 1))):
        riserva[PuntiCarta(codice)].append(codice)
    mazzo = [riserva[1].pop() for _ in range(5)]
    esiti = Mescola(caso, [(31, 31)] + [(32, 32)] * 5 + [(31, 32)] * 13 + [(32, 31)] * 13)
    for coppia in esiti:
        for totale in coppia:
            riga = PescaRiga(caso, riserva, totale)
            if riga is None:
                return None
            mazzo += riga
    return mazzo + Mescola(caso, [c for lista in riserva.values() for c in lista])


def CercaTrentadue(seme):
    """First shoe of 32 coups whose counts make percentages ending in an exact half.

    A count that leaves remainder 1 when divided by 4, over 32, is a half whose
    second decimal is even: rounding it to the even digit would be seen.
    """
    while True:
        mazzo = MazzoTrentadueColpi(random.Random(seme))
        if mazzo is not None:
            esame = Esame(mazzo)
            if (esame.cifre.recordCorto and esame.cifre.colpiHtml == 32
                    and esame.conti["TrentunoApres"] == 1
                    and esame.conti["VinceNero"] % 4 == 1
                    and esame.conti["Colore"] % 4 == 1):
                return mazzo
        seme += 1


# ---------------------------------------------------------------------------
# The files
# ---------------------------------------------------------------------------

def UnoTrentuno():
    def Adatto(e):
        return (e.cifre.recordCorto and e.RossoParziale()
                and sorted(e.Esiti(1, 3)) == ["E", "N", "R"]
                and e.MostraTrentuno(1, 3)
                and "10" in e.campi[1][5]
                and e.conti["TrentunoApres"] != e.conti["Pari"]
                and ContiDistinti([e]))
    return [
        ("31-31 tie within the first three coups; short final record with a partial Rosso row",
         CercaMazzo(5900, Adatto)),
    ]


def UnoLiscio():
    def Adatto(e):
        return (not e.cifre.recordCorto and e.SommaFinale() > 62
                and e.conti["TrentunoApres"] == 0 and ContiDistinti([e]))
    return [
        ("no 31-31 tie; long final record (totals above 62)", CercaMazzo(2400, Adatto)),
    ]


def Tre():
    # 14 cards, 41 characters: wider than its column.
    lunga = (1, 2, 1, 3, 2, 1, 2, 3, 1, 4, 2, 1, 3, 9)
    # 10 cards, two of them tens: exactly 31 characters, no fill at all.
    giusta = (1, 2, 1, 2, 3, 2, 1, 3, 10, 10)
    # 11 cards, 32 characters, total 40: one character too many.
    appena = (1, 2, 3, 4, 2, 1, 3, 4, 5, 5, 13)

    def Corta(e):
        return (e.conti["TrentunoApres"] == 0 and e.cifre.recordCorto
                and e.RossoParziale() and e.SommaFinale() == 61
                and e.PariComuniMostrati() > 0 and e.LunghezzaNero(4) == 41)

    def Lunga(e):
        return (e.conti["TrentunoApres"] == 0 and e.SommaFinale() == 62
                and e.LunghezzaNero(7) == 31)

    def Esatta(e):
        return (e.conti["TrentunoApres"] == 0 and e.ultimo[5] == ""
                and e.LunghezzaNero(2) == 32
                and ContiDistinti([Esame(prima), Esame(seconda), e]))

    prima = CercaMazzo(3000, Corta, lambda m: MettiMano(m, 4, lunga))
    seconda = CercaMazzo(4000, Lunga, lambda m: MettiMano(m, 7, giusta))
    terza = CercaMazzo(5000, Esatta, lambda m: MettiMano(m, 2, appena))
    return [
        ("short final record (totals exactly 61) with a partial Rosso row; ordinary tie; "
         "Nero hand of 41 characters in coup 4; no 31-31 tie",
         prima),
        ("long final record (totals exactly 62); Nero hand of exactly 31 characters in coup 7; "
         "no 31-31 tie",
         seconda),
        ("last complete coup ends with the last card, final record n,,,0,0,,; "
         "Nero hand of 32 characters in coup 2; no 31-31 tie",
         terza),
    ]


def Dodici():
    def Adatti(esami):
        return (sum(e.cifre.colpiTotali for e in esami) > 300
                # 3,627 of 3,744 cards is 96.875%, an exact half.
                and sum(e.cifre.carteUsate for e in esami) == 3627
                and any(e.conti["TrentunoApres"] for e in esami)
                and {e.cifre.recordCorto for e in esami} == {True, False}
                and ContiDistinti(esami))
    mazzi = CercaMazzi(6600, 12, Adatti)
    commento = ("ordinary shoes; the run has 31-31 ties, over 300 coups, 3,627 cards used "
                "(96.875% of 3,744, an exact half)")
    return [(commento, mazzi[0])] + [(None, mazzo) for mazzo in mazzi[1:]]


def Otto():
    trentadue = CercaTrentadue(7000)
    prima = Esame(trentadue)

    def Adatti(esami):
        return (sum(e.cifre.colpiTotali for e in esami) == 229 - 32
                # 2,418 of 2,496 cards is 96.875%, an exact half.
                and sum(e.cifre.carteUsate for e in esami) + prima.cifre.carteUsate == 2418
                and ContiDistinti([prima] + esami))
    mazzi = CercaMazzi(13500, 7, Adatti)
    return [
        ("32 coups, so that the percentages of the HTML page are exact halves (1 of 32 is 3.125%)",
         trentadue),
        ("ordinary shoes; 229 coups in 8 shoes make 28.625 per shoe, and 2,418 cards used "
         "are 96.875%, both exact halves", mazzi[0]),
    ] + [(None, mazzo) for mazzo in mazzi[1:]]


ARCHIVI = (
    ("uno_trentuno.mazzi", UnoTrentuno),
    ("uno_liscio.mazzi", UnoLiscio),
    ("tre.mazzi", Tre),
    ("otto.mazzi", Otto),
    ("dodici.mazzi", Dodici),
)


def ScriviMazzi(percorso, taglie):
    with open(percorso, "w", encoding="ascii", newline="\n") as archivio:
        for commento, mazzo in taglie:
            if commento:
                archivio.write(f"# {commento}\n")
            archivio.write(",".join(str(codice) for codice in mazzo) + "\n")


def Main(argv):
    cartella = argv[0] if argv else os.path.dirname(os.path.abspath(__file__))
    for nome, costruisci in ARCHIVI:
        ScriviMazzi(os.path.join(cartella, nome), costruisci())
    return 0


if __name__ == "__main__":
    sys.exit(Main(sys.argv[1:]))
