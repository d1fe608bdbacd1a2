// Nothing to do: windows have no system menu here. MenuSistema_windows.cpp is the sibling that
// acts.
#include "MenuSistema.h"

void InizializzaControlliComuni() {}

ManigliaMenu MenuDiSistema(std::uintptr_t /*finestra*/)
{
    return 0;
}

void TogliComando(ManigliaMenu /*menu*/, std::uint32_t /*comando*/, std::uint32_t /*come*/) {}
