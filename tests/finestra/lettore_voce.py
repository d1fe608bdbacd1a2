"""A screen reader that writes instead of speaking: one JSON object a line for each thing it hears
of the card table. Runs on the system's own Python, which has the bindings (python3-pyatspi)."""

import json
import sys

import pyatspi

TAVOLO = "Tavolo da gioco"
EVENTI = ("object:state-changed:showing", "object:property-change:accessible-description",
          "object:state-changed:focused")


def stati(oggetto):
    return [pyatspi.stateToString(stato) for stato in oggetto.getState().getStates()]


def di(evento):
    oggetto = evento.source
    if oggetto is None or (oggetto.name != TAVOLO and "focused" not in evento.type):
        return
    print(json.dumps({"evento": str(evento.type), "acceso": evento.detail1, "nome": oggetto.name,
                      "ruolo": oggetto.getRoleName(), "testo": oggetto.description,
                      "stati": stati(oggetto)}), flush=True)


for evento in EVENTI:
    pyatspi.Registry.registerEventListener(di, evento)
print(json.dumps({"evento": "pronto"}), flush=True)
sys.stdout.flush()
pyatspi.Registry.start()
