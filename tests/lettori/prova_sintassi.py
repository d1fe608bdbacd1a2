"""What our strict reader reads of a file: its values, its filters, its text strings."""

import unittest
import zlib

from filtri import FILTRI, predetto
from sintassi import Difetto, Nome, Rif, operazioni, valore
from testi import testo


class Sintassi(unittest.TestCase):
    def test_i_valori(self):
        for scritto, atteso in [
                (b"12", 12), (b"-.5", -0.5), (b"true", True), (b"null", None), (b"3 0 R", Rif(3)),
                (b"/P#E0#20x", Nome("P\xE0 x")), (b"<4e6>", b"N\x60"),
                (b"(a\\(b\\)\\\\ (c) \\351\\n)", b"a(b)\\ (c) \xE9\n"), (b"(a\r\nb)", b"a\nb"),
                (b"[1 0 R 2[(x)]]", [Rif(1), 2, [b"x"]]), (b"<</A 1/B<</C/D>>>>",
                                                           {"A": 1, "B": {"C": Nome("D")}})]:
            self.assertEqual(valore(scritto, 0), (atteso, len(scritto)))

    def test_cio_che_non_si_accetta(self):
        for scritto in [b"(a", b"(a\\xb)", b"/a#2x", b"/a\xE0", b"<4g>", b"[1", b"[ endobj ]",
                        b"<< /A 1 /A 2 >>", b"<< 1 2 >>", b"<< /A >>", b">", b"", b")"]:
            with self.assertRaises(Difetto, msg=scritto):
                valore(scritto, 0)

    def test_le_operazioni_di_un_disegno(self):
        self.assertEqual(list(operazioni(b"q % x\r1 0 0 RG\n(a) Tj ")),
                         [("q", []), ("RG", [1, 0, 0]), ("Tj", [b"a"])])
        with self.assertRaises(Difetto):
            list(operazioni(b"q 1 2"))


class Filtri(unittest.TestCase):
    def test_si_disfanno(self):
        for nome, dati, chiaro in [
                ("FlateDecode", zlib.compress(b"Nero"), b"Nero"),
                ("LZWDecode", bytes.fromhex("800B6050220C0C8501"), b"-----A---B"), # 7.4.4.2
                ("ASCII85Decode", b"9jqo^BlbD-B\r\nleB1~>", b"Man is disti"),
                ("ASCIIHexDecode", b"4E 65\r\n>", b"Ne"), ("RunLengthDecode", b"\x01ab\xFEc\x80", b"abccc")]:
            self.assertEqual(FILTRI[nome](dati), chiaro, nome)
        self.assertEqual(predetto(b"\2\1\2\2\1\1", {"Predictor": 12, "Columns": 2}), b"\1\2\2\3")

    def test_cio_che_manca_o_avanza_si_vede(self):
        intero = zlib.compress(b"Nero Rosso Nero Rosso")
        for dati in [intero[:-1], intero[:-4], intero + b"x", intero + intero]:
            with self.assertRaises(Difetto):
                FILTRI["FlateDecode"](dati)
        with self.assertRaises(Difetto):
            FILTRI["LZWDecode"](bytes.fromhex("800B6050220C0C"))


class Testi(unittest.TestCase):
    def test_nelle_due_codifiche(self):
        for byte, detto in [(b"a\xE0 \xA0\x8D\x8E", "aà €“”"), (b"\xFE\xFF\x01\x41\x28\x28", "Ł\u2828"),
                            (b"\xFE\xFF\xD8\x3D\xDE\x00", "😀"), (b"", ""), (b"\x1F", "˜")]:
            self.assertEqual(testo(byte), detto)

    def test_cio_che_non_dice_niente(self):
        for byte in [b"\x7F", b"\xAD", b"\x01", b"\xEF\xBB\xBFa", b"\xFE\xFF\0\x1Bit"]:
            with self.assertRaises(Difetto, msg=byte):
                testo(byte)
        with self.assertRaises(ValueError):
            testo(b"\xFE\xFF\0")


if __name__ == "__main__":
    unittest.main()
