// Reports whose writes and closes fail, each in its turn.

#include "prova_Stampe_Guasti.h"

#include <cerrno>

using namespace guasti;
using aiuti::Dorato;
using aiuti::Durata;
using aiuti::ScrittureGuaste;

namespace {

// Writes and closes of a run that works.
struct Chiamate
{
    int scritture;
    int chiusure;
};

Chiamate InUnaProvaBuona(const Operazione& operazione, std::size_t pezzo)
{
    Prova prova;
    ScrittureGuaste scritture;
    scritture.Spezza(pezzo);
    EXPECT_TRUE(operazione.Esegui(Taglie));
    EXPECT_TRUE(aiuti::Byte(prova.Report(operazione)) == Dorato(operazione.Dorato));
    return {scritture.Scritture(), scritture.Chiusure()};
}

void GuastaUnaScrittura(const Operazione& operazione, std::size_t pezzo, int quale,
                        const Ragione& ragione, Durata durata)
{
    Prova prova;
    Scrivi(prova.Report(operazione), "vecchio");
    ScrittureGuaste scritture;
    scritture.Spezza(pezzo);
    scritture.Guasta(quale, ragione.Codice, durata);
    Confronta(prova.Fallisce(operazione), ragione, prova.Report(operazione));
    EXPECT_EQ(scritture.Scritture(), quale); // what failed is not tried again
    EXPECT_TRUE(Contenuto(prova.Report(operazione)) == CioCheResta(operazione, scritture.Byte()));
}

void GuastaOgniScrittura(const Operazione& operazione, std::size_t pezzo, int almeno)
{
    const int quante = InUnaProvaBuona(operazione, pezzo).scritture;
    EXPECT_GE(quante, almeno);
    for (int quale = 1; quale <= quante; ++quale) {
        SCOPED_TRACE(std::string(operazione.Nome) + " " + std::to_string(quale));
        for (const auto& ragione : {Pieno, Rotto}) {
            for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
                GuastaUnaScrittura(operazione, pezzo, quale, ragione, durata);
            }
        }
    }
}

void GuastaUnaChiusura(const Operazione& operazione, int quale, const Ragione& ragione,
                       Durata durata)
{
    Prova prova;
    Scrivi(prova.Report(operazione), "vecchio");
    ScrittureGuaste scritture;
    scritture.GuastaChiusura(quale, ragione.Codice, durata);
    Confronta(prova.Fallisce(operazione), ragione, prova.Report(operazione));
    EXPECT_EQ(scritture.Chiusure(), quale);
    // The title alone is no report yet; after it the shoe of this close is in the file.
    const auto resto = quale == 1 ? std::nullopt : CioCheResta(operazione, scritture.Byte());
    EXPECT_TRUE(Contenuto(prova.Report(operazione)) == resto);
}

// As large as any block: a write a block.
constexpr std::size_t Intero = 1U << 20;

} // namespace

TEST(Guasti, OgniScritturaCheFallisceEUnErroreSolo)
{
    GuastaOgniScrittura(Operazioni[0], Intero, 5); // title, three shoes, general statistics
    GuastaOgniScrittura(Operazioni[1], Intero, 1);
    GuastaOgniScrittura(Operazioni[2], Intero, 5);
    GuastaOgniScrittura(Operazioni[3], Intero, 2);
    GuastaOgniScrittura(Operazioni[4], Intero, 8);
    GuastaOgniScrittura(Operazioni[5], Intero, 1);
}

TEST(Guasti, AncheSeIlDiscoSiRiempieAMetaDiUnBlocco)
{
    GuastaOgniScrittura(Operazioni[0], 500, 18);
    GuastaOgniScrittura(Operazioni[1], 100, 5);
    GuastaOgniScrittura(Operazioni[2], 4096, 52);
    GuastaOgniScrittura(Operazioni[3], 500, 7);
    GuastaOgniScrittura(Operazioni[4], 20000, 28);
    GuastaOgniScrittura(Operazioni[5], 500, 15);
}

TEST(Guasti, OgniChiusuraCheFallisceEUnErroreSolo)
{
    for (const auto& operazione : Operazioni) {
        const int quante = InUnaProvaBuona(operazione, Intero).chiusure;
        EXPECT_EQ(quante, operazione.TieneLeTaglie ? 5 : 1) << operazione.Nome;
        for (int quale = 1; quale <= quante; ++quale) {
            SCOPED_TRACE(std::string(operazione.Nome) + " " + std::to_string(quale));
            for (const auto& ragione : {Pieno, Rotto}) {
                for (const auto durata : {Durata::UnaVolta, Durata::DaAllora}) {
                    GuastaUnaChiusura(operazione, quale, ragione, durata);
                }
            }
        }
    }
}

TEST(Guasti, ScrittureCorteEInterrotteNonCambianoIlReport)
{
    for (const auto& operazione : Operazioni) {
        for (const std::size_t pezzo : {std::size_t{1}, std::size_t{7}, std::size_t{1000}}) {
            Prova prova;
            ScrittureGuaste scritture;
            scritture.Spezza(pezzo);
            scritture.Interrompi(); // closes too
            EXPECT_TRUE(operazione.Esegui(Taglie));
            EXPECT_TRUE(aiuti::Byte(prova.Report(operazione)) == Dorato(operazione.Dorato))
                << operazione.Nome << " " << pezzo;
            EXPECT_EQ(prova.Aperti.size(), 1U);
        }
    }
}

TEST(Guasti, UnaScritturaDiZeroByteNonGiraSenzaFine)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        ScrittureGuaste scritture;
        scritture.Guasta(1, 0, Durata::DaAllora);
        Confronta(prova.Fallisce(operazione), Rotto, prova.Report(operazione));
        EXPECT_EQ(scritture.Scritture(), 1);
        EXPECT_TRUE(prova.Cartella.Contenuto().empty());
    }
}

TEST(Guasti, DopoUnGuastoIlReportSuccessivoEIntero)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        {
            ScrittureGuaste scritture;
            scritture.Guasta(operazione.TieneLeTaglie ? 3 : 1, ENOSPC);
            prova.Fallisce(operazione);
        }
        EXPECT_TRUE(operazione.Esegui(Taglie));
        EXPECT_TRUE(aiuti::Byte(prova.Report(operazione)) == Dorato(operazione.Dorato));
        EXPECT_EQ(prova.Aperti.size(), 1U);
    }
}

TEST(SoloTotali, NonToccaNessunFile)
{
    Prova prova;
    for (const auto& operazione : Operazioni) Scrivi(prova.Report(operazione), "vecchio");
    ScrittureGuaste scritture;
    scritture.Guasta(1, ENOSPC, Durata::DaAllora);
    scritture.GuastaChiusura(1, EIO, Durata::DaAllora);
    EXPECT_TRUE(Stampe::SoloTotali(Taglie, {}));
    EXPECT_EQ(aiuti::Byte(prova.Cartella.File("taglie.txt")), "vecchio");
    EXPECT_EQ(aiuti::Byte(prova.Cartella.File("taglie.htm")), "vecchio");
}
