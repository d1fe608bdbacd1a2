#include "MenuSistema.h"

void InizializzaControlliComuni() {}

ManigliaMenu MenuDiSistema(std::uintptr_t /*finestra*/)
{
    return 0;
}

void TogliComando(ManigliaMenu /*menu*/, std::uint32_t /*comando*/, std::uint32_t /*come*/) {}
