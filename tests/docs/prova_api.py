"""The API documentation of the PDF library: Doxygen has nothing to remark, and every public
operation says what each of its parameters is."""

import re
import shutil
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

from comune import DOCS, esegui

TESTATA = Path("pdf", "clsPDFCreator.h")

# A pack of values has no name that its comment could use.
SENZA_NOME = {"ToColor": {"Values"}}


def genera(radice, uscita):
    return esegui(radice / "docs" / "api" / "genera.sh", uscita)


def parole(elemento):
    return set(re.findall(r"\w+", " ".join(elemento.itertext()))) if elemento is not None else set()


class Api(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if shutil.which("doxygen") is None:
            raise AssertionError("manca doxygen")
        cls.cartella = Path(tempfile.mkdtemp(prefix="api "))
        cls.fatto = genera(DOCS.parent, cls.cartella / "pagine")
        cls.classe = xml.parse(cls.cartella / "pagine" / "xml" / "classclsPDFCreator.xml")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.cartella)

    def test_doxygen_non_ha_nulla_da_dire(self):
        self.assertEqual((self.fatto.returncode, self.fatto.stdout, self.fatto.stderr), (0, "", ""))
        self.assertTrue((self.cartella / "pagine" / "html" / "index.html").exists())

    def pubbliche(self):
        for gruppo in self.classe.iter("sectiondef"):
            for voce in gruppo.iter("memberdef"):
                if voce.get("prot") == "public" and voce.get("kind") == "function":
                    yield gruppo, voce

    def test_ogni_operazione_ha_le_sue_parole(self):
        nomi = set()
        for _, voce in self.pubbliche():
            nome = voce.findtext("name")
            with self.subTest(nome=nome):
                detto = parole(voce.find("briefdescription"))
                self.assertGreater(len(detto), 3)
            nomi.add(nome)
        # Seventy operations, two more of its own, the constructors and the assignments.
        self.assertGreaterEqual(len(nomi), 75)

    def test_ogni_parametro_e_nominato(self):
        quanti = 0
        for gruppo, voce in self.pubbliche():
            nome = voce.findtext("name")
            detto = parole(voce.find("briefdescription")) | parole(voce.find("detaileddescription"))
            for parametro in filter(None, (p.findtext("declname") for p in voce.iter("param"))):
                quanti += 1
                if parametro not in SENZA_NOME.get(nome, set()):
                    self.assertIn(parametro, detto, f"{nome}, {gruppo.findtext('header')}")
        self.assertGreater(quanti, 200)

    def test_i_titoli_tra_le_operazioni_sono_gruppi(self):
        testata = (DOCS.parent / TESTATA).read_text(encoding="utf-8")
        titoli = re.findall(r"^    // ---- (.*?) -+$", testata, re.MULTILINE)
        gruppi = [gruppo for gruppo in self.classe.iter("sectiondef")
                  if gruppo.get("kind") == "user-defined"]
        self.assertEqual([gruppo.findtext("header") for gruppo in gruppi], titoli)
        spiegati = [gruppo for gruppo in gruppi if parole(gruppo.find("description"))]
        self.assertEqual(len(spiegati), len(re.findall(r"^    // ---- .*\n    //$", testata,
                                                       re.MULTILINE)))

    def test_un_operazione_senza_commento_e_un_errore(self):
        for tolto in ["    // Ends the tile that BeginTiling began.\n",
                      "        // The present moment.\n"]:
            with self.subTest(tolto=tolto):
                radice = Path(tempfile.mkdtemp(prefix="copia ", dir=self.cartella))
                for nome in ["docs/api", "pdf"]:
                    shutil.copytree(DOCS.parent / nome, radice / nome)
                testo = (radice / TESTATA).read_text(encoding="utf-8")
                self.assertEqual(testo.count(tolto), 1)
                (radice / TESTATA).write_text(testo.replace(tolto, ""), encoding="utf-8")
                fatto = genera(radice, radice / "pagine")
                self.assertNotEqual(fatto.returncode, 0)
                self.assertIn("is not documented", fatto.stderr)


if __name__ == "__main__":
    unittest.main()
