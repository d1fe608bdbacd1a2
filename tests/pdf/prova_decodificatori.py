"""The encoders' streams, taken apart by readers that are not ours.

BUFFER in the environment says how many random buffers each encoder gets (default 1000).
"""

import base64
import json
import os
import pathlib
import random
import re
import struct
import subprocess
import tempfile
import unittest

BUFFER = int(os.environ.get("BUFFER", "1000"))
PER_FILE = 8 << 20  # bytes of buffers that go into one PDF file
FILTRI = {
    "rl": "RunLengthDecode",
    "lzw": "LZWDecode",
    "a85": "ASCII85Decode",
    "hex": "ASCIIHexDecode",
}
# Where LZW widens its codes and starts again, and the lengths where others would.
ORLI = [
    *range(0, 4), *range(252, 259), *range(508, 517), *range(763, 769), *range(1020, 1029),
    *range(1787, 1793), *range(2044, 2053), *range(3834, 3841), *range(4092, 4101),
    *range(7672, 7677),
]  # fmt: skip


def coppie_diverse(quanti):
    """Bytes in which no pair of neighbours comes twice: n of them make n LZW codes."""
    sequenza = bytearray()
    for primo in range(256):
        sequenza.append(primo)
        for secondo in range(primo + 1, 256):
            sequenza += bytes((primo, secondo))
    return bytes(sequenza[:quanti])


def buffer_a_caso(caso):
    """Between none and 64 KiB, mostly short; of few symbols, many, in runs or repeating."""
    corto = caso.random() < 0.8
    lunghezza = int(65537 ** caso.random()) - 1 if corto else caso.randint(0, 65536)
    simboli = caso.choice([1, 2, 3, 4, 16, 64, 200, 256])
    modo = caso.choice(["piatto", "serie", "eco", "zeri"])
    byte = caso.randbytes(lunghezza)
    if simboli < 256:
        byte = byte.translate(bytes(i * simboli >> 8 for i in range(256)))
    if modo == "serie":
        pezzi = (bytes([b]) * caso.choice([1, 2, 3, 5, 127, 128, 129, 300]) for b in byte)
        byte = b"".join(pezzi)[:lunghezza]
    elif modo == "eco" and lunghezza:
        periodo = byte[: caso.randint(1, min(lunghezza, 700))]
        byte = (periodo * (lunghezza // len(periodo) + 1))[:lunghezza]
    elif modo == "zeri":
        byte = bytes(b if i // 37 % 3 else 0 for i, b in enumerate(byte))
    return byte


def tutti_i_buffer():
    caso = random.Random(20240731)
    orli = [coppie_diverse(n) for n in ORLI]
    return orli + [buffer_a_caso(caso) for _ in range(BUFFER)]


def incornicia(buffer):
    return b"".join(struct.pack("<I", len(b)) + b for b in buffer)


def scornicia(byte):
    buffer, posto = [], 0
    while posto < len(byte):
        (lunghezza,) = struct.unpack_from("<I", byte, posto)
        buffer.append(byte[posto + 4 : posto + 4 + lunghezza])
        posto += 4 + lunghezza
    return buffer


def codifica(nome, buffer):
    uscita = subprocess.run(
        [os.environ["CODIFICA"], nome], input=incornicia(buffer), capture_output=True, check=True
    ).stdout
    return scornicia(uscita)


def scrivi_pdf(percorso, filtro, flussi):
    """A PDF file whose object n + 3 is stream n."""
    oggetti = [b"<</Type/Catalog/Pages 2 0 R/Flussi[%s]>>", b"<</Type/Pages/Kids[]/Count 0>>"]
    oggetti[0] %= b" ".join(b"%d 0 R" % (n + 3) for n in range(len(flussi)))
    testa = b"<</Filter/%s/Length %d>>stream\r\n%s\r\nendstream"
    oggetti += [testa % (filtro.encode(), len(f), f) for f in flussi]
    uscita, posti = bytearray(b"%PDF-1.4\n"), []
    for n, oggetto in enumerate(oggetti):
        posti.append(len(uscita))
        uscita += b"%d 0 obj\n%s\nendobj\n" % (n + 1, oggetto)
    rinvii = len(uscita)
    uscita += b"xref\n0 %d\n0000000000 65535 f \n" % (len(posti) + 1)
    uscita += b"".join(b"%010d 00000 n \n" % p for p in posti)
    uscita += b"trailer<</Size %d/Root 1 0 R>>\n" % (len(posti) + 1)
    uscita += b"startxref\n%d\n%%%%EOF\n" % rinvii
    percorso.write_bytes(uscita)


def con_qpdf(cartella, filtro, flussi):
    scrivi_pdf(cartella / "q.pdf", filtro, flussi)
    esito = subprocess.run(
        ["qpdf", "--json=2", "--json-key=qpdf", "--json-stream-data=inline",
         "--decode-level=specialized", cartella / "q.pdf"],
        capture_output=True, check=True)  # fmt: skip
    oggetti = json.loads(esito.stdout)["qpdf"][1]
    decodificati = [oggetti[f"obj:{n + 3} 0 R"]["stream"] for n in range(len(flussi))]
    assert all("/Filter" not in d["dict"] for d in decodificati), "qpdf decoded nothing"
    return [base64.b64decode(d["data"]) for d in decodificati]


def con_mutool(cartella, filtro, flussi):
    scrivi_pdf(cartella / "m.pdf", filtro, flussi)
    subprocess.run(
        ["mutool", "clean", "-d", cartella / "m.pdf", cartella / "n.pdf"],
        capture_output=True, check=True)  # fmt: skip
    byte = (cartella / "n.pdf").read_bytes()
    decodificati, posto = [], 0
    for n in range(len(flussi)):
        testa = re.compile(rb"\n%d 0 obj\n<<\s*/Length (\d+)\s*>>\nstream\n" % (n + 3)).search(byte, posto)
        assert testa, f"mutool did not write stream {n} without its filter"
        posto = testa.end() + int(testa.group(1))
        decodificati.append(byte[testa.end() : posto])
    return decodificati


def con_ghostscript(cartella, filtro, flussi):
    """Each stream through the filter of a PostScript interpreter, one small file each way."""
    programma = ["/b 60000 string def"]
    for n, flusso in enumerate(flussi):
        (cartella / f"{n}.da").write_bytes(flusso)
        programma.append(
            f"/f ({cartella}/{n}.da) (r) file /{filtro} filter def"
            f" /g ({cartella}/{n}.a) (w) file def"
            " {f b readstring exch g exch writestring not {exit} if} loop f closefile g closefile"
        )
    (cartella / "prova.ps").write_text("\n".join(programma))
    subprocess.run(
        ["gs", "-q", "-dNODISPLAY", "-dBATCH", "-dNOPAUSE", "-dNOSAFER", cartella / "prova.ps"],
        capture_output=True, check=True)  # fmt: skip
    return [(cartella / f"{n}.a").read_bytes() for n in range(len(flussi))]


def con_python(nome, flussi):
    if nome == "a85":
        return [base64.a85decode(b"<~" + f, adobe=True) for f in flussi]
    assert all(f.endswith(b">") and f == f.upper() for f in flussi)
    return [bytes.fromhex(f[:-1].decode()) for f in flussi]


class Decodificatori(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.buffer = tutti_i_buffer()
        cls.codificati = {nome: codifica(nome, cls.buffer) for nome in FILTRI}

    def setUp(self):
        temporanea = tempfile.TemporaryDirectory()
        self.addCleanup(temporanea.cleanup)
        self.cartella = pathlib.Path(temporanea.name)

    def gruppi(self, nome):
        """The buffers and their streams, a file's worth at a time."""
        inizio, peso = 0, 0
        for n, buffer in enumerate(self.buffer):
            peso += len(buffer)
            if peso > PER_FILE or n + 1 == len(self.buffer):
                yield self.buffer[inizio : n + 1], self.codificati[nome][inizio : n + 1]
                inizio, peso = n + 1, 0

    def uguali(self, buffer, decodificati):
        self.assertEqual(len(buffer), len(decodificati))
        for n, (atteso, letto) in enumerate(zip(buffer, decodificati)):
            self.assertTrue(atteso == letto, f"buffer {n} of {len(atteso)} bytes")

    def test_i_buffer_sono_quelli_promessi(self):
        self.assertEqual(len(self.buffer), len(ORLI) + BUFFER)
        self.assertTrue(all(len(b) <= 65536 for b in self.buffer))
        for codificati in self.codificati.values():
            self.assertEqual(len(codificati), len(self.buffer))

    def test_qpdf_decodifica_ogni_buffer(self):
        for nome, filtro in FILTRI.items():
            with self.subTest(filtro):
                for buffer, flussi in self.gruppi(nome):
                    self.uguali(buffer, con_qpdf(self.cartella, filtro, flussi))

    def test_mutool_decodifica_ogni_buffer(self):
        for nome, filtro in FILTRI.items():
            with self.subTest(filtro):
                for buffer, flussi in self.gruppi(nome):
                    self.uguali(buffer, con_mutool(self.cartella, filtro, flussi))

    def test_ghostscript_decodifica_gli_orli_e_cento_buffer(self):
        quanti = len(ORLI) + 100
        for nome, filtro in FILTRI.items():
            with self.subTest(filtro):
                flussi = self.codificati[nome][:quanti]
                self.uguali(self.buffer[:quanti], con_ghostscript(self.cartella, filtro, flussi))

    def test_python_decodifica_i_testi(self):
        for nome in ("a85", "hex"):
            with self.subTest(nome):
                self.uguali(self.buffer, con_python(nome, self.codificati[nome]))


if __name__ == "__main__":
    unittest.main()
