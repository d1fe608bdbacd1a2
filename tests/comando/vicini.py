"""A folder full of entries beside ours, and whether any of them changed."""

import hashlib
import os
import socket

NOSTRI = {"taglie.txt", "taglie.htm", "taglie.pdf", "scalvino.htm"}


def popola(cartella):
    """A folder full of entries whose names or insides resemble ours."""
    for nome in ["taglie", "taglie.txt~", "taglie.txt.bak", "taglie.txt.1", "taglie.html", "taglie.htm_",
                 "taglie.pdf.part", "taglie.csv", "taglie.tx", "taglie.txt ", " taglie.txt", "xtaglie.txt",
                 "taglie_txt", "TAGLIE.TXT", "Taglie.htm", "taglie.PDF", "Scalvino.htm", "scalvino.html",
                 "scalvino.pdf", "scalvino.txt", ".taglie.txt", ".scalvino.htm", "~1A2B.pdf", "#taglie.txt#",
                 "taglie.txt.lock", ".nfs0001", "core"]:
        (cartella / nome).write_bytes(b"di " + nome.encode())
    (cartella / "muto").write_bytes(b"")
    (cartella / "muto").chmod(0)
    sotto = cartella / "sotto"
    sotto.mkdir()
    for nome in NOSTRI:
        (sotto / nome).write_bytes(b"in sotto")
        (cartella / ("legame a " + nome)).symlink_to(nome)
    (cartella / "taglie.d").mkdir()
    (cartella / "legame nel vuoto").symlink_to("niente")
    (cartella / "legame fuori").symlink_to("/etc/passwd")
    os.mkfifo(cartella / "taglie.fifo")
    with socket.socket(socket.AF_UNIX) as presa:
        presa.bind(str(cartella / "taglie.sock"))
    # What our names lead to, or share a file with, is no file of ours.
    (cartella / "prezioso").write_bytes(b"di valore")
    (cartella / "taglie.htm").symlink_to("prezioso")
    (cartella / "taglie.txt").write_bytes(b"di prima")
    os.link(cartella / "taglie.txt", cartella / "stesso file")


def impronta(percorso):
    stato = percorso.lstat()
    base = (stato.st_mode, stato.st_uid, stato.st_gid)
    if percorso.is_symlink():
        return *base, os.readlink(percorso)
    if percorso.is_dir():
        return base
    byte = percorso.read_bytes() if percorso.is_file() else b""
    return *base, stato.st_ino, stato.st_mtime_ns, hashlib.sha256(byte).hexdigest()


def elenco(cartella):
    """All entries but ours, with all that could be changed in them."""
    return {str(voce.relative_to(cartella)): impronta(voce)
            for voce in sorted(cartella.rglob("*"))
            if voce.parent != cartella or voce.name not in NOSTRI}
