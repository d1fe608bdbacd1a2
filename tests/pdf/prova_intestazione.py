"""The public header as programs outside meet it: in C++17 and C++20 without a warning. Calls that
are meant compile; a pointer where a switch belongs does not.

COMPILATORE in the environment is the one of the build; the other of g++ and clang++ is asked, too,
where it is there.
"""

import os
import re
import shutil
import subprocess
import unittest
from pathlib import Path

RADICE = Path(__file__).resolve().parents[2]
TESTATA = RADICE / "pdf" / "clsPDFCreator.h"
AVVERTI = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wsign-conversion", "-Wshadow",
           "-Werror"]
COMPILATORI = [os.environ["COMPILATORE"]]
ALTRO = shutil.which("g++" if "clang" in COMPILATORI[0] else "clang++-14") or shutil.which("clang++")
if ALTRO:
    COMPILATORI.append(ALTRO)

BUONE = """
pdf.ShareFonts(true); pdf.ShareFonts(1); pdf.ShareFonts(0); pdf.ShareFonts({});
pdf.ShareFonts(std::true_type{}); pdf.ShareFonts(flags[0]); pdf.ShareFonts(Yes);
pdf.Conforming(); pdf.Conforming(false); pdf.Conforming(1);
pdf.AddNoteIcon("Ask", 3, 8, 26); pdf.AddNoteIcon("Ask", 3, 8, 26, 0, "Red", "House", 4);
pdf.AddNoteIcon("Ask", pdf.IconHelp, 8, 26, {}, "Red", text, pdf.NotePrint | pdf.NoteNoZoom);
pdf.SetRadialFill({"Red", "Blue"}, 1, 2, 3, 4, 5, 6);
pdf.SetRadialFill(colors, 1, 2, 3, 4, 5, 6, 0); pdf.SetRadialFill({text}, 1, 2, 3, 4, 5, 6, 1, {});
pdf.SetLinearFill({"Red", "Blue"}, 1, 2, 3, 4); pdf.SetLinearFill(colors, 1, 2, 3, 4, false, 1);
pdf.DrawEAN13("400638133393", 1, 2); pdf.DrawEAN13(text, 1.5, 2, 0);
pdf.DrawEAN13(text, 1, 2, {}, 3, 1);
pdf.DrawCODE39("A", 1, 2); pdf.DrawCODE39("A", 1, 2, 15, true, 1.5, 3);
pdf.DrawCODE39(text, 1, 2, 15, 1);
pdf.AddFont("a.ttf", "A"); pdf.AddFont("a.ttf", "A", false); pdf.AddFont(text, text, 1);
pdf.AddFontData(text, "A"); pdf.AddFontData(text, "A", 0);
"""

CATTIVE = """
pdf.ShareFonts("no");
pdf.ShareFonts(text.c_str());
pdf.ShareFonts(&pdf);
pdf.ShareFonts(&call);
pdf.ShareFonts(&std::string::size);
pdf.Conforming("no");
pdf.AddNoteIcon("Ask", 3, 8, 26, "Red");
pdf.AddNoteIcon("Ask", 3, 8, 26, "Red", "House");
pdf.AddNoteIcon("Ask", 3, 8, 26, "Red", "House", "Title", 4);
pdf.SetRadialFill({"Red", "Blue"}, 1, 2, 3, 4, 5, 6, "no");
pdf.SetRadialFill({"Red", "Blue"}, 1, 2, 3, 4, 5, 6, true, "no");
pdf.SetLinearFill({"Red", "Blue"}, 1, 2, 3, 4, "no", true);
pdf.SetLinearFill(colors, 1, 2, 3, 4, false, "no");
pdf.DrawEAN13("400638133393", 1, 2, "text");
pdf.DrawEAN13("400638133393", 1, 2, "text", 3, 1);
pdf.DrawCODE39("A", 1, 2, 15, "text");
pdf.DrawCODE39("A", 1, 2, 15, text.data(), 1.5, 3);
pdf.AddFont("a.ttf", "A", "B");
pdf.AddFontData(text, "A", "B");
"""

NOMI = """
pdf.SetScale(clsPDFCreator::UnitCentimeter); pdf.SetPaperSize(pdf.PaperA4Landscape);
pdf.SetFont("Arial", 12, clsPDFCreator::StyleBold | clsPDFCreator::StyleItalic);
pdf.SetFont("Arial", 12, clsPDFCreator::StyleBold + 4);
pdf.DrawTextBox(1, 2, 3, 4, "a", 1, 0, clsPDFCreator::AlignRight + clsPDFCreator::AlignMiddle);
pdf.DrawRect(1, 2, 3, 4, flags[0] ? clsPDFCreator::PaintFill : 1);
pdf.SetLineStyle(1, clsPDFCreator::CapRound, clsPDFCreator::JoinKeep);
for (const int align : {pdf.AlignLeft, pdf.AlignCenter}) pdf.DrawText(1, 2, "a", align);
"""

INTORNO = """#include <clsPDFCreator.h>
enum {{ Yes = 1 }};
void call(clsPDFCreator& pdf, [[maybe_unused]] std::string text,
          [[maybe_unused]] std::vector<std::string> colors, std::vector<bool> flags)
{{{}}}
"""


def primo_esempio():
    """The lines of the header's first block of code."""
    testo = TESTATA.read_text(encoding="utf-8")
    blocco = re.search(r"^//\n((?://     .*\n)+)", testo, re.MULTILINE)
    return [riga.removeprefix("//").strip() for riga in blocco[1].splitlines()]


def compila(compilatore, testo, *opzioni):
    comando = [compilatore, "-x", "c++", "-", "-fsyntax-only", f"-I{TESTATA.parent}",
               f"-I{RADICE / 'base'}", *opzioni]
    return subprocess.run(comando, input=testo, capture_output=True, text=True, check=False,
                          timeout=120, env={**os.environ, "LC_ALL": "C"})


class Intestazione(unittest.TestCase):
    def pulita(self, testo, *opzioni):
        for compilatore in COMPILATORI:
            for norma in ("c++17", "c++20"):
                with self.subTest(compilatore=compilatore, norma=norma):
                    fatto = compila(compilatore, testo, f"-std={norma}", *AVVERTI, *opzioni)
                    self.assertEqual((fatto.returncode, fatto.stderr), (0, ""))

    @unittest.skipUnless(ALTRO, "there is only one compiler")
    def test_anche_con_l_altro_compilatore(self):
        self.assertEqual(len(COMPILATORI), 2)

    def test_da_sola(self):
        self.pulita("#include <clsPDFCreator.h>\n")

    def test_il_preprocessore_sa_la_versione(self):
        self.pulita("#include <clsPDFCreator.h>\n#if CLSPDFCREATOR_VERSION < 10901 || "
                    "CLSPDFCREATOR_VERSION_MAJOR != 1\n#error\n#endif\n")

    def test_il_primo_esempio_e_di_cinque_righe(self):
        righe = primo_esempio()
        self.assertEqual(len(righe), 5)
        self.pulita("#include <clsPDFCreator.h>\nint main()\n{\n" + "\n".join(righe) + "\n}\n")

    def test_le_chiamate_volute(self):
        self.pulita(INTORNO.format(BUONE))

    def test_i_nomi_al_posto_dei_numeri(self):
        self.pulita(INTORNO.format(NOMI))

    def test_un_puntatore_non_e_un_interruttore(self):
        chiamate = CATTIVE.strip().splitlines()
        testo = INTORNO.format("\n" + "\n".join(chiamate) + "\n")
        prima = testo.splitlines().index(chiamate[0]) + 1
        for compilatore in COMPILATORI:
            fatto = compila(compilatore, testo, "-std=c++17")
            rifiutate = {int(riga) for riga in re.findall(
                r":(\d+):\d+: error: .*deleted", fatto.stderr)}
            self.assertEqual(rifiutate, set(range(prima, prima + len(chiamate))), fatto.stderr)

    def test_gli_esempi_del_manuale_in_cpp17(self):
        esempi = sorted((RADICE / "docs/esempi").glob("*.cpp"))
        self.assertGreater(len(esempi), 15)
        for esempio in esempi:
            with self.subTest(esempio=esempio.name):
                fatto = compila(COMPILATORI[0], esempio.read_text(encoding="utf-8"), "-std=c++17",
                                "-Wall", "-Wextra", "-Wpedantic", "-Werror")
                self.assertEqual((fatto.returncode, fatto.stderr), (0, ""))


if __name__ == "__main__":
    unittest.main()
