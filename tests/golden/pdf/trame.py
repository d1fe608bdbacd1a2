"""Tilings and gradients of the reference PDF writer."""

from numeri import Byte, Nome, Numero, Singolo
from navigazione import Terna


class Trame:
    """Part of Scrittore: patterns that serve as colours."""

    def IniziaTrame(self):
        self.risorseTrame, self.sfumature = "", []
        self.tinte = {}

    def BeginTiling(self, nome, x1, y1, x2, y2, passoX, passoY, tinta=1):
        nome = Nome(Byte(nome))
        x1, y1, x2, y2, passoX, passoY = (
            Singolo(v) * self.scala for v in (x1, y1, x2, y2, passoX, passoY))
        numero = self.prInitObj()
        self.prPrint("<< /Type /Pattern /PatternType 1 /PaintType #t", "1" if tinta == 1 else "2")
        self.prWriteRaw("/TilingType 1")
        self.prPrint("/BBox [#s #s #s #s]", x1, y1, x2, y2)
        self.prPrint("/XStep #s /YStep #s", passoX, passoY)
        self.prPrint("/Resources #i 0 R", 5)
        self.prWriteRaw("/Matrix [1 0 0 1 0 0]")
        self.prPrint("#t/Length #i 0 R >>", self.prFiltro(), numero + 1)
        self.ApriFlusso()
        self.risorseTrame += f"/{nome} {numero} 0 R \r"
        if x1 != 0 or y1 != 0:
            self.prPrint("1 0 0 1 #s #s cm", x1, y1)
        self.prPrint("1 0 0 -1 0 #s cm", y2 - y1)

    def EndTiling(self):
        lunghezza = self.ChiudiFlusso()
        self.prEndObj()
        self.prInitObj()
        self.prPrint("#i", lunghezza)
        self.prEndObj()

    def SetLinearFill(self, colori, x0, y0, x1, y1, prima=True, dopo=True):
        self.Sfumatura(2, "1", colori, (x0, y0, x1, y1), prima, dopo)

    def SetRadialFill(self, colori, x0, y0, r0, x1, y1, r1, prima=True, dopo=True):
        self.Sfumatura(3, "1.000", colori, (x0, y0, r0, x1, y1, r1), prima, dopo)

    def Sfumatura(self, tipo, esponente, colori, misure, prima, dopo):
        punti = " ".join(Numero(Singolo(v) * self.scala) for v in misure)
        oltre = " ".join("true" if estesa else "false" for estesa in (prima, dopo))
        self.sfumature.append("\r".join((
            "<<", "/Type /Pattern", "/PatternType 2",
            f"/Matrix [ 1 0 0 -1 0 {Numero(self.altezza)}]",
            "/Shading <<", f"/ShadingType {tipo}", "/ColorSpace /DeviceRGB",
            f"/Coords [{punti}]", f"/Extend [{oltre}] ",
            "/Function << /FunctionType 3 ", "/Domain [0.000 1.000] ",
            "/Functions [<< /FunctionType 2 ", "/Domain [0.000 1.000]",
            f"/C0 [{Terna(colori[0])} ]", f"/C1 [{Terna(colori[-1])} ]", f"/N {esponente} >>]",
            "/Bounds [] /Encode [0 1 ]", ">>", ">>", ">>")))
        self.tinte[len(self.sfumature)] = tipo, (Terna(colori[0]), Terna(colori[-1])), punti, oltre
        self.SetColorFill(f"SHAD_{len(self.sfumature)}_ING")

    def prWriteGradients(self):
        for indice, testo in enumerate(self.sfumature, 1):
            numero = self.prInitObj()
            self.prWriteRaw(testo)
            self.prEndObj()
            self.risorseTrame += f"/SHAD_{indice}_ING {numero} 0 R \r"
