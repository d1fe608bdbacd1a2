"""Desktop entry, metainfo, icons and man pages: valid, whole, and true of the programs."""

import configparser
import os
import re
import unittest
import xml.etree.ElementTree as ET
from pathlib import Path

from comune import COMPONENTI, Prova, fai, installa, opzioni_di_help, opzioni_di_manuale

RADICE = Path(os.environ["RADICE"])
LINGUE = {"man/man1": "en", "man/it/man1": "it"}


class Descrizioni(Prova):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        for componente in {"programma", "comando"} & set(COMPONENTI):
            installa(cls.cartella, componente)
        cls.dati = cls.cartella / "share"

    def manuale(self, nome, cartella):
        """A man page as text; any warning of the formatter is a failure."""
        ambiente = {**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "80", "MANROFFSEQ": ""}
        esito = fai("man", "--warnings=w", "-E", "UTF-8", "-l",
                    self.dati / cartella / f"{nome}.1", zitto=True, env=ambiente)
        return re.sub(".\b", "", esito)


class Manuali(Descrizioni):
    def test_le_pagine_di_taglie_dicono_le_opzioni_di_help(self):
        attese = opzioni_di_help(fai(self.cartella / "bin/taglie", "--help"))
        self.assertGreater(len(attese), 12)
        for cartella in LINGUE:
            with self.subTest(cartella=cartella):
                self.assertEqual(opzioni_di_manuale(self.manuale("taglie", cartella)), attese)

    def test_le_pagine_di_taglie_dicono_i_codici_di_uscita_di_help(self):
        aiuto = fai(self.cartella / "bin/taglie", "--help").split("Codici di uscita: ")[1]
        attesi = re.findall(r"\d+", aiuto)
        for cartella, titolo in {"man/man1": "EXIT STATUS", "man/it/man1": "CODICI DI USCITA"}.items():
            parte = self.manuale("taglie", cartella).split(f"\n{titolo}\n")[1]
            parte = re.split(r"^\S", parte, flags=re.MULTILINE)[0]
            self.assertEqual(re.findall(r"^ {7}(\d+)", parte, re.MULTILINE), attesi)

    def test_ogni_pagina_dice_le_variabili_d_ambiente(self):
        comuni = ["SOURCE_DATE_EPOCH", "LC_ALL", "LC_NUMERIC", "LANG", "TMPDIR"]
        attese = {"taglie": comuni}
        if "programma" in COMPONENTI:
            scale = ["QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"]
            attese["scalvino"] = comuni + scale
        for nome in attese:
            for cartella, titolo in {"man/man1": "ENVIRONMENT", "man/it/man1": "AMBIENTE"}.items():
                parte = self.manuale(nome, cartella).split(f"\n{titolo}\n")[1]
                parte = re.split(r"^\S", parte, flags=re.MULTILINE)[0]
                voci = re.findall(r"^ {7}([A-Z][A-Z_, ]*)", parte, re.MULTILINE)
                self.assertEqual(" ".join(voci).replace(",", "").split(), attese[nome])

    def test_ogni_pagina_dice_versione_e_data(self):
        programmi = ["taglie", "scalvino"] if "programma" in COMPONENTI else ["taglie"]
        for nome in programmi:
            for cartella in LINGUE:
                piede = self.manuale(nome, cartella).strip().splitlines()[-1]
                self.assertIn(f"Scalvino {os.environ['VERSIONE']}", piede)
                self.assertRegex(piede, r"\d{4}-\d\d-\d\d")

    @unittest.skipUnless("programma" in COMPONENTI, "built without the window")
    def test_le_pagine_di_scalvino_dicono_le_opzioni_di_help(self):
        attese = opzioni_di_help(fai(self.cartella / "bin/scalvino", "--help"))
        self.assertEqual(len(attese), 2)
        for cartella in LINGUE:
            self.assertEqual(opzioni_di_manuale(self.manuale("scalvino", cartella)), attese)


@unittest.skipUnless("programma" in COMPONENTI, "built without the window")
class Scrivania(Descrizioni):
    def voce(self):
        lettore = configparser.ConfigParser(interpolation=None)
        lettore.optionxform = str
        lettore.read(self.dati / "applications/scalvino.desktop", encoding="utf-8")
        return lettore["Desktop Entry"]

    def metainfo(self):
        return ET.parse(self.dati / "metainfo/local.vellarmo.scalvino.metainfo.xml").getroot()

    def test_la_voce_del_menu_e_valida(self):
        uscita = fai("desktop-file-validate", self.dati / "applications/scalvino.desktop",
                     zitto=True)
        self.assertEqual(uscita, "")

    def test_la_voce_del_menu_parla_due_lingue(self):
        voce = self.voce()
        for chiave in ("GenericName", "Comment", "Keywords"):
            self.assertNotEqual(voce[chiave], voce[f"{chiave}[it]"])
        for chiave in ("Keywords", "Keywords[it]"):
            self.assertGreater(voce[chiave].count(";"), 3)

    def test_la_voce_del_menu_porta_al_programma_e_alle_icone(self):
        voce = self.voce()
        self.assertTrue(os.access(self.cartella / "bin" / voce["Exec"], os.X_OK))
        icone = self.dati / "icons/hicolor"
        for lato in (16, 24, 32, 48, 64, 128, 256):
            byte = (icone / f"{lato}x{lato}/apps/{voce['Icon']}.png").read_bytes()
            misure = [int.from_bytes(byte[posto:posto + 4], "big") for posto in (16, 20)]
            self.assertEqual((byte[:4], misure), (b"\x89PNG", [lato, lato]))
        self.assertTrue((icone / f"scalable/apps/{voce['Icon']}.svg").exists())

    def test_i_metadati_sono_validi(self):
        uscita = fai("appstreamcli", "validate", "--no-net", "--pedantic", "--no-color",
                     self.dati / "metainfo/local.vellarmo.scalvino.metainfo.xml")
        self.assertNotRegex(uscita, r"(?m)^[EW]:")
        self.assertIn("successful", uscita)

    def test_i_metadati_concordano_con_il_resto(self):
        radice = self.metainfo()
        self.assertEqual(radice.findtext("launchable"), "scalvino.desktop")
        self.assertEqual([c.text for c in radice.find("categories")],
                         self.voce()["Categories"].split(";")[:-1])
        self.assertEqual(radice.findtext("icon"), self.voce()["Icon"])
        self.assertEqual(radice.findtext("provides/binary"), self.voce()["Exec"])
        valutazione = radice.find("content_rating")
        self.assertEqual((valutazione.get("type"), list(valutazione)), ("oars-1.1", []))
        versioni = radice.findall("releases/release")
        self.assertEqual([v.get("version") for v in versioni], [os.environ["VERSIONE"]])
        self.assertIsNone(radice.find("screenshots"))

    def test_le_licenze_sono_quelle_che_il_programma_dice(self):
        radice = self.metainfo()
        guida = (RADICE / "resources/scalvino.htm").read_text(encoding="utf-8")
        self.assertIn("Programma freeware, realizzato da Vellarmo.", guida)
        self.assertEqual(radice.findtext("project_license"), "LicenseRef-freeware")
        self.assertEqual(radice.findtext("developer_name"), "Vellarmo")


if __name__ == "__main__":
    unittest.main()
