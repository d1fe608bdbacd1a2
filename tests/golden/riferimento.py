#!/usr/bin/env python3
"""Second implementation of the shoe simulation and of the text and HTML reports.

It exists to check the main program: given the same shoes and the same
separators, both must produce the same bytes.  The code favours being easy to
read and to verify over being quick, and shares nothing with the main program.

    riferimento.py --mazzi FILE --forma txt|html|colpi [--statistiche]
                   [--decimali ,] [--migliaia .] --uscita FILE

A shoe file holds one shoe per line: the card codes 1..312, each exactly once,
separated by commas or blanks.  "#" starts a comment.
"""

import argparse
import sys
from fractions import Fraction

CARTE_TAGLIA = 312
ULTIMA_CARTA = CARTE_TAGLIA - 1
CARTE_ANNULLATE = 5

CAMPI_STATISTICHE = (
    "VinceNero", "VinceRosso", "Colore", "Inverso", "Pari", "TrentunoApres",
    "NeroColore", "NeroInverso", "RossoColore", "RossoInverso",
)


class ErroreTaglia(Exception):
    """A shoe file that cannot be read, or a report that cannot be computed."""


# ---------------------------------------------------------------------------
# Cards
# ---------------------------------------------------------------------------

def ValoreCarta(codice):
    """Value index of a card: 1 ace, 2-10, 11 jack, 12 queen, 13 king."""
    resto = codice % 13
    return 13 if resto == 0 else resto


def PuntiCarta(codice):
    """Points of a card: pips up to 9, everything above counts 10."""
    valore = ValoreCarta(codice)
    return valore if valore <= 9 else 10


def SemeCarta(codice):
    """Suit letter: C hearts, Q diamonds, F clubs, P spades."""
    resto = codice % 52
    if resto == 0:
        resto = 52
    if resto <= 13:
        return "C"
    if resto <= 26:
        return "Q"
    if resto <= 39:
        return "F"
    return "P"


def NomeValore(codice):
    """Value text of a card."""
    valore = ValoreCarta(codice)
    return {1: "A", 11: "J", 12: "Q", 13: "K"}.get(valore, str(valore))


def TestoCarta(codice):
    """Card text: value text followed by the suit letter."""
    return NomeValore(codice) + SemeCarta(codice)


# ---------------------------------------------------------------------------
# One shoe
# ---------------------------------------------------------------------------

class Taglia:
    """One shoe: the cards, the dealing state, the records and the counts."""

    def __init__(self, mazzo):
        self.Mazzo = list(mazzo)
        self.Colpi = []
        self.Statistiche = dict.fromkeys(CAMPI_STATISTICHE, 0)
        self.Riavvolgi()

    def Riavvolgi(self):
        """Back to the first card after the cancelled ones, same cards."""
        self.Posizione = CARTE_ANNULLATE
        self.NumeroColpo = 1
        self.FineTaglia = False

    # -- dealing -----------------------------------------------------------

    def GiocaMano(self, k):
        """Deal one row after offset k.

        Returns (cards, total, k, complete); when the shoe runs out, k is the
        first offset that did not exist.
        """
        carte = []
        totale = 0
        while totale <= 30:
            k += 1
            if self.Posizione + k > ULTIMA_CARTA:
                return carte, totale, k, False
            codice = self.Mazzo[self.Posizione + k]
            carte.append(codice)
            totale += PuntiCarta(codice)
        return carte, totale, k, True

    def Esito(self, totaleNero, totaleRosso):
        """Outcome and colour result of a complete coup (the lower row wins)."""
        if totaleNero == totaleRosso:
            return "E", "E"
        # Only the very first card of the coup decides Colore or Inverso.
        nera = SemeCarta(self.Mazzo[self.Posizione]) in ("P", "F")
        if totaleNero < totaleRosso:
            return "N", "C" if nera else "I"
        return "R", "I" if nera else "C"

    def RegistraColpo(self, esito, colore, nero, totaleNero, rosso, totaleRosso):
        """Record text of a coup."""
        return ",".join((
            str(self.NumeroColpo), esito, colore,
            str(totaleNero), str(totaleRosso),
            "#".join(TestoCarta(c) for c in nero),
            "#".join(TestoCarta(c) for c in rosso),
        ))

    def GiocaColpo(self):
        """Deal the next coup, return its record, advance the dealing state."""
        rosso, totaleRosso = [], 0
        nero, totaleNero, k, completa = self.GiocaMano(-1)
        if completa:
            rosso, totaleRosso, k, completa = self.GiocaMano(k)

        if not completa:
            record = self.RegistraColpo("", "", nero, totaleNero, rosso, totaleRosso)
            self.FineTaglia = True
            # One past the missing card on purpose: the position becomes 313,
            # so a whole shoe later counts as 308 cards used instead of 307.
            self.Posizione += k + 1
            return record

        esito, colore = self.Esito(totaleNero, totaleRosso)
        record = self.RegistraColpo(esito, colore, nero, totaleNero, rosso, totaleRosso)
        self.FineTaglia = False
        self.Posizione += k + 1
        self.NumeroColpo += 1
        return record

    def CarteAnnullate(self):
        """Record of index 0: the five cancelled cards."""
        return ",".join(["0"] + [TestoCarta(c) for c in self.Mazzo[:CARTE_ANNULLATE]])

    # -- the whole shoe ----------------------------------------------------

    def SimulaTaglia(self):
        """Deal the whole shoe into Colpi and Statistiche.

        The shoe is dealt twice on purpose: the first pass only finds how many
        records there are, the second one stores them.
        """
        self.Riavvolgi()
        while not self.FineTaglia:
            self.GiocaColpo()
        n = self.NumeroColpo
        self.Colpi = [""] * (n + 1)
        self.Riavvolgi()
        self.Colpi[0] = self.CarteAnnullate()
        for i in range(1, n + 1):
            self.Colpi[i] = self.GiocaColpo()
        self.CalcolaStatistiche(n)

    def CalcolaStatistiche(self, n):
        """Count the outcomes of the records 1..n."""
        conti = dict.fromkeys(CAMPI_STATISTICHE, 0)
        for i in range(1, n + 1):
            campi = self.Colpi[i].split(",")
            esito, colore = campi[1], campi[2]
            if esito == "N":
                conti["VinceNero"] += 1
            elif esito == "R":
                conti["VinceRosso"] += 1
            elif esito == "E":
                conti["Pari"] += 1
                if campi[3] == "31" and campi[4] == "31":
                    conti["TrentunoApres"] += 1
            if colore == "C":
                conti["Colore"] += 1
            elif colore == "I":
                conti["Inverso"] += 1
            if esito == "N" and colore == "C":
                conti["NeroColore"] += 1
            elif esito == "N" and colore == "I":
                conti["NeroInverso"] += 1
            elif esito == "R" and colore == "C":
                conti["RossoColore"] += 1
            elif esito == "R" and colore == "I":
                conti["RossoInverso"] += 1
        self.Statistiche = conti


# ---------------------------------------------------------------------------
# Figures of the reports
# ---------------------------------------------------------------------------

def ContaCarte(carte):
    """Number of "#"-separated cards; an empty field holds none."""
    return len(carte.split("#")) if carte else 0


class CifreTaglia:
    """What a report derives from the records of one shoe."""

    def __init__(self, taglia):
        k = len(taglia.Colpi) - 1
        campi = taglia.Colpi[k].split(",")
        somma = int(campi[3]) + int(campi[4])
        self.recordCorto = somma <= 61
        # The three counts disagree on purpose.  With a short last record the
        # text report leaves out the last complete coup of the shoe; with a
        # long one (62 points or more) the HTML report shows that unfinished
        # coup as a row, and it counts as a coup in the totals.
        if self.recordCorto:
            self.colpiTesto = k - 2
            self.colpiHtml = k - 1
            self.colpiTotali = k - 1
            carteCorte = ContaCarte(campi[5]) + ContaCarte(campi[6])
        else:
            self.colpiTesto = k - 1
            self.colpiHtml = k
            self.colpiTotali = k
            carteCorte = 0
        # The position is 313 at the end of every shoe, so the figure is one
        # higher than the cards dealt (308 for a whole shoe), on purpose.
        self.carteUsate = (taglia.Posizione - CARTE_ANNULLATE) - carteCorte


class TotaliReport:
    """Running totals of one report."""

    def __init__(self, numeroTaglie):
        self.numeroTaglie = numeroTaglie
        self.colpi = 0
        self.carte = 0
        self.conti = dict.fromkeys(CAMPI_STATISTICHE, 0)

    def Aggiungi(self, taglia, cifre):
        for campo in CAMPI_STATISTICHE:
            self.conti[campo] += taglia.Statistiche[campo]
        self.colpi += cifre.colpiTotali
        self.carte += cifre.carteUsate


# ---------------------------------------------------------------------------
# Number formats
# ---------------------------------------------------------------------------

def Centesimi(numeratore, denominatore):
    """The quotient in hundredths, exact halves rounded away from zero.

    Worked on whole numbers, so that a half is a half and nothing else: 229/8
    is 28,63 and 1/32 as a percentage is 3,13.  No value here is negative.
    """
    if denominatore == 0:
        raise ErroreTaglia("divisione per zero: nessun colpo su cui calcolare")
    quoziente = Fraction(numeratore * 100, denominatore)
    return (2 * quoziente.numerator + quoziente.denominator) // (2 * quoziente.denominator)


class Formati:
    """The number formats of the reports, with the chosen separators."""

    def __init__(self, decimali, migliaia):
        self.decimali = decimali
        self.migliaia = migliaia

    def Raggruppa(self, numero):
        """Whole number with thousands grouping."""
        return f"{numero:,d}".replace(",", self.migliaia)

    def Intero(self, numero):
        """Format "#,###": zero prints as nothing."""
        return "" if numero == 0 else self.Raggruppa(numero)

    def DueDecimali(self, numeratore, denominatore):
        """Format "#,##0.00" of a quotient."""
        intero, resto = divmod(Centesimi(numeratore, denominatore), 100)
        return f"{self.Raggruppa(intero)}{self.decimali}{resto:02d}"

    def Percento(self, numeratore, denominatore):
        """Format "percent" of a quotient; it never groups thousands."""
        intero, resto = divmod(Centesimi(numeratore * 100, denominatore), 100)
        return f"{intero:d}{self.decimali}{resto:02d}%"


# ---------------------------------------------------------------------------
# Text report
# ---------------------------------------------------------------------------

TAB = "\t"
INTESTAZIONE = ("   C  |  NR  |  CI  |  N  |  R  |"
                "         Mano Nero             |        Mano Rosso   ")
RIGHELLO = ("      |      |      |     |     |"
            "                               |                     ")
LARGHEZZA_NERO = 31


def UgualeSePari(campo):
    """A tie is shown as "=" in the text report."""
    return "=" if campo == "E" else campo


def RigaColpoTxt(record):
    """One row of the coup table."""
    f = record.split(",")
    nero = f[5].replace("#", ".")
    rosso = f[6].replace("#", ".")
    return "".join((
        "  ", f"{int(f[0]):02d}", "  |  ",
        UgualeSePari(f[1]), "   |  ",
        UgualeSePari(f[2]), "   |  ",
        f[3], " |  ",
        f[4], " |",
        # A Nero hand longer than the column is written without fill, which
        # pushes the rest of that row to the right.
        nero.ljust(LARGHEZZA_NERO),
        "|",
        rosso,
    ))


def StatisticheTagliaTxt(taglia, cifre, formati):
    """The statistics lines under the coup table of one shoe."""
    m = cifre.colpiTesto
    conti = taglia.Statistiche

    def Riga(etichetta, campo):
        # The counts cover the whole shoe while m may leave out its last coup:
        # on purpose, so the percentages can add up to more than 100.
        valore = conti[campo]
        return f"{etichetta}{TAB}{valore} ({formati.Percento(valore, m)})"

    return [
        f"Colpi: {TAB}{TAB}{m}",
        f"Carte usate: {TAB}{cifre.carteUsate}"
        f" ({formati.Percento(cifre.carteUsate, CARTE_TAGLIA)})",
        Riga("Vincite Nero: ", "VinceNero"),
        Riga("Vincite Rosso: ", "VinceRosso"),
        Riga("Colpi pari: ", "Pari"),
        Riga("Vin. Colore: ", "Colore"),
        Riga("Vin. Inverso: ", "Inverso"),
        Riga("31 après: ", "TrentunoApres"),
        "Altre combinazioni:",
        Riga("Nero-Colore: ", "NeroColore"),
        Riga("Nero-Inverso: ", "NeroInverso"),
        Riga("Rosso-Colore: ", "RossoColore"),
        Riga("Rosso-Inverso: ", "RossoInverso"),
    ]


def SezioneTagliaTxt(numero, taglia, cifre, formati):
    """Everything the full text report writes for one shoe."""
    righe = ["", f"{TAB}{TAB}{TAB}Taglia {numero}", "", INTESTAZIONE, RIGHELLO]
    for i in range(1, cifre.colpiTesto + 1):
        righe.append(RigaColpoTxt(taglia.Colpi[i]))
    righe.append("")
    righe += StatisticheTagliaTxt(taglia, cifre, formati)
    righe.append("")
    return righe


def StatisticheGeneraliTxt(totali, formati):
    """General statistics block.

    Labels and tab counts differ from those of the single shoe on purpose.  A
    count of zero prints nothing, and the blank after it stays.
    """
    n, c, carte = totali.numeroTaglie, totali.colpi, totali.carte

    def Riga(etichetta, campo):
        valore = totali.conti[campo]
        return f"{etichetta}{formati.Intero(valore)} ({formati.Percento(valore, c)})"

    return [
        f"Taglie: {TAB}{TAB}{formati.Intero(n)}",
        f"Colpi totali: {TAB}{TAB}{formati.Intero(c)} ({formati.DueDecimali(c, n)})",
        f"Carte utilizzate: {TAB}{formati.Intero(carte)}"
        f" ({formati.Percento(carte, n * CARTE_TAGLIA)})",
        Riga(f"Vincite Nero: {TAB}{TAB}", "VinceNero"),
        Riga(f"Vincite Rosso: {TAB}{TAB}", "VinceRosso"),
        Riga(f"Colpi pari: {TAB}{TAB}", "Pari"),
        Riga(f"Vincite Colore: {TAB}", "Colore"),
        Riga(f"Vincite Inverso: {TAB}", "Inverso"),
        Riga(f"31 après: {TAB}{TAB}", "TrentunoApres"),
        "",
        Riga(f"Vincite Nero-Colore: {TAB}", "NeroColore"),
        Riga(f"Vincite Nero-Inverso: {TAB}", "NeroInverso"),
        Riga(f"Vincite Rosso-Colore: {TAB}", "RossoColore"),
        Riga(f"Vincite Rosso-Inverso: {TAB}", "RossoInverso"),
    ]


def StampaTxt(mazzi, formati):
    """Full text report."""
    totali = TotaliReport(len(mazzi))
    righe = [f"{TAB}{TAB}{TAB}SCALVINO", ""]
    for numero, taglia, cifre in EseguiTaglie(mazzi, totali):
        righe += SezioneTagliaTxt(numero, taglia, cifre, formati)
    righe += ["", "", f"{TAB}{TAB}Statistiche generali", ""]
    return righe + StatisticheGeneraliTxt(totali, formati)


def StatisticheTxt(mazzi, formati):
    """Statistics-only text report."""
    totali = TotaliReport(len(mazzi))
    for _ in EseguiTaglie(mazzi, totali):
        pass
    righe = [
        f"{TAB}{TAB}{TAB}SCALVINO", "",
        f"{TAB}{TAB}Simulazione taglie", "",
        f"{TAB}{TAB}Statistiche generali", "",
    ]
    return righe + StatisticheGeneraliTxt(totali, formati)


# ---------------------------------------------------------------------------
# HTML report
# ---------------------------------------------------------------------------

BORDO_GRIGIO = ("border-color: rgb(212, 212, 212) rgb(212, 212, 212)"
                " rgb(212, 212, 212) rgb(212, 212, 212);")

CELLE_SAMPLE = (
    "border-width: 1px 1px 1px 1px;",
    "padding: 2px 2px 2px 2px;",
    "border-style: solid solid solid solid;",
    BORDO_GRIGIO,
    "background-color: white;",
    "-moz-border-radius: 0px 0px 0px 0px;",
)

CELLE_NORM = (
    "border-width: 0px 0px 0px 0px;",
    "padding: 2px 2px 2px 2px;",
    "border-style: solid solid solid solid;",
    "border-color: gray gray gray gray;",
    "background-color: white;",
    "-moz-border-radius: 0px 0px 0px 0px;",
)

# Selector line, indent, declarations, empty line after the rule.
# ".face" is used by no element and "cardback.gif" is never written: both stay
# on purpose, the page shows plain card boxes without them.
REGOLE = (
    ("body {", 4, (
        "font-family: tahoma, arial;",
        "font-weight: normal;",
        "font-size: 10pt;",
    ), False),
    (".card {", 2, (
        'background-image: url("cardback.gif");',
        "border-color: #808080 #000000 #000000 #808080;",
        "border-width: 1px;",
        "border-style: solid;",
        "font-size: 20pt;",
        "position: relative;",
        "width:  0.80em;",
        "height: 1.25em;",
    ), True),
    (".front {", 2, (
        "background-color: #ffffff;",
        "color: #000000;",
        "position: relative;",
        "width: 100%;",
        "height: 100%;",
    ), True),
    (".red { color: #ff0000; }", 0, None, True),
    (".face {", 2, (
        "border: 1px solid #000000;",
        "position: absolute;",
        "left: 0.50em;",
        "top:  0.45em;",
        "width:  2.6em;",
        "height: 4.0em;",
    ), True),
    (".num {", 2, (
        "position: absolute;",
        "font-size: 10pt;",
        "left: 0.30em;",
        "top: 0.02em;",
    ), True),
    (".spot {", 2, (
        "position: absolute;",
        "font-size: 14pt;",
        "left: 0.15em;",
        "top: 0.60em;",
    ), True),
    ("table.sample {", 4, (
        "border-width: 1px 1px 1px 1px;",
        "border-spacing: 1px;",
        "border-style: solid solid solid solid;",
        BORDO_GRIGIO,
        "border-collapse: collapse;",
        "background-color: white;",
        "font-family: tahoma, arial;",
        "font-weight: normal;",
        "font-size: 10pt;",
    ), False),
    ("table.sample th {", 4, CELLE_SAMPLE, False),
    ("table.sample td {", 4, CELLE_SAMPLE, True),
    ("table.norm {", 4, (
        "border-width: 0px 0px 0px 0px;",
        "border-spacing: 3px;",
        "border-style: none none none none;",
        "border-color: gray gray gray gray;",
        "border-collapse: separate;",
        "background-color: white;",
        "font-family: tahoma, arial;",
        "font-weight: normal;",
        "font-size: 10pt;",
    ), False),
    ("table.norm th {", 4, CELLE_NORM, False),
    ("table.norm td {", 4, CELLE_NORM, True),
    ("#su {", 4, (
        "text-align: right;",
        "font-family : Verdana, Arial, Helvetica, sans-serif;",
        "font-size: 10px;",
    ), True),
    ("a:link, a:visited {", 4, (
        "color: navy;",
        "font-weight: bold;",
        "text-decoration: none;",
    ), False),
    ("a:hover {", 4, (
        "color: #FF0000;",
        "font-weight: bold;",
        "text-decoration: underline;",
    ), False),
)

SELETTORI_STATISTICHE = (
    "body {", "table.sample {", "table.sample th {", "table.sample td {",
    "a:link, a:visited {", "a:hover {",
)

CELLA_PUNTO = '  <td width="5%" align="center"><font size= 5 >&bull;</font></td>'
CELLA_VUOTA = '  <td width="5%" align="center">&nbsp;</td>'
CELLA_PARI = '  <td width="5%" align="center">---</td>'

INTESTAZIONE_TABELLA = (
    '  <table class=sample width="60%" >',
    "    <tr>",
    '      <td width="5%" align="center">Colpo</td>',
    '      <td width="5%" align="center">Nero</td>',
    '      <td width="5%" align="center"><font color="#FF0000">Rosso</font></td>',
    '      <td width="5%" align="center">Colore</td>',
    '      <td width="5%" align="center"><font color="#FF0000">Inverso</font></td>',
    '      <td width="37%" align="center">Mano Nero</td>',
    '      <td width="38%" align="center">Mano Rosso</td>',
    "    </tr>",
)


def SemeHtml(carta):
    """Entity of the suit of a card text."""
    return {"C": "&hearts;", "Q": "&diams;", "F": "&clubs;", "P": "&spades;"}.get(carta[-1:], "")


def ClasseRossa(carta):
    """Class suffix of the red suits; only the symbol turns red."""
    return " red" if carta[-1:] in ("C", "Q") else ""


def RigheRegola(regola):
    """Lines of one style rule."""
    selettore, rientro, dichiarazioni, vuota = regola
    righe = [selettore]
    if dichiarazioni is not None:
        righe += [" " * rientro + d for d in dichiarazioni]
        righe.append("}")
    if vuota:
        righe.append("")
    return righe


def TestaHtml(regole):
    """Document head with the given style rules."""
    righe = ["<html>", "<head>", "<title>Scalvino</title>", "<style>", "<!--"]
    for regola in regole:
        righe += RigheRegola(regola)
    return righe + ["-->", "</style>", "</head>", "<body>"]


def CimaPagina(n):
    """Top of the full page, with the links to the shoes."""
    righe = [
        # With a single shoe the anchor "statistiche" does not exist and the
        # link leads nowhere, on purpose.
        '<a name="top"></a><div id="su"><a href="#statistiche">Statistiche</a></div>',
        '<div align="center">',
        '<font face="Tahoma" size="5"><b>SCALVINO</b></font><br><br>',
    ]
    if n > 1:
        righe.append("Vai alla taglia: ")
        # The first shoe has no link on purpose: it follows at once.
        righe += [f'<a href="#{i}">{i}</a>' for i in range(2, n + 1)]
    return righe + ["</div>", "<br>"]


def RiepilogoHtml(taglia, cifre, formati):
    """The two summary lines of a shoe."""
    s = cifre.colpiHtml

    def Voce(etichetta, campo):
        valore = taglia.Statistiche[campo]
        return f"{etichetta}: {valore} ({formati.Percento(valore, s)})"

    return [
        " - ".join((
            f"Colpi taglia: {s}",
            Voce("Nero", "VinceNero"),
            Voce("Rosso", "VinceRosso"),
            Voce("Egalitè", "Pari"),
            f"Carte utilizzate: {cifre.carteUsate}",
        )) + "<br>",
        " - ".join((
            Voce("Colore", "Colore"),
            Voce("Inverso", "Inverso"),
            Voce("31 Après", "TrentunoApres"),
        )) + "<br><br>",
    ]


def CelleEsito(campo, prima, seconda):
    """Two outcome cells; anything but the two letters shows as a tie."""
    if campo == prima:
        return [CELLA_PUNTO, CELLA_VUOTA]
    if campo == seconda:
        return [CELLA_VUOTA, CELLA_PUNTO]
    return [CELLA_PARI, CELLA_PARI]


def CartaHtml(carta):
    """One card box."""
    return ('          <td align="left"><div class="card"><div class="front"><div class="num">'
            + carta[:-1] + '</div><div class="spot' + ClasseRossa(carta) + '">'
            + SemeHtml(carta) + "</div></div></div></td>")


def CellaMano(larghezza, totale, carte):
    """The cell of one hand."""
    righe = [
        f'  <td width="{larghezza}%" align="center">',
        '      <table align="left" class="norm" width="95%">',
        "        <tr>",
        f'          <td width="20px" align="left"><p align="left">{totale}</td>',
        '          <td width="20px" align="left">&nbsp;</td>',
    ]
    righe += [CartaHtml(carta) for carta in carte.split("#")]
    return righe + [
        '         <td width="80%" align="left">&nbsp;</td>',
        "        </tr>",
        "      </table>",
        "  </td>",
    ]


def RigaColpoHtml(record):
    """One row of the coup table."""
    f = record.split(",")
    return (
        ["<tr>", f'  <td width="5%" align="center">{f[0]}</td>']
        + CelleEsito(f[1], "N", "R")
        + CelleEsito(f[2], "C", "I")
        + CellaMano(37, f[3], f[5])
        + CellaMano(38, f[4], f[6])
        + ["</tr>"]
    )


def SezioneTagliaHtml(numero, n, taglia, cifre, formati):
    """Everything the full page writes for one shoe."""
    titolo = f"Taglia {numero}" if n > 1 else "Taglia"
    righe = [
        # The anchor is left unclosed on purpose; browsers do not mind.
        f'<a name="{numero}"><div id="su"><a href="#top">Torna su</a></div>',
        '<div align="center">',
        f'<font face="arial" size="4"><b>{titolo}</b></font><br><br>',
    ]
    righe += RiepilogoHtml(taglia, cifre, formati)
    righe += INTESTAZIONE_TABELLA
    for j in range(1, cifre.colpiHtml + 1):
        righe += RigaColpoHtml(taglia.Colpi[j])
    return righe + ["</table>", "</div>", "<br>"]


def Terna(prima, etichetta, valore, percentuale):
    """Label, value and percentage cells; the first of a row is narrower."""
    larghezze = (16, 8) if prima else (17, 9)
    return [
        f'      <td width="{larghezze[0]}%">{etichetta}</td>',
        f'      <td width="{larghezze[1]}%">{valore}</td>',
        f'      <td width="8%">({percentuale})</td>',
    ]


def StatisticheGeneraliHtml(totali, formati):
    """General statistics table."""
    n, c, carte = totali.numeroTaglie, totali.colpi, totali.carte
    riempitivo = ['      <td width="34%" colspan="3"></td>']
    chiudi = ["    </tr>"]
    # Most data rows open with three spaces instead of four, on purpose.
    apri4, apri3 = ["    <tr>"], ["   <tr>"]

    def Voce(prima, etichetta, campo):
        valore = totali.conti[campo]
        return Terna(prima, etichetta, formati.Intero(valore), formati.Percento(valore, c))

    righe = ['<div align="center">', '  <table class=sample width="80%" >']
    righe += apri4
    righe += ['      <td width="100%" colspan="9" align="center"><b>Statistiche generali</b></td>']
    righe += chiudi

    righe += apri4
    righe += [
        '      <td width="16%">Numero taglie:</td>',
        f'      <td width="8%">{formati.Intero(n)}</td>',
        '      <td width="8%"></td>',
    ]
    righe += Terna(False, "Colpi totali:", formati.Intero(c), formati.DueDecimali(c, n))
    righe += Terna(False, "Carte utilizzate:", formati.Intero(carte),
                   formati.Percento(carte, n * CARTE_TAGLIA))
    righe += chiudi

    righe += apri3
    righe += Voce(True, "Vincite Nero:", "VinceNero")
    righe += Voce(False, "Vincite Rosso:", "VinceRosso")
    righe += Voce(False, "Colpi pari:", "Pari")
    righe += chiudi

    righe += apri3
    righe += Voce(True, "Vincite Colore:", "Colore")
    righe += Voce(False, "Vincite Inverso:", "Inverso")
    righe += Voce(False, "31 après:", "TrentunoApres")
    righe += chiudi

    righe += apri4
    righe += ['      <td width="100%" colspan="9" align="left">Combinazioni vincenti</td>']
    righe += chiudi

    righe += apri3
    righe += Voce(True, "Vincite Nero-Colore:", "NeroColore")
    righe += Voce(False, "Vincite Nero-Inverso:", "NeroInverso")
    righe += riempitivo
    righe += chiudi

    righe += apri3
    righe += Voce(True, "Vincite Rosso-Colore:", "RossoColore")
    righe += Voce(False, "Vincite Rosso-Inverso:", "RossoInverso")
    righe += riempitivo
    righe += chiudi

    return righe + ["  </table>", "</div>", "<br>"]


def StampaHtml(mazzi, formati):
    """Full HTML report."""
    n = len(mazzi)
    totali = TotaliReport(n)
    righe = TestaHtml(REGOLE) + CimaPagina(n)
    for numero, taglia, cifre in EseguiTaglie(mazzi, totali):
        righe += SezioneTagliaHtml(numero, n, taglia, cifre, formati)
    if n > 1:
        righe += [
            '<a name="statistiche"></a><div id="su"><a href="#top">Torna su</a></div>',
            "<br>",
        ]
        righe += StatisticheGeneraliHtml(totali, formati)
    return righe + ["</body>", "</html>"]


def StatisticheHtml(mazzi, formati):
    """Statistics-only HTML report."""
    totali = TotaliReport(len(mazzi))
    for _ in EseguiTaglie(mazzi, totali):
        pass
    righe = TestaHtml([r for r in REGOLE if r[0] in SELETTORI_STATISTICHE])
    righe += [
        "<br>",
        '<div align="center">',
        # The font element is left unclosed on purpose in this form only.
        '<font face="Tahoma" size="5"><b>SCALVINO</b><br><br>',
        '<font face="arial" size="4"><b>Simulazione taglie</b></font><br><br>',
        "</div>",
        "<br>",
    ]
    righe += StatisticheGeneraliHtml(totali, formati)
    return righe + ["</body>", "</html>"]


# ---------------------------------------------------------------------------
# Runs, files, command line
# ---------------------------------------------------------------------------

def EseguiTaglie(mazzi, totali):
    """Simulate the shoes in order; yields number, shoe and figures."""
    for numero, mazzo in enumerate(mazzi, 1):
        taglia = Taglia(mazzo)
        taglia.SimulaTaglia()
        cifre = CifreTaglia(taglia)
        totali.Aggiungi(taglia, cifre)
        yield numero, taglia, cifre


def ElencaColpi(mazzi):
    """The records of every shoe, index 0 first."""
    righe = []
    for _, taglia, _ in EseguiTaglie(mazzi, TotaliReport(len(mazzi))):
        righe += taglia.Colpi
    return righe


def LeggiMazzi(percorso):
    """Read a shoe file."""
    mazzi = []
    with open(percorso, encoding="ascii") as archivio:
        for numero, riga in enumerate(archivio, 1):
            testo = riga.split("#", 1)[0].replace(",", " ")
            if not testo.strip():
                continue
            try:
                mazzo = [int(parola) for parola in testo.split()]
            except ValueError:
                raise ErroreTaglia(f"{percorso}, riga {numero}: numero non valido")
            if sorted(mazzo) != list(range(1, CARTE_TAGLIA + 1)):
                raise ErroreTaglia(f"{percorso}, riga {numero}: non sono le carte 1-312, una volta ciascuna")
            mazzi.append(mazzo)
    if not mazzi:
        raise ErroreTaglia(f"{percorso}: nessuna taglia")
    return mazzi


def ScriviReport(percorso, righe):
    """Report file: Windows-1252, CR LF after every line."""
    with open(percorso, "wb") as archivio:
        for riga in righe:
            archivio.write(riga.encode("cp1252") + b"\r\n")


def ScriviColpi(percorso, righe):
    """Record file: plain ASCII, LF after every line."""
    with open(percorso, "wb") as archivio:
        for riga in righe:
            archivio.write(riga.encode("ascii") + b"\n")


def Separatore(testo):
    """A separator from the command line; "nbsp" names the no-break space."""
    return "\xa0" if testo in ("nbsp", "\udca0") else testo


def Argomenti(argv):
    lettore = argparse.ArgumentParser(description="Simulation and reports from given shoes.")
    lettore.add_argument("--mazzi", required=True)
    lettore.add_argument("--forma", required=True, choices=("txt", "html", "colpi"))
    lettore.add_argument("--statistiche", action="store_true")
    lettore.add_argument("--decimali", type=Separatore, default=",")
    lettore.add_argument("--migliaia", type=Separatore, default=".")
    lettore.add_argument("--uscita", required=True)
    return lettore.parse_args(argv)


def Main(argv):
    argomenti = Argomenti(argv)
    formati = Formati(argomenti.decimali, argomenti.migliaia)
    operazioni = {
        ("txt", False): StampaTxt, ("txt", True): StatisticheTxt,
        ("html", False): StampaHtml, ("html", True): StatisticheHtml,
    }
    try:
        mazzi = LeggiMazzi(argomenti.mazzi)
        if argomenti.forma == "colpi":
            ScriviColpi(argomenti.uscita, ElencaColpi(mazzi))
        else:
            operazione = operazioni[argomenti.forma, argomenti.statistiche]
            ScriviReport(argomenti.uscita, operazione(mazzi, formati))
    except (ErroreTaglia, OSError, UnicodeError) as errore:
        print(f"riferimento.py: {errore}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(Main(sys.argv[1:]))
