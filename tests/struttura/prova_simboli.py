"""The names that both libraries of the PDF writer show: the public class, its error, nothing else."""

import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

# No local of a function and no nested class: the state of the writer is its own business.
PUBBLICO = re.compile(r"""(clsPDFCreator::(~?\w+|operator=)(\[abi:cxx11\])?\(.*
                         |(non-virtual[ ]thunk[ ]to[ ])?ErroreRuntime::.*
                         |(vtable|typeinfo|typeinfo[ ]name)[ ]for[ ]ErroreRuntime
                         |TestoErrore\(NumeroErrore\))""", re.VERBOSE)


def nomi(libreria, *opzioni):
    """What a library defines for others, with the names as a reader knows them."""
    uscita = subprocess.run(["nm", "-C", "--defined-only", "--format=posix", *opzioni, libreria],
                            capture_output=True, text=True, check=True).stdout
    trovati = (re.match(r"(.*?) [A-Zu] [0-9a-f]+", riga) for riga in uscita.splitlines())
    return {trovato[1] for trovato in trovati if trovato}


TESTO = "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
BREVI = [(r"\[abi:cxx11\]", ""), (re.escape(TESTO), "string"),
         (re.escape("std::basic_string_view<char, std::char_traits<char> >"), "string_view"),
         (r"std::vector<string, std::allocator<string > >", "vector<string>"),
         (r"unsigned (int|long|long long)\b", "size_t")]


def in_breve(nome):
    """As the kept list has it, the same for every processor."""
    for lungo, breve in BREVI:
        nome = re.sub(lungo, breve, nome)
    return nome


class Simboli(unittest.TestCase):
    def setUp(self):
        self.statica = nomi(os.environ["STATICA"], "--extern-only")
        self.condivisa = nomi(os.environ["CONDIVISA"], "--dynamic")

    def test_solo_la_classe_e_il_suo_errore(self):
        for insieme in (self.statica, self.condivisa):
            self.assertEqual([n for n in sorted(insieme) if not PUBBLICO.fullmatch(n)], [])

    def test_le_due_librerie_mostrano_lo_stesso(self):
        self.assertEqual(self.statica, self.condivisa)

    def test_i_programmi_collegati_trovano_ogni_nome(self):
        """What libclsPDFCreator.so.1 promises. A line is added with an operation; none may go."""
        promessi = (Path(__file__).parent / "simboli.txt").read_text().splitlines()
        self.assertGreater(len(promessi), 80)
        self.assertEqual(set(promessi) - set(map(in_breve, self.condivisa)), set())

    def test_ogni_operazione_pubblica(self):
        testata = Path(os.environ["TESTATA"]).read_text(encoding="utf-8").split("private:")[0]
        testata = re.sub(r"//.*", "", testata)
        dichiarate = set(re.findall(r"\b(\w+)\([^;{]*\)\s*(?:const\s*)?;", testata))
        mostrate = {re.sub(r"\[abi:cxx11\]", "", n).split("::")[1].split("(")[0]
                    for n in self.statica if n.startswith("clsPDFCreator::")}
        self.assertGreater(len(dichiarate), 60)
        self.assertLessEqual(dichiarate - {"clsPDFCreator"}, mostrate)

    def test_un_programma_con_gli_stessi_nomi_si_collega(self):
        with tempfile.TemporaryDirectory() as cartella:
            subprocess.run([os.environ["OMONIMI"], Path(cartella) / "a.pdf"], check=True)


if __name__ == "__main__":
    unittest.main()
