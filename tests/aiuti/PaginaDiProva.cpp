// Draws a small document for one test, has it read by StrutturaPdf.cpp and kept by PdfProdotti.cpp.
#include "PaginaDiProva.h"

#include "Aiuti.h"
#include "PdfProdotti.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace aiuti {

namespace {

// The test's name, with a number behind it from its second document on.
std::string NomeDocumento()
{
    static std::string ultimo;
    static int quanti = 0;
    const auto* prova = testing::UnitTest::GetInstance()->current_test_info();
    std::string nome = std::string(prova->test_suite_name()) + "." + prova->name();
    std::replace(nome.begin(), nome.end(), '/', '_');
    quanti = nome == ultimo ? quanti + 1 : 1;
    ultimo = nome;
    return quanti == 1 ? nome : nome + "_" + std::to_string(quanti);
}

// Many tests make the same small document: foreign readers need it once.
bool Nuovo(const std::string& byte)
{
    static std::set<std::string> visti;
    return visti.insert(byte).second;
}

} // namespace

clsPDFCreator::Clock OrologioFermo()
{
    return {[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}; }, [] { return 7; }};
}

std::string ByteDocumento(const Disegno& prima, const Disegno& poi)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    pdf.SetClock(OrologioFermo());
    if (prima) prima(pdf);
    const std::string nome = pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    if (poi) poi(pdf);
    pdf.EndDoc();
    return Byte(nome);
}

PdfLetto Esamina(const std::string& byte, std::initializer_list<std::string_view> testi)
{
    PdfLetto letto = LeggiPdf(byte);
    for (const auto& difetto : letto.Difetti) ADD_FAILURE() << difetto;
    const bool leggibile = letto.Difetti.empty() && letto.NomiMancanti.empty();
    if (leggibile && letto.Pagine() > 0 && (testi.size() > 0 || Nuovo(byte))) {
        ConservaPdf(NomeDocumento(), byte, testi);
    }
    return letto;
}

PdfLetto Documento(const Disegno& prima, const Disegno& poi,
                   std::initializer_list<std::string_view> testi)
{
    return Esamina(ByteDocumento(prima, poi), testi);
}

std::vector<std::string> Scrive(const Disegno& disegno,
                                std::initializer_list<std::string_view> testi)
{
    return ScriveCon({}, disegno, testi);
}

std::vector<std::string> ScriveCon(const Disegno& prima, const Disegno& disegno,
                                   std::initializer_list<std::string_view> testi)
{
    const auto letto = Documento(
        prima,
        [&disegno](clsPDFCreator& pdf) {
            pdf.BeginPage();
            disegno(pdf);
            pdf.EndPage();
        },
        testi);
    auto righe = aiuti::Righe(letto.Contenuto(1));
    constexpr std::ptrdiff_t inizio = 3;
    if (righe.size() < static_cast<std::size_t>(inizio)) {
        ADD_FAILURE() << "una pagina comincia con tre righe";
        return righe;
    }
    righe.erase(righe.begin(), righe.begin() + inizio);
    return righe;
}

std::vector<std::string> ScriveInCentimetri(const Disegno& disegno,
                                            std::initializer_list<std::string_view> testi)
{
    return ScriveCon([](clsPDFCreator& pdf) { pdf.SetScale(3); }, disegno, testi);
}

} // namespace aiuti
