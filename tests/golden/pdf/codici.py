"""Barcodes of the reference PDF writer, without their text."""

from numeri import ErroreScrittore, Singolo

# EAN-13: seven modules for each digit, "1" is a bar.
SINISTRE_A = ("0001101", "0011001", "0010011", "0111101", "0100011",
              "0110001", "0101111", "0111011", "0110111", "0001011")
DESTRE = tuple(m.translate(str.maketrans("01", "10")) for m in SINISTRE_A)
SINISTRE_B = tuple(m[::-1] for m in DESTRE)
PARITA = ("AAAAAA", "AABABB", "AABBAB", "AABBBA", "ABAABB",
          "ABBAAB", "ABBBAA", "ABABAB", "ABABBA", "ABBABA")
LATERALE, CENTRALE = "101", "01010"
GUARDIE = (range(0, 3), range(45, 50), range(92, 95))
MODULI_EAN, MODULI_GUARDIA, MODULI_39 = 69, 5, 40

# Code 39: the ten pairs of bars and the four wide spaces of ISO/IEC 16388.  A
# digit of BARRE is 1 for a wide bar; a character of a column has the same.
BARRE = ("10001", "01001", "11000", "00101", "10100", "01100", "00011", "10010", "01010", "00110")
COLONNE = (("1234567890", "0100"), ("ABCDEFGHIJ", "0010"),
           ("KLMNOPQRST", "0001"), ("UVWXYZ-. *", "1000"))
SOLO_SPAZI = {"$": "1110", "/": "1101", "+": "1011", "%": "0111"}
DATI = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%"


def CifraControllo(codice):
    somma = sum(int(c) * (3 if i % 2 else 1) for i, c in enumerate(codice[:12]))
    return (10 - somma % 10) % 10


def ModuliEan(codice):
    """The 95 modules of a code of 12 digits or more."""
    cifre = [int(c) for c in codice[:12]] + [CifraControllo(codice)]
    sinistra = "".join((SINISTRE_A if parita == "A" else SINISTRE_B)[cifra]
                       for parita, cifra in zip(PARITA[cifre[0]], cifre[1:7]))
    destra = "".join(DESTRE[cifra] for cifra in cifre[7:])
    return LATERALE + sinistra + CENTRALE + destra + LATERALE


def Elementi39(carattere):
    """Five bars and four spaces in turn, True for a wide one."""
    if carattere in SOLO_SPAZI:
        barre, spazi = "00000", SOLO_SPAZI[carattere]
    else:
        barre, spazi = next((BARRE[caratteri.index(carattere)], spazi)
                            for caratteri, spazi in COLONNE if carattere in caratteri)
    alternati = "".join(b + s for b, s in zip(barre, spazi + " ")).strip()
    return [c == "1" for c in alternati]


def Esteso(codice):
    """A code below 128 as one or two characters of Code 39."""
    if chr(codice) in DATI:
        return chr(codice)
    if codice == 0:
        return "%U"
    if codice <= 26:
        return "$" + chr(codice + 64)
    if codice < 32:
        return "%" + "ABCDE"[codice - 27]
    if codice < 64:
        # "!" to "," are /A to /L, ":" is /Z, ";" to "?" go on with %F.
        return "/" + chr(codice + 32) if codice < 59 else "%" + chr(codice + 11)
    if codice == 64:
        return "%V"
    if codice < 96:
        return "%" + chr(codice - 16)
    if codice == 96:
        return "%W"
    if codice < 123:
        return "+" + chr(codice - 32)
    return "%" + chr(codice - 43)


class Codici:
    """Part of Scrittore: barcodes."""

    def DrawEAN13(self, codice, x, y, testo=True, altezza=0, modulo=0):
        x, y, modulo = Singolo(x), Singolo(y), LarghezzaModulo(modulo)
        self.SenzaTesto(testo)
        if not (codice.isascii() and codice.isdigit() and len(codice) in (12, 13)):
            raise ErroreScrittore("an EAN-13 has 12 or 13 digits")
        altezza = Singolo(altezza)
        if altezza <= 0:
            altezza = MODULI_EAN * modulo / self.scala
        moduli, inizio = ModuliEan(codice), 0
        while inizio < 95:
            fine = inizio
            while fine < 95 and moduli[fine] == moduli[inizio]:
                fine += 1
            if moduli[inizio] == "1":
                guardia = any(inizio in tratto for tratto in GUARDIE)
                lunga = MODULI_GUARDIA * modulo / self.scala if guardia else 0
                self.Barra(x, inizio, fine - inizio, y, altezza + lunga, modulo)
            inizio = fine

    def DrawCODE39(self, codice, x, y, altezza=0, testo=True, modulo=0, rapporto=0):
        x, y, modulo = Singolo(x), Singolo(y), LarghezzaModulo(modulo)
        self.SenzaTesto(testo)
        altezza, rapporto = Singolo(altezza), Singolo(rapporto)
        if rapporto <= 0:
            rapporto = 2.5
        if altezza <= 0:
            altezza = MODULI_39 * modulo / self.scala
        if not codice.isascii():
            raise ErroreScrittore("a Code 39 is ASCII")
        posto = 0
        for carattere in "*" + "".join(Esteso(ord(c)) for c in codice) + "*":
            for numero, largo in enumerate(Elementi39(carattere)):
                moduli = rapporto if largo else 1
                if numero % 2 == 0:
                    self.Barra(x, posto, moduli, y, altezza, modulo)
                posto += moduli
            posto += 1

    def SenzaTesto(self, testo):
        if testo:
            raise ErroreScrittore("where the text under a barcode stands is not fixed")

    def Barra(self, x, da, quanti, y, altezza, modulo):
        """da and quanti in modules from x."""
        v = self.interno
        self.prRect(v(x + da * modulo / self.scala), v(y), v(quanti * modulo / self.scala),
                    v(altezza), 4)


def LarghezzaModulo(modulo):
    modulo = Singolo(modulo)
    return min(modulo, 2.0) if modulo > 0 else Singolo(0.8)
