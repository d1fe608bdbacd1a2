"""Many documents before the readers of tests/lettori, which must also extract the same text."""

import collections
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "lettori"))
import conformi  # noqa: E402
import lettori  # noqa: E402

# mutool gives codes of ZapfDingbats, pdftotext its signs: neither counts. Of the documents made here
# nothing else has such signs or codes.
SEGNI = range(0x2700, 0x27C0)
CODICI_DI_SEGNI = range(0x80, 0xA0)


def lettere(testo):
    """How often each letter occurs. Where a line or word ends is each reader's own affair."""
    return collections.Counter(
        c for c in testo
        if not c.isspace() and ord(c) not in SEGNI and ord(c) not in CODICI_DI_SEGNI)


def differenza(uno, altro):
    """What one text has more often than the other, and the other way round; both are sorted."""
    prima, dopo = lettere(uno), lettere(altro)
    return sorted((prima - dopo).elements()), sorted((dopo - prima).elements())


def senza_note(documento):
    """The document's bytes, no page of which has annotations."""
    byte = documento.percorso.read_bytes()
    return conformi.senza_note(byte) if documento.conforme else byte.replace(b"/Annots", b"/Altrov")


def estrai(documento, cartella):
    """What mutool and pdftotext extract, in this order, from the pages without their annotations, of
    which each reader draws its own."""
    copia = documento._replace(percorso=Path(cartella) / documento.percorso.name)
    copia.percorso.write_bytes(senza_note(documento))
    # -D: otherwise it leaves out what a clipping path hides.
    esito, _ = lettori.mutool(copia, "-D", "-F", "txt", "-o", "-")
    return esito.stdout, lettori.pdftotext(copia).testo


def confronta(documento, letture):
    """The faults of the texts that the two readers extract, if any. letture: what all readers read."""
    testi = [getattr(letture[chi], "testo", None) for chi in ("mutool, testo", "pdftotext")]
    if None not in testi and differenza(*testi) == ([], []):
        return []
    with tempfile.TemporaryDirectory(prefix="letture.") as cartella:
        try:
            prima, dopo = differenza(*estrai(documento, cartella))
        except lettori.Rifiuto as rifiuto:
            return [f"testo: {rifiuto}"]
    if not prima and not dopo:
        return []
    return [f"testo: mutool in più {''.join(prima[:40])!r}, pdftotext {''.join(dopo[:40])!r}"]


def giudica(percorso):
    documento = lettori.apri(percorso)
    letture = {chi: lettori.leggi(documento, chi) for chi in lettori.lettori_di(documento)}
    giudizio = lettori.giudica(documento, letture)
    return giudizio._replace(difetti=giudizio.difetti + confronta(documento, letture))


def giudica_tutti(percorsi, fili):
    """The judgements of all documents, fili at a time."""
    with ThreadPoolExecutor(fili) as squadra:
        return list(squadra.map(giudica, percorsi))
