#!/usr/bin/env python3
"""Second implementation of the PDF reports, on the reference PDF writer.

It takes the shoes, the totals and the number formats from riferimento.py and
writes with pdf/scrittore.py; it shares nothing with the main program.

    riferimento_pdf.py --mazzi FILE [--statistiche] [--caratteri-unici]
                       [--orologio yyyymmddhhmmss] [--decimali ,]
                       [--migliaia .] --uscita FILE
"""

import argparse
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "pdf"))

from riferimento import (CARTE_TAGLIA, ErroreTaglia, EseguiTaglie, Formati, LeggiMazzi,
                         RiepilogoHtml, Separatore, TotaliReport)
from scrittore import Scrittore

# The time at which every golden report is made.
OROLOGIO = "20260102030405"

ROSSO, NERO = "#FF0000", "#000000"
# Codes of the suits in the Symbol font: heart, diamond, club, spade.
SEMI = {"C": "\u00a9", "Q": "\u00a8", "F": "\u00a7", "P": "\u00aa"}
PUNTO = "\u00b7"
SINISTRA, DESTRA, CENTRO = 33, 34, 36
# Bit 8 means nothing to the writer; the mark is centred at the top.
SEGNO = 12


class Report:
    """One document; lengths in centimetres."""

    def __init__(self, numero, formati, orologio, unici=False, classe=Scrittore):
        self.numero, self.formati, self.orologio = numero, formati, orologio
        self.pdf = classe(orologio)
        self.pdf.ShareFonts(unici)
        self.pdf.SetDocProperty("Scalvino", "Scalvino", "Vellarmo", "Scalvino 1.0",
                                "Vellarmo", "")
        self.pdf.SetScale(3, 1.0)
        self.pdf.SetPaperSize(0, 0, 0)
        self.pdf.Margin(0)
        self.pdf.Orientation(0)
        self.pdf.PDFReader(0)
        self.pdf.BeginDoc("taglie.pdf")

    def TestaPagina(self, y):
        pdf = self.pdf
        pdf.BeginPage()
        pdf.SetFont("Times New Roman", 6, 0)
        pdf.DrawText(18.5, 29, f"pag. {pdf.Pages()}", 2, 0)
        pdf.PlayObject("Footers")
        pdf.SetFont("Verdana", 14, 1)
        pdf.DrawText(10.5, y, "SCALVINO", 4, 0)

    def Titolo(self, y, testo):
        self.pdf.DrawText(10.5, y, testo, 4, 0)

    def Riquadro(self, x, larghezza, altezza, testo, opzioni):
        self.pdf.DrawTextBox(x, 0, larghezza, altezza, testo, 1, 0, opzioni, 0)

    def Cella(self, larghezza, altezza, testo, opzioni, x=0, riquadro=None):
        """One cell; riquadro: width of the text box when not the cell's."""
        self.pdf.BeginColumn(larghezza, "", -1, "")
        self.Riquadro(x, riquadro or larghezza, altezza, testo, opzioni)
        self.pdf.EndColumn()

    # -- shoe pages --------------------------------------------------------

    def PaginaTaglia(self, indice, taglia, cifre):
        """What follows the page head, once the shoe is known."""
        pdf = self.pdf
        pdf.SetFontSize(12)
        self.Titolo(2, f"Taglia {indice}" if self.numero > 1 else "Taglia")
        pdf.SetFont("Verdana", 8, 0)
        prima, seconda = RiepilogoHtml(taglia, cifre, self.formati)
        self.Titolo(2.5, prima.removesuffix("<br>"))
        self.Titolo(2.9, seconda.removesuffix("<br><br>"))
        pdf.SetFontSize(8)
        pdf.BeginTable(2, 3.5, "White", 0.01, "Gray")
        pdf.BeginRow(0.6, "", -1, "")
        for testo, larghezza in (("Colpo", 1), ("Nero", 1), ("Rosso", 1), ("Colore", 1),
                                 ("Inverso", 1), ("Mano Nero", 6), ("Mano Rosso", 6)):
            self.Cella(larghezza, 0.6, testo, CENTRO)
        pdf.EndRow()
        for j in range(1, cifre.colpiHtml + 1):
            self.RigaColpo(j, taglia.Colpi[j].split(","))
        pdf.EndTable()
        pdf.EndPage()

    def RigaColpo(self, j, campi):
        pdf = self.pdf
        pdf.BeginRow(0.6, "", -1, "")
        self.CellaTesto(str(j))
        for campo, lettera in ((1, "N"), (1, "R"), (2, "C"), (2, "I")):
            segno = {lettera: PUNTO, "E": "-"}.get(campi[campo], "")
            pdf.BeginColumn(1, "", -1, "")
            pdf.SetFont("Symbol", 10, 0)
            self.Riquadro(0, 1, 0.6, segno, SEGNO)
            pdf.EndColumn()
        for totale, carte in ((campi[3], campi[5]), (campi[4], campi[6])):
            self.CellaTesto(totale)
            pdf.BeginColumn(5, "", -1, "")
            self.Mano(carte.split("#") if carte else [])
            pdf.EndColumn()
        pdf.EndRow()

    def CellaTesto(self, testo):
        self.pdf.BeginColumn(1, "", -1, "")
        self.pdf.SetFont("Verdana", 8, 0)
        self.Riquadro(0, 1, 0.6, testo, CENTRO)
        self.pdf.EndColumn()

    def Mano(self, carte):
        pdf = self.pdf
        for n, carta in enumerate(carte):
            pdf.SetFont("Verdana", 8, 0)
            self.Riquadro(0.5 * n + 0.2, 0.2, 0.6, carta[:-1], DESTRA)
            if carta[-1] in ("C", "Q"):
                pdf.SetColorFill(ROSSO, "")
            pdf.SetFont("Symbol", 10, 0)
            self.Riquadro(0.5 * n + 0.4, 5, 0.4, SEMI.get(carta[-1], ""), SINISTRA)
            pdf.SetColorFill(NERO, "")

    # -- general statistics ------------------------------------------------

    def TabellaStatistiche(self, totali):
        f, n, c = self.formati, totali.numeroTaglie, totali.colpi
        self.pdf.BeginTable(4.5, 4, "White", 0.01, "Gray")
        self.RigaStatistica("Numero taglie:", f.Intero(n), "")
        self.RigaStatistica("Colpi totali:", f.Intero(c), f.DueDecimali(c, n))
        self.RigaStatistica("Carte utilizzate:", f.Intero(totali.carte),
                            f.Percento(totali.carte, n * CARTE_TAGLIA))
        for etichetta, campo in (
                ("Vincite Nero:", "VinceNero"), ("Vincite Rosso:", "VinceRosso"),
                ("Colpi pari:", "Pari"), ("Vincite Colore:", "Colore"),
                ("Vincite Inverso:", "Inverso"), ("31 après:", "TrentunoApres")):
            self.RigaEsito(etichetta, totali.conti[campo], c)
        self.pdf.BeginRow(0.5, "", -1, "")
        self.Cella(12, 0.5, "Altre combinazioni vincenti", SINISTRA, x=0.2, riquadro=5)
        self.pdf.EndRow()
        for etichetta, campo in (
                ("Vincite Nero-Colore:", "NeroColore"),
                ("Vincite Nero-Inverso:", "NeroInverso"),
                ("Vincite Rosso-Colore:", "RossoColore"),
                ("Vincite Rosso-Inverso:", "RossoInverso")):
            self.RigaEsito(etichetta, totali.conti[campo], c)
        self.pdf.EndTable()
        self.pdf.EndPage()

    def RigaEsito(self, etichetta, valore, colpi):
        self.RigaStatistica(etichetta, self.formati.Intero(valore),
                            self.formati.Percento(valore, colpi))

    def RigaStatistica(self, etichetta, valore, terza):
        self.pdf.BeginRow(0.5, "", -1, "")
        self.Cella(5, 0.5, etichetta, SINISTRA, x=0.2)
        self.Cella(2, 0.5, valore, CENTRO)
        self.Cella(5, 0.5, terza, CENTRO)
        self.pdf.EndRow()

    # -- end ---------------------------------------------------------------

    def Fine(self):
        """The footer, known only now, and the end; returns the file."""
        pdf = self.pdf
        pdf.BeginObject("Footers", 7)
        pdf.SetFont("Times New Roman", 6, 0)
        pdf.DrawText(2, 29, f"Scalvino © {self.orologio[:4]}", 1, 0)
        pdf.DrawText(19, 29, f"di {pdf.Pages()}", 2, 0)
        pdf.EndObject()
        pdf.EndDoc()
        return bytes(pdf.dati)


def StampaPdf(mazzi, formati, orologio=OROLOGIO, unici=False, classe=Scrittore):
    """Full PDF report."""
    n = len(mazzi)
    totali = TotaliReport(n)
    report = Report(n, formati, orologio, unici, classe)
    for indice, taglia, cifre in EseguiTaglie(mazzi, totali):
        report.TestaPagina(1.3)
        report.PaginaTaglia(indice, taglia, cifre)
    if n > 1:
        report.TestaPagina(2)
        report.pdf.SetFontSize(12)
        report.Titolo(3, "Statistiche generali")
        report.pdf.SetFont("Verdana", 8, 0)
        report.TabellaStatistiche(totali)
    return report.Fine()


def StatistichePdf(mazzi, formati, orologio=OROLOGIO, unici=False, classe=Scrittore):
    """Statistics-only PDF report."""
    totali = TotaliReport(len(mazzi))
    for _ in EseguiTaglie(mazzi, totali):
        pass
    report = Report(len(mazzi), formati, orologio, unici, classe)
    report.TestaPagina(1.3)
    report.pdf.SetFontSize(12)
    report.Titolo(3, "Simulazione taglie")
    report.pdf.SetFontSize(10)
    report.Titolo(3.5, "Statistiche generali")
    report.pdf.SetFont("Verdana", 8, 0)
    report.TabellaStatistiche(totali)
    return report.Fine()


def Argomenti(argv):
    lettore = argparse.ArgumentParser(description="PDF reports from given shoes.")
    lettore.add_argument("--mazzi", required=True)
    lettore.add_argument("--statistiche", action="store_true")
    lettore.add_argument("--caratteri-unici", dest="unici", action="store_true")
    lettore.add_argument("--orologio", default=OROLOGIO)
    lettore.add_argument("--decimali", type=Separatore, default=",")
    lettore.add_argument("--migliaia", type=Separatore, default=".")
    lettore.add_argument("--uscita", required=True)
    return lettore.parse_args(argv)


def Main(argv):
    argomenti = Argomenti(argv)
    operazione = StatistichePdf if argomenti.statistiche else StampaPdf
    try:
        dati = operazione(LeggiMazzi(argomenti.mazzi),
                          Formati(argomenti.decimali, argomenti.migliaia),
                          argomenti.orologio, argomenti.unici)
        with open(argomenti.uscita, "wb") as archivio:
            archivio.write(dati)
    except (ErroreTaglia, OSError) as errore:
        print(f"riferimento_pdf.py: {errore}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(Main(sys.argv[1:]))
