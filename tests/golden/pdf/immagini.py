"""Pictures on pages and as objects of the file."""

import os

from codificatori import AEsadecimale, ALzw, AScii85, Comprimi
from figure import LeggiFigura
from numeri import Byte, ErroreScrittore, Singolo

# Pictures and fonts are named relative to this folder.
SEMI = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "pdf", "semi")


class Immagini:
    """Part of Scrittore: pictures."""

    def IniziaImmagini(self):
        self.immagini, self.filtri = [], 0
        self.risorseImmagini = ""

    def FilterDecode(self, filtri):
        self.filtri = filtri

    def prToASCII85(self, testo):
        return AScii85(testo.encode("utf-8")).decode("ascii")

    def DrawImage(self, nome, x, y, larghezza, altezza, chiave=""):
        self.Figura(("file", nome, Byte(chiave)), nome, x, y, larghezza, altezza)

    def DrawImageData(self, nome, x, y, larghezza, altezza, chiave=""):
        """nome: of the file whose bytes a program would pass."""
        with open(os.path.join(SEMI, nome), "rb") as archivio:
            dati = archivio.read()
        chi = ("chiave", Byte(chiave)) if chiave else ("byte", dati)
        self.Figura(chi, nome, x, y, larghezza, altezza)

    def Figura(self, chi, nome, x, y, larghezza, altezza):
        """chi: what makes a picture the same as one already there."""
        x, y, larghezza, altezza = map(Singolo, (x, y, larghezza, altezza))
        voci = [voce["chi"] for voce in self.immagini]
        if chi not in voci:
            self.immagini.append({"chi": chi, "figura": LeggiFigura(os.path.join(SEMI, nome))})
            voci.append(chi)
        numero = voci.index(chi) + 1
        v = self.interno
        self.BeginGraphicSpace(v(x), v(y + altezza))
        # The picture's own y axis goes up.
        self.BeginGraphicSpace(0, 0, v(larghezza * self.scala), v(-altezza * self.scala))
        self.prPrint("/_IMG_#i Do", numero)
        self.EndGraphicSpace()
        self.EndGraphicSpace()
        self.Punto(x * self.scala, y * self.scala)

    def Codifica(self, dati, filtro):
        """Encoded data and the names of their filters, in decoding order."""
        if self.livello and not self.filtri and not filtro:
            return Comprimi(dati, self.livello), "/Filter /FlateDecode "
        if self.filtri & 1 and not filtro:
            raise ErroreScrittore("the runs of a run-length encoder are its own choice")
        if self.filtri & 2 and not filtro:
            dati, filtro = ALzw(dati), "/LZWDecode " + filtro
        if self.filtri & 4:
            dati, filtro = AScii85(dati), "/ASCII85Decode " + filtro
        if self.filtri & 8:
            dati, filtro = AEsadecimale(dati), "/ASCIIHexDecode " + filtro
        return dati, f"/Filter [\r{filtro}] " if filtro else ""

    def Flusso(self, dati, righe, filtro=""):
        """Writes "stream", the data and "endstream"; returns their length."""
        self.prWriteRaw("stream")
        dati = InRighe(dati) if righe else dati + Coda(filtro)
        self.dati += dati
        lunghezza = len(dati) - (len(Coda(filtro)) if Sgonfio(filtro) else 0)
        self.prWriteRaw("endstream")
        self.prEndObj()
        return lunghezza

    def prWriteImages(self):
        for indice, voce in enumerate(self.immagini):
            self.Immagine(f"_IMG_{indice + 1}", voce["figura"])

    def Immagine(self, nome, figura):
        oggetto = self.prInitObj()
        self.risorseImmagini += f"/{nome} {oggetto} 0 R \r"
        dati, filtro = self.Codifica(figura.dati, figura.filtro)
        righe = bool(self.filtri & 12)
        self.prPrint("<< /Type /XObject /Subtype /Image /Name /#t /Width #i /Height #i #t ",
                     nome, figura.larga, figura.alta, filtro)
        if figura.bit > 8:
            self.prPrint("/BitsPerComponent 8 /ColorSpace /#t /Length #i 0 R",
                         figura.spazio, oggetto + 1)
        else:
            self.prPrint("/BitsPerComponent #i /ColorSpace [/Indexed /#t #i #i 0 R] /Length #i 0 R",
                         figura.bit, figura.spazio, len(figura.tavolozza) // 3 - 1,
                         oggetto + 2, oggetto + 1)
        if figura.inversa:
            self.prWriteRaw("/Decode [1 0 1 0 1 0 1 0]")
        self.prWriteRaw(">>")
        lunghezza = self.Flusso(dati, righe, filtro)
        self.prInitObj()
        self.prPrint("#i", lunghezza)
        self.prEndObj()
        if figura.bit <= 8:
            self.Tavolozza(figura.tavolozza, righe)

    def Tavolozza(self, tavolozza, righe):
        dati, filtro = self.Codifica(tavolozza, "")
        lunga = len(InRighe(dati)) if righe else len(dati) + (0 if Sgonfio(filtro) else 3)
        self.prInitObj()
        self.prPrint("<< #t /Length #i >>", filtro, lunga)
        self.Flusso(dati, righe, filtro)


def Sgonfio(filtro):
    return "Flate" in filtro


def Coda(filtro):
    """What follows the data; only behind deflated ones it is not counted among them."""
    return b"\r\n" if Sgonfio(filtro) else b"\r\r\n"


def InRighe(dati):
    """Each byte a line of its own, and one more line after every 80.

    Strict readers want the two bytes that end base 85 side by side.
    """
    uscita = bytearray()
    for numero, byte in enumerate(dati, 1):
        if dati[numero - 1:] == b"~>" and numero % 80 in (0, 79):
            raise ErroreScrittore("the end mark stands at a row's end: not fixed")
        uscita += bytes([byte])
        if dati[numero - 1:] != b"~>":
            uscita += b"\r\n"
        if numero % 80 == 0:
            uscita += b"\r\r\n"
    return bytes(uscita)
