"""The reader of sources, shown on small ones: each rule that the structure is held to bites."""

import unittest

from sorgenti import (aiuti_prestati, apertura, dichiarazioni, fonte_della_prova, funzioni,
                      spoglia)


def lunghezze(testo):
    return {f.nome: f.lunghezza for f in funzioni(testo)}


class Apertura(unittest.TestCase):
    def test_una_frase_apre_un_sorgente(self):
        self.assertTrue(apertura("// Counts the cards. Next: Mazzo.h.\n#pragma once\n"))

    def test_un_include_e_una_riga_vuota_non_lo_aprono(self):
        for testo in ['#include "a.h"\n', "#pragma once\n// Too late to say.\n", "\n// Too late.\n",
                      "//\n// Too late to say.\n", "// TODO\n", ""]:
            self.assertFalse(apertura(testo), testo)

    def test_uno_script_si_apre_dopo_il_suo_interprete(self):
        for testo in ["#!/usr/bin/env bash\n# Builds all that is here.\nset -e\n",
                      "# shellcheck shell=bash\n# Installs what is missing.\n",
                      '#!/usr/bin/env python3\n"""Draws the cards anew."""\n', '"""Draws all cards."""']:
            self.assertTrue(apertura(testo), testo)
        for testo in ["#!/usr/bin/env bash\nset -euo pipefail\n", "import os\n",
                      "#!/usr/bin/env python3\n\nimport os\n"]:
            self.assertFalse(apertura(testo), testo)


class Spoglia(unittest.TestCase):
    def test_commenti_testi_e_preprocessore_spariscono_le_righe_restano(self):
        testo = '#define A {\nint a; // {\n/* {\n{ */ auto b = "{\\"{"; auto c = \'{\';\nR"x({\n)x";'
        spogliato = spoglia(testo)
        self.assertNotIn("{", spogliato)
        self.assertEqual(spogliato.count("\n"), testo.count("\n"))
        self.assertIn("int a;", spogliato)

    def test_gli_apici_dentro_i_numeri_non_aprono_un_testo(self):
        self.assertIn("{", spoglia("int a = 1'000; void F() { G('x'); }"))


class Funzioni(unittest.TestCase):
    def test_si_contano_le_righe_fra_le_graffe(self):
        corpo = "    Fai();\n" * 61
        self.assertEqual(lunghezze(f"namespace a {{\nvoid Lunga(int b)\n{{\n{corpo}}}\n}}\n"),
                         {"Lunga": 61})
        self.assertEqual(lunghezze("int Corta() { return 1; }\nint Vuota()\n{\n}\n"),
                         {"Corta": 1, "Vuota": 1})

    def test_cio_che_sta_dentro_una_funzione_ne_fa_parte(self):
        testo = ("void F()\n{\n    for (int i = 0; i < 3; ++i) {\n        if (i) { G(); }\n    }\n"
                 "    auto h = [](int a) {\n        return a;\n    };\n    const int t[] = {1, 2};\n}\n"
                 "void G()\n{\n    F();\n}\n")
        self.assertEqual(lunghezze(testo), {"F": 7, "G": 1})

    def test_tipi_tabelle_e_costruttori_si_distinguono(self):
        testo = ("enum class E : int { A, B };\nstruct S : B<int(char)>\n{\n    S()\n"
                 "        : m_a{1}\n        , m_b(2)\n    {\n        F();\n        G();\n    }\n"
                 "    S& operator=(const S&) = delete;\n    int operator()() const { return 1; }\n"
                 "    int m_a = 0, m_b{3};\n};\nconstexpr int T[] = {\n    F(1),\n    F(2),\n};\n")
        self.assertEqual(lunghezze(testo), {"S": 2, "operator()": 1})

    def test_un_modello_e_un_tipo_di_ritorno_in_fondo_sono_funzioni(self):
        testo = ("template <typename T>\nauto Somma(T a) -> decltype(a)\n{\n    return a;\n}\n"
                 "void C::Fai() const noexcept\n{\n    F();\n    F();\n}\n")
        self.assertEqual(lunghezze(testo), {"Somma": 1, "C::Fai": 2})


class Dichiarazioni(unittest.TestCase):
    TESTO = ("namespace pdf {\nstd::string prFai(int a);\ninline int Aiuto() { return 1; }\n"
             "class Objects\n{\npublic:\n    Objects() = default;\n    void Scrivi();\n"
             "    int prNumero() const { return m_n; }\n\nprivate:\n    void Nascosta();\n"
             "    int m_n = 0;\n};\nstruct Valore\n{\n    bool Vuoto() const;\n};\n}\n")

    def test_dicono_dove_stanno_e_se_sono_pubbliche(self):
        trovate = {(d.luogo, d.nome): d.pubblica for d in dichiarazioni(self.TESTO)}
        classe = ("pdf", "Objects")
        self.assertEqual(trovate, {
            (("pdf",), "prFai"): True, (("pdf",), "Aiuto"): True,
            (classe, "Objects"): True, (classe, "Scrivi"): True, (classe, "prNumero"): True,
            (classe, "Nascosta"): False, (("pdf", "Valore"), "Vuoto"): True})

    def test_un_header_presta_cio_che_altri_possono_chiamare(self):
        """Neither constructors, nor what is private, nor members of plain values."""
        self.assertEqual(list(aiuti_prestati(self.TESTO)), ["prFai", "Aiuto", "Scrivi", "prNumero"])


class FonteDellaProva(unittest.TestCase):
    FONTI = {"Orologio", "clsPDFCreator_Text", "Stampe", "Stampe_Pdf"}

    def test_il_nome_porta_alla_fonte(self):
        for prova, fonte in [("prova_Orologio.cpp", "Orologio"), ("prova_Orologio_posix.cpp", "Orologio"),
                             ("prova_Text.cpp", "clsPDFCreator_Text"),
                             ("prova_Text_Righe.cpp", "clsPDFCreator_Text"),
                             ("prova_Stampe_Pdf_windows.cpp", "Stampe_Pdf"),
                             ("prova_Stampe_Guasti.cpp", "Stampe")]:
            self.assertEqual(fonte_della_prova(prova, self.FONTI), fonte)

    def test_un_altro_nome_non_porta_da_nessuna_parte(self):
        for prova in ["prova_Orologi.cpp", "prova_Guasti.cpp", "prova_StampePdf.cpp"]:
            self.assertIsNone(fonte_della_prova(prova, self.FONTI), prova)


if __name__ == "__main__":
    unittest.main()
