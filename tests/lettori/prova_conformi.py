"""Our strict reader: it accepts a sound conforming document, however it is packed, and refuses each
broken one for its fault."""

import subprocess
import tempfile
import unittest
import zlib
from pathlib import Path

import conformi
import fuori
from struttura import leggi

PAGINA = (b"q\r\n1 0 0 -1 0 842 cm\r\nBT\r\n/F 12 Tf\r\n1 0 0 -1 60 80 Tm (Nero \\(31\\)) Tj\r\nET\r\n"
          b"/Piede Do\r\nQ\r\n")
PIEDE = b"q\r\n0 0 9 9 re f\r\nQ\r\n"

XMP = """<?xpacket begin='\uFEFF' id='W5M0MpCehiHzreSzNTczkc9d'?>
<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>
<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/'
 xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmlns:pdf='http://ns.adobe.com/pdf/1.3/'>
<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>Łódź</rdf:li></rdf:Alt></dc:title>
<dc:creator><rdf:Seq><rdf:li>Rossi</rdf:li></rdf:Seq></dc:creator>
<xmp:CreateDate>2026-01-02T03:04:05+01:00</xmp:CreateDate>
</rdf:Description></rdf:RDF></x:xmpmeta>
<?xpacket end='r'?>"""

FONT = (b"<< /Type /Font /Subtype /Type1 /BaseFont /Courier /FirstChar 32 /LastChar 126 "
        b"/Widths [" + b"600 " * 95 + b"] /FontDescriptor 7 0 R /Encoding /WinAnsiEncoding >>")
DESCRITTORE = (b"<< /Type /FontDescriptor /FontName /Courier /Flags 32 /FontBBox [0 0 1 1] "
               b"/ItalicAngle 0 /Ascent 718 /Descent -207 /StemV 88 /CapHeight 718 >>")
CHI = b"/ID [<" + b"0A" * 16 + b"> <" + b"0A" * 16 + b">]"


def flusso(testa, dati):
    return b"<< " + testa + b" /Length %d >>\r\nstream\r\n" % len(dati) + dati + b"\r\nendstream"


def compresso(testa, dati):
    return flusso(testa + b" /Filter /FlateDecode", zlib.compress(dati))


def oggetti(fa=compresso):
    """A sound document of one page, a bookmark and a note: the objects by number."""
    return {
        1: b"<< /Title <FEFF" + "Łódź".encode("utf-16-be").hex().encode() + b"> "
           b"/Author (Rossi) /CreationDate (D:20260102030405+01'00') >>",
        2: b"<< /Type /Catalog /Pages 3 0 R /Metadata 8 0 R /Outlines 9 0 R >>",
        3: b"<< /Type /Pages /Count 1 /Kids [4 0 R] /MediaBox [0 0 596 842] >>",
        4: b"<< /Type /Page /Parent 3 0 R /Contents 5 0 R /Annots [11 0 R] "
           b"/Resources << /Font << /F 6 0 R >> /XObject << /Piede 13 0 R >> >> >>",
        5: fa(b"", PAGINA),
        6: FONT,
        7: DESCRITTORE,
        8: flusso(b"/Type /Metadata /Subtype /XML", XMP.encode("utf-8")),
        9: b"<< /Type /Outlines /First 10 0 R /Last 10 0 R /Count 2 >>",
        10: b"<< /Title (titolo) /Parent 9 0 R /First 14 0 R /Last 14 0 R /Count 1 >>",
        11: b"<< /Type /Annot /Subtype /Text /Rect [0 0 20 20] /Contents (a \\(b) /T (io) "
            b"/AP << /N 12 0 R >> >>",
        12: fa(b"/Type /XObject /Subtype /Form /BBox [0 0 20 20] /Resources << >>", PIEDE),
        13: fa(b"/Type /XObject /Subtype /Form /BBox [0 0 596 842] /Resources << >>", PIEDE),
        14: b"<< /Title (uno) /Parent 10 0 R /Dest [4 0 R /FitB] >>",
    }


TESTA = b"%PDF-1.7\r\n%\xE2\xE3\xCF\xD3\r\n% fatto a mano\r\n"


def sciolti(corpi, testa=TESTA, coda=CHI, piu=1):
    """A file of plain objects and a table."""
    file, tavola = testa, b"0000000000 65535 f\r\n"
    for numero, corpo in sorted(corpi.items()):
        tavola += b"%010d 00000 n\r\n" % len(file)
        file += b"%d 0 obj\r\n%s\r\nendobj\r\n" % (numero, corpo)
    return (file + b"xref\r\n0 %d\r\n" % (len(corpi) + 1) + tavola
            + b"trailer\r\n<< /Size %d /Info 1 0 R /Root 2 0 R %s >>\r\n" % (len(corpi) + piu, coda)
            + b"startxref\r\n%d\r\n%%%%EOF\r\n" % len(file))


def pacco(corpi):
    indice, dati = b"", b""
    for numero, corpo in corpi:
        indice += b"%d %d " % (numero, len(dati))
        dati += corpo + b"\r\n"
    return compresso(b"/Type /ObjStm /N %d /First %d" % (len(corpi), len(indice)), indice + dati)


def impacchettati(corpi, cambia=lambda voci: voci):
    """The same with all objects that are no streams in one object stream, and a table as a stream.
    cambia: what becomes of the table's entries, each of type and two numbers."""
    file, voci = TESTA, {0: (0, 0, 65535)}
    piccoli = [(n, c) for n, c in sorted(corpi.items()) if b"\nstream\r\n" not in c]
    ultimo = max(corpi)
    corpi = {n: c for n, c in corpi.items() if b"\nstream\r\n" in c} | {ultimo + 1: pacco(piccoli)}
    for numero, corpo in sorted(corpi.items()):
        voci[numero] = (1, len(file), 0)
        file += b"%d 0 obj\r\n%s\r\nendobj\r\n" % (numero, corpo)
    voci |= {n: (2, ultimo + 1, i) for i, (n, _) in enumerate(piccoli)}
    voci[ultimo + 2] = (1, len(file), 0)
    tavola = b"".join(b"%c%s%s" % (a, b.to_bytes(3, "big"), c.to_bytes(2, "big"))
                      for _, (a, b, c) in sorted(cambia(voci).items()))
    testa = b"/Type /XRef /W [1 3 2] /Size %d /Info 1 0 R /Root 2 0 R %s" % (ultimo + 3, CHI)
    corpo = compresso(testa, tavola)
    return (file + b"%d 0 obj\r\n%s\r\nendobj\r\n" % (ultimo + 2, corpo)
            + b"startxref\r\n%d\r\n%%%%EOF\r\n" % len(file))


class Conformi(unittest.TestCase):
    def rifiutato(self, byte, *pezzi):
        trovati = conformi.difetti(byte)
        self.assertTrue(trovati, "niente da dire")
        for pezzo in pezzi:
            self.assertIn(pezzo, "; ".join(trovati))

    def cambiato(self, numero, prima, dopo, fa=sciolti):
        """A document in which one object is another one."""
        corpi = oggetti(flusso)
        self.assertIn(prima, corpi[numero])
        corpi[numero] = corpi[numero].replace(prima, dopo)
        return fa(corpi)

    def test_uno_sano_e_accettato_comunque_sia_fatto(self):
        for fa in flusso, compresso:
            self.assertEqual(conformi.difetti(sciolti(oggetti(fa))), [])
            self.assertEqual(conformi.difetti(impacchettati(oggetti(fa))), [])

    def test_dice_i_suoi_testi(self):
        for byte in sciolti(oggetti()), impacchettati(oggetti()):
            documento = leggi(byte)
            self.assertEqual(conformi.proprieta(documento)["Title"], "Łódź")
            self.assertEqual(conformi.segnalibri(documento), [(0, "titolo"), (1, "uno")])
            self.assertEqual(conformi.note(documento), [("io", "a (b")])
            self.assertEqual(documento.a_flusso, byte.count(b"xref\r\n0") == 0)

    def test_solo_coi_quattro_byte_e_uno_di_questi(self):
        self.assertTrue(conformi.e_conforme(sciolti({})))
        self.assertFalse(conformi.e_conforme(b"%PDF-1.3\r\n% fatto a mano\r\n"))
        self.rifiutato(sciolti(oggetti(), b"%PDF-1.6\r\n%\xE2\xE3\xCF\xD3\r\n"), "testa_e_coda")

    def test_la_coda(self):
        self.rifiutato(sciolti(oggetti(), piu=0), "/Size 14")
        self.rifiutato(sciolti(oggetti(), coda=CHI[:-4] + b">]"), "/ID")
        self.rifiutato(sciolti(oggetti(), coda=b""), "testa_e_coda: KeyError 'ID'")

    def test_un_posto_sbagliato_un_byte_di_troppo_un_oggetto_inutile(self):
        byte = sciolti(oggetti())
        self.rifiutato(byte.replace(b"6 0 obj", b"6 0 obk"), "nessun oggetto")
        self.rifiutato(byte.replace(b"endobj\r\n4 0", b"endobj\r%4 0"), "c'è altro")
        self.rifiutato(byte.replace(b"endobj\r\nxref", b"endobj xref"), "")
        self.rifiutato(sciolti(oggetti() | {15: b"(nessuno)"}), "nomina: [15]")
        inutile = flusso(b"/Type /XObject /Subtype /Form /BBox [0 0 9 9] /Resources 16 0 R", PIEDE)
        self.assertEqual(conformi.difetti(sciolti(oggetti() | {15: inutile, 16: b"<< >>"})), [])
        self.rifiutato(self.cambiato(4, b"6 0 R", b"16 0 R"), "l'oggetto 16 non c'è")

    def test_le_lunghezze(self):
        self.rifiutato(self.cambiato(5, b"/Length ", b"/Length 1"), "/Length")
        self.rifiutato(sciolti(oggetti() | {5: compresso(b"", PAGINA).replace(b"/Length ", b"/Length 0 %")}), "")

    def test_la_tavola_in_un_flusso(self):
        sposta = {"un oggetto altrove": (5, (1, 20, 0)), "un altro posto nel pacco": (6, (2, 15, 3)),
                  "un pacco che non lo è": (6, (2, 5, 0)), "un tipo ignoto": (6, (3, 0, 0))}
        for cosa, (numero, voce) in sposta.items():
            with self.subTest(cosa):
                self.rifiutato(impacchettati(oggetti(), lambda v, n=numero, e=voce: v | {n: e}))
        self.rifiutato(impacchettati(oggetti(), lambda v: {n: e for n, e in v.items() if n != 5}))

    def test_un_pacco_di_troppi_oggetti(self):
        tanti = {n: b"%d" % n for n in range(15, 220)}
        corpi = oggetti() | tanti
        corpi[2] = corpi[2][:-2] + b"/Altro [" + b" ".join(b"%d 0 R" % n for n in tanti) + b"] >>"
        self.assertEqual(conformi.difetti(sciolti(corpi)), [])
        self.rifiutato(impacchettati(corpi), "oggetti in un flusso")

    def test_ogni_regola_vede_il_suo_guasto(self):
        for numero, prima, dopo, detto in [
                (1, b"Rossi", b"Verdi", "metadati: Author"), (1, b"Rossi", b"Ross\xAD", "proprieta"),
                (1, b"+01'00'", b"", "data"), (1, b"+01", b"+02", "metadati: data"),
                (3, b"/Count 1", b"/Count 2", "pagine: /Count"), (4, b"3 0 R", b"2 0 R", "/Parent"),
                (4, b"[11 0 R]", b"[ ]", "/Annots vuoto"), (4, b"/F 6", b"/G 6", "/Font usa"),
                (4, b"/Piede 13 0 R", b"", "/XObject usa ['Piede'], ha []"),
                (4, b"/XObject", b"/ExtGState << /X 7 0 R >> /XObject", "/ExtGState usa []"),
                (5, b"BT", b"Bt", "operatore Bt"), (5, b"ET", b"n ", "senza fine"),
                (6, b"[600 ", b"[", "larghezze"), (6, b"Courier", b"Arial", "descrittore"),
                (7, b"/StemV 88", b"", "/StemV manca"), (9, b"/Count 2", b"/Count 1", "/Count"), (10, b"/Count 1", b"/Count 2", "/Count"),
                (9, b"/Last 10", b"/Last 9", "/Last"), (14, b"4 0 R", b"5 0 R", "meta"),
                (10, b"/Parent 9", b"/Parent 2", "legami"), (11, b"/AP <<", b"/AQ <<", "'AP'"),
                (11, b"[0 0 20 20]", b"[0 20 20 0]", "/Rect")]:
            with self.subTest(numero=numero, dopo=dopo):
                self.rifiutato(self.cambiato(numero, prima, dopo), detto)

    def test_senza_note_le_pagine_non_ne_hanno_per_nessuno(self):
        for fa in sciolti, impacchettati:
            with tempfile.TemporaryDirectory() as cartella:
                file = Path(cartella) / "uno.pdf"
                file.write_bytes(conformi.senza_note(fa(oggetti())))
                esito = subprocess.run(["qpdf", "--json", file], capture_output=True, check=True)
            self.assertEqual(esito.stderr, b"")
            self.assertIn(b"/Piede", esito.stdout)
            self.assertNotIn(b'"/Annots"', esito.stdout)

    def test_un_carattere_si_scrive_una_volta(self):
        corpi = oggetti()
        corpi[4] = corpi[4].replace(b"/F 6", b"/G 15 0 R /F 6")
        self.rifiutato(sciolti(corpi | {15: FONT}), "caratteri doppi", "/Font usa")


class Fuori(unittest.TestCase):
    RIGHE = ["Title C581C3B364C5BA", "Author 526F737369", "Subject", "segnalibro 756E6F",
             "nota 61202862", "chi 696F"]

    def test_i_testi_resi_e_quelli_che_non_lo_sono(self):
        self.assertEqual(fuori.difetti(sciolti(oggetti()), self.RIGHE), [])
        self.assertEqual(fuori.difetti(sciolti(oggetti()), []), [])
        for riga, altra in [("Title C581C3B364C5BA", "Title C581"), ("segnalibro 756E6F", "segnalibro"),
                            ("nota 61202862", "nota 6120"), ("chi 696F", "chi 69"),
                            ("Subject", "Subject 69")]:
            righe = [altra if r == riga else r for r in self.RIGHE]
            self.assertEqual(len(fuori.difetti(sciolti(oggetti()), righe)), 1, altra)


if __name__ == "__main__":
    unittest.main()
