// The texts, names and colours that a document takes: whatever they hold, the file is sound and
// what they say adds nothing to it, or there is one clear error.

#include "ErroreRuntime.h"
#include "StrutturaPdf.h"
#include "clsPDFCreator.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

namespace {

// One file of this process, in memory where the system has such a folder.
const std::string& File()
{
    static const std::string nome = (::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp") +
                                    ("/fuzz_scrittore_" + std::to_string(::getpid()) + ".pdf");
    return nome;
}

float Numero(FuzzedDataProvider& dati)
{
    return dati.ConsumeFloatingPointInRange<float>(-1e6F, 1e6F);
}

void Testo(clsPDFCreator& pdf, FuzzedDataProvider& dati)
{
    const std::string testo = dati.ConsumeRandomLengthString(200);
    const auto opzioni = dati.ConsumeIntegral<std::uint8_t>();
    switch (dati.ConsumeIntegralInRange(0, 8)) {
    case 0:
        return pdf.DrawText(Numero(dati), Numero(dati), testo, opzioni, Numero(dati));
    case 1:
        pdf.DrawTextBox(Numero(dati), Numero(dati), Numero(dati), Numero(dati), testo, Numero(dati),
                        Numero(dati), opzioni, Numero(dati));
        return;
    case 2:
        return pdf.AddBookmark(testo, opzioni, opzioni % 6, Numero(dati), Numero(dati));
    case 3:
        return pdf.AddNoteIcon(testo, opzioni % 9, Numero(dati), Numero(dati), true, "Red",
                               dati.ConsumeRandomLengthString(50));
    case 4:
        return pdf.AddNoteBox(testo, Numero(dati), Numero(dati), 5, 5, 10, "Blue", opzioni % 4, 1,
                              opzioni % 7, "", dati.ConsumeRandomLengthString(50));
    case 5:
        return pdf.AddWebLink(testo, Numero(dati), Numero(dati), 5, 5, opzioni % 6);
    case 6:
        return pdf.SetFont(testo, Numero(dati), opzioni);
    case 7:
        return pdf.DrawCODE39(testo, Numero(dati), Numero(dati));
    default:
        return pdf.AddNoteStamp(testo, Numero(dati), Numero(dati), 5, 5, opzioni % 16);
    }
}

// A tiling and an object of that name; none where the name is refused, and then its use is, too.
void Definisci(clsPDFCreator& pdf, const std::string& nome)
{
    try {
        pdf.BeginTiling(nome, 0, 0, 5, 5, 5, 5);
        pdf.EndTiling();
        pdf.BeginObject(nome, 7);
        pdf.EndObject();
    } catch (const ErroreRuntime& errore) {
        if (errore.Numero() != NumeroErrore::ChiamataNonValida) std::abort();
    }
}

void Usa(clsPDFCreator& pdf, FuzzedDataProvider& dati, const std::string& nome)
{
    const std::string testo = dati.ConsumeRandomLengthString(50);
    switch (dati.ConsumeIntegralInRange(0, 5)) {
    case 0:
        return pdf.SetColorFill(nome, testo);
    case 1:
        return pdf.SetColorLine(nome, testo);
    case 2:
        return pdf.SetColorFill("#" + testo, testo);
    case 3:
        return pdf.SetColorLine("%" + testo, testo);
    case 4:
        return pdf.PlayObject(nome);
    default:
        pdf.BeginTable(0, 0, nome, 1, nome);
        pdf.BeginRow(5, nome);
        pdf.BeginColumn(5, "", 2, nome);
        pdf.EndColumn();
        pdf.EndRow();
        return pdf.EndTable();
    }
}

// A "#" in a property takes the properties after it as they are, on purpose: what they then say
// together is nobody's promise.
std::string Proprieta(FuzzedDataProvider& dati)
{
    std::string testo = dati.ConsumeRandomLengthString(50);
    std::replace(testo.begin(), testo.end(), '#', '.');
    return testo;
}

void Scrivi(FuzzedDataProvider& dati)
{
    clsPDFCreator pdf;
    pdf.SetClock({[] { return clsPDFCreator::DateTime{2026, 1, 2, 3, 4, 5}; }, [] { return 1; }});
    pdf.SetDocProperty(Proprieta(dati), Proprieta(dati), "", "", "", Proprieta(dati));
    pdf.BeginDoc(File());
    // An empty name is sound, but our reader wants one.
    const std::string nome = dati.ConsumeRandomLengthString(140);
    const std::string nonVuoto = nome.empty() ? "Nome" : nome;
    Definisci(pdf, nonVuoto);
    pdf.BeginPage(0, dati.ConsumeIntegralInRange(0, 6), dati.ConsumeRandomLengthString(20));
    pdf.SetFont("Arial", 10);
    for (int i = 0; i < 8 && dati.remaining_bytes() > 0; ++i) {
        try {
            if (dati.ConsumeBool()) Testo(pdf, dati);
            else Usa(pdf, dati, nonVuoto);
        } catch (const ErroreRuntime& errore) {
            if (errore.Motivo().empty()) std::abort();
        }
    }
    pdf.EndPage();
    pdf.EndDoc();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti)
{
    FuzzedDataProvider dati(byte, quanti);
    Scrivi(dati);
    std::ifstream file(File(), std::ios::binary);
    const std::string pdf{std::istreambuf_iterator<char>(file), {}};
    const auto letto = aiuti::LeggiPdf(pdf);
    for (const auto& difetto : letto.Difetti) std::fprintf(stderr, "%s\n", difetto.c_str());
    if (!letto.Difetti.empty() || !letto.NomiMancanti.empty()) std::abort();
    return 0;
}
