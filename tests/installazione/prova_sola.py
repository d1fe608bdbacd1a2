"""The PDF writer alone: one switch configures, builds, tests and installs it where there is nothing
but the compiler, CMake and a build tool."""

import os
import re
import shutil
import tempfile
import unittest
from pathlib import Path

from comune import CMAKE, Prova, albero, differenze, fai, tenuta

RADICE = Path(os.environ["RADICE"])
COMPILATORE = os.environ["COMPILATORE"]

# What a compiler and a build tool are, as programs. g++ stands here, too, for a compiler that is a
# cache in front of it.
PROGRAMMI = ["g++", "as", "ld", "ar", "ranlib", "objcopy", "strip", "cmake", "ctest", "make"]
NON_CERCATI = ["GTest", "Qt6", "Python3", "nlohmann_json", "CLI11", "benchmark", "Doxygen"]


class Sola(Prova):
    @classmethod
    def setUpClass(cls):
        # make does not find itself in a folder with a blank, which Prova would give.
        cls.cartella = Path(tempfile.mkdtemp(prefix="sola-"))
        cls.addClassCleanup(shutil.rmtree, cls.cartella)
        programmi = cls.cartella / "programmi"
        programmi.mkdir()
        for nome in PROGRAMMI:
            (programmi / nome).symlink_to(shutil.which(nome, path="/usr/bin:/usr/local/bin"))
        cls.ambiente = {"PATH": str(programmi), "HOME": os.environ.get("HOME", "/"), "LC_ALL": "C"}
        if "CCACHE_DIR" in os.environ:
            cls.ambiente["CCACHE_DIR"] = os.environ["CCACHE_DIR"]
        cls.costruita = cls.cartella / "costruita"
        # What else is looked for is as if it were missing. -O1 is compiled in half the time.
        cls.configurata = cls.fa(
            CMAKE, "-S", RADICE, "-B", cls.costruita, "-G", "Unix Makefiles",
            "-DSCALVINO_LIBRARY_ONLY=ON", f"-DCMAKE_CXX_COMPILER={COMPILATORE}",
            "-DCMAKE_CXX_FLAGS_RELEASE=-O1",
            *(f"-DCMAKE_DISABLE_FIND_PACKAGE_{nome}=ON" for nome in NON_CERCATI))
        cls.fa(CMAKE, "--build", cls.costruita, "-j", "2")

    @classmethod
    def fa(cls, *comando):
        return fai(*comando, env=cls.ambiente)

    def test_non_cerca_che_zlib(self):
        cache = (self.costruita / "CMakeCache.txt").read_text()
        trovate = re.findall(r"^(\w+?)_(?:DIR|INCLUDE_DIR|LIBRARY_\w+):(?:FILE)?PATH=", cache,
                             re.MULTILINE)
        self.assertLessEqual(set(trovate), {"ZLIB"})

    def test_le_sue_prove_riescono_tutte(self):
        detto = self.fa(Path(CMAKE).parent / "ctest", "--test-dir", self.costruita, "-j", "2")
        riuscite = re.search(r"100% tests passed, 0 tests failed out of (\d+)", detto)
        copioni = [c.read_text() for c in (RADICE / "tests/golden/pdf/copioni").glob("*.json")]
        sempre = [c for c in copioni if '"Compress"' not in c]
        self.assertGreater(len(sempre), 90)
        # Each on both libraries. Those that compress want the zlib of the golden files.
        self.assertIn(int(riuscite[1]), range(2 * len(sempre) + 3, 2 * len(copioni) + 4))

    def test_si_installa_la_sola_libreria(self):
        prefisso = self.cartella / "installata"
        self.fa(CMAKE, "--install", self.costruita, "--prefix", prefisso)
        self.assertEqual(differenze(albero(prefisso), tenuta("libreria")), ([], []))


if __name__ == "__main__":
    unittest.main()
