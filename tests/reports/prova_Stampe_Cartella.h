// What the tests of spoiled report folders share.
#pragma once

#include "prova_Stampe_Guasti.h"

namespace guasti {

// The operation is refused for this reason before a shoe is dealt, and the entry stays.
inline void Rifiuta(Prova& prova, const Operazione& operazione, NumeroErrore numero,
                    const std::string& motivo)
{
    SCOPED_TRACE(operazione.Nome);
    Stampe::AmbienteInUso.PreparaTaglia = [](std::int64_t taglia) {
        ADD_FAILURE() << "shoe " << taglia << " was dealt";
        throw ErroreRuntime(NumeroErrore::ChiamataNonValida);
    };
    const std::filesystem::path report = prova.Report(operazione);
    const auto prima = std::filesystem::symlink_status(report).type();
    const auto errore = prova.Fallisce(operazione);
    EXPECT_EQ(errore.Numero(), numero);
    EXPECT_EQ(errore.Motivo(), motivo);
    EXPECT_EQ(errore.File(), report.string());
    EXPECT_EQ(std::filesystem::symlink_status(report).type(), prima);
}

// Works, and stands as a file of its own where something else was planted.
inline void Riesce(Prova& prova, const Operazione& operazione)
{
    EXPECT_TRUE(operazione.Esegui(Taglie)) << operazione.Nome;
    EXPECT_EQ(std::filesystem::symlink_status(prova.Report(operazione)).type(),
              std::filesystem::file_type::regular);
    EXPECT_TRUE(aiuti::Byte(prova.Report(operazione)) == aiuti::Dorato(operazione.Dorato))
        << operazione.Nome;
    EXPECT_EQ(prova.Aperti, (std::vector<std::string>{prova.Report(operazione).string()}));
}

// Between two shoes the full text is closed: what sostituto puts in its place then need not be
// ours. The run ends, and the report that it had begun is left as it was.
inline void SiFermaSeSostituito(const std::function<void(const std::filesystem::path&)>& sostituto)
{
    const Operazione& operazione = Operazioni[0];
    Prova prova;
    const std::filesystem::path report = prova.Report(operazione);
    const std::filesystem::path suo = prova.Cartella.File("suo");
    Stampe::AmbienteInUso.TagliaFatta = [&](std::int64_t fatte) {
        if (fatte != 2) return;
        std::filesystem::rename(report, suo);
        sostituto(report);
    };
    const auto errore = prova.Fallisce(operazione);
    EXPECT_EQ(errore.Numero(), NumeroErrore::AccessoAlFile);
    EXPECT_EQ(errore.File(), report.string());
    // Whole: nothing was written through a link.
    EXPECT_TRUE(aiuti::Byte(suo) == StatiInteri(aiuti::Dorato(operazione.Dorato), 3)[2]);
    if (std::filesystem::symlink_status(report).type() == std::filesystem::file_type::regular) {
        EXPECT_EQ(aiuti::Byte(report), "altrui");
    }
}

inline const std::vector<std::string> Report = {"taglie.htm", "taglie.pdf", "taglie.txt"};

// All three reports and a file that is none.
inline void FaiReport(const Prova& prova)
{
    for (const auto& nome : Report) Scrivi(prova.Cartella.File(nome), nome);
    Scrivi(prova.Cartella.File("taglie.csv"), "altro");
}

using Nomi = std::vector<std::string>;

} // namespace guasti
