"""The PDF writer installed as a library: a project outside finds, links and uses it."""

import os
import shlex
import subprocess
import unittest

from comune import CMAKE, QUI, Prova, fai, installa


class Libreria(Prova):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        prima = cls.cartella / "prima"
        installa(prima, "libreria")
        # Moved: nothing may depend on where it was installed.
        cls.installata = cls.cartella / "spostata altrove"
        prima.rename(cls.installata)

    def saluta(self, programma, ambiente=None):
        pdf = self.cartella / "saluto.pdf"
        pdf.unlink(missing_ok=True)
        fai(programma, pdf, env=ambiente)
        self.assertIn("Buongiorno", fai("pdftotext", pdf, "-"))
        manca = subprocess.run([str(programma), "/non/esiste/x.pdf"], capture_output=True,
                               text=True, env=ambiente, check=False)
        # The error crosses the library's edge as its own type.
        self.assertEqual(manca.returncode, 2)
        self.assertTrue(manca.stderr.startswith("/non/esiste/x.pdf: "), manca.stderr)

    def test_un_progetto_fuori_la_trova_con_find_package(self):
        costruito = self.cartella / "fuori"
        fai(CMAKE, "-S", QUI / "progetto", "-B", costruito, "-G", "Ninja",
            f"-DCMAKE_PREFIX_PATH={self.installata}")
        fai(CMAKE, "--build", costruito)
        for modo in ["shared", "static"]:
            with self.subTest(modo=modo):
                self.saluta(costruito / f"saluto_{modo}")
                # A program may have names that the library has inside.
                fai(costruito / f"omonimi_{modo}", self.cartella / "omonimi.pdf")

    def test_un_compilatore_solo_la_trova_con_pkg_config(self):
        ambiente = {**os.environ, "PKG_CONFIG_PATH": str(self.installata / "lib/pkgconfig")}
        programma = self.cartella / "saluto"
        self.assertEqual(fai("pkg-config", "--modversion", "clsPDFCreator", env=ambiente), "1.9.1\n")
        opzioni = fai("pkg-config", "--cflags", "--libs", "clsPDFCreator", env=ambiente)
        fai("g++", "-std=c++20", QUI / "progetto/saluto.cpp", "-o", programma,
            *shlex.split(opzioni), env=ambiente)
        self.saluta(programma, {**os.environ, "LD_LIBRARY_PATH": str(self.installata / "lib")})


if __name__ == "__main__":
    unittest.main()
