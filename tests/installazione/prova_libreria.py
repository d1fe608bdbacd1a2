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

    def configura(self, costruito, *opzioni):
        return fai(CMAKE, "-S", QUI / "progetto", "-B", costruito, "-G", "Ninja",
                   f"-DCMAKE_PREFIX_PATH={self.installata}", *opzioni)

    def con_zlib(self):
        return "Requires.private: zlib" in (
            self.installata / "lib/pkgconfig/clsPDFCreator.pc").read_text()

    def test_un_progetto_fuori_la_trova_con_find_package(self):
        costruito = self.cartella / "fuori"
        self.configura(costruito)
        fai(CMAKE, "--build", costruito)
        self.saluta(costruito / "saluto")
        for modo in ["shared", "static"]:
            with self.subTest(modo=modo):
                self.saluta(costruito / f"saluto_{modo}")
                # A program may have names that the library has inside.
                fai(costruito / f"omonimi_{modo}", self.cartella / "omonimi.pdf")
        self.assertIn("libclsPDFCreator.so.1 => ", fai("ldd", costruito / "saluto"))
        self.configura(costruito, "-DclsPDFCreator_USE_STATIC_LIBS=ON")
        fai(CMAKE, "--build", costruito, "--target", "saluto")
        self.saluta(costruito / "saluto")
        self.assertNotIn("clsPDFCreator", fai("ldd", costruito / "saluto"))

    def test_solo_la_statica_chiede_zlib(self):
        if not self.con_zlib():
            self.skipTest("built without zlib")
        senza = "-DCMAKE_DISABLE_FIND_PACKAGE_ZLIB=ON"
        costruito = self.cartella / "senza zlib"
        self.configura(costruito, senza)
        fai(CMAKE, "--build", costruito)
        self.saluta(costruito / "saluto")
        self.assertFalse((costruito / "saluto_static").exists())
        for opzione in ["-DclsPDFCreator_USE_STATIC_LIBS=ON", "-DPARTI=static"]:
            with self.subTest(opzione=opzione), self.assertRaisesRegex(AssertionError, "ZLIB"):
                self.configura(self.cartella / "mai", senza, opzione)

    def test_un_progetto_che_tiene_i_sorgenti_ha_gli_stessi_nomi(self):
        progetto = self.cartella / "con i sorgenti"
        progetto.mkdir()
        (progetto / "saluto.cpp").write_text((QUI / "progetto/saluto.cpp").read_text())
        (progetto / "CMakeLists.txt").write_text(f"""cmake_minimum_required(VERSION 3.25)
            project(fuori LANGUAGES CXX)
            set(SCALVINO_LIBRARY_ONLY ON)
            add_subdirectory("{os.environ["RADICE"]}" scalvino)
            add_executable(saluto saluto.cpp)
            target_link_libraries(saluto PRIVATE clsPDFCreator::clsPDFCreator
                $<TARGET_NAME_IF_EXISTS:clsPDFCreator::shared>)
            get_target_property(vero clsPDFCreator::static TYPE)
            if(TARGET copioni_static OR NOT vero STREQUAL STATIC_LIBRARY)
                message(FATAL_ERROR "its tests are not the project's")
            endif()
            """)
        fai(CMAKE, "-S", progetto, "-B", progetto / "costruito", "-G", "Ninja")
        regole = (progetto / "costruito/build.ninja").read_text()
        self.assertRegex(regole, r"build saluto: .*libclsPDFCreator\.so")

    def test_un_compilatore_solo_la_trova_con_pkg_config(self):
        ambiente = {**os.environ, "PKG_CONFIG_PATH": str(self.installata / "lib/pkgconfig")}
        versione = fai("pkg-config", "--modversion", "clsPDFCreator", env=ambiente)
        self.assertEqual(versione, "1.9.1\n")
        for statica in [[], ["--static"]]:
            with self.subTest(statica=statica):
                programma = self.cartella / f"saluto{len(statica)}"
                opzioni = shlex.split(fai("pkg-config", "--cflags", "--libs", *statica,
                                          "clsPDFCreator", env=ambiente))
                self.assertEqual("-lz" in opzioni, bool(statica) and self.con_zlib())
                fai("g++", "-std=c++17", QUI / "progetto/saluto.cpp", "-o", programma,
                    *(["-static"] if statica else []), *opzioni, env=ambiente)
                self.saluta(programma, {**ambiente,
                                        "LD_LIBRARY_PATH": str(self.installata / "lib")})


if __name__ == "__main__":
    unittest.main()
