"""What the user's locale changes, and what it must not."""

import json
import subprocess
import sys
import unittest

from aiuti import GOLDEN, Prova, ambiente

LINGUE = ["C", "it_IT.UTF-8", "en_US.UTF-8"]

# Decimal and thousands marks, as the reports' bytes.
SEGNI = {"C": (b".", b""), "it_IT.UTF-8": (b",", b"."), "en_US.UTF-8": (b".", b","),
         "fr_FR.UTF-8": (b",", b"\xa0")}

CHIEDI = ("import json, locale; locale.setlocale(locale.LC_ALL, '');"
          "c = locale.localeconv();"
          "print(json.dumps([c['decimal_point'], c['thousands_sep'], locale.getlocale()]))")


class Lingue(Prova):
    def test_le_lingue_delle_prove_ci_sono_davvero(self):
        attesi = {"C": [".", ""], "it_IT.UTF-8": [",", "."], "en_US.UTF-8": [".", ","],
                  "fr_FR.UTF-8": [",", "\u202f"]}
        for lingua, segni in attesi.items():
            # A missing locale raises here, while a program silently stays in "C".
            uscita = subprocess.run([sys.executable, "-c", CHIEDI], env=ambiente(lingua),
                                    check=True, capture_output=True, timeout=60).stdout
            decimali, migliaia, _ = json.loads(uscita)
            self.assertEqual([decimali, migliaia], segni, lingua)

    def test_record_e_taglie_sono_gli_stessi_in_ogni_lingua(self):
        visti = set()
        for lingua in LINGUE:
            self.fa("30", "--seme", "3", "-f", "nessuna", "--colpi", "c", "--salva-mazzi", "m",
                    env=ambiente(lingua))
            visti.add((self.byte("c"), self.byte("m")))
        self.assertEqual(len(visti), 1)

    def test_i_dati_sono_gli_stessi_in_ogni_lingua(self):
        for forma, secondi in [("json", b'"secondi":'), ("csv", b"corsa,secondi,")]:
            visti = set()
            for lingua in LINGUE:
                uscita = self.fa("30", "--seme", "3", "--dati", forma, env=ambiente(lingua)).uscita
                righe = [r for r in uscita.splitlines(True) if not r.strip().startswith(secondi)]
                self.assertEqual(len(righe), uscita.count(b"\n") - 1)
                visti.add(b"".join(righe))
            self.assertEqual(len(visti), 1)

    def test_con_i_segni_scelti_i_report_sono_gli_stessi_in_ogni_lingua(self):
        for forma, report in [("txt", "taglie.txt"), ("html", "taglie.htm")]:
            for numeri in ["it", "c"]:
                for soli in [[], ["-s"]]:
                    visti = set()
                    for lingua in LINGUE:
                        self.fa("40", "--seme", "3", "-f", forma, "--numeri", numeri, *soli,
                                env=ambiente(lingua))
                        visti.add(self.byte(report))
                    self.assertEqual(len(visti), 1, (forma, numeri, soli))

    def test_con_i_segni_scelti_il_documento_e_lo_stesso_in_ogni_lingua(self):
        for quali in [[], ["-s"], ["--caratteri-unici"]]:
            for numeri in ["it", "c"]:
                visti = set()
                for lingua in LINGUE:
                    self.fa("12", "--seme", "3", "-f", "pdf", "--numeri", numeri, *quali,
                            env=ambiente(lingua, SOURCE_DATE_EPOCH="1767323045"))
                    visti.add(self.byte("taglie.pdf"))
                self.assertEqual(len(visti), 1, (quali, numeri))

    def test_le_cifre_del_documento_seguono_la_lingua_ma_i_suoi_numeri_mai(self):
        for lingua, (decimali, migliaia) in SEGNI.items():
            with self.subTest(lingua=lingua):
                self.fa("--mazzi", GOLDEN / "dodici.mazzi", "-s", "-f", "pdf",
                        env=ambiente(lingua))
                documento = self.byte("taglie.pdf")
                self.assertIn(b"(3%s627) Tj" % migliaia, documento)
                self.assertIn(b"(96%s88%%) Tj" % decimali, documento)
                self.assertIn(b"\n1 0 0 1 127.559 113.386 cm\r\n", documento)

    def test_con_i_segni_del_sistema_il_report_segue_la_lingua(self):
        modello = (GOLDEN / "dodici.c.statistiche.txt").read_bytes()
        self.assertIn(b"\r\nCarte utilizzate: \t3627 (96.88%)\r\n", modello)
        for lingua, (decimali, migliaia) in SEGNI.items():
            for argomenti in [[], ["--numeri", "sistema"]]:
                with self.subTest(lingua=lingua, argomenti=argomenti):
                    self.fa("--mazzi", GOLDEN / "dodici.mazzi", "-s", *argomenti,
                            env=ambiente(lingua))
                    self.assertIn(b"\r\nCarte utilizzate: \t3%s627 (96%s88%%)\r\n"
                                  % (migliaia, decimali), self.byte("taglie.txt"))

    def test_i_segni_seguono_la_variabile_dei_numeri(self):
        env = ambiente()
        del env["LC_ALL"]
        self.fa("--mazzi", GOLDEN / "dodici.mazzi", "-s",
                env={**env, "LANG": "en_US.UTF-8", "LC_NUMERIC": "it_IT.UTF-8"})
        self.assertEqual(self.byte("taglie.txt"),
                         (GOLDEN / "dodici.it.statistiche.txt").read_bytes())

    def test_una_lingua_che_non_c_e_vale_come_nessuna(self):
        self.fa("--mazzi", GOLDEN / "dodici.mazzi", "-s", env=ambiente("xx_XX.UTF-8"))
        self.assertEqual(self.byte("taglie.txt"),
                         (GOLDEN / "dodici.c.statistiche.txt").read_bytes())

    def test_messaggi_e_aiuto_sono_gli_stessi_in_ogni_lingua(self):
        visti = {(self.taglie("-f", "doc", env=ambiente(lingua)).errori,
                  self.fa("-h", env=ambiente(lingua)).uscita) for lingua in LINGUE}
        self.assertEqual(len(visti), 1)


if __name__ == "__main__":
    unittest.main()
