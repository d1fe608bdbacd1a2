"""The small, conforming PDF report, judged by readers of others."""

import os
import resource
import shutil
import subprocess
import unittest

from aiuti import ATTESA, INTERROTTO, RIFIUTO, SCRITTURA, USO, Prova, ambiente, aspetta, scritti

FISSO = ambiente(SOURCE_DATE_EPOCH="1767323045")
SENZA_ZLIB = os.environ["ZLIB"] != "ON"


def serve(programma):
    return unittest.skipUnless(shutil.which(programma), f"manca {programma}")


@unittest.skipIf(SENZA_ZLIB, "il programma è costruito senza zlib")
class Compatto(Prova):
    def fa_pdf(self, nome, *argomenti):
        self.fa("-f", "pdf", "-o", nome, "--seme", "7", *argomenti, env=FISSO)
        return self.byte(nome)

    def leggi(self, *comando):
        """What a reader says of a document, all on standard output: warnings, too."""
        fatto = subprocess.run(comando, cwd=self.cartella, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, timeout=ATTESA)
        self.assertEqual(fatto.returncode, 0, fatto.stdout[:2000])
        return fatto.stdout

    def documenti(self):
        for nome, argomenti in [("uno", ["1"]), ("sette", ["7"]), ("generali", ["-s", "500"])]:
            self.fa_pdf(f"{nome}.pdf", *argomenti)
            self.fa_pdf(f"{nome}.compatto.pdf", "--compatto", *argomenti)
            yield nome

    @serve("qpdf")
    def test_qpdf_non_ha_niente_da_dire(self):
        for nome in self.documenti():
            detto = self.leggi("qpdf", "--check", f"{nome}.compatto.pdf")
            self.assertIn(b"No syntax or stream encoding errors found", detto)
            self.assertNotIn(b"WARNING", detto)

    @serve("mutool")
    def test_mutool_e_ghostscript_tacciono(self):
        for nome in self.documenti():
            file = f"{nome}.compatto.pdf"
            detto = self.leggi("mutool", "draw", "-o", "x.png", "-r", "20", file, "1").decode()
            # What it lacks itself is no fault of the document.
            self.assertEqual(detto.replace("warning: ICC support is not available\n", ""),
                             f"page {file} 1\n")
            if shutil.which("gs"):
                self.assertEqual(self.leggi("gs", "-q", "-dNOPAUSE", "-dBATCH", "-dSAFER",
                                            "-sDEVICE=nullpage", file), b"")

    @serve("pdftotext")
    def test_il_testo_e_quello_del_documento_solito(self):
        for nome in self.documenti():
            uno, altro = (self.leggi("pdftotext", "-layout", "-enc", "UTF-8", f"{nome}{come}.pdf", "-")
                          for come in ("", ".compatto"))
            self.assertEqual(altro, uno)
            self.assertIn("SCALVINO", uno.decode())

    @serve("pdfinfo")
    def test_dice_chi_e_e_in_che_lingua(self):
        self.fa_pdf("x.pdf", "3", "--compatto")
        detto = self.leggi("pdfinfo", "x.pdf").decode()
        for riga in [r"Title: +Scalvino", r"Author: +Vellarmo", r"Pages: +4", r"PDF version: +1\.7",
                     r"Page size: .*\(A4\)"]:
            self.assertRegex(detto, riga)
        if shutil.which("qpdf"):
            self.assertIn(b"/Lang (it)", self.leggi("qpdf", "--qdf", "x.pdf", "-"))

    def test_e_molto_piu_piccolo(self):
        solito = len(self.fa_pdf("n.pdf", "20"))
        unici = len(self.fa_pdf("u.pdf", "20", "--caratteri-unici"))
        compatto = len(self.fa_pdf("c.pdf", "20", "--compatto"))
        print(f"{solito}, {unici} e {compatto} byte", flush=True)
        self.assertLess(compatto, 100_000)
        self.assertLess(compatto * 20, unici)

    def test_lo_stesso_seme_e_la_stessa_data_danno_gli_stessi_byte(self):
        primo = self.fa_pdf("x.pdf", "5", "--compatto")
        self.assertEqual(self.fa_pdf("x.pdf", "5", "--compatto"), primo)
        # The fonts stand once in any case.
        self.assertEqual(self.fa_pdf("x.pdf", "5", "--compatto", "--caratteri-unici"), primo)
        esito = self.fa("5", "-f", "pdf", "--seme", "7", "--compatto", "-o", "-", env=FISSO)
        self.assertEqual(esito.uscita, primo)

    def test_mille_taglie_ci_stanno(self):
        self.fa_pdf("x.pdf", "1000", "--compatto")
        if shutil.which("pdfinfo"):
            self.assertRegex(self.leggi("pdfinfo", "x.pdf"), rb"Pages: +1001\n")

    def test_oltre_le_pagine_di_un_documento_si_rifiuta_prima_di_giocare(self):
        (self.cartella / "taglie.pdf").write_bytes(b"il vecchio")
        for taglie in ["32767", "100000", str(2**53)]:
            self.errore(self.taglie("-f", "pdf", "--compatto", taglie), RIFIUTO, "ne entrano 32766")
        self.errore(self.taglie("-f", "pdf", "1000"), RIFIUTO, "con --compatto 32766")
        self.assertEqual((self.contenuto(), self.byte("taglie.pdf")), (["taglie.pdf"], b"il vecchio"))

    def test_vale_solo_per_i_pdf(self):
        for forma in ["txt", "html", "video", "nessuna"]:
            self.errore(self.taglie("-f", forma, "--compatto"), USO, "--compatto: vale solo con -f pdf")
        self.errore(self.taglie("--compatto"), USO, "--compatto: vale solo con -f pdf")
        self.errore(self.taglie("-o", "x.htm", "--compatto"), USO, "--compatto: vale solo")
        self.fa("-o", "x.pdf", "--compatto")

    def test_chi_non_finisce_lascia_il_vecchio(self):
        (self.cartella / "taglie.pdf").write_bytes(b"il vecchio")
        for byte in [0, 1000, 70_000]:
            limite = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (byte, byte))
            self.errore(self.taglie("-f", "pdf", "--compatto", "100", preexec_fn=limite), SCRITTURA,
                        "superata la dimensione massima")
        processo = self.avvia("-f", "pdf", "--compatto", "20000")
        aspetta(lambda: scritti(processo.pid) > 200_000, "un documento lungo")
        processo.terminate()
        self.errore(self.raccogli(processo), INTERROTTO, "interrotto")
        self.assertEqual((self.contenuto(), self.byte("taglie.pdf")), (["taglie.pdf"], b"il vecchio"))


@unittest.skipUnless(SENZA_ZLIB, "il programma è costruito con zlib")
class SenzaZlib(Prova):
    def test_si_rifiuta_senza_toccare_niente(self):
        (self.cartella / "taglie.pdf").write_bytes(b"il vecchio")
        for argomenti in [["3"], ["-s", str(10**15)]]:
            self.errore(self.taglie("-f", "pdf", "--compatto", "--colpi", "c", *argomenti), RIFIUTO,
                        "taglie: --compatto: ", "zlib")
        self.assertEqual((self.contenuto(), self.byte("taglie.pdf")), (["taglie.pdf"], b"il vecchio"))


if __name__ == "__main__":
    unittest.main()
