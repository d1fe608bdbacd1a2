// Reports that take their place when they are whole: whatever becomes of a run, the old one stays.

#include "prova_Stampe_Guasti.h"

#include "LettoreDiFile.h"
#include "SpazioPdf.h"

#include <cerrno>

using namespace guasti;
using aiuti::Byte;
using aiuti::Dorato;
using aiuti::ScrittureGuaste;

namespace {

using Nomi = std::vector<std::string>;

class Intera : public Prova
{
public:
    explicit Intera(const Operazione& operazione)
        : m_operazione(operazione)
    {
        Stampe::AmbienteInUso.Via = Stampe::ViaReport::Intero;
        Scrivi(Report(operazione), "vecchio");
    }

    void VecchioRimasto() const
    {
        EXPECT_EQ(Byte(Report(m_operazione)), "vecchio") << m_operazione.Nome;
        EXPECT_EQ(Cartella.Contenuto(), Nomi{m_operazione.File});
        EXPECT_TRUE(Aperti.empty());
    }

private:
    const Operazione& m_operazione;
};

// All but the full text, which grows in its place.
std::vector<Operazione> Intere()
{
    return {Operazioni.begin() + 1, Operazioni.end()};
}

} // namespace

TEST(Intero, OgniReportHaGliStessiByte)
{
    for (const auto& operazione : Operazioni) {
        Intera prova(operazione);
        EXPECT_TRUE(operazione.Esegui(Taglie)) << operazione.Nome;
        EXPECT_TRUE(Byte(prova.Report(operazione)) == Dorato(operazione.Dorato)) << operazione.Nome;
        EXPECT_EQ(prova.Cartella.Contenuto(), Nomi{operazione.File});
        EXPECT_EQ(prova.Aperti, Nomi{prova.Report(operazione).string()});
    }
}

TEST(Intero, FinoAllaFineRestaIlVecchio)
{
    for (const auto& operazione : Intere()) {
        Intera prova(operazione);
        int viste = 0;
        Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t) {
            ++viste;
            prova.VecchioRimasto();
        };
        EXPECT_TRUE(operazione.Esegui(Taglie));
        EXPECT_EQ(viste, 3) << operazione.Nome;
    }
}

TEST(Intero, FermatoLasciaIlVecchio)
{
    for (const auto& operazione : Intere()) {
        for (const int dopo : {1, 2, 3}) {
            Intera prova(operazione);
            Stampe::AmbienteInUso.Fermare = [n = 0, dopo]() mutable { return ++n >= dopo; };
            EXPECT_FALSE(operazione.Esegui(Taglie));
            prova.VecchioRimasto();
        }
    }
}

TEST(Intero, OgniScritturaCheFallisceLasciaIlVecchio)
{
    constexpr std::size_t pezzo = 5000;
    for (const auto& operazione : Intere()) {
        int quante = 0;
        {
            Intera prova(operazione);
            ScrittureGuaste scritture;
            scritture.Spezza(pezzo);
            EXPECT_TRUE(operazione.Esegui(Taglie));
            quante = scritture.Scritture();
        }
        EXPECT_GE(quante, 1);
        for (int quale = 1; quale <= quante; ++quale) {
            for (const auto& ragione : {Pieno, Rotto}) {
                Intera prova(operazione);
                ScrittureGuaste scritture;
                scritture.Spezza(pezzo);
                scritture.Guasta(quale, ragione.Codice);
                Confronta(prova.Fallisce(operazione), ragione, prova.Report(operazione));
                EXPECT_EQ(scritture.Scritture(), quale);
                prova.VecchioRimasto();
            }
        }
    }
}

TEST(Intero, ECosiIlDocumentoCompatto)
{
    if (aiuti::ErroreDi(Stampe::PretendiCompatto)) GTEST_SKIP() << "built without zlib";
    for (const auto& operazione : {Operazioni[4], Operazioni[5]}) {
        int quante = 1;
        for (int quale = 0; quale <= quante; ++quale) { // none fails at first
            Intera prova(operazione);
            Stampe::AmbienteInUso.Compatto = true;
            ScrittureGuaste scritture;
            scritture.Spezza(1000);
            scritture.Guasta(quale, Pieno.Codice);
            if (quale == 0) {
                EXPECT_TRUE(operazione.Esegui(Taglie));
                quante = scritture.Scritture();
                EXPECT_GT(quante, 1);
                EXPECT_EQ(Byte(prova.Report(operazione)).substr(0, 8), "%PDF-1.7");
                continue;
            }
            Confronta(prova.Fallisce(operazione), Pieno, prova.Report(operazione));
            prova.VecchioRimasto();
        }
    }
}

TEST(Intero, UnaChiusuraCheFallisceLasciaIlVecchio)
{
    for (const auto& operazione : Intere()) {
        Intera prova(operazione);
        ScrittureGuaste scritture;
        scritture.GuastaChiusura(1, Pieno.Codice);
        Confronta(prova.Fallisce(operazione), Pieno, prova.Report(operazione));
        prova.VecchioRimasto();
    }
}

TEST(Intero, UnGuastoDelleTaglieLasciaIlVecchio)
{
    for (const auto& operazione : Intere()) {
        Intera prova(operazione);
        Stampe::AmbienteInUso.TagliaFatta = [](std::int64_t fatte) {
            if (fatte == 3) throw ErroreRuntime(NumeroErrore::ChiamataNonValida, "prova", "prova");
        };
        EXPECT_EQ(prova.Fallisce(operazione).File(), "prova");
        prova.VecchioRimasto();
    }
}

TEST(Intero, IlTestoPienoCresceAlSuoPosto)
{
    Intera prova(Operazioni[0]);
    Stampe::AmbienteInUso.Fermare = [n = 0]() mutable { return ++n == 2; };
    EXPECT_FALSE(Operazioni[0].Esegui(Taglie));
    EXPECT_TRUE(Byte(prova.Report(Operazioni[0])) == DueTaglie());
}

TEST(Intero, IlDocumentoChiedeDiNuovoSeIlVecchioEInUso)
{
    for (const auto& operazione : {Operazioni[4], Operazioni[5]}) {
        Intera prova(operazione);
        if (!aiuti::SiSaChiTiene(prova.Report(operazione))) {
            GTEST_SKIP() << "this disk does not tell who holds a file";
        }
        std::optional<aiuti::LettoreDiFile> lettore; // who opens it while the shoes are played
        Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t fatte) {
            if (fatte == 2) lettore.emplace(prova.Report(operazione));
        };
        EXPECT_FALSE(operazione.Esegui(Taglie)) << operazione.Nome;
        EXPECT_EQ(prova.Messaggi.size(), 1U);
        lettore.reset();
        prova.VecchioRimasto();
    }
}
