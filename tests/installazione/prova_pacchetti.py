#!/usr/bin/env python3
"""The Debian packages: judged by lintian, installed in THIS system, tried, and removed again.

Usage: prova_pacchetti.py --cambia-il-sistema FOLDER-OF-THE-PACKAGES

Not among the tests that ctest runs, because it changes the system: root or sudo installs and purges
the packages, and what they need stays. It refuses where one of them is installed already. Needs
lintian, the shells of the completions and what finestra/schermo.py needs.
"""

import os
import re
import shlex
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

QUI = Path(__file__).resolve().parent
sys.path.append(str(QUI.parent / "finestra"))
os.environ.update(COSTRUITA="", CMAKE="cmake", COMPONENTI="", SCALVINO="/usr/bin/scalvino")
os.environ.setdefault("ARTEFATTI", tempfile.gettempdir() + "/scalvino-schermate")

import schermo
from comune import Prova, albero, differenze, fai, tenuta

COMPONENTI = {"scalvino": "programma", "taglie": "comando", "libclspdfcreator-dev": "libreria",
              "scalvino-doc": "documentazione"}
VERDE = "69E600" # of the title screen
ROOT = [] if os.geteuid() == 0 else ["sudo"]
APT = [*ROOT, "env", "DEBIAN_FRONTEND=noninteractive", "LC_ALL=C"]

# Where packages put what they bring. The lists of what apt could fetch are not theirs.
LUOGHI = ["/etc", "/opt", "/usr", "/var/lib"]
NON_LORO = {"/var/lib/apt"}
PACCHETTI = {}


def file_del_sistema():
    trovati = set()
    for luogo in LUOGHI:
        for cartella, sottocartelle, nomi in os.walk(luogo):
            sottocartelle[:] = [s for s in sottocartelle if f"{cartella}/{s}" not in NON_LORO]
            trovati.update(f"{cartella}/{nome}" for nome in (*sottocartelle, *nomi))
    return trovati


def file_del_pacchetto(nome):
    """The kept list of a component, laid down as Debian wants it."""
    libreria = "lib/" + fai("dpkg-architecture", "-qDEB_HOST_MULTIARCH").strip()
    righe = [f"share/doc/{nome}/changelog.Debian.gz", f"share/doc/{nome}/copyright"]
    if nome == "libclspdfcreator-dev":
        righe.append(f"share/lintian/overrides/{nome}")
    for riga in tenuta(COMPONENTI[nome]):
        riga = re.sub(r"^lib(?=/)", libreria, riga)
        riga = re.sub(r"^share/man/.*$", r"\g<0>.gz", riga)
        righe.append(riga.replace("zsh/site-functions", "zsh/vendor-completions"))
    return righe


class Pacchetti(Prova):
    def test_1_lintian_non_trova_nulla(self):
        radice = ["--allow-root"] if os.geteuid() == 0 else []
        uscita = fai("lintian", "--fail-on", "error,warning", *radice, *PACCHETTI.values())
        self.assertEqual(uscita, "")

    def test_1_contengono_i_componenti(self):
        self.assertEqual(sorted(PACCHETTI), sorted(COMPONENTI))
        for nome, percorso in PACCHETTI.items():
            with self.subTest(pacchetto=nome):
                radice = self.cartella / nome
                fai("dpkg-deb", "-x", percorso, radice)
                trovati = albero(radice / "usr")
                self.assertEqual(differenze(trovati, file_del_pacchetto(nome)), ([], []))
                self.assertEqual(len(albero(radice)), len(trovati))

    def test_1_i_diritti_sono_quelli_dichiarati(self):
        for nome, percorso in PACCHETTI.items():
            radice = self.cartella / f"diritti-{nome}"
            fai("dpkg-deb", "-x", percorso, radice)
            testo = (radice / f"usr/share/doc/{nome}/copyright").read_text(encoding="utf-8")
            self.assertIn("Programma freeware, realizzato da Vellarmo.", testo)
            self.assertTrue(fai("dpkg-deb", "-f", percorso, "Section").startswith("non-free/"))

    def test_1_le_dipendenze_nominano_anche_cio_che_il_collegatore_non_vede(self):
        attese = {
            "scalvino": {"libqt6widgets6", "libqt6svg6", "fonts-liberation2", "fonts-dejavu-core",
                         "qt6-translations-l10n", "libc6", "libstdc++6"},
            "taglie": {"libc6", "libstdc++6"}, "libclspdfcreator-dev": {"libc6", "libstdc++6"},
            "scalvino-doc": set()}
        for nome, percorso in PACCHETTI.items():
            testo = fai("dpkg-deb", "-f", percorso, "Depends")
            nomi = set(re.findall(r"[a-z][a-z0-9+-]+(?= |,|$)", re.sub(r"\([^)]*\)", "", testo)))
            self.assertLessEqual(attese[nome], nomi)
            self.assertEqual(any("qt6" in n for n in nomi), nome == "scalvino", nome)
        for voluto in ("qt6-wayland", "xdg-utils"):
            self.assertIn(voluto, fai("dpkg-deb", "-f", PACCHETTI["scalvino"], "Recommends"))

    def test_1_versione_e_data_sono_quelle_del_rilascio(self):
        registro = QUI.parents[1] / "packaging/debian/changelog"
        versione = fai("dpkg-parsechangelog", "-l", registro, "-S", "Version").strip()
        for nome, percorso in PACCHETTI.items():
            self.assertEqual(fai("dpkg-deb", "-f", percorso, "Version").strip(), versione, nome)
        giorno = fai("date", "-u", "+%F", "-d", fai("dpkg-parsechangelog", "-l", registro,
                                                    "-S", "Date").strip()).strip()
        fai("dpkg-deb", "-x", PACCHETTI["scalvino"], self.cartella / "date")
        metainfo, = (self.cartella / "date/usr/share/metainfo").iterdir()
        self.assertIn(f'version="{versione.split("-")[0]}" date="{giorno}"', metainfo.read_text())

    def test_2_installati_vanno_e_tolti_non_lasciano_nulla(self):
        for percorso in PACCHETTI.values():
            dipendenze = fai("dpkg-deb", "-f", percorso, "Depends").strip()
            if dipendenze:
                fai(*APT, "apt-get", "-q", "satisfy", "-y", "--no-install-recommends", dipendenze)
        prima = file_del_sistema()
        # dpkg fetches nothing: it refuses if what was named just now is not enough.
        self.addCleanup(self.togli)
        fai(*APT, "dpkg", "-i", *PACCHETTI.values())
        self.prova_il_comando()
        self.prova_i_manuali()
        self.prova_i_completamenti()
        self.prova_la_libreria()
        self.prova_la_finestra()
        self.togli()
        self.assertEqual(sorted(file_del_sistema() - prima), [])
        self.assertNotIn("clsPDFCreator", fai("/sbin/ldconfig", "-p"))

    @staticmethod
    def togli():
        fai(*APT, "dpkg", "--purge", *PACCHETTI)

    def prova_il_comando(self):
        uscita = fai("taglie", "3", cwd=self.cartella)
        self.assertEqual(Path(uscita.strip()).name, "taglie.txt")
        report = (self.cartella / "taglie.txt").read_bytes()
        self.assertEqual(report.count(b"\r\n\t\t\tTaglia "), 3)

    def prova_i_manuali(self):
        for nome in ("taglie", "scalvino"):
            for lingua, cartella in (("C", "man"), ("it", "man/it")):
                trovato = fai("man", "-L", lingua, "-w", nome).strip()
                self.assertEqual(trovato, f"/usr/share/{cartella}/man1/{nome}.1.gz")

    def prova_i_completamenti(self):
        """Each shell finds them by itself."""
        bash = ". /usr/share/bash-completion/bash_completion; __load_completion taglie; " \
            "complete -p taglie"
        self.assertIn("_taglie", fai("bash", "--norc", "-c", bash))
        zsh = "autoload -Uz compinit; compinit -u -D; print -- $_comps[taglie]"
        self.assertEqual(fai("zsh", "-f", "-c", zsh), "_taglie\n")
        self.assertIn("--forma", fai("fish", "-c", "complete -C 'taglie --f'"))

    def prova_la_libreria(self):
        """Found without being told where, at building and at starting."""
        programma, pdf = self.cartella / "saluto", self.cartella / "saluto.pdf"
        for statica in [[], ["-static"]]:
            opzioni = shlex.split(fai("pkg-config", "--cflags", "--libs",
                                      *(f"-{o}" for o in statica), "clsPDFCreator"))
            fai("g++", "-std=c++17", QUI / "progetto/saluto.cpp", "-o", programma, *statica,
                *opzioni)
            if not statica:
                self.assertIn("libclsPDFCreator.so.1 => /", fai("ldd", programma))
            fai(programma, pdf)
            self.assertEqual(pdf.read_bytes()[:5], b"%PDF-")

    def prova_la_finestra(self):
        visto = schermo.Schermo()
        self.addCleanup(visto.close)
        finestra = schermo.Finestra(visto)
        self.addCleanup(finestra.close)
        finestra.pronta()
        schermo.aspetta(lambda: finestra.colore(230, 30) == VERDE, "il titolo")
        prima = finestra.tavolo()
        finestra.clicca("cmdMescola")
        schermo.aspetta(lambda: finestra.tavolo() != prima, "le carte")
        finestra.fotografa("pacchetto")
        finestra.chiudi()
        self.assertEqual(finestra.esito(), 0)


def principale(argomenti):
    if len(argomenti) != 2 or argomenti[0] != "--cambia-il-sistema":
        sys.exit(__doc__)
    cartella = Path(argomenti[1]).resolve()
    for percorso in cartella.glob("*.deb"):
        PACCHETTI[fai("dpkg-deb", "-f", percorso, "Package").strip()] = percorso
    for nome in COMPONENTI:
        stato = subprocess.run(["dpkg-query", "-W", "-f=${Status}", nome], capture_output=True,
                               text=True, check=False).stdout
        if stato and "not-installed" not in stato:
            sys.exit(f"{nome} è già installato: questa prova lo toglierebbe")
    print(f"Installo e tolgo in questo sistema: {' '.join(PACCHETTI)}", file=sys.stderr)
    unittest.main(argv=[sys.argv[0], "-v"])


if __name__ == "__main__":
    principale(sys.argv[1:])
