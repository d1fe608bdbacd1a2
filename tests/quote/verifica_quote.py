#!/usr/bin/env python3
"""Checks stampa_quote against exact rational arithmetic on small shoes.

Usage: verifica_quote.py PATH_TO_STAMPA_QUOTE

Both references deal card after card, as the rules say, and share nothing with the rearranged sum
of the program. A shoe that runs out before both rows are complete counts as neither a win nor a
tie ("Incompiuto"); totals and number of cards are counted for completed coups only.
"""

import subprocess
import sys
from collections import defaultdict
from fractions import Fraction

SEI_MAZZI = [24] * 9 + [96]

# Small enough for every sequence of coloured cards to be dealt. Counts go from aces to tens.
MAZZI_MINIMI = [
    [0, 0, 0, 0, 0, 0, 0, 0, 0, 0],
    [0, 0, 0, 0, 0, 0, 0, 0, 0, 6],   # never completes
    [0, 0, 0, 0, 0, 0, 0, 0, 0, 8],   # always a tie at 40
    [2, 0, 0, 0, 0, 0, 0, 0, 0, 6],   # just enough for the best order
    [2, 0, 0, 0, 0, 0, 0, 0, 0, 8],
    [4, 0, 0, 0, 0, 0, 0, 0, 0, 6],
    [0, 2, 0, 0, 0, 0, 0, 0, 2, 6],
    [0, 0, 0, 0, 0, 0, 4, 0, 2, 4],
    [0, 0, 0, 0, 4, 0, 0, 0, 0, 6],
    [0, 0, 2, 0, 0, 2, 0, 0, 0, 6],
    [0, 0, 0, 0, 0, 0, 0, 6, 4, 0],
    [0, 0, 0, 0, 0, 0, 0, 10, 0, 2],
]

# Too large for that, dealt by merging the sequences that leave the same situation.
MAZZI_PICCOLI = [
    [2, 2, 2, 2, 2, 2, 2, 2, 2, 0],
    [2, 2, 2, 2, 2, 2, 2, 2, 2, 2],
    [64, 0, 0, 0, 0, 0, 0, 0, 0, 0],
    [40, 0, 0, 0, 0, 0, 0, 0, 0, 4],
    [20, 20, 0, 0, 0, 0, 0, 0, 0, 4],
    [0, 0, 24, 0, 24, 0, 0, 0, 0, 96],
    [24, 0, 0, 0, 0, 0, 24, 0, 0, 96],
]


class Esiti:
    """Exact probabilities, under the names printed by the program."""

    def __init__(self):
        self.p = defaultdict(Fraction)

    def completo(self, peso, nero, rosso, prima_nera, carte):
        self.p["TotaleNero%d" % nero] += peso
        self.p["TotaleRosso%d" % rosso] += peso
        self.p["CarteColpo%d" % carte] += peso
        if nero == rosso:
            self.p["Pari"] += peso
            if nero == 31:
                self.p["TrentunoApres"] += peso
            return
        vincente = "Nero" if nero < rosso else "Rosso"
        colore = "Colore" if prima_nera == (vincente == "Nero") else "Inverso"
        self.p["Vince" + vincente] += peso
        self.p[colore] += peso
        self.p[vincente + colore] += peso

    def incompiuto(self, peso):
        if peso:
            self.p["Incompiuto"] += peso


def tutte_le_sequenze(mazzo):
    """Deals every sequence, with the colour of every card. kinds[2v + c]: value v + 1, c black."""
    esiti = Esiti()
    generi = [n // 2 for n in mazzo for _ in range(2)]

    def pesca(peso, rimaste, nero, somma, prima_nera, carte):
        if rimaste == 0:
            esiti.incompiuto(peso)
            return
        for genere, n in enumerate(generi):
            if n == 0:
                continue
            peso_carta = peso * Fraction(n, rimaste)
            totale = somma + genere // 2 + 1
            prima = genere % 2 == 1 if carte == 0 else prima_nera
            generi[genere] -= 1
            if totale <= 30:
                pesca(peso_carta, rimaste - 1, nero, totale, prima, carte + 1)
            elif nero is None:
                pesca(peso_carta, rimaste - 1, totale, 0, prima, carte + 1)
            else:
                esiti.completo(peso_carta, nero, totale, prima, carte + 1)
            generi[genere] += 1

    pesca(Fraction(1), sum(generi), None, 0, None, 0)
    return esiti.p


def situazioni(mazzo):
    """Deals all sequences of the same length at once, counting those that reach each situation.

    Counts are integers; only the first card needs a colour, the others never matter. With k cards
    dealt, each count stands over the number of ways to deal k cards in order.
    """
    esiti = Esiti()
    totale_carte = sum(mazzo)
    # situation: (cards left of each value, Nero total or 0, sum of the current row, first is black)
    attuali = {(tuple(mazzo), 0, 0, None): 1}
    modi = 1
    for carte in range(1, totale_carte + 1):
        modi_dopo = modi * (totale_carte - carte + 1)
        prossime = defaultdict(int)
        finite = defaultdict(int)
        for (resto, nero, somma, prima), conto in attuali.items():
            for v, n in enumerate(resto):
                if n == 0:
                    continue
                dopo = resto[:v] + (n - 1,) + resto[v + 1:]
                totale = somma + v + 1
                colori = [(prima, n)] if carte > 1 else [(True, n // 2), (False, n // 2)]
                for colore, quante in colori:
                    if totale <= 30:
                        prossime[dopo, nero, totale, colore] += conto * quante
                    elif nero == 0:
                        prossime[dopo, totale, 0, colore] += conto * quante
                    else:
                        finite[nero, totale, colore] += conto * quante
        modi = modi_dopo
        for (nero, rosso, prima), conto in finite.items():
            esiti.completo(Fraction(conto, modi), nero, rosso, prima, carte)
        attuali = prossime
    esiti.incompiuto(Fraction(sum(attuali.values()), modi))
    return esiti.p


def esegui(programma, argomenti):
    uscita = subprocess.run([programma] + [str(n) for n in argomenti], check=True,
                            stdout=subprocess.PIPE, universal_newlines=True).stdout
    return {nome: float(valore) for nome, valore in (riga.split() for riga in uscita.splitlines())}


def confronta(mazzo, ottenuti, attesi):
    """One unit in the last place of slack; Incompiuto is a difference, hence absolute slack."""
    errori = []
    if sum(attesi[n] for n in ("VinceNero", "VinceRosso", "Pari", "Incompiuto")) != 1:
        errori.append("the reference does not add up to one")
    for nome in sorted(set(ottenuti) | set(attesi)):
        ottenuto = Fraction(ottenuti.get(nome, 0.0))
        atteso = attesi.get(nome, Fraction(0))
        scarto = Fraction(1, 2**52) * (1 if nome == "Incompiuto" else atteso)
        if abs(ottenuto - atteso) > scarto:
            errori.append("%s: %r, expected %r" % (nome, float(ottenuto), float(atteso)))
    print("%-8s %s" % ("FAILED" if errori else "ok", mazzo))
    for errore in errori:
        print("    " + errore)
    return not errori


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    programma = sys.argv[1]
    buono = True
    for mazzo in MAZZI_MINIMI:
        attesi = tutte_le_sequenze(mazzo)
        # The second reference is checked by the first before being relied upon alone.
        if situazioni(mazzo) != attesi:
            print("FAILED   the two references differ on %s" % mazzo)
            buono = False
        buono = confronta(mazzo, esegui(programma, mazzo), attesi) and buono
    for mazzo in MAZZI_PICCOLI:
        buono = confronta(mazzo, esegui(programma, mazzo), situazioni(mazzo)) and buono
    if esegui(programma, []) != esegui(programma, SEI_MAZZI):
        print("FAILED   the default shoe is not the six-pack one")
        buono = False
    if subprocess.run([programma] + ["3"] * 10, stderr=subprocess.DEVNULL).returncode == 0:
        print("FAILED   a shoe without as many black cards as red was accepted")
        buono = False
    return 0 if buono else 1


if __name__ == "__main__":
    sys.exit(main())
