"""Conforming documents of the reference PDF writer.

What a drawing names is found in its finished content, so that its resources are exact; whatever is
named for the first time takes the next number then. pacchi.py holds objects together, standard.py
knows the 14 fonts, testi_conformi.py texts outside the pages.
"""

import re

from codificatori import ALzw, Comprimi
from numeri import Byte, Nome, Numero, Singolo
from pacchi import Pacchi
from scrittore import FAMIGLIE, INSEGNA, SUFFISSI, VERSIONE, STILI_ETICHETTA, Scrittore
from standard import DESCRITTORI, NOMI
from testi_conformi import DataInfo, Identita, Pacchetto, Stringa

STRINGA = re.compile(rb"\((?:\\.|[^\\()])*\)", re.S)
USI = re.compile(rb"/(\S+) \S+ Tf|/(\S+) Do|/(\S+) (?:scn|SCN)|/(xxCSxx) (?:cs|CS)")
COLORATE = re.compile(rb"/xxCSxx (?:cs|CS) \S+ \S+ \S+ /(\S+) (?:scn|SCN)")
CATEGORIE = ("Font", "XObject", "Pattern", "ColorSpace")
# In the order in which a dictionary tells them.
IN_ORDINE = ("Font", "XObject", "ColorSpace", "Pattern")


class Conforme(Pacchi, Scrittore):
    """A writer whose document no reader remarks on."""

    def __init__(self, orologio, est=0):
        super().__init__(orologio, est)
        self.condividi = True
        self.info = {"Title": "(senza titolo)", "Author": self.autore, "Subject": "",
                     "Keywords": "", "Creator": self.creatore, "Producer": self.produttore}
        # Numbers of what is used; what was made; tilings that were chosen with a colour.
        self.numeri, self.fatti, self.colorate = {}, set(), set()

    def Conforming(self, _si=True):
        pass

    def SetDocProperty(self, titolo="", soggetto="", autore="", creatore="", produttore="",
                       parole=""):
        if self.aperto:
            self.info["Title"] = titolo
            return
        self.info.update(Title=titolo, Subject=soggetto, Keywords=parole)
        for chiave, testo in (("Author", autore), ("Creator", creatore), ("Producer", produttore)):
            self.info[chiave] = testo or self.info[chiave]

    # -- numbers -----------------------------------------------------------

    def Prenota(self, quanti=1):
        self.oggetti += quanti
        return self.oggetti - quanti + 1

    def Numero(self, categoria, nome):
        """The number of what a drawing names; given out when it is named first."""
        chiave = self.Chiave(categoria, nome)
        if chiave not in self.numeri:
            voce = self.caratteri[int(nome[5:]) - 1] if categoria == "Font" else None
            quanti = 1 if not voce else 3 if voce["font"] else 2
            self.numeri[chiave] = self.Prenota(quanti)
        return self.numeri[chiave]

    def Chiave(self, categoria, nome):
        """Two entries of one of the standard fonts are one font of the file."""
        if categoria == "Font":
            voce = self.caratteri[int(nome[5:]) - 1]
            if not voce["font"]:
                return categoria, NOMI.get(voce["base"], voce["base"].split(",")[0])
        return categoria, nome

    def Risorse(self, dati):
        """The resources of a finished drawing."""
        usate = {categoria: {} for categoria in CATEGORIE}
        self.colorate |= {nome.decode("latin-1") for nome in COLORATE.findall(STRINGA.sub(b"()", dati))}
        for trovato in USI.finditer(STRINGA.sub(b"()", dati)):
            for categoria, nome in zip(CATEGORIE, trovato.groups()):
                if nome:
                    nome = nome.decode("latin-1")
                    spazio = categoria == "ColorSpace"
                    usate[categoria][nome] = ("[/Pattern /DeviceRGB]" if spazio else
                                              f"{self.Numero(categoria, nome)} 0 R")
        testo = "<< "
        for categoria in IN_ORDINE:
            voci = "".join(f"/{nome} {voce} " for nome, voce in usate[categoria].items())
            testo += f"/{categoria} << {voci}>> " if voci else ""
        return testo + ">>"

    # -- document ----------------------------------------------------------

    def BeginDoc(self, nome):
        self.aperto, self.nome = True, nome
        self.dati = bytearray()
        self.prWriteRaw(f"%PDF-1.{max(7, 3 + self.lettore)}")
        self.prWriteRaw("%\xE2\xE3\xCF\xD3")
        self.prWriteRaw(f"% {INSEGNA} rel. {VERSIONE}")
        self.oggetti = 3
        self.detti = dict(self.info)
        voci = "".join(f"/{chiave} ({Stringa(testo)}) " for chiave, testo in self.info.items() if testo)
        self.Piccolo(1, f"<< {voci}/CreationDate ({DataInfo(self.orologio, self.est)}) >>")
        return nome

    def EndDoc(self):
        profilo = self.prWriteOutlines() if self.segnalibri else 0
        self.prWriteFonts()
        self.prWriteImages()
        self.prWriteMissing()
        metadati = self.Metadati()
        self.Catalogo(profilo, metadati)
        self.AlberoPagine()
        self.Coda(f"/Info 1 0 R /Root 2 0 R /ID [{self.Identita()}]")
        self.aperto = False

    def Identita(self):
        cifre = Identita(self.orologio, self.est, self.nome, self.detti)
        return f"<{cifre}> <{cifre}>"

    def Metadati(self):
        numero = self.Prenota()
        pacchetto = Pacchetto(self.detti, self.orologio, self.est, self.lingua)
        self.Flusso(numero, "/Type /Metadata /Subtype /XML ", pacchetto)
        return numero

    def Catalogo(self, profilo, metadati):
        testo = "<< /Type /Catalog /Pages 3 0 R "
        testo += f"/Outlines {profilo} 0 R " if profilo else ""
        testo += "/PageLayout /OneColumn /PageMode " + ("/UseOutlines " if profilo else "/UseNone ")
        testo += f"/Lang ({self.lingua}) " if self.lingua else ""
        if self.etichette:
            # A range must begin with the first page (ISO 32000-1, 12.4.2).
            prima = "" if self.etichette.startswith("0 ") else "0 << /S /D >> "
            testo += f"/PageLabels << /Nums [{prima}{self.etichette}] >> "
        self.Piccolo(2, testo + "/ViewerPreferences << /DisplayDocTitle true >> "
                                f"/Metadata {metadati} 0 R >>")

    def AlberoPagine(self):
        larghezza, altezza, margine = self.larghezza, self.altezza, self.margine
        testo = f"<< /Type /Pages /Count {self.pagine} "
        testo += f"/MediaBox [0 0 {Numero(larghezza)} {Numero(altezza)}] "
        if margine != 0:
            testo += (f"/CropBox [{Numero(margine)} {Numero(margine)} "
                      f"{Numero(larghezza - margine)} {Numero(altezza - margine)}] ")
        testo += "/Rotate 90 " if self.orientamento == 1 else ""
        self.Piccolo(3, testo + f"/Kids [{self.figli}] >>")

    # -- pages -------------------------------------------------------------

    def ApriDisegno(self):
        """What is written from here on is the content of a drawing."""
        self.prima, self.dati = self.dati, bytearray()

    def ChiudiDisegno(self, testa, numero, lunghezza):
        """Writes the drawing and its length; returns what it holds."""
        contenuto, self.dati = bytes(self.dati), self.prima
        dati = Comprimi(contenuto, self.livello) if self.livello else contenuto
        self.prInitObj(numero)
        self.prWriteRaw(f"{testa}{self.prFiltro()}/Length {lunghezza} 0 R >>")
        self.prWriteRaw("stream")
        self.dati += dati + (b"\r\n" if self.livello else b"")
        self.prWriteRaw("endstream")
        self.prEndObj()
        self.Piccolo(lunghezza, str(len(dati)))
        return contenuto

    def BeginPage(self, orientamento=0, etichetta=0, prefisso="", primo=-1):
        self.pagine += 1
        self.annotazioni = []
        self.paginaCorrente = self.Prenota(3)
        self.girata = "/Rotate 90 " if orientamento == 1 else ""
        self.figli += f"{self.paginaCorrente} 0 R "
        self.AggiungiEtichetta(etichetta, prefisso, primo)
        self.ApriDisegno()
        self.prPrint("1 0 0 -1 0 #s cm ", self.altezza)
        self.Nero()
        self.prPlayAutoObjects(False)
        self.spazioCaratteri, self.spazioParole, self.scalaTesto = 0.0, 0.0, 100.0
        self.Punto(0, 0)
        return self.pagine

    def AggiungiEtichetta(self, stile, prefisso, primo):
        testo = STILI_ETICHETTA.get(stile, "")
        if prefisso:
            testo += f" /P ({Stringa(prefisso)})"
        if primo & 0xFFFF != 0xFFFF:
            testo += f" /St {primo}"
        if testo:
            self.etichette += f"{self.pagine - 1} <<{testo} >> "

    def EndPage(self):
        self.prPlayAutoObjects(True)
        pagina = self.paginaCorrente
        contenuto = self.ChiudiDisegno("<< ", pagina + 1, pagina + 2)
        risorse = self.Risorse(contenuto)
        elenco = ""
        self.Piccolo(pagina, f"<< /Type /Page /Parent 3 0 R {self.girata}/Contents {pagina + 1} 0 R "
                             f"/Resources {risorse} " + (f"/Annots [{elenco}] >>" if elenco else ">>"))
        self.prWriteGradients()

    # -- objects and patterns ----------------------------------------------

    def BeginObject(self, nome, segni=0):
        nome = Nome(Byte(nome))
        self.automatici.append((nome, segni))
        self.fatti.add(("XObject", nome))
        m = self.margine
        riquadro = " ".join(map(Numero, (m, m, self.larghezza - m, self.altezza - m)))
        self.Comincia("XObject", nome, f"<< /Type /XObject /Subtype /Form /BBox [{riquadro}] ")
        self.prWriteRaw("q")
        self.NuovoContenuto()

    def Comincia(self, categoria, nome, testa, righe=" "):
        numero = self.Numero(categoria, nome)
        risorse = self.Prenota(2)
        self.modulo = testa + f"/Resources {risorse} 0 R" + righe, numero, risorse
        self.ApriDisegno()

    def EndObject(self):
        self.prWriteRaw("Q")
        self.EndTiling()

    def BeginTiling(self, nome, x1, y1, x2, y2, passoX, passoY, tinta=1):
        nome = Nome(Byte(nome))
        self.fatti.add(("Pattern", nome))
        x1, y1, x2, y2, passoX, passoY = (
            Singolo(v) * self.scala for v in (x1, y1, x2, y2, passoX, passoY))
        testa = (f"<< /Type /Pattern /PatternType 1 /PaintType {1 if tinta != 2 else 2}\r\n"
                 f"/TilingType 1\r\n/BBox [{' '.join(map(Numero, (x1, y1, x2, y2)))}]\r\n"
                 f"/XStep {Numero(passoX)} /YStep {Numero(passoY)}\r\n")
        self.Comincia("Pattern", nome, testa, "\r\n")
        if x1 != 0 or y1 != 0:
            self.prPrint("1 0 0 1 #s #s cm", x1, y1)
        self.prPrint("1 0 0 -1 0 #s cm", y2 - y1)

    def EndTiling(self):
        testa, numero, risorse = self.modulo
        contenuto = self.ChiudiDisegno(testa, numero, risorse + 1)
        self.Piccolo(risorse, self.Risorse(contenuto))
        self.prWriteGradients()

    def prWriteMissing(self):
        """What is used and was never made: empty objects, then empty tilings."""
        vuoti = {"XObject": "/Type /XObject /Subtype /Form",
                 "Pattern": "/Type /Pattern /PatternType 1 /PaintType {} /TilingType 1 "
                            "/XStep 1 /YStep 1"}
        for categoria, testa in vuoti.items():
            nomi = [nome for altra, nome in self.numeri if altra == categoria]
            for nome in sorted(n for n in nomi if not n.startswith(("_IMG_", "SHAD_"))):
                if (categoria, nome) not in self.fatti:
                    intera = testa.format(2 if nome in self.colorate else 1)
                    self.Flusso(self.numeri[categoria, nome], f"{intera} /BBox [0 0 1 1] "
                                "/Resources << >> ", b"", coda=b"")

    def prWriteGradients(self):
        """Those that the drawing before named first."""
        for indice, (tipo, colori, punti, oltre) in self.tinte.items():
            numero = self.numeri.get(("Pattern", f"SHAD_{indice}_ING"))
            if numero and indice not in self.fatti:
                self.fatti.add(indice)
                self.Piccolo(numero, (
                    f"<< /Type /Pattern /PatternType 2 /Matrix [1 0 0 -1 0 {Numero(self.altezza)}] "
                    f"/Shading << /ShadingType {tipo} /ColorSpace /DeviceRGB /Coords [{punti}] "
                    f"/Extend [{oltre}] /Function << /FunctionType 2 /Domain [0 1] "
                    f"/C0 [{colori[0]} ] /C1 [{colori[1]} ] /N 1 >> >> >>"))

    # -- fonts and pictures ------------------------------------------------

    def prWriteFonts(self):
        for indice, voce in enumerate(self.caratteri, 1):
            numero = self.numeri.pop(self.Chiave("Font", f"_FNT_{indice}"), None)
            if numero:
                self.Carattere(numero, voce)

    def Carattere(self, numero, voce):
        font = voce["font"]
        nome = font.nome if font else NOMI.get(voce["base"], voce["base"].split(",")[0])
        simboli = "/Flags 4" in font.descrittore if font else nome in ("Symbol", "ZapfDingbats")
        simboli = simboli or bool(font) and int(font.descrittore.split()[1]) & 4
        testo = f"<< /Type /Font /Subtype /{'TrueType' if font else 'Type1'} /BaseFont /{nome} "
        testo += "" if simboli else "/Encoding /WinAnsiEncoding "
        testo += f"/FirstChar 0 /LastChar 255 /FontDescriptor {numero + 1} 0 R /Widths [\r\n"
        for codice in range(0, 256, 16):
            righe = voce["larghezze"][codice:codice + 16]
            testo += "".join(f"{Numero(larga)} " for larga in righe) + "\r\n"
        self.Piccolo(numero, testo + "] >>")
        descrittore = f"{font.descrittore} /FontFile2 {numero + 2} 0 R" if font else DESCRITTORI[nome]
        self.Piccolo(numero + 1, f"<< /Type /FontDescriptor /FontName /{nome} {descrittore} >>")
        if font:
            filtro = "FlateDecode" if self.livello else "LZWDecode"
            dati = Comprimi(font.dati, self.livello) if self.livello else ALzw(font.dati)
            self.Flusso(numero + 2, f"/Filter /{filtro} ", dati, f" /Length1 {len(font.dati)}")

    def Immagine(self, nome, figura):
        numero = self.numeri.get(("XObject", nome))
        if not numero:
            return
        dati, filtro = self.Codifica(figura.dati, figura.filtro)
        if figura.bit > 8:
            spazio = f"8 /ColorSpace /{figura.spazio} "
        else:
            tavolozza = figura.tavolozza.hex().upper()
            spazio = (f"{figura.bit} /ColorSpace [/Indexed /{figura.spazio} "
                      f"{len(figura.tavolozza) // 3 - 1} <{tavolozza}>] ")
        inversa = "/Decode [1 0 1 0 1 0 1 0] " if figura.inversa else ""
        self.Flusso(numero, f"/Type /XObject /Subtype /Image /Width {figura.larga} /Height "
                            f"{figura.alta} /BitsPerComponent {spazio}{inversa}{filtro}", dati)

    # -- bookmarks ---------------------------------------------------------

    def prWriteOutlines(self):
        meta = f"[{self.figli.split()[0]} 0 R /Fit]" if self.figli else ""
        voci = [{"testo": self.info["Title"], "livello": 0, "meta": meta}] + self.segnalibri
        radice = self.Prenota(len(voci) + 1)
        genitori = [max((j for j in range(i) if voci[j]["livello"] < voce["livello"]),
                        default=None) for i, voce in enumerate(voci)]
        primi = genitori.count(0)
        self.Piccolo(radice, f"<< /Type /Outlines /Count {1 + primi} /First {radice + 1} 0 R "
                             f"/Last {radice + 1} 0 R >>")
        for i, voce in enumerate(voci):
            fratelli = [j for j, g in enumerate(genitori) if g == genitori[i]]
            figli = [j for j, g in enumerate(genitori) if g == i]
            legami = [("Parent", -1 if genitori[i] is None else genitori[i])]
            legami += [("First", figli[0]), ("Last", figli[-1])] if figli else []
            legami += [("Prev", j) for j in fratelli if j < i][-1:]
            legami += [("Next", j) for j in fratelli if j > i][:1]
            righe = [f"<< /Title ({Stringa(voce['testo'])})"]
            righe += [f"/{chiave} {radice + 1 + altra} 0 R" for chiave, altra in legami]
            # The title is open, everything below is closed.
            righe += [f"/Count {len(figli) if i == 0 else -len(figli)}"] if figli else []
            # Before the first page there is nowhere to go.
            righe += [f"/Dest {voce['meta']}"] if voce["meta"][1:2] not in ("", "0") else []
            self.Piccolo(radice + 1 + i, "\r\n".join(righe + [">>"]))
        return radice
