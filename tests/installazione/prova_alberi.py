"""What cmake --install lays down, component by component, and both programs run from there."""

import os
import re
import signal
import unittest
from pathlib import Path
from urllib.parse import unquote

from comune import COMPONENTI, Prova, albero, differenze, fai, installa, tenuta

FINESTRA = "programma" in COMPONENTI
if FINESTRA:
    import schermo

VERDE = "69E600" # of the title screen

# Pages of the documentation may lead to what only the sources have.
SOLO_NEI_SORGENTI = {"../pdf/clsPDFCreator.h", "../pdf/clsPDFCreator_Options.h",
                     "rigenera.sh", "api/genera.sh"}


class Alberi(Prova):
    def test_ogni_componente_preparato_ha_il_suo_albero(self):
        for componente in COMPONENTI:
            with self.subTest(componente=componente):
                radice = self.cartella / componente
                installa("/opt/un altro posto", componente, radice)
                trovati = albero(radice / "opt/un altro posto")
                self.assertEqual(differenze(trovati, tenuta(componente)), ([], []))
                self.assertEqual(len(albero(radice)), len(trovati))

    def test_tutti_insieme_sono_l_installazione_intera(self):
        prefisso = self.cartella / "intera"
        installa(prefisso)
        attesi = [riga for componente in COMPONENTI for riga in tenuta(componente)]
        self.assertEqual(differenze(albero(prefisso), attesi), ([], []))

    def test_nessun_file_sa_dove_fu_costruito(self):
        prefisso = self.cartella / "nomi"
        for componente in set(COMPONENTI) - {"documentazione"}:
            installa(prefisso, componente)
        luoghi = [os.fsencode(os.environ[nome]) for nome in ("COSTRUITA", "RADICE")]
        luoghi.append(os.fsencode(prefisso))
        for nome in albero(prefisso):
            byte = (prefisso / nome).read_bytes()
            self.assertEqual([luogo for luogo in luoghi if luogo in byte], [], nome)

    def test_le_pagine_portano_a_file_installati(self):
        radice = self.cartella / "documenti"
        installa(radice, "documentazione")
        legami = 0
        for pagina in radice.rglob("*.md"):
            # In what is shown as it is, a lambda looks like a link.
            testo = re.sub(r"^```.*?^```", "", pagina.read_text(), flags=re.DOTALL | re.MULTILINE)
            for meta in re.findall(r"\]\(([^)#]+)[^)]*\)", testo):
                legami += 1
                if meta not in SOLO_NEI_SORGENTI and "://" not in meta:
                    self.assertTrue((pagina.parent / unquote(meta)).exists(), (pagina.name, meta))
        self.assertGreater(legami, 40)


class Spostati(Prova):
    """The programs, installed in one place and moved to another."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        prima = cls.cartella / "prima"
        for componente in {"programma", "comando"} & set(COMPONENTI):
            installa(prima, componente)
        cls.spostata = cls.cartella / "spostata altrove"
        prima.rename(cls.spostata)
        if FINESTRA:
            cls.schermo = schermo.Schermo()
            cls.addClassCleanup(cls.schermo.close)

    def avvia(self, *argomenti):
        """The window, started with arguments that a program with options would know."""
        programma = self.spostata / "bin/scalvino"
        if argomenti:
            copione = self.cartella / "avvia.sh"
            copione.write_text(f'#!/bin/sh\nexec "{programma}" {" ".join(argomenti)}\n')
            copione.chmod(0o755)
            programma = copione
        finestra = schermo.Finestra(self.schermo, 1, programma)
        self.addCleanup(finestra.close)
        return finestra.pronta()

    def test_taglie(self):
        lavoro = self.cartella / "lavoro"
        lavoro.mkdir()
        uscita = fai(self.spostata / "bin/taglie", "3", cwd=lavoro)
        self.assertEqual(Path(uscita.strip()).resolve(), (lavoro / "taglie.txt").resolve())
        report = (lavoro / "taglie.txt").read_bytes()
        self.assertEqual(report.count(b"\r\n\t\t\tTaglia "), 3)
        self.assertIn(b"Statistiche generali", report)
        versione = fai(self.spostata / "bin/taglie", "--version")
        self.assertEqual(versione, f"taglie {os.environ['VERSIONE']}\n")

    @unittest.skipUnless(FINESTRA, "built without the window")
    def test_la_finestra(self):
        finestra = self.avvia()
        schermo.aspetta(lambda: finestra.colore(230, 30) == VERDE, "il titolo")
        # What the desktop entry tells the desktop, so that window and entry belong together.
        classe = self.schermo.fa("xprop", "-id", finestra.id, "WM_CLASS")
        voce = (self.spostata / "share/applications/scalvino.desktop").read_text()
        self.assertIn(f'"{re.search("StartupWMClass=(.*)", voce)[1]}"', classe)
        prima = finestra.tavolo()
        finestra.clicca("cmdMescola")
        schermo.aspetta(lambda: finestra.tavolo() != prima, "le carte")
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)

    @unittest.skipUnless(FINESTRA, "built without the window")
    def test_la_finestra_ignora_le_opzioni_che_non_conosce(self):
        finestra = self.avvia("--aiuto", "-s", "7")
        schermo.aspetta(lambda: finestra.colore(230, 30) == VERDE, "il titolo")
        os.kill(finestra.processo.pid, signal.SIGTERM)
        self.assertEqual(finestra.esito(), 0)


if __name__ == "__main__":
    unittest.main()
