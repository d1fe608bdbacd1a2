"""Every page of documentation of the project: its links lead somewhere, and the files it names are
there."""

import re
import unittest
import urllib.parse

from comune import DOCS

RADICE = DOCS.parent
CARTELLE = ("base", "platform", "engine", "pdf", "reports", "cli", "ui", "resources", "tests",
            "docs", "bench", "fuzz", "tools", "cmake", "packaging", r"\.ci")
IMMAGINE_MASSIMA = 150 * 1024


def pagine():
    """All but those of build folders and of folders that are not ours, such as .git."""
    return sorted(pagina for pagina in RADICE.rglob("*.md")
                  if not any(parte.startswith(".") or parte == "build"
                             for parte in pagina.relative_to(RADICE).parts))


def prosa(testo):
    return re.sub(r"^```.*?^```", "", testo, flags=re.DOTALL | re.MULTILINE)


def ancora(titolo):
    return re.sub(r"[^\w -]", "", titolo.lower()).replace(" ", "-")


def ancore(pagina):
    testo = prosa(pagina.read_text(encoding="utf-8"))
    return {ancora(titolo) for titolo in re.findall(r"^#+ (.*)$", testo, re.MULTILINE)}


def meta(pagina, rimando):
    """The file that a link of a page leads to, and the heading in it, which may be empty."""
    percorso, _, titolo = urllib.parse.unquote(rimando).partition("#")
    return ((pagina.parent / percorso).resolve() if percorso else pagina), titolo


class Collegamenti(unittest.TestCase):
    def setUp(self):
        self.testi = {pagina: prosa(pagina.read_text(encoding="utf-8")) for pagina in pagine()}
        nomi = {str(pagina.relative_to(RADICE)) for pagina in self.testi}
        self.assertLessEqual({"README.md", "CONTRIBUTING.md", "SECURITY.md", "CHANGELOG.md",
                              "docs/pdf-writer.md", "docs/dati.md"}, nomi)

    def rimandi(self):
        for pagina, testo in self.testi.items():
            for segno, rimando in re.findall(r"(!?)\[[^\]]*\]\(([^)\s]+)\)", testo):
                if not re.match(r"\w+:", rimando):
                    yield pagina, segno == "!", rimando

    def test_portano_a_qualcosa(self):
        tutti = list(self.rimandi())
        self.assertGreater(len(tutti), 70)
        for pagina, _, rimando in tutti:
            with self.subTest(pagina=pagina.name, rimando=rimando):
                file, titolo = meta(pagina, rimando)
                self.assertTrue(file.is_relative_to(RADICE))
                self.assertTrue(file.exists())
                if titolo:
                    self.assertIn(titolo, ancore(file))

    def test_le_immagini_sono_piccole_e_servono(self):
        viste = {meta(pagina, rimando)[0] for pagina, figura, rimando in self.rimandi() if figura}
        salvate = set((DOCS / "immagini").glob("*.png"))
        self.assertEqual(salvate - viste, set())
        self.assertGreater(len(viste), 30)
        for immagine in viste:
            self.assertEqual(immagine.suffix, ".png")
            self.assertLess(immagine.stat().st_size, IMMAGINE_MASSIMA, immagine.name)

    def test_i_file_nominati_ci_sono(self):
        nominati = 0
        percorso = re.compile(r"`((?:" + "|".join(CARTELLE) + r")/[\w./-]*)`")
        for pagina, testo in self.testi.items():
            for nome in percorso.findall(testo):
                if "NAME" in nome:
                    continue
                nominati += 1
                dove = [radice for radice in (RADICE, pagina.parent) if (radice / nome).exists()]
                self.assertTrue(dove, f"{pagina.name}: {nome}")
        self.assertGreater(nominati, 30)


if __name__ == "__main__":
    unittest.main()
