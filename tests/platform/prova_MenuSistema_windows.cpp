// The system menu of a window.

#include "MenuSistema.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

constexpr UINT Altro = 7;

// A menu with the Size command as the program names it, and another one.
class Menu
{
public:
    Menu()
        : m_menu(CreatePopupMenu())
    {
        EXPECT_NE(AppendMenuA(m_menu, MF_STRING, ComandoDimensiona, "Dimensiona"), 0);
        EXPECT_NE(AppendMenuA(m_menu, MF_STRING, Altro, "Altro"), 0);
    }
    ~Menu() { DestroyMenu(m_menu); }
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    ManigliaMenu Maniglia() const { return reinterpret_cast<ManigliaMenu>(m_menu); }
    int Comandi() const { return GetMenuItemCount(m_menu); }
    UINT Primo() const { return GetMenuItemID(m_menu, 0); }

private:
    HMENU m_menu;
};

} // namespace

TEST(TogliComando, SoloQuelloNominato)
{
    const Menu menu;
    TogliComando(menu.Maniglia(), ComandoDimensiona, PerComando);
    EXPECT_EQ(menu.Comandi(), 1);
    EXPECT_EQ(menu.Primo(), Altro);
    TogliComando(menu.Maniglia(), ComandoDimensiona, PerComando); // not there: no effect
    EXPECT_EQ(menu.Comandi(), 1);
}

TEST(TogliComando, SenzaMenuNessunEffetto)
{
    const Menu menu;
    TogliComando(0, Altro, PerComando);
    EXPECT_EQ(menu.Comandi(), 2);
}

TEST(MenuDiSistema, DiUnaFinestraCheNonCEENessuno)
{
    EXPECT_EQ(MenuDiSistema(0), ManigliaMenu{0});
}

TEST(InizializzaControlliComuni, SiChiamaPiuVolte)
{
    InizializzaControlliComuni();
    InizializzaControlliComuni();
    EXPECT_NE(GetModuleHandleA("comctl32.dll"), nullptr);
}
