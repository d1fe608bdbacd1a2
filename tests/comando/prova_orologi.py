"""Clocks that show anything: midnight, standing, going backwards, far years, changes of the hour."""

import json
import os
import re
import subprocess
import unittest
from datetime import datetime, timedelta, timezone
from zoneinfo import ZoneInfo

from aiuti import ATTESA, FATTO, RIFIUTO, Prova, ambiente

OROLOGIO_FINTO = os.environ["OROLOGIO_FINTO"]
SEGNA_ORA = os.environ["SEGNA_ORA"]

SECONDO = 10**9
GIORNO = 86400
CARTE = list(range(1, 313))


def istante(*data, zona="UTC"):
    return int(datetime(*data, tzinfo=ZoneInfo(zona)).timestamp())


# Name, seconds since 1970, nanoseconds by which each answer is later, time zone.
OROLOGI = [
    ("mezzanotte", istante(2026, 12, 31, 23, 59, 59), SECONDO // 100, "UTC"),
    ("mezzanotte a ritroso", istante(2026, 1, 1), -SECONDO // 100, "UTC"),
    ("fermo", istante(2026, 6, 1, 12), 0, "Europe/Rome"),
    ("fermo a mezzanotte", istante(2026, 6, 1), 0, "UTC"),
    ("a ritroso", istante(2026, 6, 1, 12), -7 * SECONDO, "Europe/Rome"),
    ("a balzi di un giorno", istante(2026, 6, 1, 12), GIORNO * SECONDO, "Europe/Rome"),
    ("anno 2100", istante(2100, 2, 28, 23, 59, 59), SECONDO, "UTC"),
    ("giorno bisestile", istante(2028, 2, 29, 12), SECONDO, "Europe/Rome"),
    ("dopo il 2038", istante(2040, 1, 1), SECONDO, "America/New_York"),
    ("prima del 1980", istante(1979, 6, 1, 8), SECONDO, "Europe/Rome"),
    ("prima del 1970", istante(1969, 12, 31, 23, 59, 59) - 5, SECONDO // 2, "Asia/Kathmandu"),
    ("ora legale", istante(2026, 3, 29, 0, 59, 59), SECONDO // 50, "Europe/Rome"),
    ("ora solare", istante(2026, 10, 25, 0, 59, 59), SECONDO // 50, "Europe/Rome"),
    ("ora solare a ritroso", istante(2026, 10, 25, 1, 0, 1), -SECONDO // 50, "Europe/Rome"),
    ("mezz'ora legale", istante(2026, 4, 4, 14, 59, 59), SECONDO // 50, "Australia/Lord_Howe"),
]


def finto(inizio=None, passo=0, monotono=None, monotono_passo=0, zona="UTC"):
    """The environment of a program that sees these clocks."""
    # The sanitizers want to come first, but get along with what replaces no memory.
    opzioni = os.environ.get("ASAN_OPTIONS", "")
    variabili = {"LD_PRELOAD": OROLOGIO_FINTO, "TZ": zona,
                 "ASAN_OPTIONS": f"{opzioni}:verify_asan_link_order=0"}
    if inizio is not None:
        variabili.update(OROLOGIO=str(inizio), OROLOGIO_PASSO=str(passo))
    if monotono is not None:
        variabili.update(MONOTONO=str(monotono), MONOTONO_PASSO=str(monotono_passo))
    env = ambiente(**variabili)
    env.pop("SOURCE_DATE_EPOCH", None)
    return env


class OraDelGiorno(unittest.TestCase):
    def letture(self, env):
        fatto = subprocess.run([SEGNA_ORA], env=env, capture_output=True, timeout=ATTESA)
        self.assertEqual((fatto.returncode, fatto.stderr), (0, b""))
        return [float(riga) for riga in fatto.stdout.split()]

    def test_i_secondi_da_mezzanotte_sono_quelli_del_quadrante(self):
        for nome, inizio, passo, zona in OROLOGI:
            with self.subTest(nome):
                letture = self.letture(finto(inizio, passo, zona=zona))
                self.assertEqual(len(letture), 10)
                for i, letta in enumerate(letture):
                    ora = (datetime.fromtimestamp(inizio, timezone.utc) +
                           timedelta(microseconds=i * passo // 1000)).astimezone(ZoneInfo(zona))
                    attesa = (ora.hour * 3600 + ora.minute * 60 + ora.second +
                              ora.microsecond / 1e6)
                    self.assertAlmostEqual(letta, attesa, places=4)
                    self.assertTrue(0 <= letta < GIORNO)


class Mescolate(Prova):
    def mazzi(self, env, *altre):
        self.fa("40", "-f", "nessuna", "--salva-mazzi", "m", *altre, env=env)
        mazzi = [[int(carta) for carta in riga.split(b",")]
                 for riga in self.byte("m").splitlines()]
        self.assertEqual(len(mazzi), 40)
        for mazzo in mazzi:
            self.assertEqual(sorted(mazzo), CARTE)
        return [tuple(mazzo) for mazzo in mazzi]

    def test_tutte_buone_e_tutte_diverse(self):
        viste = set()
        for nome, inizio, passo, zona in OROLOGI:
            with self.subTest(nome):
                # Two runs at the very same time.
                mazzi = [*self.mazzi(finto(inizio, passo, zona=zona)),
                         *self.mazzi(finto(inizio, passo, zona=zona))]
                self.assertEqual(len(set(mazzi)), 80)
                self.assertFalse(viste & set(mazzi))
                viste |= set(mazzi)

    def test_con_un_seme_l_orologio_non_conta(self):
        attesi = self.mazzi(ambiente(), "--seme", "5")
        for nome, inizio, passo, zona in OROLOGI:
            with self.subTest(nome):
                self.assertEqual(self.mazzi(finto(inizio, passo, zona=zona), "--seme", "5"), attesi)


class Date(Prova):
    def date(self, env):
        self.fa("1", "-f", "pdf", "--seme", "1", env=env)
        byte = self.byte("taglie.pdf")
        creata, = re.findall(rb"/CreationDate \(D:(\d{14})Z\+01'00'\)\r", byte)
        altre = re.findall(rb"<(?:pdf|xap):\w*Date>D:(\d{14})Z\+01'00'</", byte)
        self.assertEqual(altre, [creata] * 5)
        self.assertEqual(byte.count(b"D:"), 6)
        anno, = re.findall(rb"\(Scalvino \xa9 (\d{4})\) ?Tj", byte)
        return creata.decode(), anno.decode()

    def test_le_date_sono_quelle_dell_orologio(self):
        for nome, inizio, passo, zona in OROLOGI:
            with self.subTest(nome):
                creata, anno = self.date(finto(inizio, passo, zona=zona))
                if passo == 0:
                    ora = datetime.fromtimestamp(inizio, ZoneInfo(zona))
                    self.assertEqual(creata, ora.strftime("%Y%m%d%H%M%S"))
                    self.assertEqual(anno, ora.strftime("%Y"))
                letta = datetime.strptime(creata, "%Y%m%d%H%M%S")  # a day that there is
                scarto = letta - datetime.fromtimestamp(inizio, ZoneInfo(zona)).replace(tzinfo=None)
                # Some draws have asked the clock before; an hour may have been given or taken.
                self.assertLess(abs(scarto), abs(passo) / SECONDO * timedelta(seconds=9999) +
                                timedelta(hours=1, seconds=1))

    def test_il_giorno_bisestile_e_gli_anni_lontani(self):
        for inizio, attesa in {istante(2028, 2, 29, 12): "20280229120000",
                               istante(2100, 2, 28, 23, 59, 59): "21000228235959",
                               istante(2100, 3, 1): "21000301000000",
                               istante(1979, 6, 1, 8): "19790601080000",
                               istante(9999, 12, 31, 23, 59, 59): "99991231235959"}.items():
            self.assertEqual(self.date(finto(inizio)), (attesa, attesa[:4]))


    def test_oltre_il_9999_il_documento_e_rifiutato_e_il_resto_no(self):
        # A year of five digits, and one of more digits than the library's calendar has.
        for inizio in [istante(9999, 12, 31, 23, 59, 59) + 1, 10**17]:
            for argomenti in [["1"], ["-s", 10**15]]:
                esito = self.taglie("-f", "pdf", *argomenti, env=finto(inizio))
                self.errore(esito, RIFIUTO, "taglie: orologio del sistema: segna una data oltre "
                                            "l'anno 9999")
            self.assertEqual(self.contenuto(), [])
        self.fa("1", env=finto(istante(9999, 12, 31, 23, 59, 59) + 1))


class Durate(Prova):
    def avanzamento(self, env):
        esito = self.taglie("3000", "-s", "--avanzamento", "sempre", env=env)
        self.assertEqual(esito.codice, FATTO)
        return esito.errori.decode().splitlines()

    def test_l_avanzamento_con_un_orologio_fermo_o_a_ritroso(self):
        for passo in [0, -SECONDO, -1]:
            self.assertEqual(self.avanzamento(finto(monotono=10**6, monotono_passo=passo)), [])

    def test_l_avanzamento_con_un_orologio_a_balzi(self):
        for passo in [SECONDO, 3600 * SECONDO, 10**6 * SECONDO]:
            righe = self.avanzamento(finto(monotono=10**6, monotono_passo=passo))
            self.assertGreater(len(righe), 1000)
            for riga in righe:
                self.assertRegex(riga, r"\A(1 taglia|\d+ taglie) su 3000 \(\d+%\), \d+ al secondo"
                                       r"(, mancano \d+(:\d\d){1,2})?\Z")

    def test_i_secondi_dei_dati_sono_un_numero(self):
        for passo in [0, -SECONDO, 10**6 * SECONDO]:
            dati = json.loads(self.fa("3", "--dati", "json", env=finto(
                monotono=10**6, monotono_passo=passo)).uscita)
            self.assertIsInstance(dati["secondi"], (int, float))
            self.assertGreaterEqual(dati["secondi"], 0)


class Finto(Prova):
    def test_l_orologio_e_davvero_finto(self):
        self.fa("1", "-f", "pdf", env=finto(istante(2028, 2, 29, 1, 2, 3)))
        self.assertIn(b"D:20280229010203", self.byte("taglie.pdf"))


if __name__ == "__main__":
    unittest.main()
