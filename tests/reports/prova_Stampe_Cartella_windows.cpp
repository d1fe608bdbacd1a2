// Report folders in which a folder or a read-only file has the name of a report.

#include "prova_Stampe_Cartella.h"

#include <windows.h>

using namespace guasti;
using aiuti::Byte;

namespace {

bool InPdf(const Operazione& operazione)
{
    return operazione.File == std::string("taglie.pdf");
}

} // namespace

TEST(CartellaGuasta, UnaCartellaResta)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        std::filesystem::create_directory(prova.Report(operazione));
        if (InPdf(operazione)) {
            // The system opens no folder as a file, so that it counts as held by somebody.
            EXPECT_EQ(operazione.Esegui(Taglie), std::nullopt);
            EXPECT_EQ(prova.Messaggi.size(), 1U);
            EXPECT_TRUE(std::filesystem::is_directory(prova.Report(operazione)));
        } else {
            Rifiuta(prova, operazione, NumeroErrore::AccessoAlFile, "è una cartella");
        }
    }
}

TEST(CartellaGuasta, UnFileInSolaLetturaResta)
{
    for (const auto& operazione : Operazioni) {
        Prova prova;
        const auto report = prova.Report(operazione);
        Scrivi(report, "vecchio");
        ASSERT_NE(SetFileAttributesW(report.c_str(), FILE_ATTRIBUTE_READONLY), 0);
        const auto errore = prova.Fallisce(operazione);
        EXPECT_EQ(errore.Numero(), NumeroErrore::PermessoNegato) << operazione.Nome;
        EXPECT_EQ(Byte(report), "vecchio");
        ASSERT_NE(SetFileAttributesW(report.c_str(), FILE_ATTRIBUTE_NORMAL), 0);
    }
}
