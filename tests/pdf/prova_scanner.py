"""A bar code reader that is not ours on sheets of random codes at print size."""

import pathlib
import random
import sys
import unittest
import xml.etree.ElementTree as ET

sys.path.insert(0, str(pathlib.Path(__file__).parent / "aiuti"))
from pdf_da_fuori import DaFuori, esegui  # noqa: E402

MODULO = 0.8  # points; 0.28 mm, below the 0.33 mm of a full size EAN-13
PUNTI_PER_POLLICE = 300
FOGLIO = 596, 842
MARGINE = 20

CARATTERI_39 = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%"
SPOSTATI = {"%U": 0, "%V": 64, "%W": 96}
SPOSTATI |= {"$" + chr(65 + i): 1 + i for i in range(26)}
SPOSTATI |= {"+" + chr(65 + i): 97 + i for i in range(26)}
SPOSTATI |= {"/" + chr(65 + i): 33 + i for i in range(15)} | {"/Z": 58}
SPOSTATI |= {"%" + c: codice for c, codice in zip("ABCDE", range(27, 32))}
SPOSTATI |= {"%" + c: codice for c, codice in zip("FGHIJ", range(59, 64))}
SPOSTATI |= {"%" + c: codice for c, codice in zip("KLMNO", range(91, 96))}
SPOSTATI |= {"%" + c: codice for c, codice in zip("PQRST", range(123, 128))}


def cifra_di_controllo(codice):
    return -sum(int(c) * (1 + 2 * (i % 2)) for i, c in enumerate(codice)) % 10


def traduci(letto):
    """Pairs of a shift and a letter as the characters they stand for."""
    testo, i = "", 0
    while i < len(letto):
        coppia = letto[i : i + 2]
        testo += chr(SPOSTATI[coppia]) if coppia in SPOSTATI else letto[i]
        i += 2 if coppia in SPOSTATI else 1
    return testo


def elementi_39(testo):
    """Characters of Code 39 that a text takes, start and stop included."""
    return 2 + sum(1 if c in CARATTERI_39 else 2 for c in testo)


def disposti(larghezze, altezza):
    """Page breaks and corners for boxes laid in rows: None or (x, y) for each step."""
    x, y = MARGINE, MARGINE
    for larga in larghezze:
        if x + larga > FOGLIO[0] - MARGINE:
            x, y = MARGINE, y + altezza
        if y + altezza > FOGLIO[1] - MARGINE:
            x, y = MARGINE, MARGINE
            yield None
        yield x, y
        x += larga


class Scanner(DaFuori):
    def foglio(self, nome, codici, larghezze, altezza):
        """codici: orders without their corner. The corner is the first bar's."""
        ordini, resto = [], iter(codici)
        for posto in disposti(larghezze, altezza):
            if posto is None:
                ordini.append(["pagina"])
                continue
            tipo, riposo, codice = next(resto)
            ordini.append([tipo, posto[0] + riposo * MODULO, posto[1], MODULO, codice])
        return self.disegna(nome, ordini)

    def letti(self, percorso, simbologia):
        """What the reader finds on all pages, in any order."""
        esegui("pdftoppm", "-gray", "-r", PUNTI_PER_POLLICE, percorso, self.cartella / "foglio")
        pagine = sorted(self.cartella.glob("foglio*.pgm"))
        self.assertGreater(len(pagine), 1)
        xml = esegui("zbarimg", "-q", "--nodbus", "--xml", "-Sdisable", f"-S{simbologia}.enable", *pagine)
        spazio = "{http://zbar.sourceforge.net/2008/barcode}"
        return sorted(dato.text for dato in ET.fromstring(xml).iter(spazio + "data"))

    def test_cento_ean_13(self):
        caso = random.Random(13)
        codici = [f"{i % 10}{caso.randrange(10 ** 11):011d}" for i in range(100)]
        # What scanners want free, left and right.
        larghezze = [(11 + 95 + 7) * MODULO] * len(codici)
        foglio = self.foglio("ean.pdf", [("ean", 11, c) for c in codici], larghezze, 90)
        attesi = sorted(f"{c}{cifra_di_controllo(c)}" for c in codici)
        self.assertEqual(self.letti(foglio, "ean13"), attesi)
        self.accettati([foglio])

    def test_cento_code_39(self):
        testi = self.con_tutti_i_caratteri(random.Random(39), 100)
        # Six narrow and three wide elements of two and a half, and the gap after them.
        larghezze = [(10 + 14.5 * elementi_39(t) + 10) * MODULO for t in testi]
        codici = [("code39", 10, t.encode().hex()) for t in testi]
        foglio = self.foglio("code39.pdf", codici, larghezze, 60)
        letti = self.letti(foglio, "code39")
        self.assertEqual(sorted(map(traduci, letti)), sorted(testi))
        self.accettati([foglio])

    def con_tutti_i_caratteri(self, caso, quanti):
        """Different texts of 3 to 9 characters that together hold all of ASCII.

        The four shift characters stand for themselves, so that they are never put before a letter:
        no reader could tell them apart.
        """
        mazzo = [chr(c) for c in range(128)]
        testi = set()
        caratteri = list(mazzo)
        while len(testi) < quanti:
            testo = ""
            for _ in range(caso.randrange(3, 10)):
                if not caratteri:
                    caratteri = caso.sample(mazzo, len(mazzo))
                carattere = caratteri.pop()
                dopo_spostamento = testo[-1:] in tuple("$/+%")
                testo += "7" if dopo_spostamento and carattere.isupper() else carattere
                if dopo_spostamento and carattere.isupper():
                    caratteri.insert(0, carattere)
            testi.add(testo)
        self.assertEqual(set("".join(testi)), set(mazzo))
        return sorted(testi)


if __name__ == "__main__":
    unittest.main()
