"""The content streams of a document (ISO 32000-1, 7.8.2) and what they name in their resources."""

from sintassi import Nome, operazioni, pretendi
from struttura import Flusso

# Which category of the resources an operator's last operand names (7.8.3).
NOMI = {"Tf": "Font", "Do": "XObject", "cs": "ColorSpace", "CS": "ColorSpace", "scn": "Pattern",
        "SCN": "Pattern", "gs": "ExtGState", "sh": "Shading"}
SPAZI_NOTI = {"DeviceGray", "DeviceRGB", "DeviceCMYK", "Pattern"}
OPERATORI = set("""b B b* B* BT c cm CS cs d Do ET f f* g G h i j J K k l m M n q Q re RG rg s S SC sc
                   SCN scn T* Tc Td TD Tf Tj TJ TL Tm Tr Ts Tw Tz v w W W* y ' " gs sh""".split())


def disegno(cosa):
    """Whether a value is an object, a tiling or an appearance."""
    return isinstance(cosa, Flusso) and (
        cosa.testa.get("Subtype") == "Form" or cosa.testa.get("Type") == "Pattern")


def disegni(documento, pagine, annotazioni):
    """Name, data and resources of every drawing: pages, objects, tilings, appearances."""
    for numero, (_, pagina) in enumerate(pagine, 1):
        flusso = documento.risolto(pagina["Contents"])
        yield f"pagina {numero}", documento.chiaro(flusso), documento.risolto(pagina["Resources"])
    aspetti = {id(documento.risolto(voce["AP"]["N"])) for voce in annotazioni}
    for numero in documento.posti:
        cosa = documento.oggetto(numero)
        if disegno(cosa):
            genere = "aspetto" if id(cosa) in aspetti else "disegno"
            risorse = documento.risolto(cosa.testa.get("Resources", {}))
            yield f"{genere} {numero}", documento.chiaro(cosa), risorse


def nominati(nome, dati):
    """What a content stream names, by category. Its operators are known and in pairs."""
    usati, pile = {}, {"q": 0, "BT": 0}
    for operatore, operandi in operazioni(dati):
        pretendi(operatore in OPERATORI, f"{nome}: operatore {operatore}")
        for apre, chiude in (("q", "Q"), ("BT", "ET")):
            pile[apre] += (operatore == apre) - (operatore == chiude)
            pretendi(pile[apre] >= 0, f"{nome}: {chiude} di troppo")
        categoria = NOMI.get(operatore)
        cosa = operandi[0] if operatore == "Tf" else (operandi or [None])[-1]
        if categoria and isinstance(cosa, Nome) and not (
                categoria == "ColorSpace" and cosa in SPAZI_NOTI):
            usati.setdefault(categoria, set()).add(cosa)
    pretendi(not any(pile.values()), f"{nome}: {pile} senza fine")
    return usati


def risorse_esatte(documento, nome, dati, risorse):
    """The resources name all that the drawing uses and nothing else."""
    avute = {categoria: set(documento.risolto(voci)) for categoria, voci in risorse.items()
             if categoria != "ProcSet"}
    usate = nominati(nome, dati)
    for categoria in set(avute) | set(usate):
        uguali = usate.get(categoria, set()) == avute.get(categoria, set())
        pretendi(uguali, f"{nome}: /{categoria} usa {sorted(usate.get(categoria, []))}, "
                         f"ha {sorted(avute.get(categoria, []))}")
