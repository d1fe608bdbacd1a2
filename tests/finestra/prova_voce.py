"""What a screen reader hears of the game, through the accessibility bus."""

import json
import re
import subprocess
import threading
import time
import unittest
from pathlib import Path

from schermo import Prova, aspetta

LETTORE = Path(__file__).with_name("lettore_voce.py")
CARTA = "(?:asso|due|tre|quattro|cinque|sei|sette|otto|nove|dieci|fante|donna|re) di " \
        "(?:fiori|quadri|cuori|picche)"
RIGA = f"((?:{CARTA}, )+)totale ([0-9]+)"
COLPO = re.compile(f"Colpo della taglia: ([0-9]+); NERO: {RIGA}; ROSSO: {RIGA}; "
                   "(Vincono (?:NERO|ROSSO) e (?:COLORE|INVERSO)|Colpo PARI|31 APRES); "
                   "Premi 'Colpo successivo --->' per proseguire nella partita")
PUNTI = dict(zip("asso due tre quattro cinque sei sette otto nove dieci".split(), range(1, 11)),
             fante=10, donna=10, re=10)


def punti(carte):
    return sum(PUNTI[carta.split()[0]] for carta in carte.rstrip(", ").split(", "))


class Bus:
    """A session bus of one's own with a reader on it."""

    def __init__(self, schermo):
        self.demone = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                                       env=schermo.ambiente, stdout=subprocess.PIPE, text=True,
                                       stderr=subprocess.DEVNULL)
        self.variabili = {"DBUS_SESSION_BUS_ADDRESS": self.demone.stdout.readline().strip()}
        self.detti = []
        self.lettore = subprocess.Popen(["/usr/bin/python3", LETTORE], text=True,
                                        env={**schermo.ambiente, **self.variabili},
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        threading.Thread(target=self._ascolta, daemon=True).start()
        aspetta(lambda: self.detti or self.lettore.poll() is not None, "il lettore")
        assert self.lettore.poll() is None, "il lettore non parte: manca python3-pyatspi?"

    def _ascolta(self):
        for riga in self.lettore.stdout:
            self.detti.append(json.loads(riga))

    def scelti(self, tipo, da=0):
        return [detto for detto in self.detti[da:] if detto["evento"].startswith(tipo)]

    def close(self):
        for processo in (self.lettore, self.demone):
            processo.terminate()
            processo.wait()
            processo.stdout.close()


class Voce(Prova):
    def setUp(self):
        self.bus = Bus(self.schermo)
        self.addCleanup(self.bus.close)
        self.finestra = self.avvia(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", **self.bus.variabili)
        self.finestra.pronta()
        time.sleep(1) # it has told the bus of itself

    def mostrati(self, da):
        return self.bus.scelti("object:state-changed:showing", da)

    def annuncio(self, gesto):
        """What is told once, and in one piece, after this gesture."""
        da = len(self.bus.detti)
        gesto()
        aspetta(lambda: self.mostrati(da), "l'annuncio")
        time.sleep(0.5) # for a second one
        detti = self.mostrati(da)
        self.assertEqual(len(detti), 1, detti)
        self.assertEqual((detti[0]["ruolo"], detti[0]["acceso"]), ("notification", 1))
        cambiati = self.bus.scelti("object:property-change:accessible-description", da)
        self.assertEqual([detto["testo"] for detto in cambiati], [detti[0]["testo"]])
        self.assertNotIn("focusable", detti[0]["stati"])
        return detti[0]["testo"]

    def test_ogni_colpo_si_sente_carta_per_carta(self):
        self.assertEqual(self.annuncio(lambda: self.finestra.clicca("cmdMescola")),
                         "Nuova taglia; 5 carte annullate; "
                         "Premi 'Colpo successivo --->' per iniziare la partita")
        for numero in range(1, 6):
            testo = self.annuncio(lambda: self.finestra.tasti("space"))
            colpo = COLPO.fullmatch(testo)
            self.assertIsNotNone(colpo, testo)
            self.assertEqual(colpo[1], str(numero))
            nero, rosso = int(colpo[3]), int(colpo[5])
            self.assertEqual((punti(colpo[2]), punti(colpo[4])), (nero, rosso))
            vince = "NERO" if nero < rosso else "ROSSO"
            if nero == rosso:
                self.assertEqual(colpo[6], "31 APRES" if nero == 31 else "Colpo PARI")
            else:
                self.assertIn(f"Vincono {vince} e", colpo[6])
        titolo = self.annuncio(lambda: self.finestra.clicca("cmdCancel"))
        self.assertTrue(titolo.startswith("SCALVINO; Simulazione gioco"), titolo)
        self.assertNotIn(" di quadri", titolo)

    def test_il_tavolo_non_prende_il_fuoco(self):
        self.finestra.clicca("cmdMescola")
        self.finestra.clicca("picCard")
        self.finestra.tasti(*["Tab"] * 12)
        time.sleep(0.5)
        fuochi = self.bus.scelti("object:state-changed:focused")
        self.assertGreater(len(fuochi), 8)
        self.assertNotIn("Tavolo da gioco", [detto["nome"] for detto in fuochi])


if __name__ == "__main__":
    unittest.main()
