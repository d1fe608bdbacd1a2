// The writer used wrongly: a clear error, or the file that follows from the calls; never anything
// undefined. The sanitizers watch these tests above all.

#include "prova_UsoErrato.h"

#include "Aiuti.h"
#include "PaginaDiProva.h"
#include "Scritture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <string>

using aiuti::Byte;
using aiuti::CartellaDiProva;
using aiuti::ErroreDi;
using namespace errato;
using testing::HasSubstr;

namespace {

constexpr float Infinito = std::numeric_limits<float>::infinity();
constexpr float NessunNumero = std::numeric_limits<float>::quiet_NaN();
constexpr float Massimo = std::numeric_limits<float>::max();

void Confronta(const std::optional<ErroreRuntime>& errore, NumeroErrore numero,
               const std::string& motivo, const std::string& file = "clsPDFCreator")
{
    ASSERT_TRUE(errore) << motivo;
    EXPECT_EQ(errore->Numero(), numero);
    EXPECT_EQ(errore->Motivo(), motivo);
    EXPECT_EQ(errore->File(), file);
}

// Every operation that needs a document refuses to work on this writer.
void NessunDocumento(clsPDFCreator& pdf)
{
    for (const auto* operazioni : {&Disegni, &Aggiunte, &Strutture}) {
        for (const auto& operazione : *operazioni) {
            SCOPED_TRACE(operazione.Nome);
            Confronta(ErroreDi([&] { operazione.Chiama(pdf, operazione.Argomenti); }),
                      NumeroErrore::ChiamataNonValida, "nessun documento è aperto: manca BeginDoc");
        }
    }
}

// Operations that need none do their work.
void SenzaDocumentoFunziona(clsPDFCreator& pdf)
{
    for (const auto& operazione : Impostazioni) {
        EXPECT_FALSE(ErroreDi([&] { operazione.Chiama(pdf, operazione.Argomenti); }));
    }
    for (const auto& operazione : SenzaNumeri) {
        EXPECT_FALSE(ErroreDi([&] { operazione.Chiama(pdf, {}); })) << operazione.Nome;
    }
    EXPECT_GE(pdf.Pages(), 0);
    EXPECT_GE(pdf.GetX() + pdf.GetY() + pdf.TextLength("a") + pdf.TextHeight(), 0);
}

// A document of one page on which lavoro is played, with a form and a font ready.
std::string UnaPaginaCon(const aiuti::Disegno& lavoro)
{
    return aiuti::ByteDocumento({}, [&lavoro](clsPDFCreator& pdf) {
        pdf.BeginObject("Modulo");
        pdf.EndObject();
        pdf.SetFont("Arial", 10, 4);
        pdf.BeginPage();
        lavoro(pdf);
        pdf.EndPage();
    });
}

} // namespace

// ---- Without a document ----------------------------------------------------------------------

TEST(UsoErrato, PrimaDiBeginDoc)
{
    clsPDFCreator pdf;
    NessunDocumento(pdf);
    Confronta(ErroreDi([&pdf] { pdf.OpenDoc(); }), NumeroErrore::ChiamataNonValida,
              "nessun documento da aprire");
    SenzaDocumentoFunziona(pdf);
    NessunDocumento(pdf);
}

TEST(UsoErrato, DopoEndDoc)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    const std::string nome = pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    pdf.SetFont("Arial", 10);
    pdf.BeginPage();
    pdf.EndPage();
    pdf.EndDoc();
    const std::string prima = Byte(nome);
    NessunDocumento(pdf);
    SenzaDocumentoFunziona(pdf);
    EXPECT_TRUE(Byte(nome) == prima);
    EXPECT_EQ(pdf.Pages(), 1);
}

TEST(UsoErrato, DopoUnBeginDocFallito)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    Confronta(ErroreDi([&] { pdf.BeginDoc(cartella.Nome() + "manca/prova.pdf"); }),
              NumeroErrore::PercorsoNonTrovato, "file o cartella inesistente",
              cartella.Nome() + "manca/prova.pdf");
    NessunDocumento(pdf);
    Confronta(ErroreDi([&] { pdf.BeginDoc(cartella.Nome()); }), NumeroErrore::AccessoAlFile,
              "è una cartella", cartella.Nome());
    NessunDocumento(pdf);
    EXPECT_TRUE(cartella.Contenuto().empty());
}

TEST(UsoErrato, UnDocumentoSpostatoContinuaNelNuovoOggetto)
{
    const CartellaDiProva cartella;
    clsPDFCreator primo;
    const std::string nome = primo.BeginDoc(cartella.Nome() + "prova.pdf");
    primo.SetFont("Arial", 10);
    primo.BeginPage();
    clsPDFCreator secondo = std::move(primo);
    secondo.DrawText(10, 10, "spostato");
    secondo.EndPage();
    secondo.EndDoc();
    aiuti::Esamina(Byte(nome), {"spostato"});
    NessunDocumento(secondo);
}

TEST(UsoErrato, UnOggettoCheNeRiceveUnAltroAbbandonaIlSuoDocumento)
{
    const CartellaDiProva cartella;
    clsPDFCreator pdf;
    const std::string nome = pdf.BeginDoc(cartella.Nome() + "prova.pdf");
    pdf = clsPDFCreator();
    NessunDocumento(pdf);
    EXPECT_EQ(pdf.Pages(), 0);
    EXPECT_EQ(Byte(nome), ""); // nothing had reached the file yet
}

// ---- Between pages ---------------------------------------------------------------------------

TEST(UsoErrato, FraLePagineOgniOperazioneScriveCioCheScriveInUnaPagina)
{
    const std::string fine = "[  ]\r\nendobj\r\n"; // the last object of a page
    const std::string inizio = "0 0 0 RG\r\n";     // the last line of its beginning
    for (const auto& operazione : Disegni) {
        SCOPED_TRACE(operazione.Nome);
        const auto chiama = [&](clsPDFCreator& pdf) {
            operazione.Chiama(pdf, operazione.Argomenti);
        };
        const std::string dentro = UnaPaginaCon(chiama);
        const auto da = dentro.find(inizio) + inizio.size();
        const std::string scritto = dentro.substr(da, dentro.find("endstream", da) - da);

        const std::string fra = aiuti::ByteDocumento({}, [&](clsPDFCreator& pdf) {
            pdf.SetFont("Arial", 10, 4);
            pdf.BeginPage();
            pdf.EndPage();
            chiama(pdf);
        });
        const auto dopo = fra.find(fine) + fine.size();
        EXPECT_EQ(fra.substr(dopo, scritto.size()), scritto);
        EXPECT_EQ(fra.substr(dopo + scritto.size(), 9), "11 0 obj\r"); // the first font
        // Only these bytes are too many; the positions in the table are right.
        EXPECT_EQ(aiuti::LeggiPdf(fra).Difetti.size(), scritto.empty() ? 0U : 1U);
    }
}

TEST(UsoErrato, EndPageSenzaPaginaScriveUnaFineDiTroppo)
{
    const std::string byte = aiuti::ByteDocumento({}, [](clsPDFCreator& pdf) { pdf.EndPage(); });
    EXPECT_THAT(byte, HasSubstr("endobj\r\nendstream\r\nendobj\r\n7 0 obj\r\n"));
    EXPECT_FALSE(aiuti::LeggiPdf(byte).Difetti.empty());
}

TEST(UsoErrato, UnaPaginaDentroUnaPaginaEUnModuloDentroUnaPagina)
{
    const std::string due = aiuti::ByteDocumento({}, [](clsPDFCreator& pdf) {
        EXPECT_EQ(pdf.BeginPage(), 1);
        EXPECT_EQ(pdf.BeginPage(), 2);
        pdf.EndPage();
        pdf.EndPage();
    });
    EXPECT_THAT(due, HasSubstr("0 0 0 RG\r\n9 0 obj\r\n<< /Type /Page /Parent 4 0 R"));
    EXPECT_FALSE(aiuti::LeggiPdf(due).Difetti.empty());
    const std::string modulo = UnaPaginaCon([](clsPDFCreator& pdf) {
        pdf.BeginObject("Altro");
        pdf.EndObject();
    });
    EXPECT_THAT(modulo, HasSubstr("0 0 0 RG\r\n11 0 obj\r\n<< /Type /XObject"));
    EXPECT_FALSE(aiuti::LeggiPdf(modulo).Difetti.empty());
}

TEST(UsoErrato, EndDocConUnaPaginaApertaScriveTuttoIlResto)
{
    const std::string byte = aiuti::ByteDocumento({}, [](clsPDFCreator& pdf) { pdf.BeginPage(); });
    EXPECT_THAT(byte, testing::EndsWith("%%EOF\r\r\n"));
    EXPECT_FALSE(aiuti::LeggiPdf(byte).Difetti.empty());
}

TEST(UsoErrato, TestoSenzaCarattereEUnErroreCheNonScriveNiente)
{
    std::string atteso;
    for (const bool prova : {false, true}) {
        const std::string byte = aiuti::ByteDocumento({}, [prova](clsPDFCreator& pdf) {
            pdf.BeginPage();
            for (const auto& operazione : Disegni) {
                const std::string nome = operazione.Nome;
                if (!prova || (nome.find("Text") == nome.npos && nome != "DrawParagraph")) continue;
                if (!nome.starts_with("Draw")) continue;
                Confronta(ErroreDi([&] { operazione.Chiama(pdf, operazione.Argomenti); }),
                          NumeroErrore::ChiamataNonValida,
                          "nessun carattere scelto: manca SetFont");
            }
            pdf.EndPage();
        });
        if (!prova) atteso = byte;
        EXPECT_TRUE(byte == atteso);
    }
}

// ---- Numbers ---------------------------------------------------------------------------------

TEST(NumeriErrati, NonFinitiSonoUnErroreCheNonScriveNiente)
{
    const std::string atteso = UnaPaginaCon([](clsPDFCreator&) {});
    for (const auto* operazioni : {&Disegni, &Aggiunte, &Impostazioni, &Segnalibri}) {
        for (const auto& operazione : *operazioni) {
            const std::string byte = UnaPaginaCon([&](clsPDFCreator& pdf) {
                for (std::size_t quale = 0; quale < operazione.Argomenti.size(); ++quale) {
                    for (const float valore : {Infinito, -Infinito, NessunNumero}) {
                        SCOPED_TRACE(std::string(operazione.Nome) + " " + std::to_string(quale));
                        Numeri numeri = operazione.Argomenti;
                        numeri[quale] = valore;
                        Confronta(ErroreDi([&] { operazione.Chiama(pdf, numeri); }),
                                  NumeroErrore::Overflow, "un numero non è finito");
                    }
                }
            });
            EXPECT_TRUE(byte == atteso) << operazione.Nome;
        }
    }
}

TEST(NumeriErrati, EnormiSonoScrittiComeSonoInUnFileIntero)
{
    for (const float valore : {Massimo, -Massimo, std::numeric_limits<float>::denorm_min(), 0.0F}) {
        for (const auto& operazione : Disegni) {
            const std::string nome = operazione.Nome;
            if (nome.starts_with("End")) continue; // no numbers, and nothing to end
            const std::string byte = UnaPaginaCon([&](clsPDFCreator& pdf) {
                if (nome == "DrawLineTo" || nome.starts_with("DrawCurve")) pdf.MoveTo(0, 0);
                operazione.Chiama(pdf, Numeri(operazione.Argomenti.size(), valore));
                for (const auto* coppia : {"GraphicSpace", "Table", "Row", "Column"}) {
                    if (nome != std::string("Begin") + coppia) continue;
                    pdf.EndGraphicSpace(); // they all are a saved state
                }
                EXPECT_TRUE(std::isfinite(pdf.GetX()) && std::isfinite(pdf.GetY())) << nome;
            });
            EXPECT_THAT(aiuti::LeggiPdf(byte).Difetti, testing::IsEmpty()) << nome << valore;
        }
    }
}

TEST(NumeriErrati, AggiunteEnormiDannoUnFileIntero)
{
    for (const float valore : {Massimo, -Massimo, std::numeric_limits<float>::denorm_min(), 0.0F}) {
        for (const auto* operazioni : {&Aggiunte, &Segnalibri}) {
            for (const auto& operazione : *operazioni) {
                const std::string byte = UnaPaginaCon([&](clsPDFCreator& pdf) {
                    operazione.Chiama(pdf, Numeri(operazione.Argomenti.size(), valore));
                });
                EXPECT_THAT(aiuti::LeggiPdf(byte).Difetti, testing::IsEmpty())
                    << operazione.Nome << valore;
            }
        }
    }
}

TEST(UsoErrato, FileETestiSbagliatiNonCambianoIlDocumento)
{
    const CartellaDiProva cartella;
    const std::string atteso = UnaPaginaCon([](clsPDFCreator&) {});
    const std::string manca = cartella.Nome() + "manca.gif";
    const std::string font = cartella.Nome() + "manca.ttf";
    const std::string avuto = UnaPaginaCon([&](clsPDFCreator& pdf) {
        Confronta(ErroreDi([&] { pdf.DrawImage(manca, 1, 2, 3, 4); }),
                  NumeroErrore::PercorsoNonTrovato, "file o cartella inesistente", manca);
        Confronta(ErroreDi([&] { pdf.DrawImage("foto.png", 1, 2, 3, 4); }),
                  NumeroErrore::ChiamataNonValida, "non è un'immagine .BMP, .GIF, .JPG o .JPEG",
                  "foto.png");
        Confronta(ErroreDi([&] { pdf.AddFont(font, "Mio"); }), NumeroErrore::PercorsoNonTrovato,
                  "file o cartella inesistente", font);
        Confronta(ErroreDi([&] { pdf.DrawEAN13("12345", 1, 2); }), NumeroErrore::ChiamataNonValida,
                  "un EAN-13 vuole 12 o 13 cifre", "\"12345\"");
        Confronta(ErroreDi([&] { pdf.DrawCODE39("caffè", 1, 2); }), NumeroErrore::ChiamataNonValida,
                  "il Code 39 ha solo i caratteri ASCII", "\"caffè\"");
        Confronta(ErroreDi([&] { pdf.SetLinearFill({}, 1, 2, 3, 4); }),
                  NumeroErrore::ChiamataNonValida, "una sfumatura vuole dei colori");
    });
    EXPECT_TRUE(avuto == atteso);
}

TEST(NumeriErrati, ImpostazioniEnormiDannoUnFileIntero)
{
    for (const float valore : {Massimo, -Massimo, std::numeric_limits<float>::denorm_min(), 0.0F}) {
        for (const auto& operazione : Impostazioni) {
            const std::string byte = UnaPaginaCon([&](clsPDFCreator& pdf) {
                operazione.Chiama(pdf, Numeri(operazione.Argomenti.size(), valore));
                pdf.DrawText(1, 2, "uno due", 4, 30);
                pdf.DrawTextBox(1, 2, 3, 4, "uno due", 1, 0, 64);
                pdf.DrawTextBox(Massimo, Massimo, Massimo, Massimo, "uno due", 1, 0, 36);
                EXPECT_TRUE(std::isfinite(pdf.TextLength("uno due"))) << operazione.Nome;
                EXPECT_TRUE(std::isfinite(pdf.TextHeight())) << operazione.Nome;
                EXPECT_TRUE(std::isfinite(pdf.GetX())) << operazione.Nome;
            });
            EXPECT_THAT(aiuti::LeggiPdf(byte).Difetti, testing::IsEmpty())
                << operazione.Nome << valore;
        }
    }
}

TEST(NumeriErrati, TuttoEnormeInsieme)
{
    const std::string byte = UnaPaginaCon([](clsPDFCreator& pdf) {
        pdf.SetScale(255, Massimo);
        pdf.SetFont("Arial", Massimo, 28);
        pdf.SetCharSpacing(Massimo);
        pdf.SetWordSpacing(Massimo);
        pdf.SetTextHorizontalScaling(Massimo);
        pdf.DrawText(Massimo, -Massimo, "uno due", 2, Massimo);
        pdf.DrawTextBox(Massimo, -Massimo, Massimo, Massimo, "uno due tre", Massimo, Massimo, 96,
                        Massimo);
        pdf.DrawArc(Massimo, Massimo, Massimo, Massimo, -Massimo);
        pdf.DrawRect(-Massimo, -Massimo, Massimo, Massimo, 7, Massimo);
    });
    EXPECT_THAT(aiuti::LeggiPdf(byte).Difetti, testing::IsEmpty());
}

TEST(NumeriErrati, UnArcoDiTantissimiGiriNonRiempieIlDisco)
{
    const std::string byte =
        UnaPaginaCon([](clsPDFCreator& pdf) { pdf.DrawArc(50, 50, 10, 0, 1e30F); });
    EXPECT_LT(byte.size(), 400000U);
    EXPECT_THAT(aiuti::LeggiPdf(byte).Difetti, testing::IsEmpty());
}

TEST(NumeriErrati, InteriAiLimiti)
{
    constexpr std::int32_t minimo = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t massimo = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t valore : {minimo, massimo}) {
        const auto opzioni = UnaPaginaCon([valore](clsPDFCreator& pdf) {
            pdf.SetFont("Arial", 10, valore);
            pdf.SetTextRenderingMode(valore);
            pdf.DrawText(1, 2, "testo", valore);
            pdf.DrawTextBox(1, 2, 3, 4, "testo", 1, 0, valore);
            pdf.SetLineStyle(1, valore, valore);
            pdf.DrawRect(1, 2, 3, 4, valore);
        });
        EXPECT_THAT(aiuti::LeggiPdf(opzioni).Difetti, testing::IsEmpty());
        EXPECT_THAT(opzioni, HasSubstr("\r\n" + std::to_string(valore) + " Tr\r\n"));
        EXPECT_THAT(aiuti::ByteDocumento(
                        [valore](clsPDFCreator& pdf) {
                            pdf.PDFReader(valore);
                            pdf.SetScale(valore);
                            pdf.SetPaperSize(valore);
                            pdf.Orientation(valore);
                        },
                        [valore](clsPDFCreator& pdf) {
                            pdf.BeginObject("Modulo", valore);
                            pdf.EndObject();
                            pdf.BeginPage(valore, valore, "", valore);
                            pdf.EndPage();
                        }),
                    testing::StartsWith(
                        "%PDF-1." + std::to_string(3 + static_cast<std::int64_t>(valore)) + "\r"));
    }
}
