"""The metadata packet of the reference PDF writer."""

from numeri import CodiceUnicode

RDF = "http://www.w3.org/1999/02/22-rdf-syntax-ns#"
IX = "http://ns.adobe.com/iX/1.0/"
PDF = "http://ns.adobe.com/pdf/1.3/"
XAP = "http://ns.adobe.com/xap/1.0/"
DC = "http://purl.org/dc/elements/1.1/"


def Xml(testo):
    """Escapes a text of the file: markup, characters above 127, forbidden."""
    fuori = []
    for carattere in testo:
        if carattere in "&<>":
            fuori.append({"&": "&amp;", "<": "&lt;", ">": "&gt;"}[carattere])
        elif ord(carattere) > 127:
            fuori.append(f"&#{CodiceUnicode(carattere)};")
        elif ord(carattere) < 32 and carattere not in "\t\n\r":
            fuori.append("?")
        else:
            fuori.append(carattere)
    return "".join(fuori)


def Elemento(nome, testo):
    return [f"  <{nome}>{Xml(testo)}</{nome}>"]


def Alternative(nome, testo):
    return [
        f"  <{nome}>",
        "   <rdf:Alt>",
        f"   <rdf:li xml:lang='x-default'>{Xml(testo)}</rdf:li>",
        "   </rdf:Alt>",
        f"  </{nome}>",
    ]


def Descrizione(prefisso, spazio, elementi):
    return [
        " <rdf:Description about=''",
        f"  xmlns='{spazio}'",
        f"  xmlns:{prefisso}='{spazio}'>",
        *elementi,
        " </rdf:Description>",
    ]


def Corpo(dati):
    """All lines after the packet header."""
    data, titolo, soggetto = dati["data"], dati["titolo"], dati["soggetto"]
    return [
        f"<rdf:RDF xmlns:rdf='{RDF}'",
        f" xmlns:iX='{IX}'>",
        *Descrizione("pdf", PDF, [
            *Elemento("pdf:Producer", dati["produttore"]),
            *Elemento("pdf:Author", dati["autore"]),
            *Elemento("pdf:Creator", dati["creatore"]),
            *Elemento("pdf:ModDate", data),
            *Elemento("pdf:Title", titolo),
            *Elemento("pdf:CreationDate", data),
            *Elemento("pdf:Subject", soggetto),
            *Elemento("pdf:Keywords", dati["parole"]),
        ]),
        *Descrizione("xap", XAP, [
            *Elemento("xap:Author", dati["autore"]),
            *Elemento("xap:ModifyDate", data),
            *Alternative("xap:Title", titolo),
            *Elemento("xap:CreateDate", data),
            *Alternative("xap:Description", soggetto),
            *Elemento("xap:MetadataDate", data),
        ]),
        *Descrizione("dc", DC, [
            *Elemento("dc:creator", dati["creatore"]),
            *Alternative("dc:title", titolo),
            *Alternative("dc:description", soggetto),
        ]),
        "</rdf:RDF>",
        "<?xpacket end='r'?>",
    ]


def Pacchetto(dati):
    """The packet; its header holds its own length."""
    corpo = Corpo(dati)
    lunghezza = 1000
    while True:
        testa = f"<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d' bytes='{lunghezza}'?>"
        pacchetto = "\r".join([testa, *corpo])
        if len(pacchetto) == lunghezza:
            return pacchetto
        lunghezza = len(pacchetto)
