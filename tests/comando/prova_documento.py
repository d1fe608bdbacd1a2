"""The PDF report as somebody outside gets it."""

import fcntl
import os
import re
import resource
import unittest

from aiuti import FATTO, GOLDEN, RIFIUTO, SCRITTURA, Prova, ambiente

FISSO = ambiente(SOURCE_DATE_EPOCH="1767323045")


def pagine(documento):
    return len(re.findall(rb"/Type /Page ", documento))


def caratteri(documento):
    return len(re.findall(rb"/Type /Font ", documento))


class Documento(Prova):
    def fa_pdf(self, *argomenti, **opzioni):
        """Makes the document, tells its path, and returns its bytes."""
        uscita = self.fa("-f", "pdf", *argomenti, **opzioni).uscita
        self.assertEqual(uscita, os.fsencode(self.cartella / "taglie.pdf") + b"\n")
        self.assertEqual(self.contenuto(), ["taglie.pdf"])
        documento = self.byte("taglie.pdf")
        self.assertTrue(documento.startswith(b"%PDF-1.3\r\n"))
        self.assertTrue(documento.endswith(b"%%EOF\r\r\n"))
        return documento

    def test_una_pagina_per_taglia_e_quella_generale(self):
        for argomenti, quante in [(["1"], 1), (["2"], 3), (["20"], 21), (["-s", "1"], 1),
                                  (["-s", "2000"], 1), (["-s", "2000", "-j", "2"], 1)]:
            with self.subTest(argomenti=argomenti):
                documento = self.fa_pdf(*argomenti)
                self.assertEqual(pagine(documento), quante)
                self.assertIn(b"(di %d) Tj" % quante, documento)

    def test_lo_stesso_seme_e_la_stessa_data_danno_lo_stesso_documento(self):
        for quali in [[], ["-s"], ["--caratteri-unici"]]:
            with self.subTest(quali=quali):
                primo = self.fa_pdf("5", "--seme", "4", *quali, env=FISSO)
                self.assertEqual(self.fa_pdf("5", "--seme", "4", *quali, env=FISSO), primo)
                self.assertNotEqual(self.fa_pdf("5", "--seme", "5", *quali, env=FISSO), primo)

    def test_la_data_viene_dall_ambiente(self):
        documento = self.fa_pdf("-s", env=ambiente(SOURCE_DATE_EPOCH="951782399"))
        self.assertIn(b"/CreationDate (D:20000228235959Z+01'00')\r", documento)
        self.assertIn("(Scalvino © 2000) Tj".encode("cp1252"), documento)

    def test_la_data_sbagliata_si_scopre_prima_della_prima_taglia(self):
        (self.cartella / "taglie.pdf").write_bytes(b"il vecchio")
        for data, motivo in [("ieri", '"ieri" non è un numero di secondi dal 1970'),
                             ("-1", '"-1" non è un numero di secondi dal 1970'),
                             ("253402300800", "\"253402300800\" supera l'anno 9999"),
                             ("9" * 30, f"\"{'9' * 30}\" supera l'anno 9999")]:
            for argomenti in [["20"], ["-s", 10**15]]:
                with self.subTest(data=data, argomenti=argomenti):
                    esito = self.taglie("-f", "pdf", *argomenti, "--colpi", "c",
                                        env=ambiente(SOURCE_DATE_EPOCH=data))
                    self.errore(esito, RIFIUTO, f"taglie: SOURCE_DATE_EPOCH: {motivo}\n")
                    self.assertEqual(self.contenuto(), ["taglie.pdf"])
        self.assertEqual(self.byte("taglie.pdf"), b"il vecchio")
        self.fa("-f", "txt", env=ambiente(SOURCE_DATE_EPOCH="ieri"))  # which tells no date

    def test_coi_caratteri_unici_il_documento_e_di_un_quarto_piu_piccolo(self):
        tanti = self.fa_pdf("20", "--seme", "7", env=FISSO)
        unici = self.fa_pdf("20", "--seme", "7", "--caratteri-unici", env=FISSO)
        print(f"{len(tanti)} e {len(unici)} byte, {caratteri(tanti)} e {caratteri(unici)} "
              "caratteri", flush=True)
        self.assertGreater(caratteri(tanti), 7_000)
        self.assertEqual(caratteri(unici), 4)
        self.assertLess(len(unici), len(tanti) * 0.75)

    def rifiuta_senza_toccare(self, *argomenti):
        """More shoes than fit: told with how many do, and whatever is there stays as it is."""
        vecchi = {nome: b"vecchio " + nome.encode() for nome in ("taglie.pdf", "m.txt", "c.txt")}
        for nome, byte in vecchi.items():
            (self.cartella / nome).write_bytes(byte)
        esito = self.taglie("-f", "pdf", "--salva-mazzi", "m.txt", "--colpi", "c.txt", *argomenti)
        self.errore(esito, RIFIUTO, f"taglie: {self.cartella / 'taglie.pdf'}: ", "circa 82",
                    "--caratteri-unici 8187")
        for nome, byte in vecchi.items():
            self.assertEqual(self.byte(nome), byte)
            (self.cartella / nome).unlink()
        self.assertEqual(self.contenuto(), [])

    def test_troppe_taglie_si_rifiutano_prima_di_toccare_qualcosa(self):
        for taglie in ["95", "100", "1000", "32768", str(10**15), str(2**53)]:
            with self.subTest(taglie=taglie):
                self.rifiuta_senza_toccare(taglie)
        for taglie in ["8188", "9000", "32768", str(2**53)]:
            with self.subTest(taglie=taglie):
                self.rifiuta_senza_toccare(taglie, "--caratteri-unici")

    def test_dove_dipende_dalle_carte_si_contano_prima(self):
        entra = 79
        while self.taglie("-f", "pdf", entra + 1, "--seme", "1").codice == FATTO:
            entra += 1
        self.assertIn(entra, range(81, 85))
        self.assertEqual(pagine(self.fa_pdf(entra, "--seme", "1")), entra + 1)
        (self.cartella / "taglie.pdf").unlink()
        self.rifiuta_senza_toccare(entra + 1, "--seme", "1")
        self.rifiuta_senza_toccare("88")  # of shuffled cards, too

    def test_le_taglie_contate_prima_sono_quelle_scritte(self):
        self.fa("-f", "pdf", "80", "--seme", "9", "--salva-mazzi", "m.txt", "--colpi", "c.txt",
                env=FISSO)
        documento, mazzi, colpi = map(self.byte, ("taglie.pdf", "m.txt", "c.txt"))
        self.fa("-f", "pdf", "--mazzi", "m.txt", "--colpi", "c.txt", env=FISSO)
        self.assertEqual((self.byte("taglie.pdf"), self.byte("c.txt")), (documento, colpi))
        self.fa("80", "--seme", "9", "--salva-mazzi", "m.txt", "--colpi", "c.txt")
        self.assertEqual((self.byte("m.txt"), self.byte("c.txt")), (mazzi, colpi))
        self.fa("-f", "pdf", "80", "--salva-mazzi", "m.txt")  # of shuffled cards
        primo = self.byte("m.txt")
        self.fa("--mazzi", "m.txt", "-f", "pdf", "--salva-mazzi", "m2.txt")
        self.assertEqual(self.byte("m2.txt"), primo)

    def test_coi_caratteri_unici_ci_stanno_molte_piu_taglie(self):
        self.assertEqual(pagine(self.fa_pdf("1000", "--caratteri-unici")), 1001)

    def test_coi_caratteri_unici_ne_entrano_8187(self):
        self.assertEqual(pagine(self.fa_pdf("8187", "--caratteri-unici")), 8188)

    def test_il_documento_in_uso_resta_com_e(self):
        file = self.cartella / "taglie.pdf"
        for quali in [[], ["-s"], ["--caratteri-unici"]]:
            with self.subTest(quali=quali):
                file.write_bytes(b"aperto altrove")
                with open(file, "rb") as tenuto:
                    with open(file, "rb") as altro:
                        try:
                            fcntl.fcntl(altro, fcntl.F_SETLEASE, fcntl.F_WRLCK)
                            self.fail("il file sembra libero")
                        except BlockingIOError:
                            pass
                        except OSError:
                            self.skipTest("questo disco non sa chi tiene un file")
                    self.errore(self.taglie("-f", "pdf", *quali), SCRITTURA, f"taglie: {file}: ",
                                "è in uso da un altro programma")
                    self.assertEqual(tenuto.read(), b"aperto altrove")
                self.assertEqual(file.read_bytes(), b"aperto altrove")

    def test_una_cartella_col_suo_nome_si_scopre_prima_di_giocare(self):
        (self.cartella / "taglie.pdf").mkdir()
        for argomenti in [["20"], ["-s", str(10**15)]]:
            with self.subTest(argomenti=argomenti):
                self.errore(self.taglie("-f", "pdf", *argomenti), SCRITTURA, "è una cartella")

    def test_il_disco_pieno_non_lascia_niente(self):
        for byte in [0, 1000, 70_000, 400_000]:
            with self.subTest(byte=byte):
                def limita(byte=byte):
                    resource.setrlimit(resource.RLIMIT_FSIZE, (byte, byte))
                self.errore(self.taglie("-f", "pdf", "3", "--seme", "1", preexec_fn=limita),
                            SCRITTURA, f"taglie: {self.cartella / 'taglie.pdf'}: ",
                            "superata la dimensione massima")
                self.assertEqual(self.contenuto(), [])

    def test_il_report_di_taglie_scritte_e_quello_dorato(self):
        documento = self.fa_pdf("--mazzi", GOLDEN / "tre.mazzi", env=ambiente("fr_FR.UTF-8", **{
            "SOURCE_DATE_EPOCH": "1767323045"}))
        self.assertEqual(documento, (GOLDEN / "tre.nbsp.pieno.pdf").read_bytes())


if __name__ == "__main__":
    unittest.main()
