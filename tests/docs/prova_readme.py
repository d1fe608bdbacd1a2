"""The README's table of odds: the run that it names gives the figures that it shows."""

import json
import os
import re
import unittest

from comune import DOCS, fai

RIGA = re.compile(r"^\| `(\w+)`[^|]*\| ([\d.]+) % \| ([\d.]+) % \| ([+-][\d.]+) \|$", re.MULTILINE)


class Readme(unittest.TestCase):
    def test_la_corsa_nominata_da_le_cifre_mostrate(self):
        testo = (DOCS.parent / "README.md").read_text(encoding="utf-8")
        argomenti = re.search(r"^\./run\.sh (1000000 --seme .* --dati) csv -j 0$", testo,
                              re.MULTILINE)[1].split()
        dati = json.loads(fai(os.environ["TAGLIE"], *argomenti, "json", "-j", "0", "-q"))
        mostrate = {nome: valori for nome, *valori in RIGA.findall(testo)}
        self.assertEqual(set(mostrate), set(dati["primo_colpo"]))
        for nome, (esatta, simulata, z) in mostrate.items():
            avuto = dati["primo_colpo"][nome]
            with self.subTest(nome=nome):
                self.assertEqual(esatta, f"{100 * avuto['esatta']:.4f}")
                self.assertEqual(simulata, f"{100 * avuto['tasso']:.4f}")
                self.assertEqual(z, f"{avuto['z']:+.2f}")
        pari = 100 * dati["esiti"]["Pari"]["tasso"]
        self.assertIn(f"(ties {pari:.3f} % in the same run)", testo)


if __name__ == "__main__":
    unittest.main()
