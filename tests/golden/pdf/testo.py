"""Lines and boxes of text of the reference PDF writer."""

import math

from numeri import Byte, Numero, PI, Singolo, StringaPdf


class Testo:
    """Part of Scrittore: the text operations."""

    def SetWordSpacing(self, w):
        self.spazioParole = Singolo(w)
        self.prPrint("#s Tw", self.spazioParole)

    def SetCharSpacing(self, w):
        self.spazioCaratteri = Singolo(w)
        self.prPrint("#s Tc", self.spazioCaratteri)

    def SetTextHorizontalScaling(self, w):
        self.scalaTesto = Singolo(w)
        self.prPrint("#s Tz", self.scalaTesto)

    def SetTextRenderingMode(self, w):
        self.prPrint("#i Tr", w)

    def prTextMatrix(self, x, y, angolo):
        punto = f"{Numero(x)} {Numero(y)} Tm"
        if angolo == 0:
            return "1 0 0 -1 " + punto
        coseno, seno = math.cos(angolo * PI / 180), math.sin(angolo * PI / 180)
        quattro = " ".join(Numero(v) for v in (coseno, -seno, -seno, -coseno))
        return f"{quattro} {punto}"

    def DrawText(self, x, y, testo, opzioni=1, angolo=0):
        x, y, angolo, testo = Singolo(x), Singolo(y), Singolo(angolo), Byte(testo)
        if opzioni & 7 == 2:
            x -= self.Misura(testo)
        elif opzioni & 7 == 4:
            x -= self.Misura(testo) / 2
        self.Punto(x * self.scala, y * self.scala + self.corpo)
        self.prWriteRaw("BT")
        self.prPrint("/#t #s Tf #s TL", self.NomeCarattere(), self.corpo, self.corpo)
        self.prPrint("#t (#p) Tj",
                     self.prTextMatrix(x * self.scala, y * self.scala, angolo), testo)
        self.prWriteRaw("ET")
        if any(self.linee):
            self.Decora(x, y, angolo, self.Misura(testo) * self.scala)

    def Decora(self, x, y, angolo, lunghezza):
        """Underline, overline, strike-out; lunghezza in points."""
        self.prPrint("#s w ", self.corpo / 16)
        self.prWriteRaw("q")
        self.prPrint("1 0 0 1 #s #s cm", x * self.scala, y * self.scala)
        if angolo != 0:
            self.MakeAxisRotation(-angolo)
        scarti = (self.corpo / 8, -0.8 * self.corpo, -0.3 * self.corpo)
        for presente, scarto in zip(self.linee, scarti):
            if presente:
                self.prPrint("0 #s m #s #s l S", scarto, lunghezza, scarto)
        self.prWriteRaw("Q")
        self.prPrint("#s w", self.spessore)

    def DrawTextBox(self, x, y, larghezza, altezza, testo, interlinea=1,
                    rientro=0, opzioni=1, angolo=0):
        x, y, larghezza, altezza = map(Singolo, (x, y, larghezza, altezza))
        interlinea, rientro, angolo = map(Singolo, (interlinea, rientro, angolo))
        righe = self.Impagina(Byte(testo), larghezza, rientro)
        passo = interlinea * self.corpo
        base = self.PrimaBase(y, altezza, passo, len(righe), opzioni)
        self.prWriteRaw("BT")
        self.prPrint("/#t #s Tf #s TL", self.NomeCarattere(), self.corpo, passo)
        self.prPrint("1 0 0 -1 0 #s Tm", self.altezza)
        self.prWriteRaw(self.prTextMatrix(x * self.scala, base, angolo))
        self.prWriteRaw("".join(
            self.Riga(riga, larghezza, rientro, opzioni & 71) for riga in righe))
        self.prWriteRaw("ET")
        self.Punto(x * self.scala, y * self.scala)
        return len(righe)

    DrawParagraph = DrawTextBox

    def PrimaBase(self, y, altezza, passo, righe, opzioni):
        """Baseline of the first line, in points."""
        if opzioni & 48 == 16:
            base = (y + altezza) * self.scala - passo * (righe - 1)
        elif opzioni & 48 == 32:
            base = (y + altezza / 2) * self.scala + passo / 2 * (2 - righe)
        else:
            base = y * self.scala + passo
        if self.carattere is None:
            return base
        discesa = self.caratteri[self.carattere]["discesa"]
        return base + discesa * self.corpo / 1000 * self.scalaTesto / 100

    def Impagina(self, testo, larghezza, rientro):
        """Lines of a text: dictionaries testo, misura, prima, ultima."""
        while "  " in testo:
            testo = testo.replace("  ", " ")
        while "\r\n\r\n" in testo:
            testo = testo.replace("\r\n\r\n", "\r\n \r\n")
        bianco = self.Misura(" ")
        righe = []
        for paragrafo in testo.split("\r\n"):
            righe += self.Paragrafo(paragrafo.split(" "), larghezza, rientro, bianco)
        return righe

    def Entra(self, parole, larghezza, rientro):
        """Whether a line of these words fits, measured as the caller would."""
        return Singolo(Singolo(self.Misura(" ".join(parole))) + rientro) <= larghezza

    def Paragrafo(self, parole, larghezza, rientro, bianco):
        righe, inizio, somma = [], 0, 0.0
        intero = self.Entra(parole, larghezza, rientro)
        for indice, parola in enumerate(parole):
            riga = parole[inizio:indice + 1]
            if indice > inizio and not intero and not self.Entra(
                    riga, larghezza, 0 if righe else rientro):
                righe.append((inizio, indice, somma))
                inizio, somma = indice, 0.0
            somma += self.Misura(parola)
        righe.append((inizio, len(parole), somma))
        return [{
            "testo": " ".join(parole[da:a]),
            "misura": somma + bianco * (a - da - 1) + (rientro if numero == 0 else 0),
            "prima": numero == 0,
            "ultima": numero == len(righe) - 1,
        } for numero, (da, a, somma) in enumerate(righe)]

    def Riga(self, riga, larghezza, rientro, orizzontale):
        """One line with the operators before and after it."""
        prima = dopo = ""
        rientro = rientro if riga["prima"] else 0
        resto = larghezza - riga["misura"]
        if orizzontale in (2, 4):
            scarto = (resto if orizzontale == 2 else resto / 2) + rientro
            prima = f"{Numero(scarto * self.scala)} 0 Td "
            dopo = f"{Numero(-(scarto * self.scala))} 0 Td "
        bianchi = riga["testo"].count(" ")
        if orizzontale == 64 and bianchi and not riga["ultima"]:
            prima = f"{Numero(resto * self.scala / bianchi)} Tw "
            dopo = f"{Numero(self.spazioParole)} Tw "
        if orizzontale in (1, 64) and rientro != 0:
            prima += f"{Numero(rientro * self.scala)} 0 Td "
            dopo += f"{Numero(-(rientro * self.scala))} 0 Td "
        return f"{prima}({StringaPdf(riga['testo'])}) Tj {dopo}T*\r"
