"""Text strings of PDF files (ISO 32000-1, 7.9.2.2): from bytes to what they say."""

from sintassi import pretendi

# D.2, where it differs from Latin-1.
PARTICOLARI = dict(zip(range(0x18, 0x20), "˘ˇˆ˙˝˛˚˜"))
PARTICOLARI |= dict(zip(range(0x80, 0x9F), "•†‡…—–ƒ⁄‹›−‰„“”‘’‚™ﬁﬂŁŒŠŸŽıłœšž"))
PARTICOLARI[0xA0] = "€"
INDEFINITI = set(range(0x18)) - set(b"\t\n\r") | {0x7F, 0x9F, 0xAD}

SEDICI_BIT = b"\xFE\xFF"
OTTO_BIT = b"\xEF\xBB\xBF"

# In UTF-16 it would begin the name of a language.
FUGA = "\x1B"


def testo(byte):
    """What a text string says. A byte without a meaning is a fault."""
    pretendi(not byte.startswith(OTTO_BIT), "un testo in UTF-8, ignoto prima della 2.0")
    if byte.startswith(SEDICI_BIT):
        detto = byte[2:].decode("utf-16-be")
        pretendi(FUGA not in detto, f"un nome di lingua in {detto!r}")
        return detto
    ignoti = INDEFINITI & set(byte)
    pretendi(not ignoti, f"codici senza carattere {sorted(ignoti)} in {byte!r}")
    return "".join(PARTICOLARI.get(codice, chr(codice)) for codice in byte)
