"""Readers that are not ours look at the PDF files that the tests make.

    lettori.py [--almeno N] [--ricordo FILE] PERCORSO...
                                             PDF files, or folders with all the *.pdf inside them

Each file is checked and rewritten by qpdf, drawn page by page by mutool, pdftoppm and Ghostscript,
and its text is taken out by mutool and pdftotext. Every reader must succeed, say nothing that is
not allowed below, and count the same pages. A document without pages is refused: no reader opens
it. Of a conforming document (see conformi.py) they must say nothing at all; it is also read by
mutool info, by pdfinfo and by our own strict reader.

Beside NAME.pdf may stand, in UTF-8, one a line:

    NAME.pdf.attese     texts that both extracted texts hold, in any order; a run of blanks and line
                        ends is one blank. Not for ZapfDingbats: mutool gives its codes.
    NAME.pdf.mancanti   names of forms that the document plays on purpose without defining them; the
                        readers must miss exactly these.
    NAME.pdf.fuori      texts outside the pages of a conforming document; fuori.py says how.

With --ricordo, documents that were accepted before as they are now, by the same readers, are not
read again; FILE is where that is kept.

Prints one line for each file. Exit code 0: all accepted; 1: some refused; 2: a reader is not
installed, a file or a side file leads nowhere, or there are fewer than N files; 77, which ctest
counts as skipped: no N is given and there is no file at all, or no folder yet.
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import NamedTuple

import conformi
import fuori
from ricordo import Ricordo

PROGRAMMI = ["qpdf", "mutool", "pdftoppm", "pdftotext", "pdfinfo", "gs"]

SALTATO = 77

# Patience with a loaded machine; nothing that goes well waits for it.
ATTESA = 300

# Enough to have every operator carried out; more would only cost time.
PUNTI_PER_POLLICE = "20"


class Rifiuto(Exception):
    """Why a reader does not accept a document."""


class Uso(Exception):
    """Why nothing can be checked at all."""


class Documento(NamedTuple):
    percorso: Path
    attese: list
    mancanti: set
    timbri: bool
    cancelletti: bool
    conforme: bool = False
    fuori: list = []


class Lettura(NamedTuple):
    pagine: int | None = None
    testo: str | None = None


class Giudizio(NamedTuple):
    documento: Documento
    pagine: int | None
    difetti: list


# ---- Programs ------------------------------------------------------------------------------------

def esegui(*comando, uscita=subprocess.PIPE, errori=subprocess.PIPE):
    ambiente = {**os.environ, "LC_ALL": "C.UTF-8"}
    try:
        return subprocess.run([str(parte) for parte in comando], stdin=subprocess.DEVNULL,
                              stdout=uscita, stderr=errori, env=ambiente, timeout=ATTESA,
                              encoding="utf-8", errors="replace")
    except subprocess.TimeoutExpired:
        raise Rifiuto(f"non finisce in {ATTESA} secondi") from None


def pretendi(condizione, detto):
    """Refuses with the first lines of what a reader said."""
    if not condizione:
        righe = [riga.strip() for riga in detto.splitlines() if riga.strip()]
        raise Rifiuto(" | ".join(righe[:4]) or "codice di uscita diverso da 0")


def separa(testo, *attese):
    """The lines that no pattern matches whole, and the matches of the others."""
    altre, trovate = [], []
    for riga in testo.splitlines():
        prove = (re.fullmatch(attesa, riga.rstrip()) for attesa in attese)
        trovata = next((prova for prova in prove if prova), None)
        (altre if trovata is None else trovate).append(trovata or riga)
    return [riga for riga in altre if riga.strip()], trovate


def pagine_contate(trovate):
    """The highest number among the matches that tell of a page."""
    return max((int(t["pagina"]) for t in trovate if t.groupdict().get("pagina")), default=0)


def nomi_mancati(trovate):
    return {t["nome"] for t in trovate if t.groupdict().get("nome")}


# ---- qpdf ----------------------------------------------------------------------------------------

# The trailer's /Size is one short on purpose.
QPDF_UNO_IN_MENO = (r"WARNING: .*: reported number of objects \((\d+)\) "
                    r"is not one plus the highest object number \(\1\)")
NOME_CON_CANCELLETTO = re.compile(rb"/[!-~]*#23")
QPDF_RIUSCITO = r"qpdf: operation succeeded with warnings.*"


def accetta_qpdf(esito):
    altre, trovate = separa(esito.stderr, QPDF_UNO_IN_MENO, QPDF_RIUSCITO)
    avvisi = sum("WARNING" in trovata[0] for trovata in trovate)
    buono = (esito.returncode, avvisi) in {(0, 0), (3, 1)} and not altre
    pretendi(buono, "\n".join(altre) or esito.stderr)


def qpdf(documento):
    if documento.conforme:
        esito = esegui("qpdf", "--check", documento.percorso)
        pretendi(esito.returncode == 0 and not esito.stderr, esito.stderr or esito.stdout)
        return Lettura()
    accetta_qpdf(esegui("qpdf", "--check", documento.percorso))
    with tempfile.TemporaryDirectory(prefix="lettori.") as cartella:
        copia = Path(cartella) / "copia.pdf"
        accetta_qpdf(esegui("qpdf", documento.percorso, copia))
        # The "#" of a name goes into its copy without the escape, which makes another name of it.
        if documento.cancelletti:
            return Lettura()
        esito = esegui("qpdf", "--check", copia)
        pretendi(esito.returncode == 0 and not esito.stderr, "copia: " + esito.stderr)
    return Lettura()


# ---- mutool --------------------------------------------------------------------------------------

MUTOOL_PAGINE = [r"page .* (?P<pagina>\d+)"]
MUTOOL = MUTOOL_PAGINE + [
    # Once more /Size: the table goes on beyond it.
    r"warning: broken xref subsection, proceeding anyway\.",
    r"error: cannot find XObject resource '(?P<nome>.*)'",
]


def mutool(documento, *opzioni, uscita=subprocess.PIPE):
    # -N: Debian's build has no colour management and says so of every file.
    esito = esegui("mutool", "draw", "-N", *opzioni, documento.percorso, uscita=uscita)
    permesse = MUTOOL_PAGINE if documento.conforme else MUTOOL
    altre, trovate = separa(esito.stderr, *permesse)
    pretendi(not altre, "\n".join(altre))
    ignoti = nomi_mancati(trovate) - documento.mancanti
    pretendi(not ignoti, "manca " + ", ".join(sorted(ignoti)))
    pretendi(esito.returncode == (1 if nomi_mancati(trovate) else 0), esito.stderr)
    return esito, pagine_contate(trovate)


def mutool_disegna(documento):
    _, pagine = mutool(documento, "-r", PUNTI_PER_POLLICE, "-F", "png", "-o", os.devnull,
                       uscita=subprocess.DEVNULL)
    return Lettura(pagine=pagine)


def mutool_testo(documento):
    # Its page lines are left out when the text goes to standard output.
    esito, _ = mutool(documento, "-F", "txt", "-o", "-")
    return Lettura(testo=esito.stdout)


def mutool_informa(documento):
    esito = esegui("mutool", "info", documento.percorso)
    pretendi(esito.returncode == 0 and not esito.stderr, esito.stderr)
    return Lettura()


# ---- poppler -------------------------------------------------------------------------------------

POPPLER = [
    r"(?P<pagina>\d+) \d+",
    r"Syntax Error: XObject '(?P<nome>.*)' is unknown",
]


def poppler(documento, *comando, uscita=subprocess.PIPE):
    esito = esegui(*comando, uscita=uscita)
    # Its errors do not show in the exit code.
    altre, trovate = separa(esito.stderr, *POPPLER)
    pretendi(esito.returncode == 0 and not altre, "\n".join(altre) or esito.stderr)
    diversi = nomi_mancati(trovate) ^ documento.mancanti
    pretendi(not diversi, "manca, o manca solo nell'elenco: " + ", ".join(sorted(diversi)))
    return esito, pagine_contate(trovate)


def pdftoppm(documento):
    _, pagine = poppler(documento, "pdftoppm", "-progress", "-r", PUNTI_PER_POLLICE,
                        documento.percorso, uscita=subprocess.DEVNULL)
    return Lettura(pagine=pagine)


def pdftotext(documento):
    # -raw: in the order of drawing, so that the lines of one box stay together beside others.
    esito, _ = poppler(documento, "pdftotext", "-raw", "-enc", "UTF-8", documento.percorso, "-")
    return Lettura(testo=esito.stdout)


def pdfinfo(documento):
    esito, _ = poppler(documento, "pdfinfo", documento.percorso)
    return Lettura(pagine=int(re.search(r"^Pages: +(\d+)$", esito.stdout, re.MULTILINE)[1]))


# ---- Ghostscript ---------------------------------------------------------------------------------

# It must speak (no -q), or it keeps the faults it found to itself.
GHOSTSCRIPT = [
    r"GPL Ghostscript \d.*",
    r"Copyright .*",
    r"This software is supplied .*",
    r"see the file COPYING for details\.",
    r"Processing pages \d+ through \d+\.",
    r"Page (?P<pagina>\d+)",
    # The standard faces are not embedded: it takes its own.
    r"Loading font .* \(or substitute\) from .*",
    # The frame around the faults, which stand in lines of their own.
    r"The following (errors|warnings) were encountered at least once while processing this file:",
    r" +\*\*\*\* (This file had errors|The file was produced by:|>>>> |Please notify the author|"
    r"file that it does not conform|specificatio.\.).*",
]

# Both are faults of the appearance that it makes itself for a stamp, which has none of its own.
GHOSTSCRIPT_TIMBRI = [r"\tobject lacks a required Subtype", r"\tBT found inside a text block"]

GHOSTSCRIPT_MANCANTI = [r"\terror executing PDF token"]


# Documents at a time, at most.
GHOSTSCRIPT_INSIEME = 16


def ghostscript(documento):
    # Without annotations what is allowed for stamps is not allowed on the page itself.
    if documento.timbri:
        gs_passata(documento, [], "-dShowAnnots=false")
    return gs_passata(documento, GHOSTSCRIPT_TIMBRI if documento.timbri else [])


def gs_passata(documento, permesse, *opzioni):
    # It would stop at the name that is missing on purpose.
    severo = [] if documento.mancanti else ["-dPDFSTOPONERROR"]
    if documento.mancanti:
        permesse = permesse + GHOSTSCRIPT_MANCANTI
    esito, altre, trovate = gs([*severo, *opzioni], permesse, [documento])
    pretendi(esito.returncode == 0 and not altre, "\n".join(altre) or esito.stdout)
    return Lettura(pagine=pagine_contate(trovate))


def gs(opzioni, permesse, documenti):
    esito = esegui("gs", *opzioni, "-dBATCH", "-dNOPAUSE", "-sDEVICE=ppmraw",
                   "-r" + PUNTI_PER_POLLICE, "-sOutputFile=" + os.devnull,
                   *(documento.percorso for documento in documenti), errori=subprocess.STDOUT)
    return esito, *separa(esito.stdout, *GHOSTSCRIPT, *permesse)


def ghostscript_insieme(documenti):
    """Reads plain documents in one process: its start costs ten times a page.

    Returns what it read of each, by path; nothing at all where anything is amiss: then each must
    be judged alone.
    """
    try:
        esito, altre, trovate = gs(["-dPDFSTOPONERROR"], [], documenti)
    except Rifiuto:
        return {}
    inizi = [n for n, trovata in enumerate(trovate) if trovata[0].startswith("Processing pages")]
    if esito.returncode != 0 or altre or len(inizi) != len(documenti):
        return {}
    return {documento.percorso: Lettura(pagine=pagine_contate(trovate[da:a]))
            for documento, da, a in zip(documenti, inizi, inizi[1:] + [None])}


# ---- Our own -------------------------------------------------------------------------------------

def nostro(documento):
    byte = documento.percorso.read_bytes()
    difetti = conformi.difetti(byte)
    pretendi(not difetti, "\n".join(difetti))
    return testi_resi(fuori.difetti, byte, documento)


def testi_resi(difetti, letto, documento):
    try:
        trovati = difetti(letto, documento.fuori)
    except fuori.Difetto as difetto:
        trovati = [str(difetto)]
    pretendi(not trovati, "\n".join(trovati))
    return Lettura()


def qpdf_testi(documento):
    if not documento.fuori:
        return Lettura()
    esito = esegui("qpdf", "--json", documento.percorso)
    return testi_resi(fuori.difetti_qpdf, esito.stdout, documento)


# ---- Documents -----------------------------------------------------------------------------------

LETTORI = {
    "qpdf": qpdf,
    "mutool": mutool_disegna,
    "mutool, testo": mutool_testo,
    "pdftoppm": pdftoppm,
    "pdftotext": pdftotext,
    "Ghostscript": ghostscript,
}
LETTORI_CONFORMI = {
    **LETTORI,
    "mutool, info": mutool_informa,
    "pdfinfo": pdfinfo,
    "il nostro": nostro,
    "qpdf, testi": qpdf_testi,
}


def lettori_di(documento):
    return LETTORI_CONFORMI if documento.conforme else LETTORI


def righe_accanto(percorso, fine):
    accanto = percorso.with_name(percorso.name + fine)
    if not accanto.exists():
        return []
    righe = [normale(riga) for riga in accanto.read_text(encoding="utf-8").splitlines()]
    if not any(righe):
        raise Uso(f"{accanto} è vuoto")
    return [riga for riga in righe if riga]


def apri(percorso):
    byte = percorso.read_bytes()
    conforme = conformi.e_conforme(byte)
    return Documento(percorso, righe_accanto(percorso, ".attese"),
                     set(righe_accanto(percorso, ".mancanti")),
                     not conforme and b"/Subtype /Stamp" in byte,
                     bool(NOME_CON_CANCELLETTO.search(byte)), conforme,
                     righe_accanto(percorso, ".fuori"))


def trova(percorsi):
    """The documents under the paths, sorted; a side file that has none is a mistake."""
    trovati = set()
    for percorso in map(Path, percorsi):
        if not percorso.exists() and percorso.suffix == ".pdf":
            raise Uso(f"{percorso} non c'è")
        trovati |= {percorso} if percorso.is_file() else set(percorso.rglob("*.pdf"))
        for accanto in percorso.rglob("*.pdf.*") if percorso.is_dir() else []:
            noto = accanto.suffix in {".attese", ".mancanti", ".fuori"}
            if not noto or not accanto.with_suffix("").exists():
                raise Uso(f"{accanto} non sta accanto a un PDF")
    return [apri(percorso) for percorso in sorted(trovati)]


def normale(testo):
    return " ".join(testo.split())


def leggi(documento, lettore):
    try:
        return lettori_di(documento)[lettore](documento)
    except Rifiuto as rifiuto:
        return rifiuto


def giudica(documento, letture):
    """letture: of each reader what it read, or its refusal."""
    difetti = [f"{chi}: {letta}" for chi, letta in letture.items() if isinstance(letta, Rifiuto)]
    buone = {chi: letta for chi, letta in letture.items() if isinstance(letta, Lettura)}
    for chi, letta in buone.items():
        if letta.testo is not None:
            testo = normale(letta.testo)
            difetti += [f"{chi}: manca il testo \"{attesa}\"" for attesa in documento.attese
                        if attesa not in testo]
    conti = {chi: letta.pagine for chi, letta in buone.items() if letta.pagine is not None}
    if len(set(conti.values())) > 1 or 0 in conti.values():
        difetti.append("pagine: " + ", ".join(f"{chi} {n}" for chi, n in conti.items()))
    return Giudizio(documento, max(conti.values(), default=None), difetti)


def gruppi(documenti):
    """The documents that Ghostscript may read many at a time, in groups of like work."""
    semplici = [d for d in documenti if not d.mancanti and not d.timbri]
    quanti = -(-len(semplici) // GHOSTSCRIPT_INSIEME)
    return [semplici[n::quanti] for n in range(quanti)]


def controlla(documenti):
    """Judges all documents, all readers at once on all cores; the judgements in their order."""
    # The largest first, or one of them would still run when all cores but one are idle.
    in_ordine = sorted(documenti, key=lambda d: -d.percorso.stat().st_size)
    with ThreadPoolExecutor(len(os.sched_getaffinity(0))) as fili:
        insieme = [fili.submit(ghostscript_insieme, gruppo) for gruppo in gruppi(in_ordine)]
        compiti = {documento.percorso: {chi: fili.submit(leggi, documento, chi)
                                        for chi in lettori_di(documento) if chi != "Ghostscript"}
                   for documento in in_ordine}
        letti = {chi: letto for compito in insieme for chi, letto in compito.result().items()}
        for documento in in_ordine:
            if documento.percorso not in letti:
                compiti[documento.percorso]["Ghostscript"] = fili.submit(leggi, documento,
                                                                         "Ghostscript")
    return [giudica(documento, raccogli(compiti[documento.percorso], letti.get(documento.percorso)))
            for documento in documenti]


def raccogli(compiti, letto):
    """What each reader read; Ghostscript, where it has read the document among others, this."""
    letture = {chi: compito.result() for chi, compito in compiti.items()}
    return letture if letto is None else {**letture, "Ghostscript": letto}


def controlla_nuovi(documenti, ricordo):
    """Judges all documents but those that are remembered; the judgements in their order."""
    prima = {d.percorso: Giudizio(d, pagine, []) for d in documenti
             if (pagine := ricordo.pagine(d.percorso)) is not None}
    giudizi = controlla([d for d in documenti if d.percorso not in prima])
    tutti = {**prima, **{giudizio.documento.percorso: giudizio for giudizio in giudizi}}
    ricordo.serba((percorso, giudizio.pagine) for percorso, giudizio in tutti.items()
                  if not giudizio.difetti)
    if ricordo.file:
        print(f"PDF già accettati: {len(prima)}")
    return [tutti[documento.percorso] for documento in documenti]


def riga(giudizio):
    nome = giudizio.documento.percorso.name
    if giudizio.difetti:
        return f"NO {nome}: " + "; ".join(giudizio.difetti)
    return f"sì {nome}: pagine {giudizio.pagine}, testi attesi {len(giudizio.documento.attese)}"


def principale(argomenti):
    opzioni = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    opzioni.add_argument("--almeno", type=int, default=0, metavar="N")
    opzioni.add_argument("--ricordo", metavar="FILE")
    opzioni.add_argument("percorsi", nargs="+", metavar="PERCORSO")
    scelte = opzioni.parse_args(argomenti)
    assenti = [programma for programma in PROGRAMMI if shutil.which(programma) is None]
    try:
        if assenti:
            raise Uso("mancano i lettori: " + ", ".join(assenti))
        documenti = trova(scelte.percorsi)
        if len(documenti) < scelte.almeno:
            raise Uso(f"PDF trovati: {len(documenti)}, almeno {scelte.almeno}")
    except Uso as uso:
        print(f"lettori: {uso}", file=sys.stderr)
        return 2
    if not documenti:
        print("no documents: run the tests that make them")
        return SALTATO
    giudizi = controlla_nuovi(documenti, Ricordo(scelte.ricordo))
    for giudizio in giudizi:
        print(riga(giudizio))
    rifiutati = sum(bool(giudizio.difetti) for giudizio in giudizi)
    print(f"PDF accettati: {len(giudizi) - rifiutati}, rifiutati: {rifiutati}")
    return 1 if rifiutati else 0


if __name__ == "__main__":
    sys.exit(principale(sys.argv[1:]))
