"""Reference PDF writer, an implementation of its own kept for the goldens.

The operations have the names and the argument order of the product's writer.
The code favours being read and verified over being quick, and shares nothing
with the product.  It builds the file in memory.
"""

import json
import os

from codici import Codici
from codificatori import ALzw, Comprimi
from disegno import Disegno
from immagini import Immagini, SEMI
from moduli import Moduli
from navigazione import Navigazione
from numeri import Byte, ErroreScrittore, Espandi, Numero, Singolo, StringaPdf
from testo import Testo
from trame import Trame
from truetype import LeggiFont
from xmp import Pacchetto

CREATORE = "Scalvino 1.0"
INSEGNA = "clsPDFCreator 2004-2026 Orvenna"
AUTORE = "Orvenna"
VERSIONE = "1.9.1"

CARTA = {
    0: (596, 842), 1: (842, 596), 2: (842, 1192), 3: (1192, 842),
    4: (1192, 1685), 5: (1685, 1192), 6: (1685, 2384), 7: (2384, 1685),
    8: (2384, 3371), 9: (421, 596), 10: (596, 421), 11: (298, 421),
    12: (421, 298), 13: (210, 298), 14: (298, 210), 15: (612, 792),
    16: (612, 864),
}
UNITA = {0: 1.0, 1: 72.0, 2: 72 / 25.4, 3: 72 / 2.54}
STILI_ETICHETTA = {0: " /S /D", 1: " /S /R", 2: " /S /r", 3: " /S /A", 4: " /S /a"}

FAMIGLIE = {"TIMES": "TimesNewRoman", "COURIER": "CourierNew",
            "SYMBOL": "Symbol", "ZAPFDINGBATS": "ZapfDingbats"}
SINONIMI = {"TIMESNEWROMAN": "TIMES", "COURIERNEW": "COURIER", "HELVETICA": "ARIAL"}
CON_SUFFISSO = ("TIMES", "COURIER", "ARIAL")
SUFFISSI = ("", ",Bold", ",Italic", ",BoldItalic")
DISCESE = {"Arial": -212, "TimesNewRoman": -216, "CourierNew": -300,
           "Symbol": -220, "ZapfDingbats": -143}

with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "larghezze.json"),
          encoding="ascii") as _archivio:
    LARGHEZZE = json.load(_archivio)


class Scrittore(Testo, Disegno, Moduli, Navigazione, Immagini, Trame, Codici):
    """One object writes one document."""

    # Readings that a correct writer may differ in without changing any
    # golden file; controlla.py plays every scenario with each of them.
    #   "argomenti": arguments of operations called from inside are rounded
    #                to 32 bits as if the caller had passed them
    #   "misure":    a measured text length is rounded to 32 bits
    varianti = frozenset()

    def __init__(self, orologio, est=0):
        """orologio: time of creation as yyyymmddhhmmss; est: minutes east of UTC."""
        self.orologio, self.est = orologio, est
        self.livello, self.lingua = 0, None
        self.dati = bytearray()
        self.aperto = False
        self.titolo, self.soggetto, self.parole = "(senza titolo)", "", ""
        self.autore, self.creatore, self.produttore = AUTORE, CREATORE, INSEGNA
        self.data = "D:" + orologio + "Z+01'00'"
        self.larghezza, self.altezza = 596.0, 842.0
        self.scala, self.margine = 1.0, 0.0
        self.orientamento, self.lettore = 0, 0
        self.pagine, self.oggetti = 0, 0
        self.riferimenti = {}
        self.figli, self.etichette = "", ""
        self.risorseCaratteri, self.risorseModuli = "", ""
        self.condividi = False
        self.caratteri = []
        self.corpo, self.carattere = 0.0, None
        self.linee = (False, False, False)
        self.x, self.y = 0.0, 0.0
        self.spazioCaratteri, self.spazioParole, self.scalaTesto = 0.0, 0.0, 100.0
        self.IniziaDisegno()
        self.IniziaModuli()
        self.IniziaNavigazione()
        self.IniziaImmagini()
        self.IniziaTrame()

    # -- bytes -------------------------------------------------------------

    def prWriteRaw(self, testo):
        if not self.aperto:
            raise ErroreScrittore("no open document")
        self.dati += testo.encode("latin-1") + b"\r\n"

    def prPrint(self, modello, *argomenti):
        riga = Espandi(modello, argomenti)
        if riga is not None:
            self.prWriteRaw(riga)

    def prInitObj(self, numero=0):
        if numero == 0:
            numero = self.oggetti + 1
        self.oggetti = max(self.oggetti, numero)
        self.riferimenti[numero] = len(self.dati)
        self.prPrint("#i 0 obj", numero)
        return numero

    def prEndObj(self):
        self.prWriteRaw("endobj")

    def ApriFlusso(self):
        """Begins a stream that is deflated when Compress asks for it."""
        self.prWriteRaw("stream")
        self.prima, self.dati = self.dati, bytearray()

    def ChiudiFlusso(self):
        """Ends it and returns its length."""
        dati = bytes(self.dati)
        if self.livello:
            # The line end before "endstream" does not count (ISO 32000-1, 7.3.8.1).
            dati = Comprimi(dati, self.livello)
            self.prima += dati + b"\r\n"
        else:
            self.prima += dati
        self.dati = self.prima
        self.prWriteRaw("endstream")
        return len(dati)

    def prFiltro(self):
        """What the dictionary of a drawing says of its filter."""
        return "/Filter /FlateDecode " if self.livello else ""

    def interno(self, valore):
        """An argument passed from one operation to another."""
        return Singolo(valore) if "argomenti" in self.varianti else valore

    # -- document ----------------------------------------------------------

    def PDFReader(self, versione):
        self.lettore = versione

    def Margin(self, margine):
        self.margine = Singolo(Singolo(margine) * self.scala)

    def Orientation(self, nuovo):
        self.orientamento = nuovo

    def ShareFonts(self, valore):
        self.condividi = bool(valore)

    def Conforming(self, _si=True):
        """suona.py takes another writer for documents that are to be so."""

    def Compress(self, livello):
        if not 0 <= livello <= 9:
            raise ErroreScrittore(f"no level: {livello}")
        self.livello = livello

    def SetLanguage(self, lingua):
        self.lingua = lingua

    def SetScale(self, modo, punti=1.0):
        if modo == 255:
            self.scala = Singolo(punti)
        elif modo in UNITA:
            self.scala = Singolo(UNITA[modo])

    def SetPaperSize(self, codice, larghezza=0, altezza=0):
        if codice == 255:
            self.larghezza = Singolo(Singolo(larghezza) * self.scala)
            self.altezza = Singolo(Singolo(altezza) * self.scala)
        elif codice in CARTA:
            self.larghezza, self.altezza = map(float, CARTA[codice])

    def SetDocProperty(self, titolo="", soggetto="", autore="", creatore="",
                       produttore="", parole=""):
        self.titolo, self.soggetto = Byte(titolo), Byte(soggetto)
        self.parole = Byte(parole)
        self.autore = Byte(autore) or self.autore
        self.creatore = Byte(creatore) or self.creatore
        self.produttore = Byte(produttore) or self.produttore

    def Version(self):
        return VERSIONE

    def Pages(self):
        return self.pagine

    def GetX(self):
        return self.x / self.scala

    def GetY(self):
        return self.y / self.scala

    def Punto(self, x, y):
        """Moves the current point; x and y in points."""
        self.x, self.y = Singolo(x), Singolo(y)

    def BeginDoc(self, nome):
        self.aperto = True
        self.dati = bytearray()
        self.prWriteRaw(f"%PDF-1.{3 + self.lettore}")
        self.prWriteRaw(f"% {INSEGNA} rel. {VERSIONE}")
        self.prInitObj(1)
        self.prPrint("<<\r/Title (#p)\r/Author (#p)\r/Creator (#p)\r/Producer (#p)\r"
                     "/CreationDate (#p)\r/Subject (#p)\r/Keywords (#p)\r>>",
                     self.titolo, self.autore, self.creatore, self.produttore,
                     self.data, self.soggetto, self.parole)
        self.prEndObj()
        self.oggetti = 6
        # The metadata repeat what the document is opened with.
        self.pacchetto = Pacchetto({
            "produttore": INSEGNA, "autore": AUTORE, "creatore": CREATORE,
            "data": self.data, "titolo": self.titolo,
            "soggetto": self.soggetto, "parole": self.parole,
        })
        return nome

    def BeginDocTo(self, _dove):
        self.BeginDoc("")

    def EndDoc(self):
        profilo = self.prWriteOutlines() if self.segnalibri else 0
        if self.caratteri:
            self.prWriteFonts()
        if self.immagini:
            self.prWriteImages()
        metadati = self.Metadati()
        self.prWriteGradients()
        self.Catalogo(profilo, metadati)
        self.prInitObj(3)
        self.prPrint("<< /Type /Encoding /BaseEncoding /#t >>", "WinAnsiEncoding")
        self.prEndObj()
        for numero, trame in ((5, ""), (6, self.risorseTrame)):
            self.prInitObj(numero)
            self.prWriteRaw(self.Risorse(trame))
            self.prEndObj()
        self.AlberoPagine()
        self.Coda()
        self.aperto = False

    def Metadati(self):
        metadati = self.prInitObj()
        self.prPrint("<< /Type /Metadata /Subtype /XML /Length #i 0 R >>", metadati + 1)
        self.prWriteRaw("stream")
        inizio = len(self.dati)
        self.prWriteRaw(self.pacchetto)
        lunghezza = len(self.dati) - inizio
        self.prWriteRaw("endstream")
        self.prEndObj()
        self.prInitObj()
        self.prPrint("#i", lunghezza)
        self.prEndObj()
        return metadati

    def Catalogo(self, profilo, metadati):
        testo = "<< /Type /Catalog\r/Pages 4 0 R\r"
        if profilo:
            testo += f"/Outlines {profilo} 0 R\r"
        testo += "/PageLayout /OneColumn\r/PageMode "
        testo += "/UseOutlines" if profilo else "/UseNone"
        testo += f"\r/Lang ({self.lingua or 'it'}) \r"
        # A document of version 1.3 is one of 1.4 by its language.
        if self.lingua and self.lettore < 1:
            testo += "/Version /1.4\r"
        if self.etichette:
            testo += f"/PageLabels << /Nums [ {self.etichette} ] >>\r"
        testo += ("/ViewerPreferences << /HideToolbar false /DisplayDocTitle true "
                  f"/HideWindowUI false >>\r/Metadata {metadati} 0 R\r>>")
        self.prInitObj(2)
        self.prWriteRaw(testo)
        self.prEndObj()

    def Risorse(self, trame):
        testo = "<<\r"
        if self.risorseCaratteri:
            testo += f"/Font <<\r{self.risorseCaratteri}>>\r"
        testo += "/ProcSet [/PDF /Text"
        if self.immagini:
            testo += " /ImageB /ImageC /ImageI"
        testo += " ]\r"
        disegni = self.risorseImmagini + "\r" if self.immagini else ""
        disegni += self.risorseModuli
        if disegni:
            testo += f"/XObject <<\r{disegni}>>\r"
        if trame:
            testo += ("/ColorSpace << /xxCSxx [ /Pattern /DeviceRGB ] >> \r"
                      f"/Pattern <<\r{trame}>>\r")
        return testo + ">>"

    def AlberoPagine(self):
        larghezza, altezza, margine = self.larghezza, self.altezza, self.margine
        testo = f"<<\r/Type /Pages\r/Count {self.pagine}\r"
        testo += f"/MediaBox [0 0 {Numero(larghezza)} {Numero(altezza)}]\r"
        testo += (f"/CropBox [{Numero(margine)} {Numero(margine)} "
                  f"{Numero(larghezza - margine)} {Numero(altezza - margine)}]\r")
        if self.orientamento == 1:
            testo += "/Rotate 90\r"
        testo += f"/Kids [{self.figli} ]\r/Resources 6 0 R\r>>"
        self.prInitObj(4)
        self.prWriteRaw(testo)
        self.prEndObj()

    def Coda(self):
        inizio = len(self.dati)
        self.prWriteRaw("xref")
        self.prWriteRaw(f"0 {self.oggetti + 1}")
        self.prWriteRaw("0000000000 65535 f")
        for numero in range(1, self.oggetti + 1):
            self.prWriteRaw(f"{self.riferimenti[numero]:010d} 00000 n")
        self.prWriteRaw("trailer")
        # The size is one short on purpose.
        self.prPrint("<< /Size #i /Info #i 0 R /Root #i 0 R >>", self.oggetti, 1, 2)
        self.prWriteRaw(f"startxref\r{inizio}")
        self.prWriteRaw("%%EOF\r")

    # -- pages -------------------------------------------------------------

    def BeginPage(self, orientamento=0, etichetta=0, prefisso="", primo=-1):
        self.pagine += 1
        self.annotazioni = []
        pagina = self.paginaCorrente = self.prInitObj()
        self.prPrint("<< /Type /Page /Parent #i 0 R /Contents #i 0 R\r"
                     + ("/Rotate 90\r" if orientamento == 1 else "")
                     + "/Annots #i 0 R >>", 4, pagina + 1, pagina + 3)
        self.prEndObj()
        self.figli += f"{pagina} 0 R "
        self.AggiungiEtichetta(etichetta, Byte(prefisso), primo)
        self.prInitObj(pagina + 1)
        self.prPrint("<< #t/Length #i 0 R >>", self.prFiltro(), pagina + 2)
        self.ApriFlusso()
        self.prPrint("1 0 0 -1 0 #s cm ", self.altezza)
        self.Nero()
        self.prPlayAutoObjects(False)
        self.spazioCaratteri, self.spazioParole, self.scalaTesto = 0.0, 0.0, 100.0
        self.Punto(0, 0)
        return self.pagine

    def AggiungiEtichetta(self, stile, prefisso, primo):
        testo = STILI_ETICHETTA.get(stile, "")
        if prefisso:
            testo += f" /P ({StringaPdf(prefisso)})"
        if primo & 0xFFFF != 0xFFFF:
            testo += f" /St {primo}"
        if testo:
            self.etichette += f"{self.pagine - 1} <<{testo} >> "

    def EndPage(self):
        self.prPlayAutoObjects(True)
        lunghezza = self.ChiudiFlusso()
        self.prEndObj()
        oggetto = self.prInitObj()
        self.prPrint("#i", lunghezza)
        self.prEndObj()
        elenco = self.prWriteAnnotations(oggetto + 2)
        self.prInitObj(oggetto + 1)
        self.prPrint("[ #t ]", elenco)
        self.prEndObj()

    # -- fonts -------------------------------------------------------------

    def SetFont(self, famiglia, corpo=0, stile=0):
        corpo = Singolo(corpo)
        if corpo != 0:
            self.corpo = corpo
        self.linee = (bool(stile & 4), bool(stile & 8), bool(stile & 16))
        self.carattere = self.TrovaCarattere(famiglia, stile & 3)

    def TrovaCarattere(self, famiglia, variante):
        """Index of the entry of a family, added when none is found."""
        nome = Normale(famiglia)
        base = FAMIGLIE.get(nome, "Arial")
        trovato = self.CercaCarattere(nome, variante, base)
        if trovato is not None:
            return trovato
        return self.AggiungiCarattere({
            "base": base + SUFFISSI[variante],
            "chiave": (base + SUFFISSI[variante]).upper(),
            "larghezze": LARGHEZZE[f"{base} {variante}"],
            "discesa": DISCESE[base],
            "font": None,
        })

    def AggiungiCarattere(self, voce):
        self.caratteri.append(voce)
        return len(self.caratteri) - 1

    def CercaCarattere(self, nome, variante, base):
        """Index of the entry to use again, None when one must be added.

        Stored keys are all upper case and hold the full base name, so that
        only plain Arial, Symbol and ZapfDingbats are ever found, and fonts
        from files.
        """
        chiave = nome
        if nome in CON_SUFFISSO:
            chiave += SUFFISSI[variante]
        elif variante and nome in FAMIGLIE:
            chiave = None
        for indice, voce in enumerate(self.caratteri):
            if voce["chiave"] == chiave:
                return indice
        for indice, voce in enumerate(self.caratteri):
            if self.condividi and not voce["font"] and voce["base"] == base + SUFFISSI[variante]:
                return indice
        return None

    def AddFont(self, file, nome, incorpora=True):
        font = LeggiFont(os.path.join(SEMI, file))
        if incorpora and not font.incorporabile:
            raise ErroreScrittore(f"{file} forbids embedding")
        self.AggiungiCarattere({
            "base": font.nome, "chiave": Normale(nome), "larghezze": font.larghezze,
            "discesa": font.discesa, "font": font, "incorpora": incorpora,
        })

    def AddFontData(self, file, nome, incorpora=True):
        """file: whose bytes a program would pass."""
        self.AddFont(file, nome, incorpora)

    def SetFontSize(self, corpo):
        self.corpo = Singolo(corpo)

    def NomeCarattere(self):
        return "" if self.carattere is None else f"_FNT_{self.carattere + 1}"

    def TextLength(self, testo):
        return self.Misura(Byte(testo))

    def Misura(self, testo):
        """Width in user units of a text of the file."""
        if self.carattere is None:
            return 0.0
        larghezze = self.caratteri[self.carattere]["larghezze"]
        somma = sum(larghezze[ord(c)] for c in testo)
        punti = (somma * self.corpo / 1000 + testo.count(" ") * self.spazioParole
                 + len(testo) * self.spazioCaratteri)
        misura = punti * self.scalaTesto / 100 / self.scala
        return Singolo(misura) if "misure" in self.varianti else misura

    def TextHeight(self):
        return self.corpo / self.scala

    def prWriteFonts(self):
        for indice, voce in enumerate(self.caratteri):
            nome = f"_FNT_{indice + 1}"
            oggetto = self.prInitObj()
            self.risorseCaratteri += f"/{nome} {oggetto} 0 R \r"
            self.prPrint("<< /Type /Font /Subtype /#t /Name /#t /BaseFont /#t "
                         "/FirstChar 0 /LastChar 255",
                         "TrueType" if voce["font"] else "Type1", nome, voce["base"])
            if voce["base"].upper() not in ("SYMBOL", "ZAPFDINGBATS"):
                self.prPrint("/Encoding #i 0 R", 3)
            if voce["font"]:
                self.Larghezze(oggetto, voce["larghezze"])
            self.prWriteRaw(" >>")
            self.prEndObj()
            if voce["font"]:
                self.Descrittore(voce["font"], voce["incorpora"])

    def Larghezze(self, oggetto, larghezze):
        self.prPrint("/FontDescriptor #i 0 R", oggetto + 1)
        self.prWriteRaw("/Widths [")
        for codice in range(0, 256, 16):
            self.prWriteRaw("".join(f"{Numero(v)} " for v in larghezze[codice:codice + 16]))
        self.prWriteRaw("]")

    def Descrittore(self, font, incorpora):
        descrittore = self.prInitObj()
        self.prPrint("<< /Type /FontDescriptor /FontName /#t #t ", font.nome, font.descrittore)
        if incorpora:
            self.prPrint("/FontFile2 #i 0 R >>", descrittore + 1)
        else:
            self.prWriteRaw(">>")
        self.prEndObj()
        if incorpora:
            self.FileDelFont(font.dati)

    def FileDelFont(self, dati):
        flusso = self.prInitObj()
        self.prPrint("<< /Filter /#t /Length #i 0 R /Length1 #i 0 R >>",
                     "FlateDecode" if self.livello else "LZWDecode", flusso + 1, flusso + 2)
        codici = Comprimi(dati, self.livello) if self.livello else ALzw(dati)
        self.Flusso(codici, False, "Flate" if self.livello else "")
        # The line end after the codes is not counted here.
        for numero in (len(codici), len(dati)):
            self.prInitObj()
            self.prPrint("#i", numero)
            self.prEndObj()


def Maiuscola(lettera):
    """A letter of Windows-1252 in upper case, where that has it; others as they are."""
    grande = lettera.upper()
    return grande if len(grande) == 1 and Byte(lettera + grande).count("?") == 0 else lettera


def Normale(famiglia):
    """The name that a family is searched by."""
    nome = "".join(Maiuscola(lettera) for lettera in famiglia.replace(" ", ""))
    return SINONIMI.get(nome, nome)
