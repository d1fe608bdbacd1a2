// What the tests of the PDF report share: documents of golden shoes, and what their pages show.
//
// A centimetre is 28.346 points. Values and titles are in a font of Arial's widths.
#pragma once

#include "AmbienteDiProva.h"
#include "MazziDiProva.h"
#include "Stampe.h"
#include "Stampe_Comune.h"
#include "StrutturaPdf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace stampepdf {

using Testi = std::vector<std::string>;

inline const Separatori Italiani = {",", "."};

// Surroundings with shoes of a golden file, at the time of the golden documents.
class Prova : public aiuti::AmbienteDiProva, public aiuti::CalendarioDorato
{
public:
    explicit Prova(const std::string& mazzi, Separatori separatori = Italiani)
        : m_mazzi(aiuti::MazziDorati(mazzi + ".mazzi"))
    {
        Distribuisci(m_mazzi);
        Stampe::AmbienteInUso.SeparatoriNumeri = std::move(separatori);
    }

    double Taglie() const { return static_cast<double>(m_mazzi.size()); }
    std::string Pdf() const { return aiuti::Byte(Cartella.File("taglie.pdf")); }

private:
    std::vector<std::vector<std::int16_t>> m_mazzi;
};

inline aiuti::PdfLetto Intero(const std::string& byte)
{
    auto letto = aiuti::LeggiPdf(byte);
    EXPECT_THAT(letto.Difetti, testing::IsEmpty());
    EXPECT_THAT(letto.NomiMancanti, testing::IsEmpty());
    return letto;
}

inline aiuti::PdfLetto Pieno(const std::string& mazzi)
{
    Prova prova(mazzi);
    EXPECT_TRUE(Stampe::StampaPdf(prova.Taglie()));
    return Intero(prova.Pdf());
}

inline aiuti::PdfLetto Statistiche(const std::string& mazzi)
{
    Prova prova(mazzi);
    EXPECT_TRUE(Stampe::StatistichePdf(prova.Taglie(), {}));
    return Intero(prova.Pdf());
}

// The texts that a content stream shows, in their order, escapes undone.
inline Testi TestiDi(const std::string& contenuto)
{
    Testi testi;
    for (std::size_t p = 0; (p = contenuto.find('(', p)) != std::string::npos; ++p) {
        std::string testo;
        for (++p; contenuto[p] != ')'; ++p) {
            if (contenuto[p] == '\\') ++p;
            testo.push_back(contenuto[p]);
        }
        testi.push_back(testo);
    }
    return testi;
}

// The texts of the row of a coup: from its number to the number of the next one.
inline Testi RigaColpo(const aiuti::PdfLetto& letto, int pagina, int colpo)
{
    const Testi testi = TestiDi(letto.Contenuto(pagina));
    const auto riga = [&testi](int numero) {
        // Behind the headings a number alone is followed by four marks.
        auto p = std::find(testi.begin(), testi.end(), "Mano Rosso");
        for (int visti = 0; p != testi.end(); ++p) {
            const bool segni = testi.end() - p > 4 && std::all_of(p + 1, p + 5, [](auto& testo) {
                                   return testo.empty() || testo == "-" || testo == "\xB7";
                               });
            if (segni && *p == std::to_string(visti + 1) && ++visti == numero) break;
        }
        return p;
    };
    return {riga(colpo), riga(colpo + 1)};
}

// The content of the form that the pages play.
inline std::string PiePagina(const aiuti::PdfLetto& letto)
{
    for (int n = 1; n <= static_cast<int>(letto.Oggetti.size()); ++n) {
        if (letto.Oggetto(n).find("/Name /Footers\r\n") != std::string::npos) {
            return letto.Flusso(n);
        }
    }
    ADD_FAILURE() << "no footer";
    return "";
}

inline std::size_t Conta(const std::string& testo, const std::string& pezzo)
{
    std::size_t volte = 0;
    for (auto p = testo.find(pezzo); p != std::string::npos; p = testo.find(pezzo, p + 1)) ++volte;
    return volte;
}

} // namespace stampepdf
