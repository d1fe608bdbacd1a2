"""Texts outside the pages of conforming documents of the reference PDF writer."""

import re

PDFDOC = {c: i for i, c in zip(range(0x18, 0x20), "˘ˇˆ˙˝˛˚˜")}
PDFDOC |= {c: i for i, c in zip(range(0x80, 0x9F), "•†‡…—–ƒ⁄‹›−‰„“”‘’‚™ﬁﬂŁŒŠŸŽıłœšž")}
PDFDOC["€"] = 0xA0
for _codice in [9, 10, 13, *range(0x20, 0x7F), *range(0xA1, 0xAD), *range(0xAE, 0x100)]:
    PDFDOC[chr(_codice)] = _codice

VIETATI_XML = re.compile("[^\t\n\r\x20-\uD7FF\uE000-\uFFFD\U00010000-\U0010FFFF]")


def Stringa(testo):
    """A text string without its parentheses (ISO 32000-1, 7.9.2.2), as characters 0 to 255."""
    # In UTF-16 it would begin the name of a language.
    testo = testo.replace("\x1B", "?")
    if all(c in PDFDOC for c in testo):
        byte = bytes(PDFDOC[c] for c in testo)
    else:
        byte = b""
    if not byte or byte.startswith((b"\xFE\xFF", b"\xEF\xBB\xBF")):
        byte = b"\xFE\xFF" + testo.encode("utf-16-be") if testo else b""
    for segno, scritto in ((b"\\", b"\\\\"), (b"(", b"\\("), (b")", b"\\)"), (b"\r", b"\\r")):
        byte = byte.replace(segno, scritto)
    return byte.decode("latin-1")


def Est(minuti, fra, fine=""):
    return f"{'-' if minuti < 0 else '+'}{abs(minuti) // 60:02}{fra}{abs(minuti) % 60:02}{fine}"


def DataInfo(orologio, est):
    """A second of 60, which PDF does not know, is one of 59."""
    orologio = orologio[:12] + min(orologio[12:], "59")
    return f"D:{orologio}{Est(est, chr(39), chr(39))}"


def DataXmp(o, est):
    o = o[:12] + min(o[12:], "59")
    return f"{o[:4]}-{o[4:6]}-{o[6:8]}T{o[8:10]}:{o[10:12]}:{o[12:]}{Est(est, ':')}"


def Xml(testo):
    testo = VIETATI_XML.sub("?", testo)
    for segno, scritto in (("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ("\r", "&#13;")):
        testo = testo.replace(segno, scritto)
    return testo


def Pacchetto(detti, orologio, est, lingua):
    """The metadata packet (ISO 16684-1) in UTF-8."""
    def Alternative(nome, testo):
        return (f'<{nome}><rdf:Alt><rdf:li xml:lang="x-default">{Xml(testo)}</rdf:li></rdf:Alt>'
                f"</{nome}>")

    voci = ["<dc:format>application/pdf</dc:format>"]
    if detti["Title"]:
        voci.append(Alternative("dc:title", detti["Title"]))
    if detti["Author"]:
        voci.append(f"<dc:creator><rdf:Seq><rdf:li>{Xml(detti['Author'])}</rdf:li></rdf:Seq></dc:creator>")
    if detti["Subject"]:
        voci.append(Alternative("dc:description", detti["Subject"]))
    if lingua:
        voci.append(f"<dc:language><rdf:Bag><rdf:li>{lingua}</rdf:li></rdf:Bag></dc:language>")
    for nome, chiave in (("pdf:Keywords", "Keywords"), ("pdf:Producer", "Producer"),
                         ("xmp:CreatorTool", "Creator")):
        if detti[chiave]:
            voci.append(f"<{nome}>{Xml(detti[chiave])}</{nome}>")
    voci.append(f"<xmp:CreateDate>{DataXmp(orologio, est)}</xmp:CreateDate>")
    return "\n".join([
        '<?xpacket begin="\uFEFF" id="W5M0MpCehiHzreSzNTczkc9d"?>',
        '<x:xmpmeta xmlns:x="adobe:ns:meta/">',
        '<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">',
        '<rdf:Description rdf:about="" xmlns:dc="http://purl.org/dc/elements/1.1/" '
        'xmlns:pdf="http://ns.adobe.com/pdf/1.3/" xmlns:xmp="http://ns.adobe.com/xap/1.0/">',
        *voci, "</rdf:Description>", "</rdf:RDF>", "</x:xmpmeta>",
        '<?xpacket end="r"?>']).encode("utf-8")


def Identita(orologio, est, nome, detti):
    """32 hexadecimal digits: two FNV-1a sums of 64 bits, one going on from the other."""
    parti = [DataInfo(orologio, est), re.split(r"[/\\]", nome)[-1]]
    parti += [detti[k] for k in ("Title", "Author", "Subject", "Keywords", "Creator", "Producer")]
    byte = b"".join(parte.encode("utf-8") + b"\0" for parte in parti)
    somma, cifre = 0xCBF29CE484222325, ""
    for _ in range(2):
        for b in byte:
            somma = (somma ^ b) * 0x100000001B3 % 2**64
        cifre += f"{somma:016X}"
    return cifre
