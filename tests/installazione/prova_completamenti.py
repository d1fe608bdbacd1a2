"""The completions of taglie in the real shells: what each offers is what the command takes."""

import os
import pty
import re
import select
import signal
import subprocess
import time
import unittest

from comune import Prova, fai, installa, opzioni_di_help

# Options whose value is one of a few words.
SCELTE = ["--forma", "--numeri", "--dati", "--avanzamento"]

COPIONE_BASH = """
. "$0"
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
_taglie
printf '%s\\n' "${COMPREPLY[@]}"
"""

# zsh offers through compadd: whatever it is given to offer is written down.
COPIONE_ZSH = """
PS1='pronto''>'
fpath=($FUNZIONI $fpath)
autoload -Uz compinit
compinit -u -D
compadd() {
    local -a trovati
    # Calls that only ask put the answer into an array of the caller's.
    if [[ ${@[(I)-[OAD]*]} -eq 0 ]]; then
        builtin compadd -O trovati "$@"
        print -lr -- $trovati >>$OFFERTE
    fi
    builtin compadd "$@"
}
"""
CANCELLA_RIGA = b"\x15"


class Completamenti(Prova):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        prefisso = cls.cartella / "prefisso"
        installa(prefisso, "comando")
        cls.taglie = prefisso / "bin/taglie"
        cls.dati = prefisso / "share"
        di_help = opzioni_di_help(fai(cls.taglie, "--help"))
        cls.corte = sorted(corta for corta, _, _ in di_help if corta)
        cls.lunghe = sorted(lunga for _, lunga, _ in di_help)
        cls.file = cls.cartella / "file"
        (cls.file / "taglie.d").mkdir(parents=True)
        (cls.file / "taglie.m").touch()
        cls.apri_zsh()

    def scelte(self, opzione):
        """The words that the command itself takes, from how it refuses another."""
        fatto = subprocess.run([self.taglie, opzione, "?"], capture_output=True, text=True,
                               check=False)
        parole = re.search(r"non è tra (.*)$", fatto.stderr)
        if parole is None:
            raise AssertionError(fatto.stderr)
        return sorted(parole[1].split(", "))

    # ---- Each shell: the offers for a command line, its last word still to be completed ----

    def bash(self, *parole):
        uscita = fai("bash", "--norc", "-c", COPIONE_BASH,
                     self.dati / "bash-completion/completions/taglie", "taglie", *parole,
                     cwd=self.file)
        return sorted(filter(None, uscita.splitlines()))

    def fish(self, *parole):
        riga = " ".join(("taglie", *parole))
        uscita = fai("fish", "--no-config", "-c", "source $argv[1]; complete -C $argv[2]",
                     self.dati / "fish/vendor_completions.d/taglie.fish", riga, cwd=self.file,
                     env={**os.environ, "LC_ALL": "C.UTF-8", "HOME": str(self.cartella)})
        return sorted(riga.split("\t")[0] for riga in uscita.splitlines())

    def zsh(self, *parole):
        offerte = self.cartella / "offerte"
        offerte.unlink(missing_ok=True)
        Completamenti.righe += 1
        os.write(self.lato, " ".join(("taglie", *parole)).encode() + b"\t" + CANCELLA_RIGA)
        # Written apart, so that the echo of the line is not taken for its output.
        os.write(self.lato, b"print fat''to%d.\n" % self.righe)
        # With its prompt zsh has taken the terminal over, which until then would take the key that
        # clears the line for itself.
        self.aspetta(self.lato, rb"fatto%d\..*pronto>" % self.righe)
        # The same word may be offered by several calls.
        return sorted({*offerte.read_text().splitlines()} - {""}) if offerte.exists() else []

    @classmethod
    def apri_zsh(cls):
        """One zsh on a terminal of its own for all lines: only there it completes."""
        (cls.cartella / ".zshrc").write_text(COPIONE_ZSH)
        ambiente = {**os.environ, "ZDOTDIR": str(cls.cartella), "TERM": "dumb",
                    "LC_ALL": "C.UTF-8", "OFFERTE": str(cls.cartella / "offerte"),
                    "FUNZIONI": str(cls.dati / "zsh/site-functions")}
        cls.lato, altro = pty.openpty()
        cls.addClassCleanup(os.close, cls.lato)
        processo = subprocess.Popen(["zsh", "-i", "-o", "NO_GLOBAL_RCS"], stdin=altro,
                                    stdout=altro, stderr=altro, cwd=cls.file, env=ambiente,
                                    start_new_session=True)
        os.close(altro)
        cls.addClassCleanup(processo.wait)
        cls.addClassCleanup(os.killpg, processo.pid, signal.SIGKILL)
        cls.righe = 0
        cls.aspetta(cls.lato, rb"pronto>")

    @staticmethod
    def aspetta(lato, segno):
        letto, fine = b"", time.monotonic() + 60
        while not re.search(segno, letto, re.DOTALL):
            if not select.select([lato], [], [], max(0, fine - time.monotonic()))[0]:
                raise AssertionError(letto)
            letto += os.read(lato, 65536)

    # ---- What all of them must offer ----

    def test_tutte_le_opzioni_di_help_e_nessun_altra(self):
        self.assertGreater(len(self.corte), 6)
        self.assertGreater(len(self.lunghe), 12)
        attese = sorted(self.corte + self.lunghe)
        for conchiglia in (self.bash, self.fish):
            self.assertEqual(conchiglia("-"), attese, conchiglia)
        # zsh leaves out a short name that stands beside its long one on the same line.
        self.assertEqual(self.zsh("--"), self.lunghe)
        self.assertTrue(set(self.zsh("-")) <= set(attese))
        self.assertTrue(set(self.zsh("-")) >= set(self.lunghe))

    def test_un_principio_basta(self):
        for conchiglia in (self.bash, self.fish, self.zsh):
            self.assertEqual(conchiglia("--f"), ["--forma"], conchiglia)
            self.assertEqual(conchiglia("--sa"), ["--salva-mazzi"], conchiglia)

    def test_i_valori_sono_quelli_che_il_comando_accetta(self):
        for opzione in SCELTE:
            attesi = self.scelte(opzione)
            for conchiglia in (self.bash, self.fish, self.zsh):
                self.assertEqual(conchiglia(opzione, ""), attesi, (opzione, conchiglia))
        # Whichever way a value is given.
        for conchiglia in (self.bash, self.fish, self.zsh):
            self.assertEqual(conchiglia("-f", "h"), ["html"], conchiglia)
        self.assertEqual(self.bash("--forma", "=", "n"), ["nessuna"])
        self.assertEqual(self.bash("--dati", "="), ["csv", "json"])
        self.assertEqual(self.zsh("--forma=n"), ["nessuna"])
        self.assertEqual(self.fish("--forma=n"), ["--forma=nessuna"])

    def test_i_nomi_di_file_e_di_cartelle(self):
        for opzione in ("--mazzi", "--salva-mazzi", "--colpi"):
            self.assertEqual(self.bash(opzione, "tag"), ["taglie.d", "taglie.m"])
            self.assertEqual(self.fish(opzione, "tag"), ["taglie.d/", "taglie.m"])
            self.assertEqual(self.zsh(opzione, "tag"), ["taglie.d", "taglie.m"])
        for opzione in ("-c", "--cartella"):
            self.assertEqual(self.bash(opzione, "tag"), ["taglie.d"])
            self.assertEqual(self.fish(opzione, "tag"), ["taglie.d/"])
            self.assertEqual(self.zsh(opzione, "tag"), ["taglie.d"])

    def test_dove_non_c_e_da_scegliere_non_si_offre_nulla(self):
        for parole in (("",), ("--seme", ""), ("-j", ""), ("--lavori", "")):
            for conchiglia in (self.bash, self.fish, self.zsh):
                self.assertEqual(conchiglia(*parole), [], (parole, conchiglia))
        # Where no more words may come, zsh goes on to the options by itself.
        for conchiglia in (self.bash, self.fish):
            self.assertEqual(conchiglia("3", ""), [], conchiglia)

    def test_bash_la_lega_al_comando(self):
        uscita = fai("bash", "--norc", "-c", '. "$0"; complete -p taglie',
                     self.dati / "bash-completion/completions/taglie")
        self.assertEqual(uscita, "complete -F _taglie taglie\n")

    def test_zsh_la_legge_senza_errori(self):
        fai("zsh", "-n", self.dati / "zsh/site-functions/_taglie")


if __name__ == "__main__":
    unittest.main()
