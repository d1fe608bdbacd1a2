"""Forms and tables of the reference PDF writer."""

from numeri import Byte, ColoreNominato, Nome, Singolo


class Moduli:
    """Part of Scrittore: named forms, automatic painting, tables."""

    def IniziaModuli(self):
        self.automatici = []
        self.tabelle = []  # what each table keeps until a table in its cell ends
        self.rigaAperta = self.cellaAperta = False

    # -- forms -------------------------------------------------------------

    def BeginObject(self, nome, segni=0):
        nome = Nome(Byte(nome))
        self.automatici.append((nome, segni))
        numero = self.prInitObj()
        margine = self.margine
        self.prPrint("<< /Type /XObject /Subtype /Form /FormType 1 /Name /#t", nome)
        self.prPrint("/BBox [#s #s #s #s]", margine, margine,
                     self.larghezza - margine, self.altezza - margine)
        self.prWriteRaw("/Matrix [1 0 0 1 0 0]")
        self.prPrint("#t/Length #i 0 R >>", self.prFiltro(), numero + 1)
        self.ApriFlusso()
        self.risorseModuli += f"/{nome} {numero} 0 R \r"
        self.prWriteRaw("q")
        self.NuovoContenuto()

    def EndObject(self):
        self.prWriteRaw("Q")
        lunghezza = self.ChiudiFlusso()
        self.prEndObj()
        self.prInitObj()
        self.prPrint("#i", lunghezza)
        self.prEndObj()

    def PlayObject(self, nome):
        self.prPrint("/#t Do", Nome(Byte(nome)))

    def prPlayAutoObjects(self, fine):
        pagina = self.pagine
        for nome, segni in self.automatici:
            if bool(segni & 16) != fine:
                continue
            dispari = pagina % 2 == 1
            if (segni & 7 == 7
                    or (not dispari and segni & 2)
                    or (dispari and segni & 4 and not (segni & 8 and pagina == 1))):
                self.prPrint("/#t Do", nome)

    # -- tables ------------------------------------------------------------

    DELLA_TABELLA = ("tabellaX", "tabellaY", "stileTabella", "rigaX", "rigaY", "rigaAltezza",
                     "stileRiga", "cellaX", "cellaLarghezza", "rigaAperta", "cellaAperta")

    def BeginTable(self, x, y, fondo="", spessore=-1, contorno=""):
        dentro = self.cellaAperta
        self.tabelle.append({n: getattr(self, n) for n in self.DELLA_TABELLA} if dentro else None)
        self.tabellaX, self.tabellaY = Singolo(x), Singolo(y)
        # The black that every page begins with is no choice of the caller.
        corrente = self.riempimento if self.riempimentoScelto else ("", "")
        self.stileTabella = self.Stile(
            fondo, spessore, contorno,
            (corrente, Singolo(self.spessore / self.scala), self.contorno))
        self.rigaX, self.rigaY = self.tabellaX, self.tabellaY
        self.cellaLarghezza = 0.0
        self.rigaAperta = self.cellaAperta = False
        self.Punto(self.tabellaX * self.scala, self.tabellaY * self.scala)
        self.prWriteRaw("q")
        self.prPrint("#s w", self.stileTabella[1] * self.scala)

    def Stile(self, fondo, spessore, contorno, eredita):
        """Fill, line width (user units) and line colour, or what is inherited."""
        return ((ColoreNominato(Byte(fondo)), "") if fondo else eredita[0],
                eredita[1] if spessore == -1 else Singolo(spessore),
                (ColoreNominato(Byte(contorno)), "") if contorno else eredita[2])

    def Cornice(self, larghezza, altezza, stile):
        """Background inset by half the line, then the frame."""
        fondo, spessore, contorno = stile
        v = self.interno
        if fondo[0]:
            ricordato = self.riempimento
            self.Colora(*fondo, riempi=True)
            self.prRect(v(spessore / 2), v(spessore / 2), v(larghezza - spessore),
                        v(altezza - spessore), 4)
            self.Colora(*ricordato, riempi=True)
        if spessore != 0:
            ricordato = self.spessore, self.contorno
            self.SetLineStyle(spessore)
            self.Colora(*contorno, riempi=False)
            self.prRect(0, 0, larghezza, altezza, 1)
            self.prPrint("#s w", ricordato[0])
            self.prWriteRaw("[ ] 0 d")
            self.spessore = ricordato[0]
            self.Colora(*ricordato[1], riempi=False)

    def BeginRow(self, altezza, fondo="", spessore=-1, contorno=""):
        self.rigaAltezza = Singolo(altezza)
        self.stileRiga = self.Stile(fondo, spessore, contorno, self.stileTabella)
        self.BeginGraphicSpace(self.rigaX, self.rigaY)
        # The frame of a row spans the last cell laid before it, not its cells.
        self.Cornice(self.cellaLarghezza, self.rigaAltezza, self.stileRiga)
        self.cellaX = 0.0
        self.Punto(0, 0)
        self.rigaAperta = True

    def EndRow(self):
        if self.rigaAperta:
            self.EndGraphicSpace()
            self.rigaY = Singolo(self.rigaY + self.rigaAltezza)
        self.rigaAperta = False

    def BeginColumn(self, larghezza, fondo="", spessore=-1, contorno=""):
        self.cellaLarghezza = Singolo(larghezza)
        self.stileCella = self.Stile(fondo, spessore, contorno, self.stileRiga)
        self.BeginGraphicSpace(self.cellaX, 0)
        self.Cornice(self.cellaLarghezza, self.rigaAltezza, self.stileCella)
        self.cellaAperta = True

    def EndColumn(self):
        if self.cellaAperta:
            self.EndGraphicSpace()
            self.cellaX = Singolo(self.cellaX + self.cellaLarghezza)
        self.cellaAperta = False

    def EndTable(self):
        self.prWriteRaw("Q")
        self.Punto(self.tabellaX * self.scala, self.tabellaY * self.scala)
        for nome, valore in (self.tabelle.pop() or {}).items():
            setattr(self, nome, valore)
