"""Texts outside the pages, given back exactly by readers that are not ours."""

import json
import os
import pathlib
import subprocess
import sys
import unittest

import gi

gi.require_version("Poppler", "0.18")
from gi.repository import Poppler  # noqa: E402

QUI = pathlib.Path(__file__).parent
sys.path.insert(0, str(QUI / "aiuti"))
from pdf_da_fuori import DaFuori, esegui, lettori  # noqa: E402

import fuori  # noqa: E402

TESTI = ["L'età - 10 € “x” Łódź 日本", "č", "\u2828", "\u2829", "\u5C5C", "þÿ all'inizio", "þÿ",
         "ï»¿ all'inizio", "ï»¿"]
# Beside those: what PDF escapes, every character of PDFDocEncoding, other planes.
ALTRI = ["(", ")", "\\", "a) /Author (b", "(\\)", "#p #t ##", "C# guide",
         "".join(chr(c) for c in range(0xA1, 0x100) if c != 0xAD),
         "•†‡…—–ƒ⁄‹›−‰„“”‘’‚™ﬁﬂŁŒŠŸŽıłœšž˘ˇˆ˙˝˛˚˜€", "😀 𝄞", "\u00AD", "шалом שלום سلام", "x" * 200]

MUTOOL = """
var documento = new Document(scriptArgs[0]);
function titoli(voci) {
    var trovati = [];
    (voci || []).forEach(function (voce) {
        trovati.push(voce.title);
        trovati = trovati.concat(titoli(voce.down));
    });
    return trovati;
}
var note = [], chi = [];
for (var n = 0; n < documento.countPages(); ++n) {
    documento.loadPage(n).getAnnotations().forEach(function (nota) {
        note.push(nota.getContents());
        chi.push(nota.getAuthor());
    });
}
var proprie = {};
["Title", "Author", "Subject", "Keywords", "Creator", "Producer"].forEach(function (nome) {
    proprie[nome] = documento.getMetaData("info:" + nome);
});
print(JSON.stringify({"proprietà": proprie, segnalibri: titoli(documento.loadOutline()).slice(1),
                      note: note, chi: chi}));
"""


def righe(testi):
    """A document that has these texts in all places, as a side file tells them."""
    coppie = [(nome, testi[i % len(testi)]) for i, nome in enumerate(
        ("Title", "Author", "Subject", "Keywords", "Creator", "Producer"))]
    for testo in testi:
        coppie += [("segnalibro", testo), ("nota", testo), ("chi", testo), ("etichetta", testo)]
    return [f"{genere} {testo.encode().hex()}" for genere, testo in coppie]


def di_mutool(percorso, cartella):
    programma = cartella / "testi.js"
    programma.write_text(MUTOOL, encoding="utf-8")
    return json.loads(esegui("mutool", "run", programma, percorso))


def di_poppler(percorso):
    documento = Poppler.Document.new_from_file(percorso.as_uri(), None)
    note = [voce.annot for n in range(documento.get_n_pages())
            for voce in documento.get_page(n).get_annot_mapping()]
    note = [nota for nota in note if nota.get_annot_type() != Poppler.AnnotType.LINK]
    return {
        "proprietà": {nome: getattr(documento, "get_" + nome.lower())() for nome in
                      ("Title", "Author", "Subject", "Keywords", "Creator", "Producer")},
        "segnalibri": titoli_poppler(Poppler.IndexIter.new(documento))[1:],
        "note": [nota.get_contents() for nota in note]}


def titoli_poppler(voce):
    titoli, altre = [], voce is not None
    while altre:
        azione = voce.get_action()  # it must live while its title is taken
        titoli.append(azione.any.title)
        titoli += titoli_poppler(voce.get_child())
        altre = voce.next()
    return titoli


class Testi(DaFuori):
    def scrivi(self, nome, testi, *livello):
        percorso = self.cartella / nome
        contenuto = righe(testi)
        esegui(os.environ["SCRIVI_TESTI"], percorso, *livello,
               input="".join(riga + "\n" for riga in contenuto).encode())
        percorso.with_name(nome + ".fuori").write_text("\n".join(contenuto) + "\n")
        return percorso

    def uguali(self, trovati, testi, nome):
        attesi = fuori.attese(righe(testi))
        for genere in "etichette", "chi":  # not all readers tell them
            trovati.setdefault(genere, attesi[genere])
        self.assertEqual(fuori.confronta(attesi, trovati), [], nome)

    def rendono(self, nome, testi, *livello):
        """Our reader and qpdf compare in passing; mutool and poppler here."""
        percorso = self.scrivi(nome, testi, *livello)
        self.accettati([percorso])
        self.uguali(di_mutool(percorso, self.cartella), testi, "mutool")
        self.uguali(di_poppler(percorso), testi, "poppler")
        return percorso

    def livelli(self):
        """The arguments for a document that is compressed, where the library can."""
        prova = self.cartella / "prova.pdf"
        esito = subprocess.run([os.environ["SCRIVI_TESTI"], prova, "6"], input=b"", check=False,
                               capture_output=True)
        return [(), ("6",)] if esito.returncode == 0 else [()]

    def test_in_ogni_luogo_e_con_ogni_lettore(self):
        for livello in self.livelli():
            with self.subTest(livello=livello):
                self.rendono("testi.pdf", TESTI, *livello)
                self.rendono("altri.pdf", ALTRI, *livello)

    def test_ogni_testo_e_un_titolo(self):
        for numero, testo in enumerate(TESTI + ALTRI):
            with self.subTest(testo=testo):
                percorso = self.rendono(f"titolo_{numero}.pdf", [testo])
                self.assertIn(testo.encode(), esegui("pdfinfo", "-enc", "UTF-8", percorso))

    def test_un_testo_sbagliato_si_vede(self):
        percorso = self.scrivi("testi.pdf", ["Nero"])
        percorso.with_name("testi.pdf.fuori").write_text("\n".join(righe(["Rosso"])) + "\n")
        giudizio, = lettori.controlla([lettori.apri(percorso)])
        self.assertEqual([difetto.split(":")[0] for difetto in giudizio.difetti],
                         ["il nostro", "qpdf, testi"])


if __name__ == "__main__":
    unittest.main()
