"""Bookmarks and annotations of the reference PDF writer."""

from numeri import Byte, ColoreNominato, Componenti, Numero, Singolo, StringaPdf

ICONE = ("Note", "Comment", "Key", "Help", "Paragraph", "NewParagraph", "Insert")
TIMBRI = ("Approved", "AsIs", "Confidential", "Departmental", "Draft", "Experimental",
          "Expired", "Final", "ForComment", "ForPublicRelease", "NotApproved",
          "NotForPublicRelease", "Sold", "TopSecret")
RILIEVI = ("N", "I", "O", "P")
BORDI = ("/S /S", "/S /D /D [ 3 ]", "/S /B", "/S /I", "/S /U")
LATO_ICONA = 20


def Nome(chiave, nomi, numero):
    """" /Key /Name" as a list of one text, empty for an unknown number."""
    return [f" /{chiave} /{nomi[numero]}"] if 0 <= numero < len(nomi) else []


class Navigazione:
    """Part of Scrittore: the outline, notes, stamps and links."""

    def IniziaNavigazione(self):
        self.segnalibri, self.annotazioni = [], []
        self.paginaCorrente = 0

    # -- bookmarks ---------------------------------------------------------

    def AddBookmark(self, titolo, livello=1, modo=0, sinistra=0, alto=0, destra=0,
                    basso=0, ingrandimento=0):
        precedente = self.segnalibri[-1]["livello"] if self.segnalibri else 0
        self.segnalibri.append({
            "titolo": Byte(titolo), "testo": titolo,
            "livello": min(max(livello, 1), precedente + 1),
            "meta": self.Meta(modo, sinistra, alto, destra, basso, ingrandimento),
        })

    def Meta(self, modo, sinistra, alto, destra, basso, ingrandimento):
        def Ascissa(x):
            return Numero(Singolo(x) * self.scala)

        def Ordinata(y):
            return Numero(self.altezza - Singolo(y) * self.scala)

        vista = {
            0: "/FitB",
            1: f"/FitV {Ascissa(sinistra)}",
            2: f"/FitH {Ordinata(alto)}",
            3: f"/FitR {Ascissa(sinistra)} {Ordinata(basso)} {Ascissa(destra)} {Ordinata(alto)}",
            4: f"/XYZ {Ascissa(sinistra)} {Ordinata(alto)} {Numero(Singolo(ingrandimento))}",
        }
        return f"[{self.paginaCorrente} 0 R {vista[modo]}]" if modo in vista else ""

    def prWriteOutlines(self):
        """The tree under the title; returns the number of its root."""
        voci = [{"titolo": self.titolo, "livello": 0, "meta": ""}] + self.segnalibri
        radice = self.prInitObj()
        genitori = [max((j for j in range(i) if voci[j]["livello"] < voce["livello"]),
                        default=None) for i, voce in enumerate(voci)]
        self.prPrint("<< /Count 1 /First #i 0 R /Last #i 0 R >>", radice + 1, radice + 1)
        self.prEndObj()
        for i, voce in enumerate(voci):
            fratelli = [j for j, g in enumerate(genitori) if g == genitori[i]]
            figli = [j for j, g in enumerate(genitori) if g == i]
            legami = [("Parent", -1 if genitori[i] is None else genitori[i])]
            if figli:
                legami += [("First", figli[0]), ("Last", figli[-1])]
            legami += [("Prev", j) for j in fratelli if j < i][-1:]
            legami += [("Next", j) for j in fratelli if j > i][:1]
            self.prInitObj()
            self.prPrint("<< /Title (#p)", voce["titolo"])
            for chiave, altra in legami:
                self.prWriteRaw(f"/{chiave} {radice + 1 + altra} 0 R")
            if i == 0:
                # Items without a count are closed: only its own children show.
                self.prPrint("/Count #i", len(figli))
            if voce["meta"]:
                self.prPrint("/Dest #t", voce["meta"])
            self.prWriteRaw(">>")
            self.prEndObj()
        return radice

    # -- annotations -------------------------------------------------------

    def Riquadro(self, x, y, larghezza, altezza):
        """Corners in points, the lower left first, y upward."""
        sinistra, alto = Singolo(x) * self.scala, self.altezza - Singolo(y) * self.scala
        destra = (Singolo(x) + Singolo(larghezza)) * self.scala
        basso = self.altezza - (Singolo(y) + Singolo(altezza)) * self.scala
        return sinistra, basso, destra, alto

    def Annota(self, tipo, riquadro, testo, segni, titolo, colore, proprie):
        righe = ["<< /Type /Annot", f"/Subtype /{tipo}",
                 "/Rect [" + " ".join(map(Numero, riquadro)) + "]",
                 f"/Contents ({StringaPdf(Byte(testo))})", f"/F {segni}"]
        if titolo:
            righe.append(f"/T ({StringaPdf(Byte(titolo))})")
        if colore:
            righe.append(f"/C [ {Terna(colore)} ]")
        self.annotazioni.append("\r".join(righe + proprie + [">>"]))

    def AddNoteIcon(self, testo, icona, x, y, aperta=False, colore="", titolo="", segni=4):
        sinistra, _, _, alto = self.Riquadro(x, y, 0, 0)
        riquadro = sinistra, alto - LATO_ICONA, sinistra + LATO_ICONA, alto
        proprie = ("/Open true" if aperta else "/Open false")
        proprie += "".join(Nome("Name", ICONE, icona))
        self.Annota("Text", riquadro, testo, segni, titolo, colore, [proprie])

    def AddNoteBox(self, testo, x, y, larghezza, altezza, corpo=12, coloreTesto="Black",
                   allinea=0, spessore=1, bordo=0, colore="", titolo="", segni=4):
        carattere = self.TrovaCarattere("Arial", 0)
        proprie = [f"/DA (/_FNT_{carattere + 1} {Numero(Singolo(corpo))} Tf "
                   f"{Terna(coloreTesto)} rg)"]
        if allinea in (1, 2):
            proprie.append(f"/Q {allinea}")
        stile = f" {BORDI[bordo]}" if 0 <= bordo < len(BORDI) else ""
        proprie.append(f"/BS << /Type /Border /W {Numero(Singolo(spessore))}{stile} >>")
        self.Annota("FreeText", self.Riquadro(x, y, larghezza, altezza), testo, segni,
                    titolo or "Orvenna", colore, proprie)

    def AddNoteStamp(self, testo, x, y, larghezza, altezza, timbro=0, titolo="", colore="",
                     segni=4):
        self.Annota("Stamp", self.Riquadro(x, y, larghezza, altezza), testo, segni, titolo,
                    colore, Nome("Name", TIMBRI, timbro))

    def AddWebLink(self, indirizzo, x, y, larghezza, altezza, rilievo=1, bordo=0):
        proprie = Nome("H", RILIEVI, rilievo)
        proprie.append(f"/Border [ 0 0 {Numero(Singolo(bordo))}]")
        proprie.append(f"/A << /S /URI /URI ({StringaPdf(Byte(indirizzo))}) >>")
        self.Annota("Link", self.Riquadro(x, y, larghezza, altezza), indirizzo, 4, "", "",
                    proprie)

    def prWriteAnnotations(self, primo):
        """Writes the page's annotations from object primo on; returns their list."""
        elenco = ""
        for numero, testo in enumerate(self.annotazioni, primo):
            elenco += f"{numero} 0 R "
            self.prInitObj(numero)
            self.prWriteRaw(testo)
            self.prEndObj()
        return elenco


def Terna(colore):
    """A colour as three numbers from 0 to 1."""
    return " ".join(Numero(c / 255) for c in Componenti(ColoreNominato(Byte(colore))))
