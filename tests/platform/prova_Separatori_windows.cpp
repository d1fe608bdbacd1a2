// The marks of the user's regional settings, which here are those of the whole session.

#include "Separatori.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include <windows.h>

namespace {

// One setting of the user's, put back at its end.
class Impostazione
{
public:
    Impostazione(LCTYPE tipo, const std::wstring& valore)
        : m_tipo(tipo)
    {
        EXPECT_GT(GetLocaleInfoW(LOCALE_USER_DEFAULT, tipo, m_prima.data(), 16), 0);
        EXPECT_NE(SetLocaleInfoW(LOCALE_USER_DEFAULT, tipo, valore.c_str()), 0);
    }
    ~Impostazione() { SetLocaleInfoW(LOCALE_USER_DEFAULT, m_tipo, m_prima.data()); }
    Impostazione(const Impostazione&) = delete;
    Impostazione& operator=(const Impostazione&) = delete;

private:
    LCTYPE m_tipo;
    std::array<wchar_t, 16> m_prima{};
};

Separatori Con(const wchar_t* decimali, const wchar_t* migliaia, const wchar_t* gruppi)
{
    const Impostazione uno(LOCALE_SDECIMAL, decimali);
    const Impostazione due(LOCALE_STHOUSAND, migliaia);
    const Impostazione tre(LOCALE_SGROUPING, gruppi);
    return SeparatoriUtente();
}

} // namespace

TEST(SeparatoriUtente, QuelliCheLUtenteHaScelto)
{
    EXPECT_EQ(Con(L",", L".", L"3;0"), (Separatori{",", "."}));
    EXPECT_EQ(Con(L".", L",", L"3;0"), (Separatori{".", ","}));
    EXPECT_EQ(Con(L".", L"'", L"3;2;0"), (Separatori{".", "'"}));
}

TEST(SeparatoriUtente, ISegniSonoInUtf8)
{
    EXPECT_EQ(Con(L",", L"\u202F", L"3;0"), (Separatori{",", "\u202F"}));
    EXPECT_EQ(Con(L"\u00B7", L"\u00A0", L"3;0"), (Separatori{"\u00B7", "\u00A0"}));
}

TEST(SeparatoriUtente, UnSegnoDelleMigliaiaSenzaGruppiNonSiUsa)
{
    EXPECT_EQ(Con(L",", L".", L"0;0"), (Separatori{",", ""}));
    EXPECT_EQ(Con(L",", L".", L"0"), (Separatori{",", ""}));
}
