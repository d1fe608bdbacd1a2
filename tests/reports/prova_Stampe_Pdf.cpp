// The PDF report: whole documents against the reviewed golden files, their properties, and a
// document that is in use.

#include "prova_Stampe_Pdf.h"

#include "Calendario.h"
#include "ErroreRuntime.h"
#include "LettoreDiFile.h"
#include "PdfProdotti.h"
#include "Regole.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace Stampe;
using namespace stampepdf;
using aiuti::Byte;
using aiuti::Dorato;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::vector<std::string> Dorati()
{
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(SCALVINO_GOLDEN)) {
        if (voce.path().extension() == ".pdf") nomi.push_back(voce.path().stem().string());
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

// "dodici.it.statistiche" as its three parts.
struct Nome
{
    explicit Nome(const std::string& nome)
        : Mazzi(nome.substr(0, nome.find('.')))
        , Cifre(nome.substr(Mazzi.size() + 1, nome.rfind('.') - Mazzi.size() - 1))
        , Quale(nome.substr(nome.rfind('.') + 1))
    {
    }
    Separatori Segni() const
    {
        if (Cifre == "c") return {".", ""};
        return Cifre == "it" ? Italiani : Separatori{",", "\u202F"};
    }
    std::string Mazzi, Cifre, Quale;
};

class ReportDorato : public testing::TestWithParam<std::string>
{
};

} // namespace

// ---- Golden files ----------------------------------------------------------------------------

TEST_P(ReportDorato, EUgualeByteAByte)
{
    const Nome nome(GetParam());
    Prova prova(nome.Mazzi, nome.Segni());
    AmbienteInUso.CaratteriUnici = nome.Quale == "unici";
    ASSERT_TRUE(nome.Quale == "statistiche" ? StatistichePdf(prova.Taglie(), {})
                                            : StampaPdf(prova.Taglie()));
    const std::string byte = prova.Pdf();
    EXPECT_TRUE(byte == Dorato(GetParam() + ".pdf")) << GetParam();
    const auto letto = Intero(byte);
    aiuti::ConservaPdf(
        "report_" + GetParam(), byte,
        {"SCALVINO", "Scalvino © 2026", "di " + std::to_string(letto.Pagine()), "pag. 1"});
}

INSTANTIATE_TEST_SUITE_P(Tutti, ReportDorato, testing::ValuesIn(Dorati()), [](const auto& caso) {
    std::string nome = caso.param;
    std::replace(nome.begin(), nome.end(), '.', '_');
    return nome;
});

TEST(ReportDoratiPdf, SonoTutti)
{
    EXPECT_GE(Dorati().size(), 8U);
}

// ---- The document ----------------------------------------------------------------------------

TEST(StampePdf, LeProprietaDelDocumento)
{
    for (const auto& letto : {Pieno("uno_trentuno"), Statistiche("uno_trentuno")}) {
        EXPECT_EQ(letto.Versione, "1.3");
        EXPECT_THAT(letto.Oggetto(1),
                    aiuti::Segue("<<\r/Title \\(Scalvino\\)\r/Author \\(Vellarmo\\)\r"
                                 "/Creator \\([^)]+\\)\r/Producer \\(Vellarmo\\)\r"
                                 "/CreationDate \\(D:20260102030405Z\\+01'00'\\)\r"
                                 "/Subject \\(Scalvino\\)\r/Keywords \\(\\)\r>>"));
        EXPECT_THAT(letto.Oggetto(4), HasSubstr("/MediaBox [0 0 596 842]\r/CropBox [0 0 596 842]\r"
                                                "/Kids ["));
    }
}

TEST(StampePdf, SiApronoMassimizzatiConITotali)
{
    Prova prova("dodici");
    const auto totali = SoloTotali(12, {});
    ASSERT_TRUE(totali);
    EXPECT_EQ(StampaPdf(12), totali);
    EXPECT_EQ(StatistichePdf(12, {}), totali);
    const std::string percorso = prova.Cartella.Nome() + "taglie.pdf";
    EXPECT_THAT(prova.Aperti, ElementsAre(percorso, percorso));
    EXPECT_THAT(prova.Stili, testing::Each(StileFinestra::MassimizzataConFuoco));
    EXPECT_THAT(prova.Cartella.Contenuto(), ElementsAre("taglie.pdf"));
    EXPECT_THAT(prova.Messaggi, IsEmpty());
}

TEST(StampePdf, CoiCaratteriUniciCambianoSoloINomiDeiCaratteri)
{
    const auto senzaNomi = [](std::string pagina) {
        for (auto p = pagina.find("/_FNT_"); p != std::string::npos; p = pagina.find("/_FNT_", p)) {
            pagina.erase(p, pagina.find(' ', p) - p);
        }
        return pagina;
    };
    Prova prova("tre");
    AmbienteInUso.CaratteriUnici = true;
    ASSERT_TRUE(StampaPdf(3));
    const auto unici = Intero(prova.Pdf());
    const auto tanti = Pieno("tre");
    for (int pagina = 1; pagina <= 4; ++pagina) {
        EXPECT_EQ(senzaNomi(unici.Contenuto(pagina)), senzaNomi(tanti.Contenuto(pagina)));
    }
    EXPECT_EQ(Conta(unici.Oggetto(6), "/_FNT_"), 4U); // Times, Arial bold and regular, Symbol
    EXPECT_GT(Conta(tanti.Oggetto(6), "/_FNT_"), 1000U);
}

TEST(StampaPdf, NumeroPocoSopraUnoETrattatoComePiuDiUno)
{
    Prova prova("tre");
    ASSERT_TRUE(StampaPdf(1.25));
    const auto letto = Intero(prova.Pdf());
    ASSERT_EQ(letto.Pagine(), 2);
    EXPECT_EQ(TestiDi(letto.Contenuto(1)).at(2), "Taglia 1");
    EXPECT_EQ(TestiDi(letto.Contenuto(2)).at(2), "Statistiche generali");
}

TEST(StampaPdf, LaPaginaCominciaPrimaCheLaTagliaSiGiochi)
{
    // Asked to stop while the page is open: nothing is left.
    Prova prova("tre");
    AmbienteInUso.PreparaTaglia = [&prova](std::int64_t) {
        EXPECT_THAT(prova.Cartella.Contenuto(), ElementsAre("taglie.pdf"));
        throw ErroreRuntime(NumeroErrore::IndiceFuoriIntervallo, "finta");
    };
    EXPECT_THROW(StampaPdf(3), ErroreRuntime);
    EXPECT_THAT(prova.Cartella.Contenuto(), IsEmpty());
    EXPECT_THAT(prova.Aperti, IsEmpty());
}

TEST(StampePdf, UnaDataSbagliataEUnErrorePrimaDiOgniAltraCosa)
{
    const Calendario prima = CalendarioInUso;
    for (const bool statistiche : {false, true}) {
        Prova prova("tre");
        CalendarioInUso.Adesso = []() -> std::chrono::local_seconds {
            throw ErroreRuntime(NumeroErrore::TipoNonCorrispondente, "finto", "data");
        };
        std::ofstream(prova.Cartella.File("taglie.pdf")) << "il vecchio";
        AmbienteInUso.PreparaTaglia = [](std::int64_t) { ADD_FAILURE() << "a shoe was dealt"; };
        EXPECT_THROW(statistiche ? StatistichePdf(3, {}) : StampaPdf(3), ErroreRuntime);
        EXPECT_EQ(Byte(prova.Cartella.File("taglie.pdf")), "il vecchio");
        CalendarioInUso = prima;
    }
}

// ---- A report that is in use -----------------------------------------------------------------

TEST(StampePdf, UnDocumentoInUsoSiAvvisaESiLascia)
{
    for (const bool statistiche : {false, true}) {
        Prova prova("tre");
        const auto percorso = prova.Cartella.File("taglie.pdf");
        std::ofstream(percorso) << "aperto";
        if (!aiuti::SiSaChiTiene(percorso)) GTEST_SKIP() << "no leases on this file system";
        const aiuti::LettoreDiFile tenuto(percorso);
        AmbienteInUso.PreparaTaglia = [](std::int64_t) { ADD_FAILURE() << "a shoe was dealt"; };
        EXPECT_EQ(statistiche ? StatistichePdf(3, {}) : StampaPdf(3), std::nullopt);
        ASSERT_EQ(prova.Messaggi.size(), 1U);
        EXPECT_EQ(prova.Messaggi[0].Titolo, "Ombrivento");
        EXPECT_EQ(Byte(percorso), "aperto");
        EXPECT_THAT(prova.Aperti, IsEmpty());
    }
}
