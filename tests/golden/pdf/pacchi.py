"""Objects of conforming documents of the reference PDF writer: each by itself, or packed together."""

from codificatori import Comprimi

INSIEME = 200
BYTE_INSIEME = 32 * 1024


class Pacchi:
    """Part of Conforme: with a level of Compress objects that are no streams share some."""

    def __init__(self, *argomenti):
        super().__init__(*argomenti)
        self.pacco, self.impaccati = [], {}

    def Piccolo(self, numero, testo):
        """Writes an object that is no stream."""
        if self.livello:
            self.pacco.append((numero, testo.encode("latin-1") + b"\r\n"))
            if len(self.pacco) == INSIEME or sum(len(t) for _, t in self.pacco) >= BYTE_INSIEME:
                self.ScriviPacco()
            return
        self.prInitObj(numero)
        self.prWriteRaw(testo)
        self.prEndObj()

    def Flusso(self, numero, testa, dati, dopo="", coda=b"\r\n"):
        """Writes a stream whose data are finished."""
        self.prInitObj(numero)
        self.prWriteRaw(f"<< {testa}/Length {len(dati)}{dopo} >>")
        self.prWriteRaw("stream")
        self.dati += dati + coda
        self.prWriteRaw("endstream")
        self.prEndObj()

    def ScriviPacco(self):
        if not self.pacco:
            return
        contenitore, indice, dati = self.Prenota(), "", b""
        for posto, (numero, testo) in enumerate(self.pacco):
            indice += f"{numero} {len(dati)} "
            dati += testo
            self.impaccati[numero] = contenitore, posto
        insieme = Comprimi(indice.encode("ascii") + dati, self.livello)
        self.Flusso(contenitore, f"/Type /ObjStm /N {len(self.pacco)} /First {len(indice)} "
                                 "/Filter /FlateDecode ", insieme)
        self.pacco = []

    def Coda(self, voci):
        if self.livello:
            self.CodaInFlusso(voci)
            return
        inizio = len(self.dati)
        self.prWriteRaw("xref")
        self.prWriteRaw(f"0 {self.oggetti + 1}")
        self.prWriteRaw("0000000000 65535 f")
        for numero in range(1, self.oggetti + 1):
            self.prWriteRaw(f"{self.riferimenti[numero]:010d} 00000 n")
        self.prWriteRaw("trailer")
        self.prWriteRaw(f"<< /Size {self.oggetti + 1} {voci} >>")
        self.Fine(inizio)

    def CodaInFlusso(self, voci):
        self.ScriviPacco()
        tavola, inizio = self.Prenota(), len(self.dati)
        self.riferimenti[tavola] = inizio
        righe = [(0, 0, 65535)]
        for numero in range(1, tavola + 1):
            righe.append((2, *self.impaccati[numero]) if numero in self.impaccati
                         else (1, self.riferimenti[numero], 0))
        largo = max(1, -(-inizio.bit_length() // 8))
        dati = b"".join(bytes([tipo]) + primo.to_bytes(largo, "big") + secondo.to_bytes(2, "big")
                        for tipo, primo, secondo in righe)
        self.Flusso(tavola, f"/Type /XRef /Size {tavola + 1} /W [1 {largo} 2] {voci} "
                            "/Filter /FlateDecode ", Comprimi(dati, self.livello))
        self.Fine(inizio)

    def Fine(self, inizio):
        self.prWriteRaw(f"startxref\r\n{inizio}")
        self.prWriteRaw("%%EOF")
