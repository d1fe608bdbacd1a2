"""The data files of the window: help page, cards, icon, resources of the Windows program."""

import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
import xml.etree.ElementTree as ET
from pathlib import Path

from pagina import Pagina

RADICE = Path(os.environ["RADICE"])
RISORSE = RADICE / "resources"
SVG = "{http://www.w3.org/2000/svg}"
ELEMENTI = {f"{SVG}{nome}" for nome in ("svg", "title", "g", "path", "rect", "circle")}
SEMI = "FQCP"
LATO_ICONA = 32

DETTI = {
    "top": ["Versione 1.0", "Simulazione taglie al gioco del Scalvino",
            "Report, statistiche, simulazione partita."],
    "guida": ["GUIDA IN LINEA", "simulare taglie intere", "giocare una taglia colpo per colpo",
              "senza puntate", "CARDS.DLL", "La libreria CARDS.DLL non è presente nel sistema.",
              "Numero taglie", "Opzioni di visualizzazione", "Visualizza solo statistiche",
              "il numero di taglie non ha limiti", "10.000", "Simula taglia", "Simula taglie",
              "Mescola nuova taglia", "cinque carte annullate", "Colpo successivo --->",
              "carte rimaste", "Annulla taglia abbandona la taglia", "Guida e regole", "Esci",
              "vantaggio del banco", "1,096%", "0,96%", "Cenni di storia"],
    "regole": ["REGOLE DEL GIOCO", "sei mazzi", "312 carte", "Rosso, Nero, Colore e Inverso",
               "tutte pagate alla pari", "prima fila, quella del Nero",
               "seconda fila, quella del Rosso", "supera 30", "non supera mai 40",
               "Vince la fila con il totale più basso", "prima carta della prima fila",
               "altrimenti vince l'Inverso", "cioè nullo", "31 après", "«prigione»",
               "salvo quelle assicurate", "1 per cento della puntata"],
    "informazioni": ["Informazioni sul programma", "Scalvino",
                     "Simulazione gioco e statistiche del Scalvino", "Versione 1.0"],
}


class Guida(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.byte = (RISORSE / "scalvino.htm").read_bytes()
        cls.pagina = Pagina(cls.byte.decode("utf-8"))

    def test_misura_codifica_e_fine_riga(self):
        self.assertEqual(len(self.byte), 12936)
        self.assertTrue(self.byte.startswith(b"<!DOCTYPE html>\n<html lang=\"it\">"))
        self.assertIn(b'<meta charset="utf-8">', self.byte[:1024])
        self.assertNotIn(b"\r", self.byte)

    def test_dice_tutto(self):
        self.assertEqual(self.pagina.testi["titolo"], "Scalvino - Guida in linea")
        for sezione, detti in DETTI.items():
            for detto in detti:
                self.assertIn(detto, self.pagina.testo(sezione), sezione)

    def test_titolo_due_volte_la_seconda_come_ombra(self):
        self.assertEqual(self.pagina.testo("top").count("SCALVINO"), 2)
        self.assertRegex(self.pagina.stile, r"h1 \.ombra \{[^}]*blur\(")

    def test_stile_promesso(self):
        corpo = re.search(r"\nbody \{([^}]*)\}", self.pagina.stile)[1]
        for regola in ("background: #FFFFE2;", "margin: 20px;", "font-size: 12px;",
                       "font-family: Verdana, Arial, Helvetica, sans-serif;",
                       "line-height: 1.5;", "text-align: justify;"):
            self.assertIn(regola, corpo)

    def test_limiti_dei_report(self):
        for opzione, dove, massimo in (("HTML", "taglie.htm", "50"), ("PDF", "taglie.pdf", "20"),
                                       ("TXT", "taglie.txt", "500")):
            righe = [r for r in self.pagina.righe if r[0] == f"Crea report in {opzione}"]
            self.assertEqual(len(righe), 1)
            self.assertTrue(righe[0][1].endswith(f"file {dove}"), righe[0])
            self.assertEqual(righe[0][2], massimo)
        video = next(r for r in self.pagina.righe if r[0] == "Crea report a VIDEO")
        self.assertEqual(video[2], "solo statistiche")

    def test_esempio_torna_con_le_regole(self):
        for fila, totale in (("Nero", 31), ("Rosso", 34)):
            riga = next(r for r in self.pagina.righe if r[0] == fila)
            valori = re.findall(r"(10|[2-9AJQK])[♣♦♥♠]", riga[1])
            punti = [{"A": 1, "J": 10, "Q": 10, "K": 10}.get(v) or int(v) for v in valori]
            self.assertEqual(int(riga[2]), totale)
            self.assertEqual(sum(punti), totale)
            self.assertLessEqual(sum(punti[:-1]), 30)

    def test_collegamenti(self):
        barra = [[meta, testo] for sezione, meta, testo in self.pagina.collegamenti
                 if sezione == "top"]
        self.assertEqual(barra, [["#guida", "Guida in linea"], ["#regole", "Regole del gioco"],
                                 ["#informazioni", "Informazioni programma"]])
        self.assertEqual(len(set(self.pagina.ancore)), len(self.pagina.ancore))
        for _, meta, _ in self.pagina.collegamenti:
            self.assertIn(meta.removeprefix("#"), self.pagina.ancore)
            self.assertTrue(meta.startswith("#"))

    def test_ogni_sezione_torna_su(self):
        for sezione in ("guida", "regole", "informazioni"):
            ritorni = [c for c in self.pagina.collegamenti if c[0] == sezione]
            self.assertEqual(ritorni, [[sezione, "#top", "Torna su"]])
            self.assertTrue(self.pagina.testo(sezione).endswith("Torna su"))

    def test_basta_a_se_stessa(self):
        self.assertEqual(self.pagina.esterne, [])
        self.assertNotRegex(self.pagina.stile, r"@import|url\(|@font-face")
        self.assertNotRegex(self.byte.decode("utf-8"), r"(?i)https?:|//www|javascript:")
        self.assertFalse([a for a in self.pagina.attributi if a.startswith("on")])


class Carte(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        sys.path.insert(0, str(RADICE / "tools"))
        cls.sagome = __import__("tratti_carte").SAGOME
        cls.radice = ET.parse(RISORSE / "carte.svg").getroot()
        cls.carte = {e.get("id"): e for e in cls.radice.iter() if e.get("id")}

    def segni(self, numero):
        """Suit of each suit sign on a face."""
        semi = {sagoma: segno for segno, sagoma in self.sagome.items()}
        return [semi[p.get("d")] for p in self.carte[f"carta{numero}"].iter(f"{SVG}path")
                if p.get("d") in semi]

    def test_cinquantatre_carte(self):
        attese = {f"carta{numero}" for numero in range(52)} | {"dorso53"}
        self.assertEqual(self.carte.keys(), attese)
        ids = [e.get("id") for e in self.radice.iter() if e.get("id")]
        self.assertEqual(len(ids), 53)
        self.assertEqual(len({ET.tostring(carta) for carta in self.carte.values()}), 53)

    def test_solo_elementi_semplici(self):
        self.assertEqual(self.radice.get("baseProfile"), "tiny")
        for elemento in self.radice.iter():
            self.assertIn(elemento.tag, ELEMENTI)
            for nome, valore in elemento.attrib.items():
                self.assertNotRegex(nome, r"href|clip|mask|filter|style|class")
                self.assertNotIn("url(", valore)

    def test_tutte_hanno_lo_stesso_contorno(self):
        for nome, carta in self.carte.items():
            contorno = carta[0]
            self.assertEqual(contorno.tag, f"{SVG}rect", nome)
            misure = [contorno.get(a) for a in ("x", "y", "width", "height", "stroke-width")]
            self.assertEqual(misure, ["0.5", "0.5", "70", "95", "1"], nome)
            self.assertNotEqual(contorno.get("stroke"), "none")

    def test_i_numeri_mostrano_valore_e_seme(self):
        for numero in range(4, 40):
            valore, segno = numero // 4 + 1, SEMI[numero % 4]
            # The index in either corner carries one sign more, drawn twice.
            self.assertEqual(self.segni(numero), [segno] * (valore + 2), numero)

    def test_le_figure_mostrano_il_loro_seme(self):
        for numero in range(40, 52):
            segni = self.segni(numero)
            self.assertEqual(set(segni), {SEMI[numero % 4]}, numero)
            self.assertEqual(len(segni), 6, numero)

    def test_il_disegno_viene_dallo_script(self):
        with tempfile.TemporaryDirectory() as cartella:
            copia = Path(cartella) / "carte.svg"
            subprocess.run([sys.executable, RADICE / "tools/disegna_carte.py", copia], check=True)
            self.assertEqual(copia.read_bytes(), (RISORSE / "carte.svg").read_bytes())


class Icona(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.byte = (RISORSE / "scalvino.ico").read_bytes()

    def test_un_quadro_di_32_per_32_in_16_colori(self):
        self.assertEqual(struct.unpack_from("<HHH", self.byte), (0, 1, 1))
        voce = struct.unpack_from("<BBBBHHII", self.byte, 6)
        self.assertEqual(voce, (LATO_ICONA, LATO_ICONA, 16, 0, 1, 4, len(self.byte) - 22, 22))
        testa = struct.unpack_from("<IiiHHI", self.byte, 22)
        self.assertEqual(testa, (40, LATO_ICONA, 2 * LATO_ICONA, 1, 4, 0))
        self.assertEqual(len(self.byte), 22 + 40 + 16 * 4 + 32 * 16 + 32 * 4)

    def test_angoli_trasparenti_e_neri_centro_pieno(self):
        colori = [self.byte[62 + 4 * i : 66 + 4 * i] for i in range(16)]
        punti = [meta for coppia in self.byte[126:638] for meta in (coppia >> 4, coppia & 15)]
        maschera = [byte >> bit & 1 for byte in self.byte[638:] for bit in range(7, -1, -1)]
        self.assertEqual([maschera[i] for i in (0, 31, 32 * 31, 32 * 32 - 1)], [1, 1, 1, 1])
        self.assertEqual(maschera[16 * 32 + 8 : 16 * 32 + 24], [0] * 16)
        self.assertGreater(len(set(punti)), 10)
        for punto, vuoto in zip(punti, maschera):
            if vuoto:
                self.assertEqual(colori[punto], b"\0\0\0\0")

    def test_un_disegno_per_tutte_le_misure(self):
        disegno = ET.parse(RISORSE / "scalvino.svg").getroot()
        self.assertEqual(disegno.get("viewBox"), "0 0 64 64")
        self.assertLessEqual({e.tag for e in disegno.iter()}, ELEMENTI)
        misure = (16, 24, 32, 48, 64, 128, 256)
        nomi = {f"scalvino-{lato}.png" for lato in misure}
        self.assertEqual({p.name for p in (RISORSE / "icone").iterdir()}, nomi)
        for lato in misure:
            byte = (RISORSE / "icone" / f"scalvino-{lato}.png").read_bytes()
            self.assertEqual(byte[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack_from(">II", byte, 16), (lato, lato))


    def test_a_sedici_punti_nessun_colore_sfuma(self):
        byte = (RISORSE / "icone/scalvino-16.png").read_bytes()
        self.assertEqual(byte[24:29], bytes((8, 6, 0, 0, 0))) # 8 bits, RGBA, not interlaced
        inizio = byte.index(b"IDAT") + 4
        righe = zlib.decompressobj().decompress(byte[inizio:])
        righe = [righe[i : i + 65] for i in range(0, len(righe), 65)]
        self.assertEqual([riga[0] for riga in righe], [0] * 16) # pixels as they are
        punti = [riga[i : i + 4] for riga in righe for i in range(1, 65, 4)]
        self.assertEqual({punto[3] for punto in punti}, {0, 255})
        self.assertEqual([punti[i][3] for i in (0, 15, 240, 255)], [0] * 4)
        colori = {punto[:3].hex() for punto in punti if punto[3]}
        self.assertEqual(colori, {"24500a", "55b800", "ffffff", "93a488", "1c1c22", "c41e3a"})


class Windows(unittest.TestCase):
    def test_il_manifesto_chiede_i_controlli_6(self):
        radice = ET.parse(RISORSE / "scalvino.manifest").getroot()
        chiesta = radice.find(".//{urn:schemas-microsoft-com:asm.v1}dependentAssembly/*")
        self.assertEqual(chiesta.get("name"), "Microsoft.Windows.Common-Controls")
        self.assertEqual(chiesta.get("version"), "6.0.0.0")
        densita = [e.text for e in radice.iter() if "dpiAware" in e.tag]
        self.assertEqual(densita, ["true/pm", "PerMonitorV2, PerMonitor"])

    def test_le_risorse_hanno_tipo_numero_e_lingua(self):
        testo = (RISORSE / "scalvino.rc").read_text(encoding="ascii")
        righe = re.findall(r'^(\d+) (\w+) "([^"]+)"$', testo, re.MULTILINE)
        self.assertEqual(righe, [("1", "ICON", "scalvino.ico"), ("1", "24", "scalvino.manifest"),
                                 ("101", "23", "scalvino.htm")])
        lingua, variante = re.search(r"^LANGUAGE (\d+), (\d+)$", testo, re.MULTILINE).groups()
        self.assertEqual(int(lingua) | int(variante) << 10, 1040)
        for _, _, nome in righe:
            self.assertTrue((RISORSE / nome).is_file(), nome)


if __name__ == "__main__":
    unittest.main()
