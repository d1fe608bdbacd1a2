// What the failure tests of the reports share: the six operations on three known shoes, and what
// of each may be left behind.
#pragma once

#include "AmbienteDiProva.h"
#include "ErroreRuntime.h"
#include "MazziDiProva.h"
#include "Scritture.h"
#include "Stampe.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace guasti {

// One report operation, with its golden file for the shoes "tre".
struct Operazione
{
    const char* Nome;
    const char* File;
    const char* Dorato;
    std::optional<Stampe::TotaliReport> (*Esegui)(double taglie);
    bool TieneLeTaglie; // after a failure: the shoes written so far, instead of nothing
};

inline const std::vector<Operazione> Operazioni = {
    {"StampaTxt", "taglie.txt", "tre.nbsp.pieno.txt",
     [](double taglie) { return Stampe::StampaTxt(taglie); }, true},
    {"StatisticheTxt", "taglie.txt", "tre.nbsp.statistiche.txt",
     [](double taglie) { return Stampe::StatisticheTxt(taglie, {}); }, false},
    {"StampaHtml", "taglie.htm", "tre.nbsp.pieno.htm",
     [](double taglie) { return Stampe::StampaHtml(taglie); }, false},
    {"StatisticheHtml", "taglie.htm", "tre.nbsp.statistiche.htm",
     [](double taglie) { return Stampe::StatisticheHtml(taglie, {}); }, false},
    {"StampaPdf", "taglie.pdf", "tre.nbsp.pieno.pdf",
     [](double taglie) { return Stampe::StampaPdf(taglie); }, false},
    {"StatistichePdf", "taglie.pdf", "tre.nbsp.statistiche.pdf",
     [](double taglie) { return Stampe::StatistichePdf(taglie, {}); }, false},
};

constexpr double Taglie = 3;

// Surroundings that deal the shoes of a golden file, format as that one does and live at its time.
class Prova : public aiuti::AmbienteDiProva, public aiuti::CalendarioDorato
{
public:
    explicit Prova(const std::string& mazzi = "tre.mazzi")
    {
        Distribuisci(aiuti::MazziDorati(mazzi));
        Stampe::AmbienteInUso.SeparatoriNumeri = {",", "\u00A0"};
    }

    std::filesystem::path Report(const Operazione& operazione) const
    {
        return Cartella.File(operazione.File);
    }

    // The error of a run that must not work. Nothing may have been opened.
    ErroreRuntime Fallisce(const Operazione& operazione, double taglie = Taglie)
    {
        const auto errore = aiuti::ErroreDi([&] { operazione.Esegui(taglie); });
        EXPECT_TRUE(errore) << operazione.Nome;
        EXPECT_TRUE(Aperti.empty()) << operazione.Nome;
        return errore.value_or(ErroreRuntime(NumeroErrore::ChiamataNonValida));
    }
};

// Why a write fails, and how that is told.
struct Ragione
{
    int Codice;
    NumeroErrore Numero;
    const char* Motivo;
};

inline constexpr Ragione Pieno = {ENOSPC, NumeroErrore::DiscoPieno, "spazio esaurito sul disco"};
inline constexpr Ragione Rotto = {EIO, NumeroErrore::ErroreInputOutput, "errore del dispositivo"};

// The error of a run has this reason and names the report.
inline void Confronta(const ErroreRuntime& errore, const Ragione& ragione,
                      const std::filesystem::path& report)
{
    EXPECT_EQ(errore.Numero(), ragione.Numero);
    EXPECT_EQ(errore.Motivo(), ragione.Motivo);
    EXPECT_EQ(errore.File(), report.string());
}

inline void Scrivi(const std::filesystem::path& percorso, const std::string& testo)
{
    std::ofstream file(percorso, std::ios::binary | std::ios::trunc);
    file << testo;
    EXPECT_TRUE(file.flush()) << percorso;
}

// The whole states of a full text report: its title, the title and the first shoes, all of it.
inline std::vector<std::string> StatiInteri(const std::string& dorato, int taglie)
{
    std::vector<std::string> stati;
    for (int taglia = 1; taglia <= taglie; ++taglia) {
        const auto inizio = dorato.find("\r\n\t\t\tTaglia " + std::to_string(taglia) + "\r\n");
        EXPECT_NE(inizio, std::string::npos) << taglia;
        stati.push_back(dorato.substr(0, inizio));
    }
    const auto generali = dorato.find("\r\n\r\n\t\tStatistiche generali\r\n");
    EXPECT_NE(generali, std::string::npos);
    stati.push_back(dorato.substr(0, generali));
    stati.push_back(dorato);
    return stati;
}

// What a run leaves when only so many bytes got into the file: the largest whole state of a full
// text report, or no file at all (nothing).
inline std::optional<std::string> CioCheResta(const Operazione& operazione, std::size_t byte)
{
    std::optional<std::string> resto;
    if (!operazione.TieneLeTaglie) return resto;
    for (const auto& stato : StatiInteri(aiuti::Dorato(operazione.Dorato), 3)) {
        if (stato.size() <= byte) resto = stato;
    }
    return resto;
}

// The file under this name, nothing when there is none.
inline std::optional<std::string> Contenuto(const std::filesystem::path& percorso)
{
    if (!std::filesystem::exists(std::filesystem::symlink_status(percorso))) return std::nullopt;
    return aiuti::Byte(percorso);
}

// Title and two whole shoes.
inline std::string DueTaglie()
{
    return StatiInteri(aiuti::Dorato(Operazioni[0].Dorato), 3)[2];
}

} // namespace guasti
