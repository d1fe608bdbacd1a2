// From the names of calls in a script to calls of the writer, one table. tests/golden/pdf/README.md
// describes the scripts.
#include "Copione.h"

#include "Aiuti.h"
#include "Json.h"
#include "clsPDFCreator.h"

#include <cmath>
#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>

namespace aiuti {

namespace {

using json = Json;

// The arguments of one call; what is not there takes the operation's default.
class Argomenti
{
public:
    Argomenti(const json& chiamata, std::size_t da)
        : m_chiamata(chiamata)
        , m_da(da)
    {
    }
    bool Ha(std::size_t i) const { return m_da + i < m_chiamata.size(); }
    std::size_t Quanti() const { return m_chiamata.size() - m_da; }
    float F(std::size_t i, float altrimenti = 0) const { return Valore(i, altrimenti); }
    std::int32_t I(std::size_t i, std::int32_t altrimenti = 0) const
    {
        return Valore(i, altrimenti);
    }
    bool B(std::size_t i, bool altrimenti = false) const { return Valore(i, altrimenti); }
    std::vector<std::string> Elenco(std::size_t i) const
    {
        return Valore(i, std::vector<std::string>());
    }
    std::string S(std::size_t i, const std::string& altrimenti = {}) const
    {
        return Valore(i, altrimenti);
    }

private:
    template <typename Tipo>
    Tipo Valore(std::size_t i, Tipo altrimenti) const
    {
        return Ha(i) ? m_chiamata[m_da + i].get<Tipo>() : altrimenti;
    }

    const json& m_chiamata;
    std::size_t m_da;
};

struct Scena
{
    std::ostringstream Flusso; // what is written where there is no file
    clsPDFCreator Pdf;
    std::string Cartella;
    std::string Nome; // of the file written
};

using Operazione = std::function<json(Scena&, const Argomenti&)>;
using Repertorio = std::map<std::string, Operazione>;

clsPDFCreator::DateTime Momento(const std::string& testo, int minutiAEst)
{
    const auto parte = [&testo](std::size_t da, std::size_t quante) {
        return std::stoi(testo.substr(da, quante));
    };
    return {parte(0, 4),  parte(4, 2),  parte(6, 2), parte(8, 2),
            parte(10, 2), parte(12, 2), minutiAEst};
}

// Wraps an operation without a result.
template <typename Lavoro>
Operazione Fa(Lavoro lavoro)
{
    return [lavoro](Scena& scena, const Argomenti& a) {
        lavoro(scena.Pdf, a);
        return json();
    };
}

void Documento(Repertorio& r)
{
    r["Clock"] = Fa([](auto& pdf, auto& a) {
        pdf.SetClock({[momento = Momento(a.S(0), a.I(1))] { return momento; }, [] { return 7; }});
    });
    r["ShareFonts"] = Fa([](auto& pdf, auto& a) { pdf.ShareFonts(a.B(0)); });
    r["Conforming"] = Fa([](auto& pdf, auto& a) { pdf.Conforming(a.B(0, true)); });
    r["Compress"] = Fa([](auto& pdf, auto& a) { pdf.Compress(a.I(0)); });
    r["SetLanguage"] = Fa([](auto& pdf, auto& a) { pdf.SetLanguage(a.S(0)); });
    r["PDFReader"] = Fa([](auto& pdf, auto& a) { pdf.PDFReader(a.I(0)); });
    r["Margin"] = Fa([](auto& pdf, auto& a) { pdf.Margin(a.F(0)); });
    r["Orientation"] = Fa([](auto& pdf, auto& a) { pdf.Orientation(a.I(0)); });
    r["SetScale"] = Fa([](auto& pdf, auto& a) { pdf.SetScale(a.I(0), a.F(1, 1)); });
    r["SetPaperSize"] = Fa([](auto& pdf, auto& a) { pdf.SetPaperSize(a.I(0), a.F(1), a.F(2)); });
    r["SetDocProperty"] = Fa([](auto& pdf, auto& a) {
        pdf.SetDocProperty(a.S(0), a.S(1), a.S(2), a.S(3), a.S(4), a.S(5));
    });
    r["BeginDoc"] = [](Scena& scena, const Argomenti& a) {
        scena.Nome = scena.Pdf.BeginDoc(scena.Cartella + a.S(0));
        return json();
    };
    r["BeginDocTo"] = [](Scena& scena, const Argomenti& a) {
        if (a.S(0) == "stream") scena.Pdf.BeginDocTo(scena.Flusso);
        else scena.Pdf.BeginDocTo([&scena](std::string_view pezzo) { scena.Flusso << pezzo; });
        return json();
    };
    r["EndDoc"] = Fa([](auto& pdf, auto&) { pdf.EndDoc(); });
    r["BeginPage"] = [](Scena& scena, const Argomenti& a) {
        return json(scena.Pdf.BeginPage(a.I(0), a.I(1), a.S(2), a.I(3, -1)));
    };
    r["EndPage"] = Fa([](auto& pdf, auto&) { pdf.EndPage(); });
    r["Pages"] = [](Scena& scena, const Argomenti&) { return json(scena.Pdf.Pages()); };
    r["GetX"] = [](Scena& scena, const Argomenti&) { return json(scena.Pdf.GetX()); };
    r["GetY"] = [](Scena& scena, const Argomenti&) { return json(scena.Pdf.GetY()); };
    r["Version"] = [](Scena&, const Argomenti&) { return json(clsPDFCreator::Version()); };
}

void Testo(Repertorio& r)
{
    r["SetFont"] = Fa([](auto& pdf, auto& a) { pdf.SetFont(a.S(0), a.F(1), a.I(2)); });
    r["SetFontSize"] = Fa([](auto& pdf, auto& a) { pdf.SetFontSize(a.F(0)); });
    r["SetWordSpacing"] = Fa([](auto& pdf, auto& a) { pdf.SetWordSpacing(a.F(0)); });
    r["SetCharSpacing"] = Fa([](auto& pdf, auto& a) { pdf.SetCharSpacing(a.F(0)); });
    r["SetTextHorizontalScaling"] =
        Fa([](auto& pdf, auto& a) { pdf.SetTextHorizontalScaling(a.F(0)); });
    r["SetTextRenderingMode"] = Fa([](auto& pdf, auto& a) { pdf.SetTextRenderingMode(a.I(0)); });
    r["DrawText"] =
        Fa([](auto& pdf, auto& a) { pdf.DrawText(a.F(0), a.F(1), a.S(2), a.I(3, 1), a.F(4)); });
    r["DrawTextBox"] = [](Scena& scena, const Argomenti& a) {
        return json(scena.Pdf.DrawTextBox(a.F(0), a.F(1), a.F(2), a.F(3), a.S(4), a.F(5, 1), a.F(6),
                                          a.I(7, 1), a.F(8)));
    };
    r["DrawParagraph"] = [](Scena& scena, const Argomenti& a) {
        return json(scena.Pdf.DrawParagraph(a.F(0), a.F(1), a.F(2), a.F(3), a.S(4), a.F(5, 1),
                                            a.F(6), a.I(7, 1), a.F(8)));
    };
    r["TextLength"] = [](Scena& scena, const Argomenti& a) {
        return json(scena.Pdf.TextLength(a.S(0)));
    };
    r["TextHeight"] = [](Scena& scena, const Argomenti&) { return json(scena.Pdf.TextHeight()); };
}

void Disegno(Repertorio& r)
{
    r["SetColorFill"] = Fa([](auto& pdf, auto& a) { pdf.SetColorFill(a.S(0), a.S(1)); });
    r["SetColorLine"] = Fa([](auto& pdf, auto& a) { pdf.SetColorLine(a.S(0), a.S(1)); });
    r["ToColor"] = [](Scena&, const Argomenti& a) {
        if (a.Quanti() == 3) return json(clsPDFCreator::ToColor(a.F(0), a.F(1), a.F(2)));
        if (a.Quanti() == 4) return json(clsPDFCreator::ToColor(a.F(0), a.F(1), a.F(2), a.F(3)));
        if (a.Quanti() == 1) return json(clsPDFCreator::ToColor(a.F(0)));
        if (a.Quanti() == 2) return json(clsPDFCreator::ToColor(a.F(0), a.F(1)));
        return json(clsPDFCreator::ToColor());
    };
    r["SetLineStyle"] = Fa([](auto& pdf, auto& a) {
        pdf.SetLineStyle(a.F(0), a.I(1, -1), a.I(2, -1), a.F(3), a.F(4), a.F(5));
    });
    r["MoveTo"] = Fa([](auto& pdf, auto& a) { pdf.MoveTo(a.F(0), a.F(1)); });
    r["DrawLineTo"] = Fa([](auto& pdf, auto& a) { pdf.DrawLineTo(a.F(0), a.F(1), a.I(2, 1)); });
    r["DrawLine"] =
        Fa([](auto& pdf, auto& a) { pdf.DrawLine(a.F(0), a.F(1), a.F(2), a.F(3), a.I(4, 1)); });
    r["DrawRect"] = Fa([](auto& pdf, auto& a) {
        pdf.DrawRect(a.F(0), a.F(1), a.F(2), a.F(3), a.I(4, 1), a.F(5));
    });
    r["DrawCurveA"] = Fa([](auto& pdf, auto& a) {
        pdf.DrawCurveA(a.F(0), a.F(1), a.F(2), a.F(3), a.F(4), a.F(5), a.I(6, 1));
    });
    r["DrawCurveB"] =
        Fa([](auto& pdf, auto& a) { pdf.DrawCurveB(a.F(0), a.F(1), a.F(2), a.F(3), a.I(4, 1)); });
    r["DrawCurveC"] =
        Fa([](auto& pdf, auto& a) { pdf.DrawCurveC(a.F(0), a.F(1), a.F(2), a.F(3), a.I(4, 1)); });
    r["DrawCircle"] =
        Fa([](auto& pdf, auto& a) { pdf.DrawCircle(a.F(0), a.F(1), a.F(2), a.I(3, 1)); });
    r["DrawEllipse"] =
        Fa([](auto& pdf, auto& a) { pdf.DrawEllipse(a.F(0), a.F(1), a.F(2), a.F(3), a.I(4, 1)); });
    r["DrawArc"] = Fa(
        [](auto& pdf, auto& a) { pdf.DrawArc(a.F(0), a.F(1), a.F(2), a.F(3), a.F(4), a.I(5, 1)); });
}

void AssiETabelle(Repertorio& r)
{
    r["MakeAxisTranslation"] =
        Fa([](auto& pdf, auto& a) { pdf.MakeAxisTranslation(a.F(0), a.F(1)); });
    r["MakeAxisScaling"] = Fa([](auto& pdf, auto& a) { pdf.MakeAxisScaling(a.F(0), a.F(1)); });
    r["MakeAxisRotation"] = Fa([](auto& pdf, auto& a) { pdf.MakeAxisRotation(a.F(0)); });
    r["MakeAxisSkewing"] = Fa([](auto& pdf, auto& a) { pdf.MakeAxisSkewing(a.F(0), a.F(1)); });
    r["BeginGraphicSpace"] =
        Fa([](auto& pdf, auto& a) { pdf.BeginGraphicSpace(a.F(0), a.F(1), a.F(2, 1), a.F(3, 1)); });
    r["EndGraphicSpace"] = Fa([](auto& pdf, auto&) { pdf.EndGraphicSpace(); });
    r["BeginObject"] = Fa([](auto& pdf, auto& a) { pdf.BeginObject(a.S(0), a.I(1)); });
    r["EndObject"] = Fa([](auto& pdf, auto&) { pdf.EndObject(); });
    r["PlayObject"] = Fa([](auto& pdf, auto& a) { pdf.PlayObject(a.S(0)); });
    r["BeginTable"] =
        Fa([](auto& pdf, auto& a) { pdf.BeginTable(a.F(0), a.F(1), a.S(2), a.F(3, -1), a.S(4)); });
    r["BeginRow"] =
        Fa([](auto& pdf, auto& a) { pdf.BeginRow(a.F(0), a.S(1), a.F(2, -1), a.S(3)); });
    r["EndRow"] = Fa([](auto& pdf, auto&) { pdf.EndRow(); });
    r["BeginColumn"] =
        Fa([](auto& pdf, auto& a) { pdf.BeginColumn(a.F(0), a.S(1), a.F(2, -1), a.S(3)); });
    r["EndColumn"] = Fa([](auto& pdf, auto&) { pdf.EndColumn(); });
    r["EndTable"] = Fa([](auto& pdf, auto&) { pdf.EndTable(); });
}

void Navigazione(Repertorio& r)
{
    r["AddBookmark"] = Fa([](auto& pdf, auto& a) {
        pdf.AddBookmark(a.S(0), a.I(1, 1), a.I(2), a.F(3), a.F(4), a.F(5), a.F(6), a.F(7));
    });
    r["AddNoteIcon"] = Fa([](auto& pdf, auto& a) {
        pdf.AddNoteIcon(a.S(0), a.I(1), a.F(2), a.F(3), a.B(4), a.S(5), a.S(6), a.I(7, 4));
    });
    r["AddNoteBox"] = Fa([](auto& pdf, auto& a) {
        pdf.AddNoteBox(a.S(0), a.F(1), a.F(2), a.F(3), a.F(4), a.F(5, 12), a.S(6, "Black"), a.I(7),
                       a.F(8, 1), a.I(9), a.S(10), a.S(11), a.I(12, 4));
    });
    r["AddNoteStamp"] = Fa([](auto& pdf, auto& a) {
        pdf.AddNoteStamp(a.S(0), a.F(1), a.F(2), a.F(3), a.F(4), a.I(5), a.S(6), a.S(7), a.I(8, 4));
    });
    r["AddWebLink"] = Fa([](auto& pdf, auto& a) {
        pdf.AddWebLink(a.S(0), a.F(1), a.F(2), a.F(3), a.F(4), a.I(5, 1), a.F(6));
    });
}

// File names are completed with the folder of the golden seeds.
void FileETrame(Repertorio& r)
{
    r["FilterDecode"] = Fa([](auto& pdf, auto& a) { pdf.FilterDecode(a.I(0)); });
    r["DrawImage"] = Fa([](auto& pdf, auto& a) {
        pdf.DrawImage(SCALVINO_SEMI "/" + a.S(0), a.F(1), a.F(2), a.F(3), a.F(4), a.S(5));
    });
    r["AddFont"] = Fa(
        [](auto& pdf, auto& a) { pdf.AddFont(SCALVINO_SEMI "/" + a.S(0), a.S(1), a.B(2, true)); });
    r["DrawImageData"] = Fa([](auto& pdf, auto& a) {
        pdf.DrawImageData(Byte(SCALVINO_SEMI "/" + a.S(0)), a.F(1), a.F(2), a.F(3), a.F(4), a.S(5));
    });
    r["AddFontData"] = Fa([](auto& pdf, auto& a) {
        pdf.AddFontData(Byte(SCALVINO_SEMI "/" + a.S(0)), a.S(1), a.B(2, true));
    });
    r["prToASCII85"] = [](Scena&, const Argomenti& a) {
        return json(clsPDFCreator::prToASCII85(a.S(0)));
    };
    r["DrawEAN13"] = Fa([](auto& pdf, auto& a) {
        pdf.DrawEAN13(a.S(0), a.F(1), a.F(2), a.B(3, true), a.F(4), a.F(5));
    });
    r["DrawCODE39"] = Fa([](auto& pdf, auto& a) {
        pdf.DrawCODE39(a.S(0), a.F(1), a.F(2), a.F(3), a.B(4, true), a.F(5), a.F(6));
    });
    r["BeginTiling"] = Fa([](auto& pdf, auto& a) {
        pdf.BeginTiling(a.S(0), a.F(1), a.F(2), a.F(3), a.F(4), a.F(5), a.F(6), a.I(7, 1));
    });
    r["EndTiling"] = Fa([](auto& pdf, auto&) { pdf.EndTiling(); });
    r["SetLinearFill"] = Fa([](auto& pdf, auto& a) {
        pdf.SetLinearFill(a.Elenco(0), a.F(1), a.F(2), a.F(3), a.F(4), a.B(5, true), a.B(6, true));
    });
    r["SetRadialFill"] = Fa([](auto& pdf, auto& a) {
        pdf.SetRadialFill(a.Elenco(0), a.F(1), a.F(2), a.F(3), a.F(4), a.F(5), a.F(6), a.B(7, true),
                          a.B(8, true));
    });
}

const Repertorio& Operazioni()
{
    static const Repertorio tutte = [] {
        Repertorio r;
        Documento(r);
        Testo(r);
        Disegno(r);
        AssiETabelle(r);
        Navigazione(r);
        FileETrame(r);
        return r;
    }();
    return tutte;
}

json Chiama(Scena& scena, const json& chiamata, std::size_t da, const json& tutta)
{
    const auto trovata = Operazioni().find(tutta[da].get<std::string>());
    if (trovata == Operazioni().end()) {
        throw std::invalid_argument("no such operation: " + tutta.dump());
    }
    return trovata->second(scena, Argomenti(chiamata, da + 1));
}

bool Uguali(const json& atteso, const json& avuto)
{
    if (!atteso.is_number() || !avuto.is_number()) return atteso == avuto;
    const double a = atteso.get<double>();
    return std::abs(a - avuto.get<double>()) <= 1e-4 * std::max(1.0, std::abs(a));
}

} // namespace

Recita RecitaCopione(const std::string& copione, const std::string& cartella)
{
    Recita recita;
    Scena scena{{}, {}, cartella, {}};
    for (const json& chiamata : json::parse(copione)) {
        if (chiamata[0] != "Expect") {
            Chiama(scena, chiamata, 0, chiamata);
            continue;
        }
        json senzaRisultato = chiamata;
        senzaRisultato.erase(senzaRisultato.size() - 1);
        const json avuto = Chiama(scena, senzaRisultato, 1, chiamata);
        if (!Uguali(chiamata.back(), avuto)) {
            recita.Mancate.push_back(chiamata.dump() + " gave " + avuto.dump());
        }
    }
    recita.Pdf = scena.Nome.empty() ? scena.Flusso.str() : Byte(scena.Nome);
    return recita;
}

} // namespace aiuti
