"""What a conforming document promises beyond being readable: each rule here, none believed.

    conformi.py FILE.pdf...

A rule is a function of the document that raises Difetto; REGOLE lists them all. Rules of the
contents of pages stand in contenuti.py.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import contenuti
from sintassi import Difetto, Nome, Rif, pretendi, scritto
from struttura import Flusso, leggi
from testi import testo

TESTA = re.compile(rb"%PDF-(?:1\.[7-9]|[2-9]\.\d)\r?\n%[\x80-\xFF]{4}[\r\n]")
DATA = re.compile(r"D:(\d{4})(\d\d)(\d\d)(\d\d)(\d\d)(\d\d)(?:Z|([+-]\d\d)'(\d\d)'?)")
PROPRIETA = ("Title", "Author", "Subject", "Keywords", "Creator", "Producer")
LUNGHEZZA_ID = 16

STANDARD = {"Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique", "Helvetica",
            "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique", "Times-Roman",
            "Times-Bold", "Times-Italic", "Times-BoldItalic", "Symbol", "ZapfDingbats"}

RDF = "{http://www.w3.org/1999/02/22-rdf-syntax-ns#}"
DC = "{http://purl.org/dc/elements/1.1/}"
XMP = "{http://ns.adobe.com/xap/1.0/}"
PDF = "{http://ns.adobe.com/pdf/1.3/}"
VIETATI_XML = re.compile("[^\t\n\r\x20-\uD7FF\uE000-\uFFFD\U00010000-\U0010FFFF]")


# ---- The file ------------------------------------------------------------------------------------

def e_conforme(byte):
    """Whether a file says of itself that it is one: only these have the comment of four bytes."""
    return bool(TESTA.match(byte))


def testa_e_coda(documento):
    pretendi(e_conforme(documento.byte), "testa senza versione 1.7 o senza i quattro byte")
    coda = documento.coda
    pretendi(coda["Size"] == max(documento.posti) + 1, f"/Size {coda['Size']}")
    chi = coda["ID"]
    pretendi(len(chi) == 2 and all(len(parte) == LUNGHEZZA_ID for parte in chi), f"/ID {chi}")
    pretendi("Prev" not in coda and "Encrypt" not in coda, f"coda {coda}")


def ogni_oggetto_serve(documento):
    """Nothing is there in vain but objects and tilings that the caller made and never used."""
    orfani = documento.orfani()
    inutili = [Rif(numero) for numero in orfani if contenuti.disegno(documento.oggetto(numero))]
    orfani -= documento.raggiunti(*inutili) if inutili else set()
    pretendi(not orfani, f"oggetti che nessuno nomina: {sorted(orfani)}")


# ---- Properties ----------------------------------------------------------------------------------

def proprieta(documento):
    """The texts of the information dictionary, by their names; those not there are empty."""
    info = documento.risolto(documento.coda["Info"])
    return {chiave: testo(documento.risolto(info.get(chiave, b""))) for chiave in PROPRIETA}


def data(documento):
    info = documento.risolto(documento.coda["Info"])
    trovata = DATA.fullmatch(documento.risolto(info["CreationDate"]).decode("ascii"))
    pretendi(trovata, f"data {info['CreationDate']!r}")
    anno, mese, giorno, ore, minuti, secondi, est, rotti = trovata.groups()
    return f"{anno}-{mese}-{giorno}T{ore}:{minuti}:{secondi}" + (f"{est}:{rotti}" if est else "Z")


def catalogo(documento):
    return documento.risolto(documento.coda["Root"])


def metadati(documento):
    """The packet is plain UTF-8 and says what the properties say."""
    flusso = documento.risolto(catalogo(documento)["Metadata"])
    pretendi(flusso.testa.get("Type") == "Metadata" and flusso.testa.get("Subtype") == "XML"
             and "Filter" not in flusso.testa, f"metadati {flusso.testa}")
    radice = ElementTree.fromstring(flusso.dati.decode("utf-8"))
    descrizioni = radice.iter(RDF + "Description")
    voci = {voce.tag: voce for descrizione in descrizioni for voce in descrizione}
    detti = {chiave: "".join(voce.itertext()).strip() for chiave, voce in voci.items()}
    proprie = proprieta(documento)
    for nome, dove in (("Title", DC + "title"), ("Author", DC + "creator"),
                       ("Subject", DC + "description"), ("Keywords", PDF + "Keywords"),
                       ("Creator", XMP + "CreatorTool"), ("Producer", PDF + "Producer")):
        pretendi(piano(detti.get(dove, "")) == piano(proprie[nome]),
                 f"{nome}: {proprie[nome]!r}, nei metadati {detti.get(dove)!r}")
    pretendi(detti[XMP + "CreateDate"] == data(documento).replace("Z", "+00:00")
             or detti[XMP + "CreateDate"] == data(documento), f"data {detti[XMP + 'CreateDate']}")


def piano(detto):
    """A text as XML can hold it: without what it forbids or replaces, blanks and line ends alike."""
    return " ".join(re.sub("[?\uFFFD]", "", VIETATI_XML.sub("", detto)).split())


# ---- Pages, bookmarks, annotations ---------------------------------------------------------------

def pagine(documento):
    """The dictionaries of the pages in their order, and their references."""
    trovate = []

    def scendi(rif, genitore):
        nodo = documento.risolto(rif)
        pretendi(nodo.get("Parent") == genitore, f"/Parent di {rif}")
        if nodo["Type"] == "Page":
            trovate.append((rif, nodo))
            return 1
        conto = sum(scendi(figlio, rif) for figlio in documento.risolto(nodo["Kids"]))
        pretendi(conto == nodo["Count"], f"/Count {nodo['Count']} con {conto} pagine")
        return conto

    scendi(catalogo(documento)["Pages"], None)
    return trovate


def senza_note(byte):
    """The file with an update behind it (7.5.6) by which its pages have no annotations."""
    documento, voci = leggi(byte), {}
    for rif, pagina in pagine(documento):
        voci[rif.numero] = len(byte)
        senza = {chiave: voce for chiave, voce in pagina.items() if chiave != "Annots"}
        byte += b"%d 0 obj\r\n%s\r\nendobj\r\n" % (rif.numero, scritto(senza))
    coda = {"Prev": documento.inizio_tavola, "Root": documento.coda["Root"]}
    inizio = len(byte)
    if documento.a_flusso:
        numero = documento.coda["Size"]
        voci[numero] = inizio
        righe = b"".join(b"\1" + dove.to_bytes(4, "big") for dove in voci.values())
        coda |= {"Type": Nome("XRef"), "Size": numero + 1, "W": [1, 4, 0], "Length": len(righe),
                 "Index": [n for voce in voci for n in (voce, 1)]}
        byte += b"%d 0 obj\r\n%s\r\nstream\r\n%s\r\nendstream\r\nendobj\r\n" % (
            numero, scritto(coda), righe)
    else:
        byte += b"xref\r\n" + b"".join(b"%d 1\r\n%010d 00000 n\r\n" % voce for voce in voci.items())
        byte += b"trailer\r\n" + scritto(coda | {"Size": documento.coda["Size"]}) + b"\r\n"
    return byte + b"startxref\r\n%d\r\n%%%%EOF\r\n" % inizio


def segnalibri(documento):
    """Depth and title of every bookmark in the order in which readers show them; depth 0 first."""
    if "Outlines" not in catalogo(documento):
        return []
    trovati, note = [], {rif for rif, _ in pagine(documento)}

    def scendi(rif, livello):
        """Items under one, and how many of them show; Prev, Next and Parent are as they must be."""
        nodo = documento.risolto(rif)
        prima, questo, visibili = None, nodo.get("First"), 0
        while questo:
            voce = documento.risolto(questo)
            pretendi(voce["Parent"] == rif and voce.get("Prev") == prima, f"legami di {questo}")
            trovati.append((livello, testo(voce["Title"])))
            pretendi("Dest" not in voce or documento.risolto(voce["Dest"])[0] in note, f"meta {voce}")
            sotto = scendi(questo, livello + 1)
            conto = voce.get("Count", 0)
            pretendi(abs(conto) == sotto, f"/Count {conto} con {sotto} sotto {questo}")
            visibili += 1 + (sotto if conto > 0 else 0)
            prima, questo = questo, voce.get("Next")
        pretendi(nodo.get("Last") == prima, f"/Last di {rif}")
        return visibili

    radice = catalogo(documento)["Outlines"]
    mostrati = scendi(radice, 0)
    pretendi(documento.risolto(radice).get("Count", 0) == mostrati, f"/Count con {mostrati} mostrati")
    return trovati


def annotazioni(documento):
    """The annotations of all pages in their order. Each has its appearance and its corners right.

    Watermarks, which only show the border of a link, are left out.
    """
    trovate = []
    for _, pagina in pagine(documento):
        elenco = documento.risolto(pagina.get("Annots"))
        pretendi(elenco is None or elenco, "una pagina con /Annots vuoto")
        trovate += [documento.risolto(voce) for voce in elenco or []]
    for voce in trovate:
        sinistra, basso, destra, alto = voce["Rect"]
        pretendi(sinistra <= destra and basso <= alto, f"/Rect {voce['Rect']}")
        aspetto = documento.risolto(voce["AP"]["N"])
        pretendi(isinstance(aspetto, Flusso) and aspetto.testa["Subtype"] == "Form", f"/AP {voce}")
    return [voce for voce in trovate if voce["Subtype"] != "Watermark"]


def note(documento):
    """Title and text of every annotation; the address is the text of a link."""
    return [(testo(voce.get("T", b"")), testo(voce["Contents"])) for voce in annotazioni(documento)]


# ---- Fonts ---------------------------------------------------------------------------------------

def caratteri(documento):
    """Each font stands once, with what 9.6.2 asks for; it is embedded or one of the standard 14."""
    nomi = []
    for numero in documento.posti:
        voce = documento.oggetto(numero)
        if not isinstance(voce, dict) or voce.get("Type") != "Font":
            continue
        base, larghezze = voce["BaseFont"], documento.risolto(voce["Widths"])
        pretendi(len(larghezze) == voce["LastChar"] - voce["FirstChar"] + 1, f"{base}: larghezze")
        descrittore = documento.risolto(voce["FontDescriptor"])
        pretendi(descrittore["Type"] == "FontDescriptor" and descrittore["FontName"] == base,
                 f"{base}: descrittore")
        for chiave in ("Flags", "FontBBox", "ItalicAngle", "Ascent", "Descent", "StemV"):
            pretendi(chiave in descrittore, f"{base}: /{chiave} manca")
        pretendi(("FontFile2" in descrittore) == (voce["Subtype"] == "TrueType")
                 and (base in STANDARD or voce["Subtype"] == "TrueType"), f"{base} non è incorporato")
        nomi.append((base, voce["Subtype"], descrittore.get("FontFile2")))
    pretendi(len(nomi) == len(set(nomi)), f"caratteri doppi: {sorted(map(str, nomi))}")


# ---- All of them ---------------------------------------------------------------------------------

def disegni_esatti(documento):
    for nome, dati, risorse in contenuti.disegni(documento, pagine(documento), annotazioni(documento)):
        contenuti.risorse_esatte(documento, nome, dati, risorse)


def etichette(documento):
    numeri = documento.risolto(catalogo(documento).get("PageLabels", {})).get("Nums", [])
    indici = numeri[::2]
    pretendi(indici == sorted(set(indici)) and (not indici or indici[0] == 0), f"etichette {indici}")
    for voce in numeri[1::2]:
        testo(documento.risolto(voce).get("P", b""))


def nessun_vuoto(documento):
    """No reference leads to null, no name of the page tree or catalogue is of another kind."""
    pretendi(catalogo(documento)["Type"] == Nome("Catalog"), "catalogo senza /Type")
    pretendi(all(documento.oggetto(n) is not None for n in documento.posti), "un oggetto null")
    pretendi(all(isinstance(documento.coda[chiave], Rif) for chiave in ("Root", "Info")), "coda")


REGOLE = (testa_e_coda, nessun_vuoto, ogni_oggetto_serve, proprieta, data, metadati, pagine,
          segnalibri, note, etichette, caratteri, disegni_esatti)


def difetti(byte):
    """What a file does against its promises, one text for each rule."""
    try:
        documento = leggi(byte)
    except Difetto as difetto:
        return [str(difetto)]
    trovati = []
    for regola in REGOLE:
        try:
            regola(documento)
        except Difetto as difetto:
            trovati.append(f"{regola.__name__}: {difetto}")
        except (KeyError, TypeError, ValueError, AttributeError, IndexError,
                ElementTree.ParseError) as errore:
            trovati.append(f"{regola.__name__}: {type(errore).__name__} {errore}")
    return trovati


def principale(percorsi):
    rotti = 0
    for percorso in percorsi:
        trovati = difetti(Path(percorso).read_bytes())
        rotti += bool(trovati)
        print(f"{percorso}: " + ("; ".join(trovati) or "niente da dire"))
    return 1 if rotti else 0


if __name__ == "__main__":
    sys.exit(principale(sys.argv[1:]))
