"""Folders with hostile names: reports land there and the opener gets their exact path."""

import os
import unittest

from aiuti import FATTO, SCRITTURA, Prova, ambiente, aspetta

FORME = [("txt", b"taglie.txt"), ("html", b"taglie.htm"), ("pdf", b"taglie.pdf")]

NOMI = [
    b"con due spazi", b" ", b"  davanti e dietro ", b"\t", b"'", b'"', b"`touch preso`",
    b"$(touch preso)", b"${HOME}", b"$HOME", b"; touch preso;", b"| touch preso", b"& touch preso &",
    b"a&b=c", b"%s%n%20%2F", b"#frammento", b"?domanda", b"a\nb", b"\n", b"a\r\nb", b"-", b"-c",
    b"--help", b"-rf", b"punto.", b"...", b".nascosta", b"~", b"*", b"[a-z]", b"{a,b}", b"\\", b"\\n",
    b"<b>", b"(senza parentesi)", b"(", b"!!", b"file:", b"http:", b"taglie.txt.d",
    b"\x01\x1b[2J\x07\x7f", "perché".encode(), "\u202e\U0001f600".encode(), b"\xc2\x9b2J",
    b"\xff\xfe", b"\xe8 latino", b"\xc3", b"x" * 255,
]


class Nomi(Prova):
    def setUp(self):
        super().setUp()
        self.base = os.fsencode(self.cartella)
        self.programmi = self.nuova("programmi")
        self.registro = self.cartella / "registro"
        apri = self.programmi / "xdg-open"
        # Whole at once: it is read while the opener may still be at work.
        apri.write_text(f"""#!/bin/sh
printf '%s\\0' "$#" "$@" > '{self.registro}.nuovo' && mv '{self.registro}.nuovo' '{self.registro}'
""")
        apri.chmod(0o755)
        self.env = ambiente(PATH=f"{self.programmi}:/usr/bin:/bin", SOURCE_DATE_EPOCH="1767323045")
        self.luogo = self.base + b"/luogo"
        os.mkdir(self.luogo)
        self.attesi = {}
        for forma, nome in FORME:
            self.fa("1", "--seme", "1", "-f", forma, env=self.env)
            self.attesi[nome] = self.byte(nome.decode())
            (self.cartella / nome.decode()).unlink()

    def aperto(self):
        aspetta(self.registro.exists, "l'apertura")
        argomenti = self.registro.read_bytes().split(b"\0")[:-1]
        self.registro.unlink()
        return argomenti

    def prova(self, cartella, *argomenti, cwd):
        """One report of each form, opened; nothing else appears anywhere."""
        for forma, nome in FORME:
            esito = self.taglie("1", "--seme", "1", "-a", "-f", forma, *argomenti, env=self.env,
                                cwd=cwd)
            percorso = cartella + b"/" + nome
            self.assertEqual((esito.codice, esito.errori), (FATTO, b""))
            self.assertEqual(esito.uscita, percorso + b"\n")
            self.assertEqual(self.aperto(), [b"1", percorso])
            with open(percorso, "rb") as file:
                self.assertEqual(file.read(), self.attesi[nome])
            self.assertEqual(os.listdir(cartella), [nome])
            os.unlink(percorso)
        self.assertEqual(self.contenuto(), ["luogo", "programmi"])

    def test_la_cartella_data(self):
        for nome in NOMI:
            with self.subTest(nome=nome):
                cartella = self.luogo + b"/" + nome
                os.mkdir(cartella)
                self.prova(cartella, b"--cartella=" + nome, cwd=self.luogo)
                self.prova(cartella, b"-c", b"./" + nome, cwd=self.luogo)
                self.assertEqual(os.listdir(self.luogo), [nome])
                os.rmdir(cartella)

    def test_la_cartella_corrente(self):
        for nome in NOMI:
            with self.subTest(nome=nome):
                cartella = self.luogo + b"/" + nome
                os.mkdir(cartella)
                self.prova(cartella, cwd=cartella)
                self.assertEqual(os.listdir(self.luogo), [nome])
                os.rmdir(cartella)

    def test_i_dati_nei_file(self):
        for nome in NOMI:
            with self.subTest(nome=nome):
                self.taglie_in_file(nome)

    def taglie_in_file(self, nome):
        fatto = self.fa("2", "--seme", "1", "-f", "nessuna", b"--colpi=" + nome, cwd=self.luogo)
        self.assertEqual(fatto.uscita, b"")
        self.assertEqual(os.listdir(self.luogo), [nome])
        os.unlink(self.luogo + b"/" + nome)

    def test_una_cartella_molto_profonda(self):
        dentro = b"/".join([b"y" * 200] * 18)
        cartella = self.luogo + b"/" + dentro
        os.makedirs(cartella)
        self.prova(cartella, b"-c", dentro, cwd=self.luogo)

    def test_una_cartella_oltre_il_limite_del_sistema(self):
        quanto = b"/".join([b"y" * 200] * 30)
        for forma, _ in FORME:
            self.errore(self.taglie("-f", forma, "-c", quanto), SCRITTURA)
        self.assertEqual(os.listdir(self.luogo), [])

    def test_una_cartella_che_nessun_percorso_intero_raggiunge(self):
        dentro = b"/".join([b"y" * 200] * 18)
        os.makedirs(self.luogo + b"/" + dentro)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(self.luogo + b"/" + dentro)
        for _ in range(3):
            os.mkdir(b"y" * 200)
            os.chdir(b"y" * 200)
        for forma, _ in FORME:
            self.errore(self.taglie("1", "-f", forma, cwd="."), SCRITTURA)
            self.assertEqual(os.listdir("."), [])


if __name__ == "__main__":
    unittest.main()
