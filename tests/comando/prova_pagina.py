"""The HTML report as a browser shows it."""

import json
import re
import shutil
import subprocess
import tempfile
import unittest
import urllib.parse
from pathlib import Path

from aiuti import (GOLDEN, TAGLIE, ambiente, colpi_mostrati, taglie_dei_colpi, testi_carte)

ROSSO = "rgb(255, 0, 0)"
NERO = "rgb(0, 0, 0)"
SEGNI = {"C": "♥", "Q": "♦", "F": "♣", "P": "♠"}
PUNTO, VUOTA, PARI = "•", "\N{NO-BREAK SPACE}", "---"

BROWSER = ["--headless", "--disable-gpu", "--no-first-run", "--disable-background-networking",
           "--disable-component-update", "--disable-sync", "--window-size=1280,1000",
           # Its sandbox needs rights that root and containers lack; the page is our own.
           "--no-sandbox",
           # Shared memory is scarce in containers.
           "--disable-dev-shm-usage"]

SCRIPT = (Path(__file__).parent / "misure.js").read_text("ascii")


def trova_browser():
    for nome in ["chromium", "chromium-browser"]:
        percorso = shutil.which(nome)
        if percorso:
            return percorso
    raise AssertionError("manca chromium: senza un browser la pagina non è provata")


def misura(argomenti, lingua="C"):
    """The figures of the page that the command makes of these arguments."""
    with tempfile.TemporaryDirectory(prefix="taglie.pagina.") as nome:
        cartella = Path(nome)
        subprocess.run([TAGLIE, "-q", "-f", "html", "-c", cartella, *argomenti], check=True,
                       env=ambiente(lingua), timeout=60)
        pagina = (cartella / "taglie.htm").read_bytes()
        assert pagina.count(b"</body>") == 1
        inserto = b"<script>" + SCRIPT.encode("ascii") + b"</script></body>"
        (cartella / "prova.htm").write_bytes(pagina.replace(b"</body>", inserto))
        casa = {v: str(cartella) for v in ["HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME",
                                           "XDG_RUNTIME_DIR"]}
        fatto = subprocess.run([trova_browser(), *BROWSER, f"--user-data-dir={cartella}/profilo",
                                "--dump-dom", f"file://{cartella}/prova.htm"],
                               env=ambiente(**casa), capture_output=True, timeout=180)
        trovato = re.search(rb"MISURE:([^:<]*):FINE", fatto.stdout)
        assert trovato, f"nessuna misura: {fatto.stderr[-2000:]!r}"
        return json.loads(urllib.parse.unquote(trovato[1].decode("ascii")))


class Pagina:
    """One page, measured once for all its tests."""

    maxDiff = 2000
    lingua = "C"

    @classmethod
    def setUpClass(cls):
        cls.misure = misura(cls.argomenti, cls.lingua)

    def scritte(self):
        return self.misure["testo"]

    def collegamenti(self):
        return {c["href"]: c["arriva"] for c in self.misure["collegamenti"]}


class Comune:
    """What holds for every page."""

    def test_senza_riga_della_codifica_la_pagina_e_letta_come_e_scritta(self):
        self.assertEqual(self.misure["codifica"], "windows-1252")

    def test_il_titolo_e_quello_del_gioco(self):
        self.assertEqual(self.misure["titolo"], "Scalvino")
        self.assertEqual(self.scritte().count("SCALVINO"), 1)

    def test_nessun_carattere_e_guasto(self):
        for guasto in ["\ufffd", "Ã", "Â", "&nbsp", "&bull", "&hearts", "?"]:
            self.assertNotIn(guasto, self.scritte())


class Generali:
    """The table of the general statistics."""

    def test_le_statistiche_generali_hanno_gli_accenti(self):
        celle = [cella.strip() for riga in self.misure["celle"] for cella in riga]
        self.assertIn("Statistiche generali", celle)
        self.assertIn("31 après:", celle)
        self.assertIn("Vincite Rosso-Inverso:", celle)

    def test_i_valori_stanno_accanto_alle_loro_etichette(self):
        attese = json.loads(subprocess.run(
            [TAGLIE, "--dati", "json", *self.argomenti[:2]], check=True, capture_output=True,
            env=ambiente(), timeout=60).stdout)
        celle = [cella.strip() for riga in self.misure["celle"] for cella in riga]
        for etichetta, totale in [
                ("Numero taglie:", attese["taglie"]), ("Colpi totali:", attese["report"]["colpi"]),
                ("Carte utilizzate:", attese["report"]["carte"]),
                ("Vincite Nero:", attese["esiti"]["VinceNero"]["totale"]),
                ("Vincite Rosso-Inverso:", attese["esiti"]["RossoInverso"]["totale"])]:
            self.assertEqual(celle[celle.index(etichetta) + 1], str(totale), etichetta)


class Piena:
    """The tables of coups, compared with the records of the same shoes."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        colpi = (GOLDEN / f"{cls.nome}.colpi").read_bytes()
        cls.attesi = [colpi_mostrati(taglia) for taglia in taglie_dei_colpi(colpi)]

    def coppie(self):
        """Every coup shown beside its record."""
        for colpi, record in zip(self.misure["tabelle"], self.attesi, strict=True):
            yield from zip(colpi, record, strict=True)

    def mani(self):
        for colpo, campi in self.coppie():
            for mano, carte in zip(colpo["mani"], campi[5:7], strict=True):
                yield mano, testi_carte(carte)

    def test_ogni_taglia_ha_le_righe_dei_suoi_colpi_mostrati(self):
        self.assertEqual([len(colpi) for colpi in self.misure["tabelle"]],
                         [len(record) for record in self.attesi])
        for colpo, campi in self.coppie():
            self.assertEqual(colpo["numero"], campi[0])
            self.assertEqual([mano["totale"] for mano in colpo["mani"]], campi[3:5])

    def test_gli_esiti_sono_punti_e_i_pari_quattro_tratti(self):
        attese = {"N": [PUNTO, VUOTA], "R": [VUOTA, PUNTO], "C": [PUNTO, VUOTA],
                  "I": [VUOTA, PUNTO], "E": [PARI, PARI], "": [PARI, PARI]}
        visti = set()
        for colpo, campi in self.coppie():
            self.assertEqual(colpo["esiti"], attese[campi[1]] + attese[campi[2]], campi)
            visti.update(campi[1:3])
        self.assertGreaterEqual(visti, {"N", "R", "C", "I", "E"})

    def test_le_carte_sono_quelle_dei_record(self):
        for mano, carte in self.mani():
            self.assertEqual([c["valore"]["testo"] + c["seme"]["testo"] for c in mano["carte"]],
                             [carta[:-1] + SEGNI[carta[-1]] for carta in carte])

    def test_le_carte_di_una_mano_stanno_una_accanto_all_altra(self):
        for mano, carte in self.mani():
            riquadri = [carta["riquadro"] for carta in mano["carte"]]
            self.assertGreaterEqual(len(riquadri), 1)
            for r in riquadri:
                self.assertEqual((r["alto"], r["basso"]),
                                 (riquadri[0]["alto"], riquadri[0]["basso"]))
                self.assertGreater(r["destra"] - r["sinistra"], 10)
                self.assertGreater(r["basso"] - r["alto"], 10)
                self.assertGreaterEqual(r["sinistra"], mano["riquadro"]["sinistra"], carte)
                self.assertLessEqual(r["destra"], mano["riquadro"]["destra"], carte)
            for prima, dopo in zip(riquadri, riquadri[1:]):
                self.assertLess(prima["sinistra"], dopo["sinistra"])
                self.assertLessEqual(prima["destra"], dopo["sinistra"])

    def test_il_valore_sta_sopra_il_seme_dentro_la_carta(self):
        # How far they reach depends on the fonts, where their middles are does not.
        def centro(r):
            return (r["sinistra"] + r["destra"]) / 2, (r["alto"] + r["basso"]) / 2

        for mano, _ in self.mani():
            for carta in mano["carte"]:
                r = carta["riquadro"]
                centri = [centro(carta["valore"]["riquadro"]), centro(carta["seme"]["riquadro"])]
                for x, y in centri:
                    self.assertTrue(r["sinistra"] < x < r["destra"], carta)
                    self.assertTrue(r["alto"] < y < r["basso"], carta)
                self.assertLess(centri[0][1], centri[1][1])

    def test_cuori_e_quadri_sono_rossi_e_gli_altri_semi_no(self):
        visti = set()
        for mano, carte in self.mani():
            for carta, testo in zip(mano["carte"], carte):
                self.assertEqual(carta["seme"]["colore"], ROSSO if testo[-1] in "CQ" else NERO)
                self.assertEqual(carta["valore"]["colore"], NERO)
                visti.add(testo[-1])
        self.assertEqual(visti, set("CQFP"))

    def test_il_riassunto_di_ogni_taglia_ha_gli_accenti(self):
        for parola in [" - Egalitè: ", " - 31 Après: "]:
            self.assertEqual(self.scritte().count(parola), len(self.attesi))

    def test_le_intestazioni_sono_quelle_delle_sette_colonne(self):
        intestazione = ["Colpo", "Nero", "Rosso", "Colore", "Inverso", "Mano Nero", "Mano Rosso"]
        self.assertEqual(self.misure["celle"].count(intestazione), len(self.attesi))


class PienaDiTreTaglie(Piena, Comune, Generali, Pagina, unittest.TestCase):
    nome = "tre"
    argomenti = ["--mazzi", GOLDEN / "tre.mazzi", "--numeri", "c"]

    def test_ogni_collegamento_arriva(self):
        self.assertEqual(self.collegamenti(),
                         {"#statistiche": True, "#top": True, "#2": True, "#3": True})

    def test_ogni_taglia_ha_il_suo_titolo(self):
        self.assertEqual(re.findall(r"^Taglia(?: \d+)?$", self.scritte(), re.MULTILINE),
                         ["Taglia 1", "Taglia 2", "Taglia 3"])


class PienaDiUnaTaglia(Piena, Comune, Pagina, unittest.TestCase):
    nome = "uno_trentuno"
    argomenti = ["--mazzi", GOLDEN / "uno_trentuno.mazzi", "--numeri", "it"]

    def test_solo_le_statistiche_che_non_ci_sono_non_si_raggiungono(self):
        self.assertEqual(self.collegamenti(), {"#statistiche": False, "#top": True})
        self.assertNotIn("Statistiche generali", self.scritte())

    def test_la_taglia_non_ha_numero(self):
        self.assertEqual(re.findall(r"^Taglia(?: \d+)?$", self.scritte(), re.MULTILINE), ["Taglia"])


class SoleStatistiche(Comune, Generali, Pagina, unittest.TestCase):
    argomenti = ["--mazzi", GOLDEN / "tre.mazzi", "-s", "--numeri", "c"]

    def test_non_ci_sono_colpi_ne_collegamenti(self):
        self.assertEqual((self.misure["tabelle"], self.misure["collegamenti"]), ([], []))


class SegniFrancesi(Comune, Pagina, unittest.TestCase):
    """The page that is hardest to read: a thousands mark beyond ASCII."""

    lingua = "fr_FR.UTF-8"
    argomenti = ["--mazzi", GOLDEN / "dodici.mazzi", "-s"]

    def test_lo_spazio_delle_migliaia_si_legge(self):
        celle = [cella for riga in self.misure["celle"] for cella in riga]
        self.assertIn("3\N{NO-BREAK SPACE}627", celle)
        self.assertIn("(96,88%)", celle)


if __name__ == "__main__":
    unittest.main()
