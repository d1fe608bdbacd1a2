"""What the tests of the structure read out of a C++ source: its opening line, its functions, names.

No compiler: a source laid out by clang-format is regular enough for the few questions asked here,
and prova_sorgenti.py shows on small sources that each question is answered.
"""

import re
from typing import NamedTuple

LETTERALI = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<segno>[^(]*)\(.*?\)(?P=segno)"|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])*'|^[ \t]*#(?:\\\n|[^\n])*", re.DOTALL | re.MULTILINE)
TIPO = re.compile(r"\b(class|struct|union|enum)\b")
# A member that a constructor begins with, before its braces: "Name() : m_a(1), m_b".
MEMBRO = re.compile(r"\)\s*(?:noexcept\s*)?[:,](?!:)[^;]*\w(?<!const)(?<!noexcept)(?<!override)\s*$")
NOME = re.compile(r"(operator\s*(?:\(\)|[^\s(]+)|[\w:~]+)\s*\(")


def senza_sistema(nome):
    """A source's name without its ending and its system: Orologio_posix.cpp is Orologio."""
    return re.sub(r"(_posix|_windows)?\.\w+$", "", nome)


def fonte_della_prova(prova, fonti):
    """The source that a test is named after, or None. What stands after it says what is tried; the
    name of a class spread over several sources may be left out: prova_Text_Righe.cpp for
    clsPDFCreator_Text.cpp."""
    case = {nome.split("_", 1)[-1]: nome for nome in fonti} | {nome: nome for nome in fonti}
    parti = senza_sistema(prova).removeprefix("prova_").split("_")
    nomi = ("_".join(parti[:quante]) for quante in range(len(parti), 0, -1))
    return next((case[nome] for nome in nomi if nome in case), None)


class Funzione(NamedTuple):
    nome: str
    riga: int      # of its opening brace
    lunghezza: int # lines between its braces; 1 where all stands on one line


class Dichiarazione(NamedTuple):
    luogo: tuple # the namespaces and classes around it, for example ("pdf", "Objects")
    nome: str
    pubblica: bool
    riga: int


def apertura(testo):
    """Whether a source or a script opens with words on what it is for."""
    senza_interprete = re.sub(r"\A(#!.*\n)?(# shellcheck .*\n)?", "", testo)
    return re.match(r"""(?:// |# |\"{3})\w\S*( \S+){2}""", senza_interprete) is not None


def spoglia(testo):
    """The source without comments, texts and preprocessor lines, each line where it was."""
    def vuoto(trovato):
        intero = trovato[0]
        righe = "\n" * intero.count("\n")
        return '""' + righe if intero[0] in "\"'R" else righe

    return LETTERALI.sub(vuoto, testo)


def _senza_argomenti(testa):
    """What stands in no parentheses; a pair of them is left as ()."""
    while True:
        senza = re.sub(r"\((?=[^()])[^()]*\)", "()", testa)
        if senza == testa:
            return testa
        testa = senza.replace("(())", "()")


def _nome(testa):
    """The function that a declaration or a definition names, or None."""
    testa = re.sub(r"\[\[.*?\]\]|\btemplate\s*<.*?>(?=\s*[\w\[])|\balignas\s*\(.*?\)", " ", testa,
                   flags=re.DOTALL)
    testa = re.sub(r"\bdecltype\s*\(.*?\)", "auto", testa, flags=re.DOTALL)
    trovato = NOME.search(testa)
    if trovato is None or "=" in testa[:trovato.start()]:
        return None
    return re.sub(r"\s", "", trovato[1])


def _genere(testa, attorno):
    """What a brace after these words opens, inside a block of the given kind."""
    if attorno in ("funzione", "blocco"):
        return "blocco"
    piana = _senza_argomenti(testa)
    if re.search(r"\bnamespace\b|\bextern\s*\"\"\s*$", piana):
        return "spazio"
    if TIPO.search(piana) and "(" not in piana.split(":")[0].replace("alignas()", ""):
        return "tipo"
    if _nome(testa) is None or MEMBRO.search(piana):
        return "valori"
    return "funzione"


class _Lettura:
    """One pass over a stripped source: functions with a body, and what is declared without one."""

    def __init__(self, testo):
        self.funzioni, self.dichiarazioni = [], []
        self.blocchi, self.testa = [], ""
        self.riga = 1
        for segno in spoglia(testo):
            self.leggi(segno)
            if segno == "\n":
                self.riga += 1

    def leggi(self, segno):
        if segno == "{":
            self.apri()
        elif segno == "}":
            self.chiudi()
        elif segno == ";" and "(" in self.testa and self.testa.count("(") > self.testa.count(")"):
            self.testa += segno # inside for (...)
        elif segno == ";":
            self.dichiara()
            self.testa = ""
        elif segno == ":" and re.fullmatch(r"\s*(public|protected|private)\s*", self.testa):
            self.blocchi[-1]["pubblico"] = self.testa.strip() == "public"
            self.testa = ""
        else:
            self.testa += segno

    def apri(self):
        genere = _genere(self.testa, self.blocchi[-1]["genere"] if self.blocchi else "spazio")
        if genere == "funzione":
            self.dichiara()
        tipo = TIPO.search(self.testa)
        nome = re.sub(r"\[\[.*?\]\]|\bfinal\b|(?<!:):(?!:).*", "", self.testa, flags=re.DOTALL).split()
        self.blocchi.append({"genere": genere, "riga": self.riga, "testa": self.testa,
                             "nome": nome[-1] if nome and nome[-1] != "namespace" else "",
                             "pubblico": tipo is None or tipo[1] != "class"})
        self.testa = ""

    def chiudi(self):
        blocco = self.blocchi.pop()
        if blocco["genere"] == "funzione":
            lunghezza = max(1, self.riga - blocco["riga"] - 1)
            self.funzioni.append(Funzione(_nome(blocco["testa"]), blocco["riga"], lunghezza))
        # What follows the braces of a value still belongs to what came before them.
        self.testa = blocco["testa"] + "()" if blocco["genere"] == "valori" else ""

    def dichiara(self):
        nome = _nome(self.testa)
        if nome is None or any(b["genere"] not in ("spazio", "tipo") for b in self.blocchi):
            return
        if re.match(r"\s*(using|typedef|friend|static_assert|return)\b", self.testa):
            return
        luogo = tuple(blocco["nome"] for blocco in self.blocchi)
        self.dichiarazioni.append(Dichiarazione(
            luogo, nome, all(blocco["pubblico"] for blocco in self.blocchi[-1:]), self.riga))


def funzioni(testo):
    """Every function of a source that has a body, in the order in which they end."""
    return _Lettura(testo).funzioni


def dichiarazioni(testo):
    """Every function that stands in namespaces and classes, with a body or without."""
    return _Lettura(testo).dichiarazioni


def aiuti_prestati(testo):
    """The procedures that a header of pdf/ lends to other sources: those of namespace pdf, and public
    ones of the two that own state."""
    for luogo, nome, pubblica, _ in dichiarazioni(testo):
        classe = luogo[-1].split("::")[-1] if luogo else ""
        proprio = nome.lstrip("~") == classe or nome.startswith("operator")
        if luogo == ("pdf",) or classe in {"State", "Objects"} and pubblica and not proprio:
            yield nome
