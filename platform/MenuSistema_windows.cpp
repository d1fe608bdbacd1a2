// The system's own calls for the menu of a window. The promises are in MenuSistema.h.
#include "MenuSistema.h"

#include <windows.h>

#include <commctrl.h>

void InizializzaControlliComuni()
{
    ::InitCommonControls();
}

ManigliaMenu MenuDiSistema(std::uintptr_t finestra)
{
    return reinterpret_cast<ManigliaMenu>(::GetSystemMenu(reinterpret_cast<HWND>(finestra), FALSE));
}

void TogliComando(ManigliaMenu menu, std::uint32_t comando, std::uint32_t come)
{
    if (menu == 0) return;
    ::DeleteMenu(reinterpret_cast<HMENU>(menu), comando, come);
}
