// The marks of the user's regional settings. Each test runs in a child, whose settings it is.

#include "Separatori.h"

#include "Utente.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include <locale.h>

using aiuti::InUnFiglio;
using aiuti::Riuscito;

namespace {

// A missing locale is silently "C": the tests below need the real one.
void PretendiLocale(const char* nome)
{
    const locale_t locale = ::newlocale(LC_ALL_MASK, nome, nullptr);
    ASSERT_NE(locale, nullptr) << nome << " not found; LOCPATH must name the folder of locales";
    ::freelocale(locale);
}

// Forgets the settings of whoever runs the tests.
void SenzaImpostazioni()
{
    for (const char* nome : {"LC_ALL", "LC_NUMERIC", "LC_CTYPE", "LANG", "LANGUAGE"}) {
        ::unsetenv(nome);
    }
}

Separatori Con(const char* nome)
{
    SenzaImpostazioni();
    ::setenv("LC_ALL", nome, 1);
    return SeparatoriUtente();
}

} // namespace

TEST(SeparatoriUtente, NelLocaleCPuntoENessunGruppo)
{
    EXPECT_EQ(InUnFiglio([] {
                  EXPECT_EQ(Con("C"), (Separatori{".", ""}));
                  EXPECT_EQ(Con("POSIX"), (Separatori{".", ""}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, UnSegnoDelleMigliaiaSenzaGruppiNonSiUsa)
{
    // The Greek settings name a mark but say that digits are not grouped.
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("el_GR.UTF-8");
                  EXPECT_EQ(Con("el_GR.UTF-8"), (Separatori{",", ""}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, InItalianoVirgolaEPunto)
{
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("it_IT.UTF-8");
                  EXPECT_EQ(Con("it_IT.UTF-8"), (Separatori{",", "."}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, InIngleseAmericanoPuntoEVirgola)
{
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("en_US.UTF-8");
                  EXPECT_EQ(Con("en_US.UTF-8"), (Separatori{".", ","}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, InFranceseVirgolaESpazioStretto)
{
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("fr_FR.UTF-8");
                  EXPECT_EQ(Con("fr_FR.UTF-8"), (Separatori{",", "\u202F"}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, UnLocaleSconosciutoEComeC)
{
    EXPECT_EQ(InUnFiglio([] {
                  EXPECT_EQ(::newlocale(LC_ALL_MASK, "xx_XX.UTF-8", nullptr), nullptr);
                  EXPECT_EQ(Con("xx_XX.UTF-8"), (Separatori{".", ""}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, SenzaImpostazioniEComeC)
{
    EXPECT_EQ(InUnFiglio([] {
                  SenzaImpostazioni();
                  EXPECT_EQ(SeparatoriUtente(), (Separatori{".", ""}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, INumeriHannoUnImpostazionePropria)
{
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("it_IT.UTF-8");
                  PretendiLocale("en_US.UTF-8");
                  SenzaImpostazioni();
                  ::setenv("LANG", "it_IT.UTF-8", 1);
                  EXPECT_EQ(SeparatoriUtente(), (Separatori{",", "."}));
                  ::setenv("LC_NUMERIC", "en_US.UTF-8", 1);
                  EXPECT_EQ(SeparatoriUtente(), (Separatori{".", ","}));
                  ::setenv("LC_ALL", "C", 1); // stronger than both
                  EXPECT_EQ(SeparatoriUtente(), (Separatori{".", ""}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, ISegniHannoIlLoroInsiemeDiCaratteri)
{
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("fr_FR.UTF-8");
                  SenzaImpostazioni();
                  ::setenv("LC_NUMERIC", "fr_FR.UTF-8", 1);
                  EXPECT_EQ(SeparatoriUtente(), (Separatori{",", "\u202F"}));
                  ::setenv("LC_CTYPE", "UTF-8", 1); // as some terminals send it; no locale here
                  EXPECT_EQ(SeparatoriUtente(), (Separatori{",", "\u202F"}));
              }),
              Riuscito);
}

TEST(SeparatoriUtente, IlLocaleDelProcessoNonCambia)
{
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("it_IT.UTF-8");
                  const std::string prima = std::setlocale(LC_ALL, nullptr);
                  ASSERT_EQ(Con("it_IT.UTF-8").Decimali, ",");
                  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), prima);
                  EXPECT_EQ(::uselocale(nullptr), LC_GLOBAL_LOCALE);
                  EXPECT_STREQ(std::localeconv()->decimal_point, ".");
              }),
              Riuscito);
}

TEST(SeparatoriUtente, IlLocaleDelProcessoNonConta)
{
    EXPECT_EQ(InUnFiglio([] {
                  PretendiLocale("it_IT.UTF-8");
                  ASSERT_NE(std::setlocale(LC_ALL, "it_IT.UTF-8"), nullptr);
                  EXPECT_EQ(Con("C"), (Separatori{".", ""}));
                  EXPECT_STREQ(std::localeconv()->decimal_point, ",");
              }),
              Riuscito);
}
