"""Colours, paths, curves and axes of the reference PDF writer."""

import math

from numeri import AColore, Byte, ColoreNominato, Componenti, Nome, PI, Singolo

CURVA = 4 * (math.sqrt(2) - 1) / 3
# Corner constant of rounded rectangles; not CURVA, on purpose.
ANGOLO = 0.55

OPERATORI = {7: ("b",), 5: ("B",), 4: ("f",), 6: ("f",), 3: ("h", "S"),
             2: ("h",), 1: ("S",), 0: ()}


class Disegno:
    """Part of Scrittore: everything that draws or changes the axes."""

    def IniziaDisegno(self):
        # Each a colour, and of a pattern perhaps the colour it is given.
        self.riempimento, self.contorno = ("#000000", ""), ("#000000", "")
        self.NuovoContenuto()

    def NuovoContenuto(self):
        """At each page or form: line width 1 point, no fill chosen yet."""
        self.spessore = 1.0
        self.riempimentoScelto = False

    def Nero(self):
        self.Colora("Black", "", riempi=True)
        self.Colora("Black", "", riempi=False)
        self.NuovoContenuto()

    # -- colours -----------------------------------------------------------

    def SetColorFill(self, colore, coloreTrama=""):
        if colore:
            self.riempimentoScelto = True
        self.Colora(Byte(colore), Byte(coloreTrama), riempi=True)

    def SetColorLine(self, colore, coloreTrama=""):
        self.Colora(Byte(colore), Byte(coloreTrama), riempi=False)

    def Colora(self, colore, coloreTrama, riempi):
        if not colore:
            return
        colore = ColoreNominato(colore)
        if riempi:
            self.riempimento = colore, coloreTrama
        else:
            self.contorno = colore, coloreTrama
        if colore.startswith("#"):
            self.prPrint("#c #c #c " + ("rg" if riempi else "RG"), *Componenti(colore))
            return
        coloreTrama = ColoreNominato(coloreTrama)
        if coloreTrama.startswith("#"):
            modello = "/xxCSxx cs #c #c #c /#t scn" if riempi else "/xxCSxx CS #c #c #c /#t SCN"
            self.prPrint(modello, *Componenti(coloreTrama), Nome(colore))
        else:
            self.prPrint("/Pattern cs /#t scn" if riempi else "/Pattern CS /#t SCN", Nome(colore))

    def ToColor(self, *valori):
        return AColore(valori)

    # -- lines and paths ---------------------------------------------------

    def SetLineStyle(self, larghezza, estremi=-1, giunti=-1, punta=0, acceso=0, spento=0):
        larghezza, acceso, spento = map(Singolo, (larghezza, acceso, spento))
        if larghezza >= 0:
            self.spessore = Singolo(larghezza * self.scala)
            self.prPrint("#s w", larghezza * self.scala)
        if estremi >= 0:
            self.prPrint("#i J", estremi)
        if giunti >= 0:
            self.prPrint("#i j", giunti)
        if punta >= 1:
            self.prPrint("#i M", punta)
        if acceso != 0 or spento != 0:
            self.prPrint("[#s #s] 0 d", acceso * self.scala, spento * self.scala)
        else:
            self.prWriteRaw("[ ] 0 d")

    def prPaintOp(self, opzioni):
        for operatore in OPERATORI[opzioni & 7]:
            self.prWriteRaw(operatore)

    def MoveTo(self, x, y):
        self.prMoveTo(Singolo(x), Singolo(y))

    def prMoveTo(self, x, y):
        x, y = x * self.scala, y * self.scala
        self.Punto(x, y)
        self.prPrint("#s #s m", x, y)

    def DrawLineTo(self, x, y, opzioni=1):
        self.prLineTo(Singolo(x), Singolo(y))
        self.prPaintOp(opzioni)

    def prLineTo(self, x, y):
        x, y = x * self.scala, y * self.scala
        self.Punto(x, y)
        self.prPrint("#s #s l", x, y)

    def DrawLine(self, x1, y1, x2, y2, opzioni=1):
        punti = [Singolo(v) * self.scala for v in (x1, y1, x2, y2)]
        self.Punto(punti[0], punti[1])
        self.prPrint("#s #s m #s #s l", *punti)
        self.prPaintOp(opzioni)

    def DrawRect(self, x, y, larghezza, altezza, opzioni=1, raggio=0):
        self.prRect(*map(Singolo, (x, y, larghezza, altezza)), opzioni, Singolo(raggio))

    def prRect(self, x, y, larghezza, altezza, opzioni, raggio=0):
        self.prWriteRaw("n")
        if raggio <= 0:
            self.prPrint("#s #s #s #s re", *(v * self.scala for v in (x, y, larghezza, altezza)))
        else:
            self.prRounded(x, y, larghezza, altezza, min(raggio, larghezza / 2, altezza / 2))
        self.prPaintOp(opzioni)

    def prRounded(self, x, y, larghezza, altezza, raggio):
        """Clockwise as seen, from the left end of the upper side."""
        resto = raggio - ANGOLO * raggio
        destra, basso = x + larghezza, y + altezza
        v = self.interno
        self.prMoveTo(v(x + raggio), v(y))
        self.prLineTo(v(destra - raggio), v(y))
        self.prCurve("c", v(destra - resto), v(y), v(destra), v(y + resto),
                     v(destra), v(y + raggio))
        self.prLineTo(v(destra), v(basso - raggio))
        self.prCurve("c", v(destra), v(basso - resto), v(destra - resto), v(basso),
                     v(destra - raggio), v(basso))
        self.prLineTo(v(x + raggio), v(basso))
        self.prCurve("c", v(x + resto), v(basso), v(x), v(basso - resto),
                     v(x), v(basso - raggio))
        self.prLineTo(v(x), v(y + raggio))
        self.prCurve("c", v(x), v(y + resto), v(x + resto), v(y), v(x + raggio), v(y))

    # -- curves ------------------------------------------------------------

    def prCurve(self, operatore, *punti):
        """Coordinates in user units; the last two are the end point."""
        punti = [p * self.scala for p in punti]
        self.Punto(punti[-2], punti[-1])
        self.prPrint("#s " * len(punti) + operatore, *punti)

    def DrawCurveA(self, x1, y1, x2, y2, x3, y3, opzioni=1):
        self.prCurve("c", *map(Singolo, (x1, y1, x2, y2, x3, y3)))
        self.prPaintOp(opzioni)

    def DrawCurveB(self, x2, y2, x3, y3, opzioni=1):
        self.prCurve("v", *map(Singolo, (x2, y2, x3, y3)))
        self.prPaintOp(opzioni)

    def DrawCurveC(self, x1, y1, x3, y3, opzioni=1):
        self.prCurve("y", *map(Singolo, (x1, y1, x3, y3)))
        self.prPaintOp(opzioni)

    def DrawCircle(self, x, y, raggio, opzioni=1):
        self.DrawEllipse(x, y, raggio, raggio, opzioni)

    def DrawEllipse(self, x, y, raggioX, raggioY, opzioni=1):
        """From the rightmost point through the lowest, clockwise as seen."""
        x, y, a, b = map(Singolo, (x, y, raggioX, raggioY))
        ka, kb = CURVA * a, CURVA * b
        v = self.interno
        self.prMoveTo(v(x + a), v(y))
        for punti in ((x + a, y + kb, x + ka, y + b, x, y + b),
                      (x - ka, y + b, x - a, y + kb, x - a, y),
                      (x - a, y - kb, x - ka, y - b, x, y - b),
                      (x + ka, y - b, x + a, y - kb, x + a, y)):
            self.prCurve("c", *map(v, punti))
        self.prPaintOp(opzioni)

    def DrawArc(self, x, y, raggio, inizio, fine, opzioni=1):
        """Degrees, 0 to the right, counterclockwise as seen."""
        x, y, raggio, inizio, fine = map(Singolo, (x, y, raggio, inizio, fine))
        while fine < inizio:
            fine += 360
        tratti = max(1, math.ceil((fine - inizio) / 90))
        passo = (fine - inizio) / tratti
        k = 4 / 3 * math.tan(passo * PI / 180 / 4) * raggio
        v = self.interno
        angoli = [(inizio + i * passo) * PI / 180 for i in range(tratti + 1)]
        self.prMoveTo(v(x + raggio * math.cos(angoli[0])), v(y - raggio * math.sin(angoli[0])))
        for da, a in zip(angoli, angoli[1:]):
            punti = (x + raggio * math.cos(da) - k * math.sin(da),
                     y - raggio * math.sin(da) - k * math.cos(da),
                     x + raggio * math.cos(a) + k * math.sin(a),
                     y - raggio * math.sin(a) + k * math.cos(a),
                     x + raggio * math.cos(a), y - raggio * math.sin(a))
            self.prCurve("c", *map(v, punti))
        self.prPaintOp(opzioni)

    # -- axes --------------------------------------------------------------

    def MakeAxisTranslation(self, dx, dy):
        self.prPrint("1 0 0 1 #s #s cm", Singolo(dx) * self.scala, Singolo(dy) * self.scala)

    def MakeAxisScaling(self, scalaX, scalaY):
        self.prPrint("#s 0 0 #s 0 0 cm", Singolo(scalaX), Singolo(scalaY))

    def MakeAxisRotation(self, angolo):
        angolo = Singolo(angolo)
        if round(angolo) % 360 == 0:
            return
        coseno, seno = math.cos(angolo * PI / 180), math.sin(angolo * PI / 180)
        self.prPrint("#s #s #s #s 0 0 cm", coseno, seno, -seno, coseno)

    def MakeAxisSkewing(self, alfa, beta):
        self.prPrint("1 #s #s 1 0 0 cm", math.tan(Singolo(alfa) * PI / 180),
                     math.tan(Singolo(beta) * PI / 180))

    def BeginGraphicSpace(self, x, y, scalaX=1, scalaY=1):
        x, y, scalaX, scalaY = map(Singolo, (x, y, scalaX, scalaY))
        self.Punto(x * self.scala, y * self.scala)
        self.prWriteRaw("q")
        if (x, y, scalaX, scalaY) != (0, 0, 1, 1):
            self.prPrint("#s 0 0 #s #s #s cm", scalaX, scalaY, x * self.scala, y * self.scala)

    def EndGraphicSpace(self):
        self.prWriteRaw("Q")
