"""The help page taken apart: its text by section, its links, its table rows."""

from html.parser import HTMLParser

SENZA_FINE = {"meta", "br"}
RISORSE = {"img", "script", "link", "iframe", "object", "embed", "audio", "video", "source", "base"}


class Pagina(HTMLParser):
    """Raises AssertionError where an element is closed out of turn."""

    def __init__(self, testo):
        super().__init__(convert_charrefs=True)
        self.testi, self.righe, self.ancore = {}, [], []
        self.collegamenti, self.esterne, self.attributi = [], [], []
        self._aperti, self._sezione, self._stile = [], "testa", ""
        self.feed(testo)
        self.close()
        assert not self._aperti, self._aperti

    @property
    def stile(self):
        return self._stile

    def testo(self, sezione):
        """The words of a section, blanks made single."""
        return " ".join(self.testi[sezione].split())

    def handle_starttag(self, nome, attributi):
        if nome not in SENZA_FINE:
            self._aperti.append(nome)
        dati = dict(attributi)
        self.attributi += dati
        if nome in RISORSE or {"src", "srcset", "background"} & dati.keys():
            self.esterne.append(nome)
        if "id" in dati:
            self.ancore.append(dati["id"])
        if nome in {"section", "header"}:
            self._sezione = dati["id"]
        if nome == "a":
            self.collegamenti.append([self._sezione, dati["href"], ""])
        if nome == "tr":
            self.righe.append([])
        if nome in {"td", "th"}:
            self.righe[-1].append("")

    def handle_endtag(self, nome):
        assert self._aperti and self._aperti[-1] == nome, (nome, self._aperti, self.getpos())
        self._aperti.pop()

    def handle_data(self, dati):
        if "style" in self._aperti:
            self._stile += dati
            return
        if self._aperti and self._aperti[-1] == "title":
            self.testi["titolo"] = dati
            return
        self.testi[self._sezione] = self.testi.get(self._sezione, "") + dati
        if "a" in self._aperti:
            self.collegamenti[-1][2] += dati
        if {"td", "th"} & set(self._aperti):
            self.righe[-1][-1] += dati
