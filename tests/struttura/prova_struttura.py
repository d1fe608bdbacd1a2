"""The house plan, checked: who includes whom, who asks the system, who may know Qt; that sources
open with what they are for, functions stay short, tests and helpers bear the names they shall."""

import os
import pathlib
import re
import subprocess
import unittest

import sorgenti as lettura

RADICE = pathlib.Path(os.environ["RADICE"])

# Folders that a folder may include, besides itself.
PUO_INCLUDERE = {
    "base": set(),
    "platform": {"base"},
    "engine": {"platform", "base"},
    "pdf": {"platform", "base"},
    "reports": {"engine", "pdf", "platform", "base"},
    "cli": {"reports", "engine", "pdf", "platform", "base"},
    "ui": {"reports", "engine", "pdf", "platform", "base"},
}
RIGHE_MASSIME = 500
RIGHE_DI_FUNZIONE = 60
# Tests of pdf/ that try all of its operations in one way.
PROVE_DI_TUTTO = {"Capienza", "Copioni", "Limiti", "UsoErrato"}
INTORNO = ("tests", "bench", "fuzz", "docs")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def sorgenti(*cartelle):
    for cartella in cartelle:
        for percorso in sorted((RADICE / cartella).rglob("*")):
            if percorso.suffix in {".h", ".cpp"}:
                yield cartella, percorso


def inclusioni(percorso):
    return INCLUDE.findall(percorso.read_text(encoding="utf-8"))


class Struttura(unittest.TestCase):
    def setUp(self):
        self.prodotto = list(sorgenti(*PUO_INCLUDERE))
        self.assertGreater(len(self.prodotto), 30)

    def test_una_cartella_include_solo_quelle_sopra(self):
        casa = {}
        for cartella, percorso in self.prodotto:
            if percorso.suffix == ".h":
                self.assertNotIn(percorso.name, casa, "two headers of one name")
                casa[percorso.name] = cartella
        frecce = 0
        for cartella, percorso in self.prodotto:
            for segno, nome in inclusioni(percorso):
                if segno == "<" and nome not in casa:
                    continue
                self.assertIn(nome, casa, f"{percorso}: {nome}")
                frecce += 1
                if casa[nome] != cartella:
                    self.assertIn(casa[nome], PUO_INCLUDERE[cartella], f"{percorso}: {nome}")
        self.assertGreater(frecce, 60)

    def test_nessuna_inclusione_sale_con_due_punti(self):
        tutto = self.prodotto + list(sorgenti(*INTORNO))
        for _, percorso in tutto:
            for _, nome in inclusioni(percorso):
                self.assertNotIn("..", nome, percorso)

    def test_i_sistemi_si_distinguono_per_file(self):
        # What differs lies in siblings _posix and _windows; one name of a program is the exception.
        for _, percorso in self.prodotto:
            if percorso.name != "ApriConShell_posix.cpp":
                testo = percorso.read_text(encoding="utf-8")
                self.assertNotRegex(testo, r"_WIN32|__linux__|__APPLE__", percorso)

    def test_solo_platform_chiede_al_sistema(self):
        for cartella, percorso in self.prodotto:
            if cartella == "platform":
                continue
            for segno, nome in inclusioni(percorso):
                proibito = nome in {"windows.h", "unistd.h", "fcntl.h", "csignal", "signal.h"}
                self.assertFalse(proibito or nome.startswith("sys/"), f"{percorso}: {nome}")

    def test_le_librerie_altrui_stanno_al_loro_posto(self):
        for cartella, percorso in self.prodotto:
            for _, nome in inclusioni(percorso):
                if nome.startswith(("CLI/", "nlohmann/")):
                    self.assertEqual(cartella, "cli", percorso)
                if re.match(r"Q[A-Z]|Qt", nome):
                    self.assertEqual(cartella, "ui", percorso)

    def test_taglie_non_collega_qt(self):
        legami = subprocess.run(
            ["ldd", os.environ["TAGLIE"]], capture_output=True, text=True, check=True
        ).stdout
        self.assertIn("libc", legami)
        self.assertNotIn("Qt", legami)

    def test_il_motore_non_tocca_le_localizzazioni(self):
        vietati = r"setlocale|std::locale|strtod|stod\b|stoi\b|atof|printf|ostringstream|istringstream"
        for cartella, percorso in self.prodotto:
            if cartella in {"base", "engine", "reports"}:
                testo = percorso.read_text(encoding="utf-8")
                self.assertNotRegex(testo, vietati, percorso)

    def test_i_file_restano_piccoli(self):
        esenti = {"clsPDFCreator.h", "FontWidths.cpp"}
        for _, percorso in self.prodotto:
            righe = len(percorso.read_text(encoding="utf-8").splitlines())
            if percorso.name not in esenti:
                self.assertLessEqual(righe, RIGHE_MASSIME, percorso)

    def test_ogni_sorgente_e_ogni_script_dice_a_che_serve(self):
        script = [(None, p) for suffisso in ("sh", "py") for cartella in (*INTORNO, "tools")
                  for p in sorted((RADICE / cartella).rglob(f"*.{suffisso}"))]
        tutto = self.prodotto + list(sorgenti(*INTORNO)) + script
        muti = [str(percorso.relative_to(RADICE)) for _, percorso in tutto
                if not lettura.apertura(percorso.read_text(encoding="utf-8"))]
        self.assertEqual(muti, [])

    def test_le_prove_portano_il_nome_delle_fonti(self):
        aiuti = {p.stem for p in (RADICE / "tests/aiuti").glob("*.cpp")}
        orfane, quante = [], 0
        for cartella in PUO_INCLUDERE:
            fonti = {lettura.senza_sistema(p.name) for c, p in self.prodotto if c == cartella}
            for prova in sorted((RADICE / "tests" / cartella).glob("prova_*.cpp")):
                quante += 1
                if lettura.fonte_della_prova(prova.name, fonti | aiuti | PROVE_DI_TUTTO) is None:
                    orfane.append(str(prova))
        self.assertEqual(orfane, [])
        self.assertGreater(quante, 100)

    def test_le_funzioni_restano_corte(self):
        lunghe, quante = [], 0
        for _, percorso in self.prodotto + list(sorgenti(*INTORNO)):
            for funzione in lettura.funzioni(percorso.read_text(encoding="utf-8")):
                quante += 1
                if funzione.lunghezza > RIGHE_DI_FUNZIONE:
                    lunghe.append(f"{percorso}:{funzione.riga} {funzione.nome}")
        self.assertEqual(lunghe, [])
        self.assertGreater(quante, 2000)

    def test_gli_aiuti_del_pdf_cominciano_con_pr(self):
        """What its headers lend: procedures of namespace pdf, public ones of the two that own state."""
        prestati, senza = 0, []
        for cartella, percorso in self.prodotto:
            if cartella != "pdf" or percorso.suffix != ".h" or percorso.name == "clsPDFCreator.h":
                continue
            for nome in lettura.aiuti_prestati(percorso.read_text(encoding="utf-8")):
                prestati += 1
                if not nome.startswith("pr"):
                    senza.append(f"{percorso}: {nome}")
        self.assertEqual(senza, [])
        self.assertGreater(prestati, 80)


if __name__ == "__main__":
    unittest.main()
